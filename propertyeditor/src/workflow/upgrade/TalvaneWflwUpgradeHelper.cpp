#include "orv/propertyeditor/workflow/TalvaneWflwUpgradeHelper.h"

#include "StepHelpers.h"

#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/remote/ServerSettings.h>
#include <orv/remote/SilentServers.h>
#include <orv/remote/TalvaneConnection.h>
#include <orv/remote/TalvaneDownloadTolqMetadataTask.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

#include <QCoreApplication>
#include <QSet>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

using Scheme = ResourceReference::Scheme;
using TraceMappings = QHash<TraceInfo, TraceInfo>;

constexpr int kInterfaceVersion = 1;

struct TalvaneWflwUpgradeHelperTr
{
    Q_DECLARE_TR_FUNCTIONS(WflwUpgrader)
};

bool isOnServer(const ResourceReferenceSPtr &reference)
{
    return reference->isScheme(Scheme::ServerFile) || reference->isScheme(Scheme::ManagedResource) ||
           reference->isScheme(Scheme::ExternalDataSource);
}

/// Where the file lies, as the server calls it.
QString serverPath(const ResourceReference &reference)
{
    const ResourceReference::Parts &parts = reference.parts();
    if (reference.isScheme(Scheme::ManagedResource))
        return QLatin1String("managed:/") + parts.id;
    if (reference.isScheme(Scheme::ExternalDataSource))
        return QLatin1String("eds:/") + parts.server + parts.folder;
    return parts.folder;
}

Error addMappings(const TalvaneWflwUpgradeHelper &helper, const ResourceReferenceSPtr &reference,
                  TraceMappings *mappings)
{
    Result<std::optional<TraceMappings>> found =
        helper.getCompatibilityMetadata(reference, ResourceReferenceUtils::localName(reference));
    if (found.hasError())
        return found.ecatch();
    if (!*found) {
        return failure(
            QObject::tr("Upgrade not possible. A valid compatibility metadata not provided in the "
                        "Tolq file: %1")
                .arg(ResourceReferenceUtils::withoutCredentials(ResourceReferenceUtils::toString(reference))),
            TalvaneWflwUpgradeHelperTr::tr("Have the server process the sample again."));
    }
    mappings->insert(**found);
    return Error::NoError;
}

/// Joins what the server tells of all acquired samples, each of which is asked for once.
Error collectMappings(const TalvaneWflwUpgradeHelper &helper, const QList<ResourceReferenceSPtr> &references,
                      TraceMappings *mappings)
{
    QSet<QString> asked;
    for (const ResourceReferenceSPtr &reference : references) {
        if (reference->isEmpty() || asked.contains(reference->key()))
            continue;
        asked.insert(reference->key());
        // Files of this machine aren't asked for, whatever their suffix: the server doesn't know them.
        if (!isOnServer(reference)) {
            return failure(
                QObject::tr("Upgrade with sources different than Talvane server is not supported."),
                TalvaneWflwUpgradeHelperTr::tr("Put the file on the server: %1")
                    .arg(ResourceReferenceUtils::toString(reference, true)));
        }
        if (ResourceTypeChecker::isTolqFileType(reference))
            ORV_RETURN_IF_ERROR(addMappings(helper, reference, mappings));
    }
    return Error::NoError;
}

void rename(const TraceMappings &mappings, TracesImportList *traces)
{
    QList<TracesImportList::Entry> entries = traces->list();
    for (TracesImportList::Entry &entry : entries) {
        const auto renamed = mappings.constFind(entry.traceItem().info());
        if (renamed != mappings.constEnd())
            entry.setTraceItem(TraceItem(entry.traceItem().type(), *renamed));
    }
    traces->setList(entries);
}

} // namespace

Result<std::optional<QHash<TraceInfo, TraceInfo>>>
TalvaneWflwUpgradeHelper::getCompatibilityMetadata(const ResourceReferenceSPtr &reference,
                                                   const QString &fileName) const
{
    TalvaneDownloadTolqMetadataTask task({serverPath(*reference), fileName, kInterfaceVersion});
    Warnings warnings;
    Error error = silentServers().ask(ServerSettings::talvane(), [&]() -> Error {
        Result<void> sent = TalvaneConnection::instance()->sendRequest(&task);
        warnings = sent.warnings();
        if (sent.hasError())
            return sent.ecatch();
        BaseTask::waitForAllFinished(&task, -1);
        warnings = task.warnings();
        return task.error();
    });
    if (error)
        return {error.ecatch(), warnings};
    if (!task.metadata().hasTraceMappings())
        return std::optional<TraceMappings>();
    return std::optional(task.metadata().traceMappings());
}

Error TalvaneWflwUpgradeHelper::upgradeV_5_10_1(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (!working->samplesTable())
        return noSamples();
    SamplesAndTracesContent samples = working->samplesAndTraces();
    TraceMappings mappings;
    ORV_RETURN_IF_ERROR(collectMappings(*this, samples.references(), &mappings));
    rename(mappings, &samples.options.traces);
    working->setSamplesAndTraces(samples);
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

} // namespace orv
