#include "ColumnPlace.h"

#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/widgets/TableView.h>

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QPointer>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace orv {

namespace {

/// The view in whose cells \a widget stands, as the editor of a cell; null for any other.
const QAbstractItemView *viewAround(const QWidget *widget)
{
    for (const QWidget *inner = widget; inner && inner->parentWidget(); inner = inner->parentWidget()) {
        const auto *view = qobject_cast<const QAbstractItemView *>(inner->parentWidget()->parentWidget());
        if (view && view->viewport() == inner->parentWidget())
            return view;
    }
    return nullptr;
}

QPoint cellOfTable(const TableView &table)
{
    const QModelIndex current = table.currentIndex();
    return current.isValid() ? QPoint(current.column(), table.tableModel()->sheetRow(current.row()))
                             : QPoint(-1, -1);
}

void goToCell(TableView *table, QPoint cell)
{
    const int row = cell.y() < 0 || cell.y() >= table->sheet()->rowCount()
                        ? -1
                        : table->tableModel()->rowOfSheetRow(cell.y());
    const QModelIndex index = table->tableModel()->index(row, cell.x());
    if (index.isValid())
        table->goTo(index);
}

} // namespace

ColumnPlace::ColumnPlace(const QWidget &column, const QWidget *focus)
{
    if (const auto *view = column.findChild<GridPropertyEditorView *>()) {
        m_tree.emplace(*view->editorView());
        m_mode = view->propertiesViewMode();
    }
    const QAbstractItemView *around = viewAround(focus);
    const QWidget *wanted = around ? around : focus;
    for (const Named &each : widgetsOf(column)) {
        if (each.widget == wanted)
            m_focus = each.name;
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(each.widget))
            m_areas.append(areaOf(each.name, *area));
    }
}

QList<ColumnPlace::Named> ColumnPlace::widgetsOf(const QWidget &column)
{
    QList<Named> named;
    for (QWidget *widget : column.findChildren<QWidget *>()) {
        // Editors of cells and lists of boxes come and go.
        if (widget->window() != column.window() || viewAround(widget))
            continue;
        Name name{widget->metaObject()->className(), widget->objectName(), 0};
        for (const Named &each : std::as_const(named)) {
            if (each.name.type == name.type && each.name.objectName == name.objectName)
                name.number = each.name.number + 1;
        }
        named.append({name, widget});
    }
    return named;
}

QWidget *ColumnPlace::find(const QWidget &column, const Name &name)
{
    const QList<Named> named = widgetsOf(column);
    const auto found = std::ranges::find(named, name, &Named::name);
    return found == named.cend() ? nullptr : found->widget;
}

ColumnPlace::Area ColumnPlace::areaOf(const Name &name, const QAbstractScrollArea &widget)
{
    const QPoint scroll(widget.horizontalScrollBar()->value(), widget.verticalScrollBar()->value());
    const auto *table = qobject_cast<const TableView *>(&widget);
    return {name, scroll, table ? cellOfTable(*table) : QPoint(-1, -1)};
}

void ColumnPlace::restore(QWidget *column) const
{
    const QPointer<QWidget> self(column);
    if (const QPointer view = column->findChild<GridPropertyEditorView *>(); view && m_tree) {
        // Somebody was led to a setting that is hidden else.
        if (view->propertiesViewMode() != m_mode)
            view->setPropertiesViewMode(m_mode);
        if (view)
            m_tree->restore(view->editorView());
    }
    for (const Area &area : m_areas) {
        auto *table = self ? qobject_cast<TableView *>(find(*self, area.name)) : nullptr;
        if (table)
            goToCell(table, area.cell);
    }
}

void ColumnPlace::restoreScroll(QWidget *column) const
{
    for (const Area &area : m_areas) {
        if (auto *shown = qobject_cast<QAbstractScrollArea *>(find(*column, area.name))) {
            shown->horizontalScrollBar()->setValue(area.scroll.x());
            shown->verticalScrollBar()->setValue(area.scroll.y());
        }
    }
}

void ColumnPlace::restoreFocus(QWidget *column) const
{
    QWidget *widget = m_focus ? find(*column, *m_focus) : nullptr;
    if (widget)
        widget->setFocus(Qt::OtherFocusReason);
}

} // namespace orv
