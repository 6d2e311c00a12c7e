#include "TableSort.h"

#include <orv/table_model/TableSheet.h>

#include <algorithm>
#include <limits>

namespace orv::TableSort {

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

QStringView digitRun(QStringView text, qsizetype at)
{
    qsizetype end = at;
    while (end < text.size() && isAsciiDigit(text[end]))
        ++end;
    return text.sliced(at, end - at);
}

QStringView withoutZeros(QStringView digits)
{
    qsizetype at = 0;
    while (at + 1 < digits.size() && digits[at] == u'0')
        ++at;
    return digits.sliced(at);
}

int compareDigits(QStringView left, QStringView right)
{
    const QStringView l = withoutZeros(left);
    const QStringView r = withoutZeros(right);
    return l.size() != r.size() ? (l.size() < r.size() ? -1 : 1) : l.compare(r);
}

struct SortKey
{
    double number = 0;
    QStringView text;
    quint32 id = 0;
};

bool isBefore(const SortKey &left, const SortKey &right, Qt::SortOrder order)
{
    if (left.text.isEmpty() || right.text.isEmpty())
        return !left.text.isEmpty() && right.text.isEmpty();
    const bool isAscending = order == Qt::AscendingOrder;
    if (left.number != right.number)
        return isAscending ? left.number < right.number : left.number > right.number;
    // Equal numbers need no look at their digits.
    if (left.number != std::numeric_limits<double>::infinity())
        return false;
    const int compared = compareNaturally(left.text, right.text);
    return isAscending ? compared < 0 : compared > 0;
}

} // namespace

int compareNaturally(QStringView left, QStringView right)
{
    qsizetype l = 0;
    qsizetype r = 0;
    while (l < left.size() && r < right.size()) {
        if (isAsciiDigit(left[l]) && isAsciiDigit(right[r])) {
            const QStringView leftDigits = digitRun(left, l);
            const QStringView rightDigits = digitRun(right, r);
            if (const int compared = compareDigits(leftDigits, rightDigits); compared != 0)
                return compared;
            l += leftDigits.size();
            r += rightDigits.size();
        } else {
            const QChar leftChar = left[l++].toCaseFolded();
            const QChar rightChar = right[r++].toCaseFolded();
            if (leftChar != rightChar)
                return leftChar < rightChar ? -1 : 1;
        }
    }
    return int(left.size() - l > 0) - int(right.size() - r > 0);
}

QList<quint32> sortedIds(const TableSheet &sheet, int column, Qt::SortOrder order)
{
    const bool isNumeric = sheet.columns()[column].isNumeric();
    QList<SortKey> keys;
    keys.reserve(sheet.rowCount());
    for (const quint32 id : sheet.rowIds()) {
        const QStringView text = sheet.textOf(id, column);
        const std::optional<double> number = isNumeric ? NumberText::value(text) : std::nullopt;
        keys.append({number.value_or(std::numeric_limits<double>::infinity()), text, id});
    }
    std::stable_sort(keys.begin(), keys.end(), [order](const SortKey &left, const SortKey &right) {
        return isBefore(left, right, order);
    });
    QList<quint32> ids;
    ids.reserve(keys.size());
    for (const SortKey &key : keys)
        ids.append(key.id);
    return ids;
}

} // namespace orv::TableSort
