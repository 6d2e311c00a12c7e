#include "orv/propertyeditor/PropertyEditorUtils.h"

#include <orv/core/FileTypes.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QMetaEnum>
#include <QSet>

#include <algorithm>
#include <array>
#include <optional>

namespace orv {

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

} // namespace orv
