#pragma once

#include <QString>

namespace orv {

/// The beginning of a text, for labels: they lay all of it out, which takes many seconds for some of what
/// documents hold.
[[nodiscard]] inline QString beginningOf(const QString &text, qsizetype units = 2000)
{
    if (text.size() <= units)
        return text;
    return text.first(text[units - 1].isHighSurrogate() ? units - 1 : units) + QChar(0x2026);
}

/// As much of each line as text fields can lay out while somebody types; what is longer ends with an
/// ellipsis.
[[nodiscard]] inline QString withShortLines(const QString &text, qsizetype units = 20'000)
{
    QString shown;
    for (qsizetype from = 0; from <= text.size();) {
        const qsizetype end = text.indexOf(u'\n', from);
        const qsizetype size = (end < 0 ? text.size() : end) - from;
        if (size > units)
            shown += beginningOf(text.mid(from, size), units);
        else
            shown += QStringView(text).mid(from, size);
        if (end < 0)
            break;
        shown += u'\n';
        from = end + 1;
    }
    return shown;
}

} // namespace orv
