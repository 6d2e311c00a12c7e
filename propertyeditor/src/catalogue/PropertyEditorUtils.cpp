#include "GlycanDatabasePaths.h"

#include <orv/core/FileTypes.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QMetaEnum>
#include <QSet>

#include <algorithm>
#include <array>
#include <optional>

namespace orv {

namespace {

struct PropertyEditorUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyEditorUtils)
};

/// What running a document yields, and what it wants the samples for.
struct DocumentRow
{
    BaseItemType type;
    FileType result;
    SamplesInput::Mode mode;
};

constexpr std::array kDocuments = {
    DocumentRow{BaseItemType::Senthia, MirelFileTypes::SENTHIA, SamplesInput::Mode::Senthia},
    DocumentRow{BaseItemType::Dravik, MirelFileTypes::DRAVIK, SamplesInput::Mode::Dravik},
    DocumentRow{BaseItemType::Karvon, MirelFileTypes::KARVON, SamplesInput::Mode::Karvon},
    DocumentRow{BaseItemType::Intact, MirelFileTypes::INTACT, SamplesInput::Mode::Intact},
    DocumentRow{BaseItemType::Oligo, MirelFileTypes::OLIGO, SamplesInput::Mode::Oligo},
    DocumentRow{BaseItemType::Ostrale, MirelFileTypes::OSTRALE, SamplesInput::Mode::Ostrale},
    DocumentRow{BaseItemType::Trenq, MirelFileTypes::TRENQ, SamplesInput::Mode::Trenq},
    DocumentRow{BaseItemType::MultiDocReport, MirelFileTypes::MULTIDOCREPORT,
                SamplesInput::Mode::MultiDocReport},
    DocumentRow{BaseItemType::Preview, FileTypes::ZIP, SamplesInput::Mode::Preview},
    DocumentRow{BaseItemType::TrenqPreview, FileTypes::ZIP, SamplesInput::Mode::Preview},
};

const DocumentRow *rowOf(BaseItemType type)
{
    const auto *const row = std::ranges::find(kDocuments, type, &DocumentRow::type);
    return row == kDocuments.end() ? nullptr : row;
}

FileType resultOf(BaseItemType type)
{
    const DocumentRow *row = rowOf(type);
    return row ? row->result : FileTypes::Invalid;
}

FileExtensionsNameFilter filterFor(const QList<BaseItemType> &documents)
{
    QList<FileType> types;
    for (const BaseItemType document : documents)
        types.append(resultOf(document));
    return FileExtensionsNameFilter(types);
}

bool yieldsNoProjectBesideOthers(BaseItemType type)
{
    return type == BaseItemType::Karvon || type == BaseItemType::Preview ||
           type == BaseItemType::TrenqPreview;
}

bool isAll(const QList<BaseItemType> &documents, BaseItemType type)
{
    return std::ranges::all_of(documents, [type](BaseItemType document) { return document == type; });
}

} // namespace

int PropertyEditorUtils::coresNumber(MulticoreMode mode)
{
    const int cores = SysUtils::cpuCoresNumber();
    switch (mode) {
    case MulticoreMode::Normal:
        return std::max(1, cores - 2);
    case MulticoreMode::Heavy:
        return std::max(1, cores);
    default:
        return 1;
    }
}

bool PropertyEditorUtils::isKarvonOnly(const QList<BaseItemType> &documents)
{
    return isAll(documents, BaseItemType::Karvon);
}

bool PropertyEditorUtils::isPreviewOnly(const QList<BaseItemType> &documents)
{
    return isAll(documents, BaseItemType::Preview) || isAll(documents, BaseItemType::TrenqPreview);
}

bool PropertyEditorUtils::isMultiDocument(const QList<BaseItemType> &documents)
{
    QSet<BaseItemType> types(documents.cbegin(), documents.cend());
    types.remove(BaseItemType::Karvon);
    return types.size() > 1;
}

Result<WorkflowType> PropertyEditorUtils::workflowType(const QJsonObject &json)
{
    using namespace PropertyEditorStringConstants;
    Result<QString> text = JsonUtils::stringValue(json, META_IN_JSON_KEY);
    if (!text)
        return text.ecatch();
    Result<QJsonObject> metadata = JsonUtils::objectFromJson(text->toUtf8());
    if (!metadata)
        return metadata.ecatch();
    if (metadata->contains(WORKFLOW_TYPE_KEY))
        return workflowTypeFromString(metadata->value(WORKFLOW_TYPE_KEY).toString());
    if (metadata->contains(ICON_KEY))
        return workflowTypeFromIconName(metadata->value(ICON_KEY).toString());
    return WorkflowType::Unknown;
}

Result<FileExtensionsNameFilter>
PropertyEditorUtils::fileNameFilterForExpectedProject(const QList<BaseItemType> &documents)
{
    if (documents.isEmpty()) {
        return Error(ErrorCode::InvalidContent,
                     PropertyEditorUtilsTr::tr("Workflow has to contain at least one processing node"))
            .addDetail(PropertyEditorUtilsTr::tr("Add a column of a search, an analysis or a report."));
    }
    if (isAll(documents, documents.constFirst()))
        return filterFor(documents);
    QList<BaseItemType> projects = documents;
    projects.removeIf(yieldsNoProjectBesideOthers);
    if (projects.isEmpty()) {
        return Error(ErrorCode::InvalidContent,
                     PropertyEditorUtilsTr::tr(
                         "Current workflow processing nodes configuration is not supported"))
            .addDetail(PropertyEditorUtilsTr::tr(
                "Searches and previews of different kinds can't make one project. Keep those of "
                "one kind, or add an analysis."));
    }
    return filterFor(projects);
}

QStringList PropertyEditorUtils::resultProjectExtensionsFromWorkflow(const QList<BaseItemType> &documents)
{
    QStringList names;
    for (const BaseItemType document : documents)
        names.append(FileTypes::name(resultOf(document)));
    QStringList suffixes = FileTypes::fileSuffixesFromExtensionTypes(names);
    suffixes.removeDuplicates();
    return suffixes;
}

QList<SamplesInput::Mode> PropertyEditorUtils::modesFromPropertyTypes(const QList<BaseItemType> &documents)
{
    QList<SamplesInput::Mode> modes;
    for (const BaseItemType document : documents) {
        if (const DocumentRow *row = rowOf(document))
            modes.append(row->mode);
    }
    return modes;
}

QList<ResourceReference::Scheme> PropertyEditorUtils::supportedReferences(WorkflowAppType app)
{
    using Scheme = ResourceReference::Scheme;
    switch (app) {
    case WorkflowAppType::Mirel:
        return {Scheme::LocalFile, Scheme::UNIFI};
    case WorkflowAppType::Talvane:
        return {Scheme::ManagedResource, Scheme::ExternalDataSource, Scheme::ServerFile, Scheme::LocalFile};
    }
    return {};
}

QList<WorkflowAppType>
PropertyEditorUtils::supportedApplications(const QList<ResourceReferenceSPtr> &references)
{
    QList<WorkflowAppType> applications;
    const auto apps = QMetaEnum::fromType<WorkflowAppType>();
    for (int i = 0; i < apps.keyCount(); ++i) {
        const auto app = WorkflowAppType(apps.value(i));
        if (ResourceReferenceUtils::unsupportedReferences(references, supportedReferences(app)).isEmpty())
            applications.append(app);
    }
    return applications;
}

QList<PropertyId> PropertyEditorUtils::propertiesWithReferences()
{
    static const QList<PropertyId> properties = {
        PropertyId::ReportConfiguration,     PropertyId::DatabaseFile, PropertyId::InSilicoMoleculesFile,
        PropertyId::InSilicoPeptidesFile,    PropertyId::UiLayout,     PropertyId::UiFilter,
        PropertyId::DeNovoAntibodyTemplates, PropertyId::KarvonLayout, PropertyId::PdfReportTemplate};
    return properties;
}

QList<PropertyId> PropertyEditorUtils::propertiesWithGlycanDatabases()
{
    static const QList<PropertyId> properties = {PropertyId::KarvonGlycanText, PropertyId::InSilicoGlycans};
    return properties;
}

void PropertyEditorUtils::updateGlycanDatabaseToAbsolute(const QUrl &baseUrl, QJsonObject *json)
{
    orv::updateGlycanDatabaseToAbsolute(baseUrl, json);
}

void PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(KProperty *property, const QUrl &baseUrl)
{
    orv::updateGlycanPropertyWithAbsolutePath(property, baseUrl);
}

QString PropertyEditorUtils::resolveGlycansStringsFromWflw(const QString &text, const KProperty *property)
{
    return orv::resolveGlycansStringsFromWflw(text, property);
}

} // namespace orv
