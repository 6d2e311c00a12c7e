// Steps that tell of UNIFI items by their ids, and ask the server for what documents don't know of them.

#include "OldUnifiMetadata.h"
#include "StepHelpers.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/remote/SilentServers.h>
#include <orv/remote/UnifiGetItemFolderTask.h>
#include <orv/remote/UnifiSettings.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/UnifiResourceReference.h>

#include <QCoreApplication>
#include <QUrl>
#include <QVersionNumber>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

using Sample = SamplesInput::Entry;

struct UnifiStepsTr
{
    Q_DECLARE_TR_FUNCTIONS(WflwUpgrader)
};

QString placeOf(const Sample &sample)
{
    return UnifiStepsTr::tr("Sample \"%1\": %2.")
        .arg(sample.name, ResourceReferenceUtils::toString(sample.msFile, true));
}

Error unifiIsOff(const QString &text, const Sample &sample)
{
    return failure(text, placeOf(sample))
        .addDetail(
            UnifiStepsTr::tr("Set \"UNIFI/Address\" to the address of the server, and put a token into %1.")
                .arg(UnifiSettings::load().server().tokenVariable()));
}

/// Gives the sample the reference, under whose text it keeps what was known under \a oldText.
void setReference(Sample *sample, const QString &oldText, const ResourceReferenceSPtr &reference)
{
    sample->moveFileMetadata(oldText, ResourceReferenceUtils::toString(reference));
    sample->msFile = reference;
}

/// What the document knows of the sample's item. Fails when that is nothing, or no metadata of an item.
Result<UnifiResourceMetadata> knownMetadata(const Sample &sample)
{
    const QJsonObject known = sample.fileMetadata.value(ResourceReferenceUtils::toString(sample.msFile));
    Result<UnifiResourceMetadata> metadata = UnifiResourceMetadata::fromJson(known);
    if (metadata.hasError())
        return metadata.ecatch();
    return metadata;
}

Error missingMetadata(const QString &text, const Sample &sample, const Error &reason)
{
    return failure(text, placeOf(sample))
        .addDetail(reason.errorMessage())
        .addDetail(
            UnifiStepsTr::tr("Choose the sample's file again with the version that made the workflow."));
}

/// The id stands in the reference, but for those of old documents.
QString idOf(const Sample &sample, const UnifiResourceMetadata &metadata)
{
    const QString &id = sample.msFile->parts().id;
    return id.isEmpty() ? metadata.item.id : id;
}

/// Lets \a edit change each UNIFI sample, and writes the document back; leaves it alone if there is none.
template<typename Edit>
Error editUnifiSamples(Result<WorkingContent> working, Edit edit)
{
    if (!working)
        return working.ecatch();
    SamplesAndTracesContent samples = working->samplesAndTraces();
    bool hasEdited = false;
    for (auto &sample : samples.samples.samples) {
        if (!sample.isMsFileExternal())
            continue;
        ORV_RETURN_IF_ERROR(edit(&sample));
        hasEdited = true;
    }
    if (!hasEdited)
        return Error::NoError;
    working->setSamplesAndTraces(samples);
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error rebuildReference(Sample *sample, const OldUnifiMetadata &old)
{
    const QUrl server(old.server);
    Result<ResourceReferenceSPtr> reference =
        UnifiResourceReference::create(server.host(), old.uuid, old.path, old.name);
    if (reference.hasError()) {
        Error error = reference.ecatch();
        return error.addDetail(
            UnifiStepsTr::tr("Sample \"%1\", of the server \"%2\".").arg(sample->name, server.host()));
    }
    const QString oldText = QStringLiteral("unifi:/%1/%2/%3").arg(server.authority(), old.path, old.name);
    setReference(sample, oldText, *reference);
    return Error::NoError;
}

Error refreshMetadata(Sample *sample, SilentServers &servers)
{
    if (!UnifiSettings::load().isEnabled())
        return unifiIsOff(
            QObject::tr("Cannot update UNIFI sample metadata without UNIFI server being enabled."), *sample);
    QJsonObject metadata;
    Error reason = servers.ask(UnifiSettings::load().server(), [&]() -> Error {
        Result<QJsonObject> answer = ResourceManager::retrieveMetadata(sample->msFile);
        if (answer.hasError())
            return answer.ecatch();
        metadata = *answer;
        return Error::NoError;
    });
    if (reason) {
        Error error =
            failure(QObject::tr("Cannot update metadata of the sample %1 due to the following error:\n%2")
                        .arg(sample->name, reason.errorMessage()),
                    placeOf(*sample));
        for (const QString &detail : reason.details())
            error.addDetail(detail);
        return error;
    }
    sample->fileMetadata.insert(ResourceReferenceUtils::toString(sample->msFile), metadata);
    return Error::NoError;
}

Error replacePathInName(Sample *sample)
{
    if (!sample->msFile->parts().name.contains(QLatin1Char('/')))
        return Error::NoError;
    Result<UnifiResourceMetadata> metadata = knownMetadata(*sample);
    if (metadata.hasError())
        return missingMetadata(QObject::tr("Cannot get the metadata of the sample."), *sample,
                               metadata.ecatch());
    Result<ResourceReferenceSPtr> reference = UnifiResourceReference::create(
        sample->msFile->parts().server, idOf(*sample, *metadata), metadata->item.path, metadata->item.name);
    if (reference.hasError())
        return reference.ecatch().addDetail(placeOf(*sample));
    setReference(sample, ResourceReferenceUtils::toString(sample->msFile), *reference);
    return Error::NoError;
}

Error askForFolder(const QString &id, UnifiResourceMetadata::Item *item)
{
    UnifiGetItemFolderTask task(id);
    ORV_RETURN_IF_ERROR(Task::exec(&task));
    BaseTask::waitForAllFinished(&task);
    ORV_RETURN_IF_ERROR(task.error());
    item->folder = task.folder();
    item->path = task.folder().path;
    return Error::NoError;
}

Error completeFolder(Sample *sample, SilentServers &servers)
{
    if (!UnifiSettings::load().isEnabled())
        return unifiIsOff(
            QObject::tr("Cannot update a workflow with UNIFI sample without UNIFI server being enabled."),
            *sample);
    Result<UnifiResourceMetadata> metadata = knownMetadata(*sample);
    if (metadata.hasError())
        return missingMetadata(QObject::tr("Cannot update UNIFI reference without metadata."), *sample,
                               metadata.ecatch());
    const QString id = idOf(*sample, *metadata);
    const auto ask = [&] { return askForFolder(id, &metadata->item); };
    if (Error error = servers.ask(UnifiSettings::load().server(), ask))
        return error.addDetail(placeOf(*sample)).ecatch();
    Result<ResourceReferenceSPtr> reference = UnifiResourceReference::create(
        sample->msFile->parts().server, id, metadata->item.path, metadata->item.name);
    if (reference.hasError())
        return reference.ecatch().addDetail(placeOf(*sample));
    const QString oldText = ResourceReferenceUtils::toString(sample->msFile);
    sample->fileMetadata.insert(oldText, metadata->toJson());
    if (!ResourceReferenceUtils::compare(sample->msFile, *reference))
        setReference(sample, oldText, *reference);
    return Error::NoError;
}

} // namespace

Error WflwUpgradeHelper::upgradeV_5_16_1(PropertyEditorContent *content,
                                         const PropertyEditorContent *initialContent,
                                         const QVersionNumber &initialVersion)
{
    // Older samples were read from a tree of rows, which had no UNIFI items.
    if (QVersionNumber::compare(initialVersion, QVersionNumber(5, 6, 0)) < 0)
        return Error::NoError;
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    SamplesAndTracesContent samples = working->samplesAndTraces();
    if (samples.samples.samples.isEmpty())
        return working->writeBack();
    const Result<QHash<int, OldUnifiMetadata>> known = getOldUnifiMetadata(initialContent);
    for (const QString &warning : known.warnings())
        qCWarning(propertyEditorLog()).noquote() << warning;
    for (auto &sample : samples.samples.samples) {
        const auto old = known->constFind(sample.id);
        if (old != known->constEnd())
            ORV_RETURN_IF_ERROR(rebuildReference(&sample, *old));
    }
    working->setSamplesAndTraces(samples);
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_18_0(PropertyEditorContent *content)
{
    return editUnifiSamples(createPecToUpgrade(content),
                            [this](Sample *sample) { return refreshMetadata(sample, silentServers()); });
}

Error WflwUpgradeHelper::upgradeV_5_25_0(PropertyEditorContent *content)
{
    return editUnifiSamples(createPecToUpgrade(content), replacePathInName);
}

Error WflwUpgradeHelper::upgradeV_5_32_0(PropertyEditorContent *content)
{
    return editUnifiSamples(createPecToUpgrade(content),
                            [this](Sample *sample) { return completeFolder(sample, silentServers()); });
}

} // namespace orv
