#include "orv/chemistry/GlycanText.h"

#include "internal/LineSlots.h"

#include <orv/chemistry/GlycanComposition.h>

namespace orv::GlycanText {

namespace {

const QString kCustomMarker = QStringLiteral("% Custom glycan text below");

bool isDatabase(const QString &line)
{
    const QString text = line.trimmed();
    return text.startsWith(u'[') && text.endsWith(u']');
}

bool isComposition(const QString &line)
{
    const QString text = line.trimmed();
    return !text.isEmpty() && !text.startsWith(u'%') && !isDatabase(line);
}

QStringList linesThatAre(const QString &text, bool (*is)(const QString &))
{
    QStringList lines = text.split(u'\n');
    lines.removeIf([is](const QString &line) { return !is(line); });
    return lines;
}

} // namespace

QStringList databases(const QString &text)
{
    QStringList paths = linesThatAre(text, isDatabase);
    for (QString &path : paths)
        path = path.trimmed().mid(1).chopped(1);
    return paths;
}

QString withDatabases(const QString &text, const QStringList &paths)
{
    const QStringList before = databases(text);
    const QStringList written = linesThatAre(text, isDatabase);
    QStringList lines;
    for (qsizetype i = 0; i < paths.size(); ++i)
        lines.append(i < before.size() && before[i] == paths[i] ? written[i] : u'[' + paths[i] + u']');
    return Internal::withRows(text, lines, isDatabase, kCustomMarker);
}

QStringList compositions(const QString &text)
{
    return linesThatAre(text, isComposition);
}

QString withCompositions(const QString &text, const QStringList &lines)
{
    // Of an empty marker there is none: compositions stand at the end, below the marker of people's own.
    return Internal::withRows(text, lines, isComposition, {QStringLiteral("%")});
}

QString compositionOf(const QString &line)
{
    return line.section(u'@', 0, 0).trimmed();
}

QString placeOf(const QString &line)
{
    return line.section(u'@', 1).trimmed();
}

QString problemOfComposition(const QString &composition)
{
    const Result<GlycanComposition> read = GlycanComposition::parse(composition);
    return read.hasError() ? read.error().details().join(u' ') : QString();
}

} // namespace orv::GlycanText
