// The workflow that is saved in a project, and the kinds of projects that it tells.
#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/project/DocumentDatabaseHandler.h>
#include <orv/project/ProjectCreationOptionsDao.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <QVersionNumber>

#include <algorithm>

namespace orv {

using namespace PropertyEditor;

namespace {

struct DocumentWorkflowTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyEditorUtils)
};

QString placeOf(const QString &fileName)
{
    return DocumentWorkflowTr::tr("The project is %1.").arg(fileName);
}

QString notCreatedByWorkflow()
{
    return DocumentWorkflowTr::tr("Name a project that was created from a workflow, or create it anew.");
}

Result<bool> hasWorkflow(const ProjectCreationOptionsDao &dao)
{
    Result<bool> exists = dao.tableExists();
    if (!exists)
        return exists.ecatch();
    return *exists ? dao.keyExists(kMirelProjectCreationOptions) : exists;
}

Result<QByteArray> readWorkflowText(const QString &fileName)
{
    const auto project =
        DocumentDatabaseHandler::open(QStringLiteral("documentDatabaseConnection"), fileName);
    if (!project)
        return Error(project.error()).ecatch();
    const ProjectCreationOptionsDao dao(*project.value());
    Result<bool> isThere = hasWorkflow(dao);
    if (!isThere)
        return isThere.ecatch();
    if (!*isThere) {
        return Error(ErrorCode::InvalidContent,
                     DocumentWorkflowTr::tr("Workflow is not saved in the project database."))
            .addDetail(placeOf(fileName))
            .addDetail(notCreatedByWorkflow());
    }
    auto rows = dao.readOption(kMirelProjectCreationOptions);
    if (!rows)
        return rows.ecatch();
    if (rows->size() != 1) {
        return Error(ErrorCode::MalformedStructure,
                     DocumentWorkflowTr::tr(
                         "Unable to load the workflow, multiple MirelProjectCreationOptions keys found."))
            .addDetail(placeOf(fileName))
            .addDetail(
                DocumentWorkflowTr::tr("Found are %1. Restore the project from a copy, or create it anew.")
                    .arg(rows->size()));
    }
    return rows->constFirst().value;
}

Error notSupported(const QVersionNumber &version, const QStringList &reasons)
{
    Error error(ErrorCode::MalformedStructure,
                DocumentWorkflowTr::tr("Incompatible workflow version: %1").arg(version.toString()));
    for (const QString &reason : reasons)
        error.addDetail(reason);
    return error;
}

/// Brings the document into the form of today. The samples' files stay closed: a project needs none of what
/// they would tell.
Error bringUpToDate(PropertyEditorContent *document)
{
    Result<QVersionNumber> version = WflwMetaData::exactVersion(document->metadata());
    if (version.hasError())
        return version.ecatch();
    QStringList messages;
    switch (WflwMetaData::checkWorkflowVersion(*version, document, &messages)) {
    case WflwMetaData::WflwState::UpToDate:
        break;
    case WflwMetaData::WflwState::NeedsUpgrade:
        ORV_RETURN_IF_ERROR(WflwUpgrader::upgradeWorkflow(*version, document, nullptr, false));
        break;
    case WflwMetaData::WflwState::NotSupported:
        return notSupported(*version, messages);
    }
    return Error::NoError;
}

Error loadText(const QByteArray &json, Content *content)
{
    Result<QJsonObject> object = JsonUtils::objectFromJson(json);
    if (!object)
        return object.ecatch();
    ORV_RETURN_IF_ERROR(content->assignFromJson(*object));
    return Error::NoError;
}

Result<Content> loadWorkflow(const QByteArray &json)
{
    Content stored;
    ORV_RETURN_IF_ERROR(loadText(json, &stored));
    PropertyEditorContent document(stored.toJson(PropertyConversionFlag::KeepPaths));
    ORV_RETURN_IF_ERROR(bringUpToDate(&document));
    Content content;
    ORV_RETURN_IF_ERROR(loadText(document.toJson(), &content));
    return content;
}

Result<Content> readDocumentWorkflow(const QString &fileName)
{
    Result<QByteArray> json = readWorkflowText(fileName);
    if (!json)
        return json.ecatch();
    Result<Content> content = loadWorkflow(*json);
    if (!content)
        return Error(content.error()).addDetail(placeOf(fileName)).ecatch();
    return content;
}

using Predicate = bool (*)(const Content &);

bool holdsForProject(const QString &fileName, Predicate predicate)
{
    const Result<Content> content = readDocumentWorkflow(fileName);
    if (content)
        return predicate(*content);
    const QStringList reasons = content.error().errorMessages() + content.error().details();
    qCWarning(propertyEditorLog).noquote()
        << "Cannot read the workflow of a project:" << reasons.join(QLatin1Char(' '));
    return false;
}

bool hasIntaBioTrace(const Content &content)
{
    for (const BaseItem *item : content.findAllItems(BaseItemType::Samples)) {
        const auto *samples = qobject_cast<const SamplesTableItem *>(item);
        if (!samples)
            continue;
        const QList<TracesImportList::Entry> traces = samples->tracesOptions().traces.list();
        if (std::ranges::any_of(traces, [](const TracesImportList::Entry &entry) {
                return entry.traceItem().type() == TraceType::IntaBio;
            }))
            return true;
    }
    return false;
}

bool hasColumn(const Content &content, BaseItemType type)
{
    const QList<ItemGroup *> tabs = content.groups();
    return std::ranges::any_of(tabs,
                               [type](const ItemGroup *tab) { return !tab->subGroups(type).isEmpty(); });
}

} // namespace

bool PropertyEditorUtils::isDigestedOligoProject(const Content &content)
{
    return content.workflowType() == WorkflowType::DigestedOligo;
}

bool PropertyEditorUtils::isDigestedOligoProject(const QString &fileName)
{
    return holdsForProject(fileName, &PropertyEditorUtils::isDigestedOligoProject);
}

bool PropertyEditorUtils::isHrimProject(const Content &content)
{
    const WorkflowType type = content.workflowType();
    return type == WorkflowType::HrimCompoundMap || type == WorkflowType::HrimIntactMass ||
           type == WorkflowType::HrimReleasedGlycans;
}

bool PropertyEditorUtils::isHrimProject(const QString &fileName)
{
    return holdsForProject(fileName, &PropertyEditorUtils::isHrimProject);
}

bool PropertyEditorUtils::isIntaBioProject(const Content &content)
{
    return hasIntaBioTrace(content) || content.workflowType() == WorkflowType::IcIefMs;
}

bool PropertyEditorUtils::isIntaBioProject(const QString &fileName)
{
    return holdsForProject(fileName, &PropertyEditorUtils::isIntaBioProject);
}

bool PropertyEditorUtils::isOstraleProject(const Content &content)
{
    return hasColumn(content, BaseItemType::Ostrale) ||
           content.workflowType() == WorkflowType::DeNovoSequencing;
}

bool PropertyEditorUtils::isOstraleProject(const QString &fileName)
{
    return holdsForProject(fileName, &PropertyEditorUtils::isOstraleProject);
}

Result<QList<ResourceReferenceSPtr>> PropertyEditorUtils::msFilesFromDocumentWorkflow(const QString &fileName)
{
    Result<Content> content = readDocumentWorkflow(fileName);
    if (!content)
        return content.ecatch();
    QList<ResourceReferenceSPtr> files;
    for (const SamplesInput::Entry &sample : content->samplesAndTraces().samples.samples) {
        if (sample.msFile)
            files.append(sample.msFile);
    }
    return files;
}

} // namespace orv
