#include "SettingJump.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QPointer>
#include <QScrollArea>

namespace orv {

void SettingJump::show(PropertyEditorWindow *window, QWidget *widget)
{
    const WorkflowTabs *tabs = window->workflowTabs();
    for (int i = 0; i < tabs->count(); ++i) {
        const QPointer<PropertyGridWidget> grid = tabs->grid(i);
        if (!grid || !grid->isAncestorOf(widget))
            continue;
        const QPointer<QWidget> wanted(widget);
        tabs->widget()->setCurrentIndex(i);
        auto *area =
            grid ? grid->findChild<QScrollArea *>(QStringLiteral("propertyGridWidgetScrollArea")) : nullptr;
        if (area && wanted)
            area->ensureWidgetVisible(wanted, 0, 0);
        return;
    }
}

bool SettingJump::toSetting(PropertyEditorWindow *window, GridPropertyEditorView *view,
                            const QByteArray &name)
{
    const QPointer<PropertyEditorWindow> self(window);
    const QPointer<GridPropertyEditorView> wanted(view);
    show(window, view);
    if (!self || !wanted || !wanted->goTo(name) || !wanted)
        return false;
    wanted->editorView()->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace orv
