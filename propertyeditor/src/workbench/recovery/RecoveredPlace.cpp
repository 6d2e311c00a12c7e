#include "orv/propertyeditor/workbench/RecoveredPlace.h"

#include "settings/SettingJump.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QPointer>

namespace orv {

void showRecoveredPlace(PropertyEditorWindow *window, const RecoveryPlace &place)
{
    const WorkflowTabs *tabs = window->workflowTabs();
    QStringList titles;
    for (int i = 0; i < tabs->count(); ++i)
        titles.append(tabs->widget()->tabText(i));
    const int tab = int(WorkflowDifferences::labels(titles).indexOf(place.tab));
    const PropertyGridWidget *grid = tab < 0 ? nullptr : tabs->grid(tab);
    if (!grid)
        return;
    const qsizetype column = WorkflowDifferences::labels(grid->columnNames()).indexOf(place.column);
    const QList<IGridItem *> items = grid->items();
    const QPointer widget = column < 0 || column >= items.size() ? nullptr : items.at(column)->widget();
    auto *settings = qobject_cast<GridPropertyEditorView *>(widget.data());
    // A jump unfolds and focuses, and whoever hears of that may take the column away.
    const QPointer<PropertyEditorWindow> shown(window);
    if (settings && SettingJump::toSetting(window, settings, place.setting.toUtf8()))
        return;
    if (!shown)
        return;
    if (widget) {
        SettingJump::show(window, widget);
        if (widget)
            widget->setFocus(Qt::OtherFocusReason);
    } else {
        tabs->widget()->setCurrentIndex(tab);
    }
}

} // namespace orv
