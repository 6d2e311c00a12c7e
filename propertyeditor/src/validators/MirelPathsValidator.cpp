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
    else if (!*exists && run.repeatsInLog())
        qCWarning(propertyEditorLog) << "File"
                                     << ResourceReferenceUtils::withoutCredentials(reference->text())
                                     << "doesn't exist";
    return exists.valueOr(false);
}

QString missingHint(const ResourceReferenceSPtr &reference)
{
    return QObject::tr("Choose where it is now, or put it there: \"%1\".")
        .arg(ResourceReferenceUtils::toString(reference, true));
}

void checkTraces(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place)
{
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        if (checkExistence(run, trace))
            continue;
        run.error(QObject::tr("The traces path of the sample \"%1\" does not exist")
                      .arg(ResourceReferenceUtils::toString(trace, true)),
                  place, missingHint(trace));
    }
}

} // namespace

MirelPathsValidator::MirelPathsValidator(const SamplesTableItem *table)
    : m_table(table)
{}

void MirelPathsValidator::checkSamplesPaths(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                                            const QSet<BaseItemType> &itemTypes)
{
    for (qsizetype row = 0; row < samples.size(); ++row)
        checkSample(run, samples.at(row), PathRules::placeOf(m_table, samples.at(row), row), itemTypes);
}

void MirelPathsValidator::checkSample(CheckRun &run, const SamplesInput::Entry &sample,
                                      const FindingPlace &place, const QSet<BaseItemType> &itemTypes)
{
    if (PathRules::reportEmptyPaths(run, sample, place) || sample.isMsFileExternal())
        return;
    if (sample.msFile && !checkExistence(run, sample.msFile)) {
        run.error(QObject::tr("The sample path of the sample \"%1\" does not exist").arg(sample.name), place,
                  missingHint(sample.msFile));
        return;
    }
    checkTraces(run, sample, place);
    if (!PathRules::isMsFileOrProject(sample.msFile)) {
        PathRules::reportWrongMsFile(run, sample, place);
        return;
    }
    for (const ResourceReferenceSPtr &trace : sample.traces)
        PathRules::checkTraceType(run, *this, trace, QStringLiteral("MS"), itemTypes, place);
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
    for (qsizetype row = 0; row < samples.size(); ++row) {
        const SamplesInput::Entry &document = samples.at(row);
        const FindingPlace place = PathRules::placeOf(m_table, document, row);
        if (PathRules::reportEmptyDocument(run, document, place))
            continue;
        checkReference(run, document.msFile, place);
        types.add(run, document, place);
    }
    types.finish(run, m_table);
}

} // namespace orv::PropertyEditor
