#include "orv/samples/SampleUtils.h"

#include <orv/core/FileTypes.h>
#include <orv/core/PathUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

namespace orv {

namespace {

constexpr QLatin1Char kSeparator(';');
constexpr QLatin1Char kQuote('"');

/// Reads the name behind the quote at \a position, which moves behind the closing one.
QString readQuoted(const QString &text, qsizetype *position)
{
    QString name;
    for (++*position; *position < text.size(); ++*position) {
        const bool isQuote = text[*position] == kQuote;
        const bool isTwice = isQuote && *position + 1 < text.size() && text[*position + 1] == kQuote;
        if (isQuote && !isTwice)
            break;
        name.append(text[*position]);
        *position += isTwice ? 1 : 0;
    }
    ++*position;
    return name;
}

bool needsQuotes(const QString &name)
{
    return name.isEmpty() || name.contains(kSeparator) || name.startsWith(kQuote) || name.trimmed() != name;
}

} // namespace

QList<int> SampleUtils::findSampleIdByFilename(const QList<SamplesInput::Entry> &samples,
                                               const ResourceReferenceSPtr &file)
{
    QList<int> ids;
    for (const SamplesInput::Entry &sample : samples) {
        if (file && ResourceReferenceUtils::compare(sample.msFile, file))
            ids.append(sample.id);
    }
    return ids;
}

QString SampleUtils::sampleNameWithoutMsExtensionSuffix(const QString &name)
{
    for (const QString &suffix : FileTypes::msDataSuffixes()) {
        if (name.size() > suffix.size() + 1 && PathUtils::hasExtension(name, suffix) &&
            name.endsWith(suffix, Qt::CaseInsensitive))
            return name.chopped(suffix.size() + 1);
    }
    return name;
}

QStringList splitSamples(const QString &text)
{
    QStringList names;
    qsizetype position = 0;
    while (position < text.size()) {
        const QChar c = text[position];
        if (c.isSpace() || c == kSeparator) {
            ++position;
        } else if (c == kQuote) {
            names.append(readQuoted(text, &position));
        } else {
            qsizetype end = text.indexOf(kSeparator, position);
            end = end < 0 ? text.size() : end;
            names.append(text.mid(position, end - position).trimmed());
            position = end;
        }
    }
    return names;
}

QString joinSamples(const QStringList &names)
{
    QStringList texts;
    texts.reserve(names.size());
    for (const QString &name : names) {
        const QString doubled = QString(name).replace(kQuote, QLatin1String("\"\""));
        texts.append(needsQuotes(name) ? kQuote + doubled + kQuote : name);
    }
    return texts.join(QLatin1String("; "));
}

} // namespace orv
