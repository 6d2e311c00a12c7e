#include "PathRules.h"
#include "SampleFiles.h"
#include "ValidatorHelpers.h"

#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/TalvanePathsValidator.h>
#include <orv/resources/ExternalDataSources.h>
#include <orv/resources/PepmapTypesChecker.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

#include <QObject>

namespace orv::PropertyEditor {

namespace {

using Scheme = ResourceReference::Scheme;

/// Where an external data source keeps the file here; empty where that isn't known.
Result<QString> edsReferenceFilePath(const ResourceReferenceSPtr &reference)
{
    if (!reference || !reference->isScheme(Scheme::ExternalDataSource))
        return Error(ErrorCode::InvalidContent, QObject::tr("Not valid source"));
    return ExternalDataSources::localPath(reference).valueOr(QString());
}

bool isExternalMsFile(const ResourceReferenceSPtr &reference)
{
    return MsDataFileUtils::hasMsExtension(edsReferenceFilePath(reference).valueOr(QString()));
}

QString unknownHint(const ResourceReferenceSPtr &reference)
{
    return QObject::tr("\"%1\" is not reached by the server. Choose a file that it has.")
        .arg(ResourceReferenceUtils::toString(reference, true));
}

} // namespace

TalvanePathsValidator::TalvanePathsValidator(const SamplesTableItem *table)
    : m_table(table)
{}

void TalvanePathsValidator::validateSamplesPaths(const QList<SamplesInput::Entry> &samples,
                                                 const QSet<BaseItemType> &itemTypes, QList<QString> *errors)
{
    const SampleFiles files;
    for (const SamplesInput::Entry &sample : samples) {
        if (PathRules::reportEmptyPaths(m_table, sample, errors))
            continue;
        validateMsFile(sample, errors);
        validateTraces(sample, itemTypes, errors);
    }
}

void TalvanePathsValidator::validateMsFile(const SamplesInput::Entry &sample, QList<QString> *errors)
{
    const ResourceReferenceSPtr &file = sample.msFile;
    if (!file)
        return;
    const FindingPlace place = PathRules::placeOf(m_table, sample);
    if (!SampleFiles::current().isValid(file)) {
        report(errors, QObject::tr("The sample path of the sample \"%1\" is invalid").arg(sample.name), place,
               unknownHint(file));
        return;
    }
    const auto requireExisting = [&] {
        // Asked anew: the earlier answer can be out of date by now.
        if (!ResourceHandlerUtils::validateReference(file)) {
            report(errors,
                   QObject::tr("The sample path of the sample \"%1\" should be an existing resource.")
                       .arg(sample.name),
                   place, unknownHint(file));
        }
    };
    switch (file->scheme()) {
    case Scheme::ServerFile:
        if (const FileType type = ResourceReferenceUtils::type(file);
            type != FileTypes::TOLQ && !PepmapTypesChecker::isPepmapType(type)) {
            report(
                errors,
                QObject::tr("The sample path of the sample \"%1\" should be tolq or reference project file")
                    .arg(sample.name),
                place, QObject::tr("Choose an acquired sample (.tolq), or a project to compare with."));
        }
        return;
    case Scheme::ExternalDataSource:
        if (const QString path = edsReferenceFilePath(file).valueOr(QString());
            !MsDataFileUtils::hasMsExtension(path) && !PepmapTypesChecker::isPepmapFile(path))
            PathRules::reportWrongMsFile(m_table, sample, errors);
        return;
    case Scheme::LocalFile:
        if (PathRules::isMsFileOrProject(file))
            requireExisting();
        else
            PathRules::reportWrongMsFile(m_table, sample, errors);
        return;
    case Scheme::ManagedResource:
        requireExisting();
        return;
    default:
        report(errors, QObject::tr("The source path of the sample \"%1\" is unknown").arg(sample.name), place,
               unknownHint(file));
    }
}

void TalvanePathsValidator::validateTraces(const SamplesInput::Entry &sample,
                                           const QSet<BaseItemType> &itemTypes, QList<QString> *errors)
{
    const FindingPlace place = PathRules::placeOf(m_table, sample);
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        if (!SampleFiles::current().isValid(trace)) {
            report(errors, QObject::tr("The traces path of the sample \"%1\" is invalid").arg(sample.name),
                   place, unknownHint(trace));
        }
    }
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        switch (trace->scheme()) {
        case Scheme::ServerFile:
            PathRules::checkTraceType(*this, trace, QStringLiteral("tolq"), itemTypes, place, errors);
            break;
        case Scheme::ExternalDataSource:
        case Scheme::LocalFile:
            PathRules::checkTraceType(*this, trace, QStringLiteral("MS"), itemTypes, place, errors);
            break;
        default:
            report(
                errors,
                QObject::tr("The source of the traces path of the sample \"%1\" is unknown").arg(sample.name),
                place, unknownHint(trace));
        }
    }
}

bool TalvanePathsValidator::validateReference(const ResourceReferenceSPtr &reference, QList<QString> *errors)
{
    const SampleFiles files;
    if (!reference || SampleFiles::current().isValid(reference))
        return true;
    errors->append(QObject::tr("%1 is not valid talvane reference")
                       .arg(ResourceReferenceUtils::toString(reference, true)));
    return false;
}

bool TalvanePathsValidator::isMsReference(const ResourceReferenceSPtr &reference)
{
    if (!reference)
        return false;
    switch (reference->scheme()) {
    case Scheme::ServerFile:
        return ResourceTypeChecker::isTolqFileType(reference);
    case Scheme::ExternalDataSource:
        return isExternalMsFile(reference);
    case Scheme::LocalFile:
        return MsDataFileUtils::hasMsExtension(ResourceReferenceUtils::localName(reference));
    default:
        return false;
    }
}

/// Whether a look at the document's type makes sense.
bool TalvanePathsValidator::validateDocumentReference(const SamplesInput::Entry &document,
                                                      QList<QString> *errors)
{
    const FindingPlace place = PathRules::placeOf(m_table, document);
    if (!PathRules::checkReference(*this, document.msFile, place, errors))
        return false;
    switch (document.msFile->scheme()) {
    case Scheme::ServerFile:
    case Scheme::ExternalDataSource:
    case Scheme::LocalFile:
        return true;
    default:
        report(errors,
               QObject::tr("The source path of the document with id \"%1\" is unknown").arg(document.id),
               place, unknownHint(document.msFile));
        return false;
    }
}

void TalvanePathsValidator::validateDocuments(const QList<SamplesInput::Entry> &samples,
                                              QList<QString> *errors)
{
    const SampleFiles files;
    PathRules::DocumentTypes types;
    for (const SamplesInput::Entry &document : samples) {
        if (!PathRules::reportEmptyDocument(m_table, document, errors) &&
            validateDocumentReference(document, errors))
            types.add(m_table, document, errors);
    }
    types.finish(m_table, errors);
}

} // namespace orv::PropertyEditor
