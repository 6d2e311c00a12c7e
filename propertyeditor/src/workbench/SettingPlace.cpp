#include "SettingPlace.h"

#include <KPropertySet.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/grid/TreePlace.h>

#include <QPointer>
#include <QScrollArea>
#include <QSplitter>

namespace orv {

void SettingPlace::showColumn(const PropertyGridWidget &grid, int column)
{
    QWidget *shown = grid.splitter()->widget(column);
    for (QWidget *outer = shown; outer; outer = outer->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(outer)) {
            area->ensureWidgetVisible(shown, 0, 0);
            return;
        }
    }
}

void SettingPlace::goTo(GridPropertyEditorView &view, const QByteArray &setting)
{
    if (!view.propertySet() || !view.propertySet()->contains(setting))
        return;
    QModelIndex index = TreePlace::indexOf(*view.editorView(), setting);
    if (!index.isValid()) {
        const QPointer<GridPropertyEditorView> self(&view);
        view.setPropertiesViewMode(GridPropertyEditorView::PropertiesViewMode::Advanced);
        if (!self)
            return;
        index = TreePlace::indexOf(*view.editorView(), setting);
    }
    for (QModelIndex outer = index.parent(); outer.isValid(); outer = outer.parent())
        view.editorView()->expand(outer);
    if (!index.isValid())
        return;
    view.editorView()->setCurrentIndex(index);
    view.editorView()->scrollTo(index);
}

Error SettingPlace::keep(GridPropertyEditorView &view, const std::function<Error()> &load)
{
    const TreePlace place(*view.editorView());
    const QPointer<GridPropertyEditorView> self(&view);
    Error error = load();
    if (self)
        place.restore(self->editorView());
    return error.ecatch();
}

} // namespace orv
