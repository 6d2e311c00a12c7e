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

TableStep inverseOf(TableRowsChange rows)
{
    rows.isInsertion = !rows.isInsertion;
    return rows;
}

TableStep inverseOf(const TableOrderChange &order)
{
    return TableOrderChange{order.after, order.before};
}

} // namespace

TableStep inverse(const TableStep &step)
{
    return std::visit([](const auto &change) { return inverseOf(change); }, step);
}

TableEdit::TableEdit(Take take, QList<TableStep> steps, const QString &text)
    : m_take(std::move(take))
    , m_steps(std::move(steps))
    , m_text(text)
{}

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
