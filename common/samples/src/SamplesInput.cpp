#include "orv/samples/SamplesInput.h"

#include "internal/EntryMembers.h"
#include "internal/MemberReader.h"
#include "internal/SampleMembers.h"

#include <orv/core/Logging.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QCoreApplication>

namespace orv::SamplesInput {

namespace {

using namespace Members;

struct SamplesInputTr
{
    Q_DECLARE_TR_FUNCTIONS(SamplesInput)
};

QHash<QString, QJsonObject> readFileMetadata(const QJsonObject &json)
{
    QHash<QString, QJsonObject> metadata;
    for (auto it = json.begin(); it != json.end(); ++it) {
        if (it->isObject())
            metadata.insert(it.key(), it->toObject());
    }
    return metadata;
}

/// What \a stored holds beside objects is of a newer version, and stays.
QJsonObject writeFileMetadata(const QHash<QString, QJsonObject> &metadata, const QJsonObject &stored)
{
    QJsonObject json;
    for (auto it = stored.begin(); it != stored.end(); ++it) {
        if (!it->isObject())
            json.insert(it.key(), it.value());
    }
    for (auto it = metadata.begin(); it != metadata.end(); ++it)
        json.insert(it.key(), it.value());
    return json;
}

Entry entryOf(const SampleMembers &members, QStringList *unreadable)
{
    Entry entry;
    entry.id = members.id;
    entry.name = members.name;
    entry.msFile = members.file(unreadable);
    entry.traces = SampleMembers::referencesOf(members.traces, unreadable);
    entry.extraReferences = SampleMembers::referencesOf(members.extraReferences, unreadable);
    entry.isReference = members.isReference;
    entry.timeUnit = members.timeUnit;
    entry.digestion = members.digestion;
    entry.sampleType = members.sampleType;
    entry.metadata = members.metadata;
    entry.fileMetadata = readFileMetadata(members.fileMetadata);
    return entry;
}

/// Whether \a texts are those of the references that \a stored is read as. The text of a reference is read as
/// itself, so that none has to be made where the texts are the same.
bool areTextsOf(const QStringList &texts, const QStringList &stored)
{
    QStringList unreadable;
    return texts == stored ||
           texts == ResourceReferenceUtils::toStringList(SampleMembers::referencesOf(stored, &unreadable));
}

template<typename OldKeys>
void storeReferences(QJsonObject *json, QLatin1String key, const OldKeys &oldKeys,
                     const QList<ResourceReferenceSPtr> &now, const QStringList &stored)
{
    const QStringList texts = ResourceReferenceUtils::toStringList(now);
    if (areTextsOf(texts, stored))
        return;
    for (QLatin1String old : oldKeys)
        json->remove(old);
    json->insert(key, QJsonArray::fromStringList(texts));
}

void storePath(QJsonObject *json, const ResourceReferenceSPtr &now, const SampleMembers &stored)
{
    const QString path = ResourceReferenceUtils::toString(now);
    QStringList unreadable;
    if (path != stored.path && path != ResourceReferenceUtils::toString(stored.file(&unreadable)))
        json->insert(stored.pathKey, path);
}

} // namespace

Result<Entry> Entry::fromJson(const QJsonObject &json)
{
    QStringList unreadable;
    Result<SampleMembers> members = SampleMembers::read(json);
    if (members.hasError())
        return members.ecatch();
    Entry entry = entryOf(*members, &unreadable);
    entry.stored = json;
    for (const QString &text : std::as_const(unreadable)) {
        qCWarning(genericLog()).noquote()
            << SamplesInputTr::tr("The sample \"%1\" refers to \"%2\", which is no reference to a file.")
                   .arg(entry.name, text);
    }
    return entry;
}

QJsonObject Entry::toJson() const
{
    const SampleMembers before = SampleMembers::readOrNone(stored);
    QJsonObject json = stored;
    if (id != before.id || !json.contains(kId))
        json.insert(kId, id);
    if (name != before.name || !json.contains(kName))
        json.insert(kName, name);
    storePath(&json, msFile, before);
    storeReferences(&json, kTraces, kOldTraces, traces, before.traces);
    storeReferences(&json, kExtraReferences, kOldExtraReferences, extraReferences, before.extraReferences);
    storeChange(&json, kReference, isReference, before.isReference, isReference);
    storeChange(&json, kTimeUnit, timeUnit, before.timeUnit, timeUnit);
    storeChange(&json, kDigestion, digestion, before.digestion, digestion);
    storeChange(&json, kSampleType, sampleType, before.sampleType, sampleType);
    storeChange(&json, kMetadata, metadata, before.metadata, metadata);
    storeChange(&json, kFileMetadata, fileMetadata, readFileMetadata(before.fileMetadata),
                writeFileMetadata(fileMetadata, stored.value(kFileMetadata).toObject()));
    return json;
}

bool Entry::isMsFileExternal() const
{
    return msFile && msFile->isScheme(ResourceReference::Scheme::UNIFI);
}

QList<ResourceReferenceSPtr> Entry::companions() const
{
    return traces + extraReferences;
}

void Entry::moveFileMetadata(const QString &oldText, const QString &newText)
{
    if (oldText != newText && fileMetadata.contains(oldText))
        fileMetadata.insert(newText, fileMetadata.take(oldText));
}

QList<Entry> SamplesArrayWithCustomColumns::entries() const
{
    return QList<Entry>(samples.begin(), samples.end());
}

QStringList SamplesArrayWithCustomColumns::names() const
{
    QStringList names;
    names.reserve(samples.size());
    for (const SampleWithCustomColumns &sample : samples)
        names.append(sample.name);
    return names;
}

bool SamplesArrayWithCustomColumns::removeCustomColumn(const QString &name)
{
    if (!columns.removeCustomColumn(name))
        return false;
    for (SampleWithCustomColumns &sample : samples)
        sample.customValues.remove(name);
    return true;
}

Result<QList<Entry>> samplesFromJsonArray(const QJsonObject &samplesTable)
{
    Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(samplesTable);
    if (content.hasError())
        return content.ecatch();
    return content->samples.entries();
}

} // namespace orv::SamplesInput
