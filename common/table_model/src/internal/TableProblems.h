#pragma once

#include <QtGlobal>

#include <vector>

namespace orv {

/// How many cells of each row have a problem, as far as somebody has looked.
class TableProblems
{
public:
    [[nodiscard]] int count() const { return m_count; }
    [[nodiscard]] int unknownRows() const { return m_unknownRows; }
    [[nodiscard]] bool isKnown(quint32 row) const { return m_ofRows[row] != kUnknown; }

    void setRowCount(quint32 rows) { m_ofRows.resize(rows, kUnknown); }
    void enter(quint32 row);
    void leave(quint32 row);
    void forget(quint32 row);
    void forgetAll(int rowsInTable);
    void setCount(quint32 row, int problems);

private:
    static constexpr quint16 kUnknown = 0xFFFF;

    std::vector<quint16> m_ofRows; ///< by id
    int m_count = 0;
    int m_unknownRows = 0; ///< among those in the table
};

} // namespace orv
