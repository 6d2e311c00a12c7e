#pragma once

#include <QPointer>

namespace orv {

enum class WidgetOwner
{
    Item, ///< until something shows the widget
    Others,
};

/// The widget of a grid item: it may go first, and belongs to what shows it as soon as that has given it a
/// parent.
template<class Widget>
class ItemWidget
{
public:
    explicit ItemWidget(Widget *widget, WidgetOwner owner = WidgetOwner::Item)
        : m_widget(widget)
        , m_owner(owner)
    {}
    ~ItemWidget()
    {
        if (m_owner == WidgetOwner::Item && m_widget && !m_widget->parent())
            delete m_widget;
    }
    Q_DISABLE_COPY_MOVE(ItemWidget)

    [[nodiscard]] Widget *get() const { return m_widget; }
    Widget *operator->() const { return m_widget; }
    explicit operator bool() const { return !m_widget.isNull(); }

private:
    QPointer<Widget> m_widget;
    const WidgetOwner m_owner;
};

} // namespace orv
