#include "orv/samples/SamplesInput.h"

#include "internal/EntryMembers.h"
#include "internal/MemberReader.h"

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

/// The member that holds the sample's path: the present one, or an old one that is there.
QLatin1String pathKey(const MemberReader &reader)
{
    for (QLatin1String old : kOldPaths) {
        if (!reader.has(kPath) && reader.has(old))
            return old;
    }
    return kPath;
}

/// The texts of \a key, or where that is absent those of the old members, which hold one each.
template<typename OldKeys>
QStringList textsOf(MemberReader *reader, QLatin1String key, const OldKeys &oldKeys)
{
    if (reader->has(key))
        return reader->texts(key);
    QStringList texts;
    for (QLatin1String old : oldKeys)
        texts.append(reader->text(old));
    texts.removeAll(QString());
    return texts;
}

/// The texts that aren't empty and still no references go to \a unreadable.
QList<ResourceReferenceSPtr> referencesOf(const QStringList &texts, QStringList *unreadable)
{
    QList<ResourceReferenceSPtr> references;
    references.reserve(texts.size());
    for (const QString &text : texts) {
        const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
        if (reference.hasError())
            unreadable->append(text);
        else if (!(*reference)->isEmpty())
            references.append(*reference);
    }
    return references;
}

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

Result<Entry> readEntry(const QJsonObject &json, QStringList *unreadable)
{
    MemberReader reader(json);
    Entry entry;
    entry.stored = json;
    entry.id = reader.integer(kId, 0);
    entry.name = reader.text(kName);
    entry.msFile = referencesOf({reader.text(pathKey(reader))}, unreadable).value(0);
    entry.traces = referencesOf(textsOf(&reader, kTraces, kOldTraces), unreadable);
    entry.extraReferences = referencesOf(textsOf(&reader, kExtraReferences, kOldExtraReferences), unreadable);
    entry.isReference = reader.flag(kReference, false);
    entry.timeUnit = reader.text(kTimeUnit);
    entry.digestion = reader.text(kDigestion);
    entry.sampleType = reader.text(kSampleType);
    // Trees of rows have a text here, which says nothing that is asked of it.
    entry.metadata = json.value(kMetadata).toObject();
    entry.fileMetadata = readFileMetadata(reader.object(kFileMetadata));
    ORV_RETURN_IF_ERROR(reader.error());
    return entry;
}

template<typename OldKeys>
void storeReferences(QJsonObject *json, QLatin1String key, const OldKeys &oldKeys,
                     const QList<ResourceReferenceSPtr> &now, const QList<ResourceReferenceSPtr> &before)
{
    const QStringList texts = ResourceReferenceUtils::toStringList(now);
    if (texts == ResourceReferenceUtils::toStringList(before))
        return;
    for (QLatin1String old : oldKeys)
        json->remove(old);
    json->insert(key, QJsonArray::fromStringList(texts));
}

} // namespace

Result<Entry> Entry::fromJson(const QJsonObject &json)
{
    QStringList unreadable;
    Result<Entry> entry = readEntry(json, &unreadable);
    if (entry.hasError())
        return entry.ecatch();
    for (const QString &text : std::as_const(unreadable)) {
        qCWarning(genericLog()).noquote()
            << SamplesInputTr::tr("The sample \"%1\" refers to \"%2\", which is no reference to a file.")
                   .arg(entry->name, text);
    }
    return entry;
}

QJsonObject Entry::toJson() const
{
    QStringList unreadable;
    const Entry before = readEntry(stored, &unreadable).valueOr({});
    QJsonObject json = stored;
    if (id != before.id || !json.contains(kId))
        json.insert(kId, id);
    if (name != before.name || !json.contains(kName))
        json.insert(kName, name);
    const QString path = ResourceReferenceUtils::toString(msFile);
    storeChange(&json, pathKey(MemberReader(stored)), path, ResourceReferenceUtils::toString(before.msFile),
                path);
    storeReferences(&json, kTraces, kOldTraces, traces, before.traces);
    storeReferences(&json, kExtraReferences, kOldExtraReferences, extraReferences, before.extraReferences);
    storeChange(&json, kReference, isReference, before.isReference, isReference);
    storeChange(&json, kTimeUnit, timeUnit, before.timeUnit, timeUnit);
    storeChange(&json, kDigestion, digestion, before.digestion, digestion);
    storeChange(&json, kSampleType, sampleType, before.sampleType, sampleType);
    storeChange(&json, kMetadata, metadata, before.metadata, metadata);
    storeChange(&json, kFileMetadata, fileMetadata, before.fileMetadata,
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
