#include "TableEdit.h"

#include <algorithm>

namespace orv {

namespace {

TableStep inverseOf(QList<TableCellChange> cells)
{
    for (TableCellChange &cell : cells)
        std::swap(cell.before, cell.after);
    // A cell that changed twice in a step has to go back in the other order.
    std::reverse(cells.begin(), cells.end());
    return cells;
}

qsizetype heldBytesOf(const QList<TableCellChange> &cells)
{
    return cells.size() * qsizetype(sizeof(TableCellChange));
}

qsizetype heldBytesOf(const TableRowsChange &rows)
{
    return rows.rows.size() * qsizetype(sizeof(int) + sizeof(quint32));
}

qsizetype heldBytesOf(const TableOrderChange &order)
{
    return 2 * order.after.size() * qsizetype(sizeof(quint32));
}

TableStep inverseOf(TableRowsChange rows)
{
    rows.isInsertion = !rows.isInsertion;
    return rows;
}

TableStep inverseOf(const TableOrderChange &order)
{
    return TableOrderChange{order.first, order.after, order.before};
}

} // namespace

TableOrderChange orderChange(const QList<quint32> &before, const QList<quint32> &after)
{
    const auto first = std::mismatch(before.cbegin(), before.cend(), after.cbegin()).first - before.cbegin();
    const auto last = before.crend() - std::mismatch(before.crbegin(), before.crend(), after.crbegin()).first;
    const qsizetype size = std::max<qsizetype>(last - first, 0);
    return {int(first), before.mid(first, size), after.mid(first, size)};
}

QList<quint32> withChange(QList<quint32> order, const TableOrderChange &change)
{
    std::copy(change.after.cbegin(), change.after.cend(), order.begin() + change.first);
    return order;
}

TableStep inverse(const TableStep &step)
{
    return std::visit([](const auto &change) { return inverseOf(change); }, step);
}

TableEdit::TableEdit(Take take, QList<TableStep> steps, const QString &text)
    : m_take(std::move(take))
    , m_steps(std::move(steps))
    , m_text(text)
{}

qsizetype TableEdit::heldBytes() const
{
    qsizetype bytes = qsizetype(sizeof(TableEdit));
    for (const TableStep &step : m_steps)
        bytes += qsizetype(sizeof(TableStep)) +
                 std::visit([](const auto &change) { return heldBytesOf(change); }, step);
    return bytes;
}

void TableEdit::undo() const
{
    QList<TableStep> steps;
    for (qsizetype i = m_steps.size(); i > 0; --i)
        steps.append(inverse(m_steps.at(i - 1)));
    m_take(steps);
}

void TableEdit::redo() const
{
    m_take(m_steps);
}

} // namespace orv
