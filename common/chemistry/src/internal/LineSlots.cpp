#include "LineSlots.h"

#include <algorithm>

namespace orv::Internal {

QString withRows(const QString &text, const QStringList &rows, IsRow isRow, const QString &marker)
{
    QStringList lines = text.split(u'\n');
    const auto isMarker = [&](const QString &line) { return line.trimmed() == marker; };
    const auto last = std::find_if(lines.crbegin(), lines.crend(), isRow);
    const auto marked = std::find_if(lines.cbegin(), lines.cend(), isMarker);
    // Behind the last line there is only the end that a text file has.
    const qsizetype end = lines.size() - (lines.constLast().isEmpty() ? 1 : 0);
    const qsizetype furtherAt = last != lines.crend()    ? lines.crend() - last
                                : marked != lines.cend() ? marked - lines.cbegin()
                                                         : end;
    QStringList result;
    auto next = rows.cbegin();
    for (qsizetype at = 0; at <= lines.size(); ++at) {
        if (at == furtherAt) {
            for (; next != rows.cend(); ++next)
                result.append(*next);
        }
        if (at == lines.size())
            break;
        if (!isRow(lines[at]))
            result.append(lines[at]);
        else if (next != rows.cend())
            result.append(*next++);
    }
    return result.join(u'\n');
}

} // namespace orv::Internal
