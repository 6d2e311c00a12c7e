#pragma once

#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/widgets/Export.h>

#include <QLineEdit>
#include <QPointer>
#include <QTabBar>

namespace orv {

/// Tabs whose titles designers of workflows edit in place, by a double click, and move by dragging.
class ORV_PROPERTY_EDITOR_EXPORT EditableTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit EditableTabBar(QWidget *parent = nullptr);
    ~EditableTabBar() override;

    void setEditorMode(GridPropertyEditorView::EditorMode mode);
    /// Whether a person holds a tab, and may be dragging it over others.
    [[nodiscard]] bool isHeld() const { return m_isHeld; }

Q_SIGNALS:
    /// A person lets go of the tab; it has been moved.
    void released();
    /// A person gave the tab another title.
    void titleEdited(int index);

public Q_SLOTS:
    void onTabBarDoubleClicked(int index);

protected:
    /// An ampersand belongs to the title.
    void initStyleOption(QStyleOptionTab *option, int tabIndex) const override;
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void commitTitle(int index);
    void dropTitle();

    QPointer<QLineEdit> m_editor;
    bool m_isEditable = false;
    bool m_isHeld = false;
};

} // namespace orv
