#include "TableSheetPrivate.h"

#include <QPointer>

#include <algorithm>

namespace orv {

TableSheet::Private::Private(TableSheet *sheet, QList<TableColumn> columnsOfSheet)
    : q(sheet)
    , columns(std::move(columnsOfSheet))
    , store(columns)
    , history(new TableHistory(sheet))
{}

void TableSheet::Private::push(QList<TableStep> steps, const QString &name)
{
    history->push(std::make_unique<TableEdit>([this](const QList<TableStep> &taken) { take(taken); },
                                              std::move(steps), name));
}

void TableSheet::Private::take(const QList<TableStep> &steps)
{
    for (const TableStep &step : steps)
        change(step);
    const QList<quint32> touched = checks.takeTouched();
    const QPointer<TableSheet> guard(q);
    for (const TableStep &step : steps) {
        if (guard)
            tell(step);
    }
    if (guard && !touched.isEmpty())
        Q_EMIT q->problemsChanged(touched);
}

void TableSheet::Private::change(const TableStep &step)
{
    if (const auto *cells = std::get_if<QList<TableCellChange>>(&step)) {
        for (const TableCellChange &cell : *cells) {
            checks.beforeChange(cell.row, cell.column);
            store.setSlot(cell.row, cell.column, cell.after);
            checks.afterChange(cell.row, cell.column);
        }
    } else if (const auto *rows = std::get_if<TableRowsChange>(&step)) {
        for (const quint32 row : rows->rows)
            rows->isInsertion ? checks.enter(row) : checks.leave(row);
        if (rows->isInsertion)
            order.insert(rows->places, rows->rows);
        else
            order.remove(rows->places);
    } else {
        order.assign(withChange(order.ids(), std::get<TableOrderChange>(step)));
    }
}

void TableSheet::Private::tell(const TableStep &step) const
{
    if (const auto *cells = std::get_if<QList<TableCellChange>>(&step))
        tellCells(*cells);
    else if (const auto *rows = std::get_if<TableRowsChange>(&step); !rows)
        Q_EMIT q->rowsReordered();
    else if (rows->isInsertion)
        Q_EMIT q->rowsInserted(rows->places);
    else
        Q_EMIT q->rowsRemoved(rows->rows);
}

void TableSheet::Private::tellCells(const QList<TableCellChange> &cells) const
{
    QList<quint32> ids;
    int first = int(columns.size());
    int last = 0;
    for (const TableCellChange &cell : cells) {
        first = std::min(first, cell.column);
        last = std::max(last, cell.column);
        if (ids.isEmpty() || ids.constLast() != cell.row)
            ids.append(cell.row);
    }
    if (store.hasDerived()) {
        first = 0;
        last = int(columns.size()) - 1;
    }
    Q_EMIT q->cellsChanged(ids, first, last);
}

quint32 TableSheet::Private::addRow(const QStringList &texts)
{
    const quint32 id = store.addRow(texts);
    checks.addedToStore();
    return id;
}

quint32 TableSheet::Private::addDefaultRow()
{
    QStringList texts;
    for (const TableColumn &column : columns)
        texts.append(column.defaultText);
    return addRow(texts);
}

std::vector<TableSlot> TableSheet::Private::keepAll(const QList<TableCellText> &cells)
{
    // Texts of the table itself are found before the first new one moves it.
    std::vector<TableSlot> kept(size_t(cells.size()));
    for (size_t i = 0; i < kept.size(); ++i)
        kept[i] = store.slotOf(cells[qsizetype(i)].text).value_or(TableSlot());
    for (size_t i = 0; i < kept.size(); ++i) {
        if (kept[i].size == 0)
            kept[i] = store.keep(cells[qsizetype(i)].text);
    }
    return kept;
}

} // namespace orv
