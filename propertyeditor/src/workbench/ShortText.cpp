#include "ShortText.h"

namespace orv {

QString shortened(const QString &text, qsizetype most)
{
    // Of a long text only the beginning is looked at, with some room for blanks that go.
    const QString line = text.left(4 * most).simplified();
    return line.size() <= most && text.size() <= 4 * most ? line : line.left(most - 1) + QChar(0x2026);
}

} // namespace orv
