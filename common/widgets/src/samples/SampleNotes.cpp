#include "SampleNotes.h"

#include <orv/core_ms/SampleFileChecker.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SamplesAndTracesTables.h>

namespace orv {

SampleNotes::SampleNotes(const SamplesAndTracesTables &tables, SampleFileChecker &checker)
    : m_tables(tables)
    , m_checker(checker)
{}

void SampleNotes::setBaseUrl(const QUrl &baseUrl)
{
    m_baseUrl = baseUrl;
}

QString SampleNotes::note(quint32 row, int column) const
{
    const SamplesAndTracesTables::Sheet sheet = m_tables.samples();
    const int place = sheet->rowOf(row);
    const QList<SamplesInput::Entry> &entries = m_tables.entries();
    if (place < 0 || place >= entries.size())
        return {};
    const SamplesInput::Entry &entry = entries[place];
    if (column == 0)
        return tr("id %1").arg(entry.id);
    if (sheet->columns()[column].kind == TableColumnKind::File) {
        const auto answer = m_checker.answer(ResourceReferenceUtils::resolved(entry.msFile, m_baseUrl));
        return answer ? answer->text : QString();
    }
    if (column == sheet->columnOf(QStringLiteral("Traces")))
        return noteOnMissing(entry.traces);
    return column == sheet->columnOf(QStringLiteral("ExtraReferences")) ? noteOnMissing(entry.extraReferences)
                                                                        : QString();
}

/// Which of several files aren't there; formats of companions are of no use.
QString SampleNotes::noteOnMissing(const QList<ResourceReferenceSPtr> &files) const
{
    QStringList missing;
    QString told;
    for (const ResourceReferenceSPtr &file : files) {
        const auto answer = m_checker.answer(ResourceReferenceUtils::resolved(file, m_baseUrl));
        if (!answer || answer->state != SampleFileChecker::State::Missing)
            continue;
        missing.append(ResourceReferenceUtils::localName(file));
        told = answer->text;
    }
    // The only file of a cell needs no name.
    return missing.isEmpty() || files.size() == 1 ? told
                                                  : tr("%1: %2").arg(told, missing.join(QLatin1String(", ")));
}

} // namespace orv
