#include "ShortText.h"

namespace orv::ShortText {

namespace {

constexpr QChar kEllipsis(0x2026);

} // namespace

QString line(const QString &text, qsizetype most)
{
    // Of a long text only the beginning is looked at, with some room for blanks that go.
    const QString line = text.left(4 * most).simplified();
    return line.size() <= most && text.size() <= 4 * most ? line : line.left(most - 1) + kEllipsis;
}

QString beginning(const QString &text, qsizetype most)
{
    return text.size() <= most ? text : text.left(most - 1) + kEllipsis;
}

QString end(const QString &text, qsizetype most)
{
    return text.size() <= most ? text : kEllipsis + text.right(most - 1);
}

} // namespace orv::ShortText
