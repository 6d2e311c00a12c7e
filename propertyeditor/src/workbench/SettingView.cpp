#include "SettingView.h"

#include "ChangeText.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <algorithm>

namespace orv {

QString SettingView::placeText() const
{
    return ChangeText::joined({tabName, columnName});
}

QList<SettingView> SettingView::all(const PropertyEditorWindow *window)
{
    QList<SettingView> columns;
    const WorkflowTabs *tabs = window ? window->workflowTabs() : nullptr;
    for (int tab = 0; tabs && tab < tabs->count(); ++tab) {
        const PropertyGridWidget *grid = tabs->grid(tab);
        if (!grid)
            continue;
        const QList<IGridItem *> items = grid->items();
        for (int i = 0; i < items.size(); ++i) {
            if (auto *view = qobject_cast<GridPropertyEditorView *>(items.at(i)->widget()))
                columns.append({view, tab, i, tabs->widget()->tabText(tab), grid->columnNames().value(i)});
        }
    }
    return columns;
}

bool SettingView::isIn(const PropertyEditorWindow *window, const GridPropertyEditorView *view)
{
    const QList<SettingView> columns = view ? all(window) : QList<SettingView>();
    return std::ranges::any_of(columns, [view](const SettingView &each) { return each.view == view; });
}

} // namespace orv
