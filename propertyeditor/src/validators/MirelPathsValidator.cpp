#include "orv/propertyeditor/validators/MirelPathsValidator.h"

#include "PathRules.h"
#include "SampleFiles.h"

#include <orv/core/Logging.h>
#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QObject>

namespace orv::PropertyEditor {

namespace {

bool checkExistence(CheckRun &run, const ResourceReferenceSPtr &reference)
{
    const Result<bool> exists = run.files().exists(reference);
    if (exists.hasError())
        qCWarning(propertyEditorLog).noquote() << exists.error().errorMessage();
    else if (!*exists)
        qCWarning(propertyEditorLog) << "File" << reference->text() << "doesn't exist";
    return exists.valueOr(false);
}

QString missingHint(const ResourceReferenceSPtr &reference)
{
    return QObject::tr("Looked for \"%1\". Put it there, or choose where it is now.")
        .arg(ResourceReferenceUtils::toString(reference, true));
}

} // namespace

MirelPathsValidator::MirelPathsValidator(const SamplesTableItem *table)
    : m_table(table)
{}

void MirelPathsValidator::checkSamplesPaths(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                                            const QSet<BaseItemType> &itemTypes)
{
    for (const SamplesInput::Entry &sample : samples)
        checkSample(run, sample, itemTypes);
}

void MirelPathsValidator::checkSample(CheckRun &run, const SamplesInput::Entry &sample,
                                      const QSet<BaseItemType> &itemTypes)
{
    if (PathRules::reportEmptyPaths(run, m_table, sample) || sample.isMsFileExternal())
        return;
    if (sample.msFile && !checkExistence(run, sample.msFile)) {
        run.error(QObject::tr("The sample path of the sample \"%1\" does not exist").arg(sample.name),
                  PathRules::placeOf(m_table, sample), missingHint(sample.msFile));
        return;
    }
    checkTraces(run, sample);
    if (!PathRules::isMsFileOrProject(sample.msFile)) {
        PathRules::reportWrongMsFile(run, m_table, sample);
        return;
    }
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        PathRules::checkTraceType(run, *this, trace, QStringLiteral("MS"), itemTypes,
                                  PathRules::placeOf(m_table, sample));
    }
}

void MirelPathsValidator::checkTraces(CheckRun &run, const SamplesInput::Entry &sample) const
{
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        if (checkExistence(run, trace))
            continue;
        run.error(QObject::tr("The traces path of the sample \"%1\" does not exist")
                      .arg(ResourceReferenceUtils::toString(trace, true)),
                  PathRules::placeOf(m_table, sample), missingHint(trace));
    }
}

bool MirelPathsValidator::checkReference(CheckRun &run, const ResourceReferenceSPtr &reference,
                                         const FindingPlace &place)
{
    if (!reference || checkExistence(run, reference))
        return true;
    run.error(QObject::tr("%1 does not exist").arg(ResourceReferenceUtils::toString(reference, true)), place,
              PathRules::chooseAnotherHint());
    return false;
}

bool MirelPathsValidator::isMsReference(const ResourceReferenceSPtr &reference)
{
    return MsDataFileUtils::hasMsExtension(ResourceReferenceUtils::localName(reference));
}

void MirelPathsValidator::checkDocuments(CheckRun &run, const QList<SamplesInput::Entry> &samples)
{
    PathRules::DocumentTypes types;
    for (const SamplesInput::Entry &document : samples) {
        if (PathRules::reportEmptyDocument(run, m_table, document))
            continue;
        checkReference(run, document.msFile, PathRules::placeOf(m_table, document));
        types.add(run, m_table, document);
    }
    types.finish(run, m_table);
}

} // namespace orv::PropertyEditor
