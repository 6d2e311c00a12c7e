#include "SettingView.h"

#include "state/ChangeText.h"

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

std::optional<SettingView> SettingView::of(const PropertyEditorWindow *window,
                                           const GridPropertyEditorView *view)
{
    const QList<SettingView> columns = view ? all(window) : QList<SettingView>();
    const auto found =
        std::ranges::find_if(columns, [view](const SettingView &each) { return each.view == view; });
    return found == columns.cend() ? std::nullopt : std::optional(*found);
}

bool SettingView::isIn(const PropertyEditorWindow *window, const GridPropertyEditorView *view)
{
    return of(window, view).has_value();
}

} // namespace orv
