#pragma once

#include <QPointer>

namespace orv {

/// The widget of a grid item: it may go first, and belongs to what shows it as soon as that has given it a
/// parent.
template<class Widget>
class ItemWidget
{
public:
    explicit ItemWidget(Widget *widget)
        : m_widget(widget)
    {}
    ~ItemWidget()
    {
        if (m_widget && !m_widget->parent())
            delete m_widget;
    }
    Q_DISABLE_COPY_MOVE(ItemWidget)

    [[nodiscard]] Widget *get() const { return m_widget; }
    Widget *operator->() const { return m_widget; }
    explicit operator bool() const { return !m_widget.isNull(); }

private:
    QPointer<Widget> m_widget;
};

} // namespace orv
