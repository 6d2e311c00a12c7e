#include "ShownState.h"

#include <orv/propertyeditor/content/CellStamps.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridItemEdits.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/table_model/TableHistory.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/TableView.h>

#include <QAction>

#include <utility>

namespace orv {

StateCell cellOf(const IGridItem &item)
{
    return StateCell(CellStamps::without(item.content()));
}

int stepsDone(const TableHistory &history)
{
    return history.forgotten() + history.index();
}

ShownState::ShownState(PropertyEditorWindow *window)
    : m_window(window)
{}

DocumentState ShownState::read()
{
    DocumentState state;
    const WorkflowTabs *tabs = m_window->workflowTabs();
    const int count = tabs->widget()->count();
    state.tabs.reserve(count);
    // Tabs without a grid count, so that places in the state are places in the window.
    for (int i = 0; i < count; ++i)
        state.tabs.append(readTab(i));
    state.metadata = m_window->workflowMetadata();
    return state;
}

DocumentState::Tab ShownState::readTab(int index)
{
    const WorkflowTabs *tabs = m_window->workflowTabs();
    DocumentState::Tab tab{tabs->widget()->tabText(index), {}, {}};
    const PropertyGridWidget *grid = tabs->grid(index);
    if (!grid)
        return tab;
    tab.columns = grid->columnNames();
    const QList<IGridItem *> items = grid->items();
    tab.cells.reserve(items.size());
    for (IGridItem *item : items)
        tab.cells.append(readColumn(*item));
    return tab;
}

StateCell ShownState::readColumn(IGridItem &item)
{
    Column &column = known(item);
    if (!column.isRead || column.name != item.name()) {
        const StateCell cell = cellOf(item);
        // One that is the same stays shared with other states.
        if (column.cell.isNull() || !(cell == column.cell))
            column.cell = cell;
        column.name = item.name();
        column.isRead = true;
        noteMoves(&column);
    }
    return column.cell;
}

ShownState::Column &ShownState::known(IGridItem &item)
{
    const GridItemEdits *edits = item.edits();
    auto column = m_columns.find(edits);
    if (column == m_columns.end()) {
        column = m_columns.insert(edits, {});
        follow(item, &*column);
    }
    return *column;
}

void ShownState::follow(IGridItem &item, Column *column)
{
    const GridItemEdits *edits = item.edits();
    const auto isEdited = [this, edits] {
        if (const auto known = m_columns.find(edits); known != m_columns.end())
            known->isRead = false;
    };
    connect(edits, &GridItemEdits::edited, this, isEdited);
    connect(edits, &QObject::destroyed, this, [this, edits] { m_columns.remove(edits); });
    QWidget *widget = item.widget();
    if (auto *view = qobject_cast<GridPropertyEditorView *>(widget))
        connect(view, &GridPropertyEditorView::propertyChanged, this, [this, isEdited] {
            isEdited();
            Q_EMIT settingEdited();
        });
    if (!widget)
        return;
    QList<TableView *> tables = widget->findChildren<TableView *>();
    if (auto *table = qobject_cast<TableView *>(widget))
        tables.prepend(table);
    for (const TableView *table : std::as_const(tables)) {
        // One key takes back the last edit, wherever it was made.
        table->action(TableView::Command::Undo)->setShortcuts(QList<QKeySequence>());
        table->action(TableView::Command::Redo)->setShortcuts(QList<QKeySequence>());
        column->histories.append({table->sheet()->history(), stepsDone(*table->sheet()->history())});
    }
}

void ShownState::noteMoves(Column *column)
{
    for (auto &[history, done] : column->histories) {
        if (history && stepsDone(*history) != done)
            m_moves.append({history, std::exchange(done, stepsDone(*history)), stepsDone(*history)});
    }
}

qsizetype ShownState::heldByTables() const
{
    qsizetype bytes = 0;
    for (const Column &column : m_columns) {
        for (const auto &[history, done] : column.histories)
            bytes += history ? history->heldBytes() : 0;
    }
    return bytes;
}

void ShownState::forgetStepsOfTables(
    const std::function<std::optional<int>(const TableHistory *, int done)> &firstWanted)
{
    for (const Column &column : std::as_const(m_columns)) {
        for (const auto &[history, known] : column.histories) {
            if (!history)
                continue;
            const int done = stepsDone(*history);
            history->forget(firstWanted(history, done).value_or(done) - history->forgotten());
        }
    }
}

QList<TableMove> ShownState::takeMoves()
{
    return std::exchange(m_moves, {});
}

void ShownState::forget(const StateChange &change, const DocumentState &shown)
{
    for (const StateChange::CellChange &cell : change.cells())
        forgetUnless(cell.tab, cell.column, nullptr);
    if (!change.hasOtherTabs())
        return;
    for (qsizetype tab = change.firstTab(); tab < shown.tabs.size(); ++tab) {
        const QList<StateCell> &cells = shown.tabs.at(tab).cells;
        for (qsizetype column = 0; column < cells.size(); ++column)
            forgetUnless(int(tab), int(column), &cells.at(column));
    }
}

void ShownState::forgetUnless(int tab, int column, const StateCell *cell)
{
    const PropertyGridWidget *grid = m_window->workflowTabs()->grid(tab);
    const IGridItem *item = grid ? grid->items().value(column) : nullptr;
    const auto known = item ? m_columns.find(item->edits()) : m_columns.end();
    if (known != m_columns.end() && !(cell && known->cell == *cell))
        known->isRead = false;
}

void ShownState::forget()
{
    for (Column &column : m_columns)
        column.isRead = false;
}

} // namespace orv
