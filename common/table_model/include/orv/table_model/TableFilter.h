#pragma once

#include <orv/core/Export.h>
#include <orv/table_model/NumberText.h>

#include <QList>
#include <QString>

namespace orv {

class TableSheet;

/// Which rows of a table are shown. A plain value.
struct TableFilter
{
    QString text;                ///< words that a row must hold all of, anywhere; case doesn't count
    bool isOnlyProblems = false; ///< rows with a cell that isn't allowed, or with a remark

    [[nodiscard]] bool isEmpty() const { return text.trimmed().isEmpty() && !isOnlyProblems; }
    friend bool operator==(const TableFilter &a, const TableFilter &b)
    {
        return a.text == b.text && a.isOnlyProblems == b.isOnlyProblems;
    }
};

/// Asks rows for a filter. \a columns are looked into; numbers are compared as they are seen.
class ORV_WORKFLOW_EXPORT TableRowMatcher
{
public:
    TableRowMatcher(const TableSheet &sheet, const TableFilter &filter, const QList<int> &columns,
                    NumberText::DecimalSign sign);

    [[nodiscard]] bool matches(quint32 rowId) const;

private:
    struct Column
    {
        int index = 0;
        bool isNumeric = false;
    };

    struct Word
    {
        QString text;      ///< without regard to case
        QString inNumbers; ///< as it stands in the kept form of numbers
    };

    [[nodiscard]] bool hasWord(quint32 rowId, const Word &word) const;
    [[nodiscard]] bool hasWordInACell(quint32 rowId, const QString &word, qsizetype first,
                                      qsizetype end) const;

    const TableSheet &m_sheet;
    QList<Word> m_words;
    QList<Column> m_columns;
    QList<int> m_indexes;
    bool m_isOnlyProblems;
};

} // namespace orv
