#include "orv/table_model/TableFilter.h"

#include <orv/table_model/TableSheet.h>

#include <algorithm>

namespace orv {

TableRowMatcher::TableRowMatcher(const TableSheet &sheet, const TableFilter &filter, QList<int> columns,
                                 NumberText::DecimalSign sign)
    : m_sheet(sheet)
    , m_columns(std::move(columns))
    , m_isOnlyProblems(filter.isOnlyProblems)
{
    for (const QString &word : filter.text.split(u' ', Qt::SkipEmptyParts)) {
        QString inNumbers = word;
        if (sign == NumberText::DecimalSign::Comma)
            inNumbers.replace(u',', u'.');
        m_words.append({word, inNumbers});
    }
}

bool TableRowMatcher::matches(quint32 rowId) const
{
    const auto hasProblem = [&](int column) {
        return !m_sheet.columns()[column].problem(m_sheet.textOf(rowId, column)).isEmpty();
    };
    return std::all_of(m_words.cbegin(), m_words.cend(),
                       [&](const Word &word) { return hasWord(rowId, word); }) &&
           (!m_isOnlyProblems || std::any_of(m_columns.cbegin(), m_columns.cend(), hasProblem));
}

bool TableRowMatcher::hasWord(quint32 rowId, const Word &word) const
{
    return std::any_of(m_columns.cbegin(), m_columns.cend(), [&](int column) {
        const QString &wanted = m_sheet.columns()[column].isNumeric() ? word.inNumbers : word.text;
        return m_sheet.textOf(rowId, column).contains(wanted, Qt::CaseInsensitive);
    });
}

} // namespace orv
