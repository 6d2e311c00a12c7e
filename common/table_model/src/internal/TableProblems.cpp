#include "TableProblems.h"

namespace orv {

void TableProblems::enter(quint32 row)
{
    if (isKnown(row))
        m_count += m_ofRows[row];
    else
        ++m_unknownRows;
}

void TableProblems::leave(quint32 row)
{
    if (isKnown(row))
        m_count -= m_ofRows[row];
    else
        --m_unknownRows;
}

void TableProblems::forget(quint32 row)
{
    if (!isKnown(row))
        return;
    m_count -= m_ofRows[row];
    m_ofRows[row] = kUnknown;
    ++m_unknownRows;
}

void TableProblems::forgetAll(int rowsInTable)
{
    m_ofRows.assign(m_ofRows.size(), kUnknown);
    m_count = 0;
    m_unknownRows = rowsInTable;
}

void TableProblems::setCount(quint32 row, int problems)
{
    leave(row);
    m_ofRows[row] = quint16(problems);
    enter(row);
}

} // namespace orv
