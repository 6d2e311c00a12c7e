#include "orv/propertyeditor/validators/TalvanePathsValidator.h"

#include "PathRules.h"
#include "SampleFiles.h"

#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
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

void TalvanePathsValidator::checkSamplesPaths(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                                              const QSet<BaseItemType> &itemTypes)
{
    for (qsizetype row = 0; row < samples.size(); ++row) {
        const SamplesInput::Entry &sample = samples.at(row);
        const FindingPlace place = PathRules::placeOf(m_table, sample, row);
        if (PathRules::reportEmptyPaths(run, sample, place))
            continue;
        checkMsFile(run, sample, place);
        checkTraces(run, sample, place, itemTypes);
    }
}

void TalvanePathsValidator::checkMsFile(CheckRun &run, const SamplesInput::Entry &sample,
                                        const FindingPlace &place)
{
    const ResourceReferenceSPtr &file = sample.msFile;
    if (!file)
        return;
    if (!run.files().isValid(file)) {
        run.error(QObject::tr("The sample path of the sample \"%1\" is invalid").arg(sample.name), place,
                  unknownHint(file));
        return;
    }
    const auto requireExisting = [&] {
        // Asked anew: the earlier answer can be out of date by now.
        if (!ResourceHandlerUtils::validateReference(file)) {
            run.error(QObject::tr("The sample path of the sample \"%1\" should be an existing resource.")
                          .arg(sample.name),
                      place, unknownHint(file));
        }
    };
    switch (file->scheme()) {
    case Scheme::ServerFile:
        if (const FileType type = ResourceReferenceUtils::type(file);
            type != FileTypes::TOLQ && !PepmapTypesChecker::isPepmapType(type)) {
            run.error(
                QObject::tr("The sample path of the sample \"%1\" should be tolq or reference project file")
                    .arg(sample.name),
                place, QObject::tr("Choose an acquired sample (.tolq), or a project to compare with."));
        }
        return;
    case Scheme::ExternalDataSource:
        if (const QString path = edsReferenceFilePath(file).valueOr(QString());
            !MsDataFileUtils::hasMsExtension(path) && !PepmapTypesChecker::isPepmapFile(path))
            PathRules::reportWrongMsFile(run, sample, place);
        return;
    case Scheme::LocalFile:
        if (PathRules::isMsFileOrProject(file))
            requireExisting();
        else
            PathRules::reportWrongMsFile(run, sample, place);
        return;
    case Scheme::ManagedResource:
        requireExisting();
        return;
    default:
        run.error(QObject::tr("The source path of the sample \"%1\" is unknown").arg(sample.name), place,
                  unknownHint(file));
    }
}

void TalvanePathsValidator::checkTraces(CheckRun &run, const SamplesInput::Entry &sample,
                                        const FindingPlace &place, const QSet<BaseItemType> &itemTypes)
{
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        if (!run.files().isValid(trace)) {
            run.error(QObject::tr("The traces path of the sample \"%1\" is invalid").arg(sample.name), place,
                      unknownHint(trace));
        }
    }
    for (const ResourceReferenceSPtr &trace : sample.traces) {
        if (!trace)
            continue;
        switch (trace->scheme()) {
        case Scheme::ServerFile:
            PathRules::checkTraceType(run, *this, trace, QStringLiteral("tolq"), itemTypes, place);
            break;
        case Scheme::ExternalDataSource:
        case Scheme::LocalFile:
            PathRules::checkTraceType(run, *this, trace, QStringLiteral("MS"), itemTypes, place);
            break;
        default:
            run.error(
                QObject::tr("The source of the traces path of the sample \"%1\" is unknown").arg(sample.name),
                place, unknownHint(trace));
        }
    }
}

bool TalvanePathsValidator::checkReference(CheckRun &run, const ResourceReferenceSPtr &reference,
                                           const FindingPlace &place)
{
    if (!reference || run.files().isValid(reference))
        return true;
    run.error(QObject::tr("%1 is not valid talvane reference")
                  .arg(ResourceReferenceUtils::toString(reference, true)),
              place, PathRules::chooseAnotherHint());
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
bool TalvanePathsValidator::checkDocumentReference(CheckRun &run, const SamplesInput::Entry &document,
                                                   const FindingPlace &place)
{
    if (!checkReference(run, document.msFile, place))
        return false;
    switch (document.msFile->scheme()) {
    case Scheme::ServerFile:
    case Scheme::ExternalDataSource:
    case Scheme::LocalFile:
        return true;
    default:
        run.error(QObject::tr("The source path of the document with id \"%1\" is unknown").arg(document.id),
                  place, unknownHint(document.msFile));
        return false;
    }
}

void TalvanePathsValidator::checkDocuments(CheckRun &run, const QList<SamplesInput::Entry> &samples)
{
    PathRules::DocumentTypes types;
    for (qsizetype row = 0; row < samples.size(); ++row) {
        const SamplesInput::Entry &document = samples.at(row);
        const FindingPlace place = PathRules::placeOf(m_table, document, row);
        if (!PathRules::reportEmptyDocument(run, document, place) &&
            checkDocumentReference(run, document, place))
            types.add(run, document, place);
    }
    types.finish(run, m_table);
}

} // namespace orv::PropertyEditor
