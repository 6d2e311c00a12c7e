#include "orv/table_model/TableFilter.h"

#include <orv/table_model/TableSheet.h>

#include <algorithm>
#include <array>

namespace orv {

namespace {

constexpr std::array<char16_t, 128> foldedAscii()
{
    std::array<char16_t, 128> table = {};
    for (std::size_t c = 0; c < table.size(); ++c)
        table[c] = char16_t(c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c);
    return table;
}

constexpr std::array kFoldedAscii = foldedAscii();

char16_t folded(char16_t c)
{
    return c < kFoldedAscii.size() ? kFoldedAscii[c] : QChar(c).toCaseFolded().unicode();
}

/// Qt's search without regard to case takes some times as long for short words in short texts, and a key in
/// the filter asks a million of them.
bool holdsFolded(QStringView text, const QString &word)
{
    const char16_t *const units = text.utf16();
    const auto *const wanted = reinterpret_cast<const char16_t *>(word.utf16());
    const qsizetype size = word.size();
    const char16_t lower = wanted[0];
    const char16_t upper = QChar(lower).toUpper().unicode();
    const bool hasCase = lower != upper;
    for (qsizetype at = 0; at + size <= text.size(); ++at) {
        if (hasCase) {
            while (at + size <= text.size() && units[at] != lower && units[at] != upper)
                ++at;
        } else {
            at = text.indexOf(QChar(lower), at);
        }
        if (at < 0 || at + size > text.size())
            return false;
        qsizetype same = 1;
        while (same < size && folded(units[at + same]) == wanted[same])
            ++same;
        if (same == size)
            return true;
    }
    return false;
}

QString foldedText(QString text)
{
    for (QChar &c : text)
        c = QChar(folded(c.unicode()));
    return text;
}

} // namespace

TableRowMatcher::TableRowMatcher(const TableSheet &sheet, const TableFilter &filter,
                                 const QList<int> &columns, NumberText::DecimalSign sign)
    : m_sheet(sheet)
    , m_indexes(columns)
    , m_isOnlyProblems(filter.isOnlyProblems)
{
    for (const int column : columns)
        m_columns.append({column, sheet.columns()[column].isNumeric()});
    for (const QString &word : filter.text.split(u' ', Qt::SkipEmptyParts)) {
        QString inNumbers = word;
        if (sign == NumberText::DecimalSign::Comma)
            inNumbers.replace(u',', u'.');
        m_words.append({foldedText(word), foldedText(inNumbers)});
    }
}

bool TableRowMatcher::matches(quint32 rowId) const
{
    return std::all_of(m_words.cbegin(), m_words.cend(),
                       [&](const Word &word) { return hasWord(rowId, word); }) &&
           (!m_isOnlyProblems || m_sheet.hasProblem(rowId, m_indexes));
}

/// Cells that were loaded together lie together: most rows are one stretch, which is looked through at once
/// and cell by cell only where the word stands in it, as it may reach over the end of a cell.
bool TableRowMatcher::hasWord(quint32 rowId, const Word &word) const
{
    const bool isOneWord = word.text == word.inNumbers;
    const qsizetype count = m_columns.size();
    for (qsizetype first = 0; first < count;) {
        const Column &column = m_columns[first];
        const QString &wanted = column.isNumeric ? word.inNumbers : word.text;
        QStringView stretch = m_sheet.textOf(rowId, column.index);
        qsizetype next = first + 1;
        for (; isOneWord && next < count; ++next) {
            const QStringView cell = m_sheet.textOf(rowId, m_columns[next].index);
            if (cell.utf16() != stretch.utf16() + stretch.size())
                break;
            stretch = QStringView(stretch.utf16(), stretch.size() + cell.size());
        }
        const bool isOneCell = next == first + 1;
        if (holdsFolded(stretch, wanted) && (isOneCell || hasWordInACell(rowId, wanted, first, next)))
            return true;
        first = next;
    }
    return false;
}

bool TableRowMatcher::hasWordInACell(quint32 rowId, const QString &word, qsizetype first, qsizetype end) const
{
    return std::any_of(m_columns.cbegin() + first, m_columns.cbegin() + end, [&](const Column &column) {
        return holdsFolded(m_sheet.textOf(rowId, column.index), word);
    });
}

} // namespace orv
