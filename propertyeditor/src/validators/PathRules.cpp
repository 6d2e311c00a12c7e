#include "PathRules.h"

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/core/MultiDocumentReportConstants.h>
#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/resources/FileTypeUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

#include <QObject>

#include <algorithm>

namespace orv::PropertyEditor::PathRules {

FindingPlace placeOf(const SamplesTableItem *table, const SamplesInput::Entry &sample, qsizetype row)
{
    return {table, PropertyId::SamplesTable, sample.name, row};
}

bool reportEmptyPaths(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place)
{
    if (sample.msFile || !sample.traces.isEmpty())
        return false;
    run.error(QObject::tr("The sample path and traces path of the sample \"%1\" are empty").arg(sample.name),
              place, QObject::tr("Choose the file of this sample, or remove the sample."));
    return true;
}

bool isMsFileOrProject(const ResourceReferenceSPtr &reference)
{
    if (!reference || MsDataFileUtils::hasMsExtension(ResourceReferenceUtils::localName(reference)))
        return true;
    switch (FileTypeUtils::appType(reference)) {
    case ApplicationType::Dravik:
    case ApplicationType::Intact:
    case ApplicationType::Oligo:
        return true;
    default:
        return false;
    }
}

void reportWrongMsFile(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place)
{
    run.error(QObject::tr("The sample path of the sample \"%1\" should be MS file or project file")
                  .arg(sample.name),
              place,
              QObject::tr("\"%1\" is neither. Choose mass-spectrometry data, or a project to compare with.")
                  .arg(ResourceReferenceUtils::localName(sample.msFile)));
}

void checkTraceType(CheckRun &run, PathsValidatorBase &paths, const ResourceReferenceSPtr &trace,
                    const QString &word, const QSet<BaseItemType> &itemTypes, const FindingPlace &place)
{
    if (paths.isMsReference(trace) || ResourceTypeChecker::isCSVOrTextFileType(trace))
        return;
    const QString hint = QObject::tr("Choose another file in place of \"%1\", or remove it.")
                             .arg(ResourceReferenceUtils::localName(trace));
    if (ResourceTypeChecker::isElectropherogramFileType(trace)) {
        if (!itemTypes.contains(BaseItemType::Dravik)) {
            run.error(
                QObject::tr("The traces path for electropherogram file (.pI) is only supported for Dravik"),
                place, hint);
        }
    } else if (FileTypeUtils::appType(trace) == ApplicationType::IcIef) {
        if (!itemTypes.contains(BaseItemType::Intact)) {
            run.error(QObject::tr("The traces path for icIEF file (.itb) is only supported for Intact"),
                      place, hint);
        }
    } else {
        run.error(
            QObject::tr(
                "The traces path of the sample \"%1\" should be %2 file / text file / pI file / icIEF file")
                .arg(place.sample, word),
            place, hint);
    }
}

bool reportEmptyDocument(CheckRun &run, const SamplesInput::Entry &document, const FindingPlace &place)
{
    if (document.msFile)
        return false;
    run.error(QObject::tr("The document path with id \"%1\" is empty").arg(document.id), place,
              QObject::tr("Choose a document, or remove the row."));
    return true;
}

void DocumentTypes::add(CheckRun &run, const SamplesInput::Entry &document, const FindingPlace &place)
{
    const ApplicationType type = FileTypeUtils::appType(document.msFile);
    const auto &supported = MultiDocumentReportConstants::SUPPORTED_APPLICATIONS;
    if (std::find(std::begin(supported), std::end(supported), type) != std::end(supported)) {
        m_types.insert(type);
        return;
    }
    const QList<FileType> allowed(std::begin(MirelFileTypes::MULTIDOCALLOWEDFILES),
                                  std::end(MirelFileTypes::MULTIDOCALLOWEDFILES));
    run.error(
        QObject::tr("The file path with id \"%1\" is not a correct document type. Allowed files are: %2")
            .arg(document.id)
            .arg(FileExtensionsNameFilter(allowed).fileMasks().join(QLatin1Char(' '))),
        place, QObject::tr("Choose the project of an analysis."));
}

void DocumentTypes::finish(CheckRun &run, const SamplesTableItem *table) const
{
    if (m_types.size() < 2)
        return;
    run.error(QObject::tr("All documents should have the same type"), {table, PropertyId::SamplesTable, {}},
              QObject::tr("Make a report of its own for each type of documents."));
}

QString chooseAnotherHint()
{
    return QObject::tr("Put the file there, or choose another one.");
}

} // namespace orv::PropertyEditor::PathRules
