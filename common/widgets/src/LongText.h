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

} // namespace orv
