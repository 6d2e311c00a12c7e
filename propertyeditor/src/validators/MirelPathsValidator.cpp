#include "PathRules.h"
#include "SampleFiles.h"
#include "ValidatorHelpers.h"

#include <orv/core/Logging.h>
#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/MirelPathsValidator.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QObject>

namespace orv::PropertyEditor {

namespace {

bool checkExistence(const ResourceReferenceSPtr &reference)
{
    const Result<bool> exists = SampleFiles::current().exists(reference);
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

void MirelPathsValidator::validateSamplesPaths(const QList<SamplesInput::Entry> &samples,
                                               const QSet<BaseItemType> &itemTypes, QList<QString> *errors)
{
    const SampleFiles files;
    for (const SamplesInput::Entry &sample : samples)
        validateSample(sample, itemTypes, errors);
}

void MirelPathsValidator::validateSample(const SamplesInput::Entry &sample,
                                         const QSet<BaseItemType> &itemTypes, QList<QString> *errors)
{
    if (PathRules::reportEmptyPaths(m_table, sample, errors) || sample.isMsFileExternal())
        return;
    if (sample.msFile && !checkExistence(sample.msFile)) {
        report(errors, QObject::tr("The sample path of the sample \"%1\" does not exist").arg(sample.name),
               PathRules::placeOf(m_table, sample), missingHint(sample.msFile));
        return;
    }
    validateTraces(sample, errors);
    if (!PathRules::isMsFileOrProject(sample.msFile)) {
        PathRules::reportWrongMsFile(m_table, sample, errors);
        return;
    }
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        PathRules::checkTraceType(*this, trace, QStringLiteral("MS"), itemTypes,
                                  PathRules::placeOf(m_table, sample), errors);
    }
}

void MirelPathsValidator::validateTraces(const SamplesInput::Entry &sample, QList<QString> *errors) const
{
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        if (checkExistence(trace))
            continue;
        report(errors,
               QObject::tr("The traces path of the sample \"%1\" does not exist")
                   .arg(ResourceReferenceUtils::toString(trace, true)),
               PathRules::placeOf(m_table, sample), missingHint(trace));
    }
}

bool MirelPathsValidator::validateReference(const ResourceReferenceSPtr &reference, QList<QString> *errors)
{
    const SampleFiles files;
    if (!reference || checkExistence(reference))
        return true;
    errors->append(QObject::tr("%1 does not exist").arg(ResourceReferenceUtils::toString(reference, true)));
    return false;
}

bool MirelPathsValidator::isMsReference(const ResourceReferenceSPtr &reference)
{
    return MsDataFileUtils::hasMsExtension(ResourceReferenceUtils::localName(reference));
}

void MirelPathsValidator::validateDocuments(const QList<SamplesInput::Entry> &samples, QList<QString> *errors)
{
    const SampleFiles files;
    PathRules::DocumentTypes types;
    for (const SamplesInput::Entry &document : samples) {
        if (PathRules::reportEmptyDocument(m_table, document, errors))
            continue;
        PathRules::checkReference(*this, document.msFile, PathRules::placeOf(m_table, document), errors);
        types.add(m_table, document, errors);
    }
    types.finish(m_table, errors);
}

} // namespace orv::PropertyEditor
