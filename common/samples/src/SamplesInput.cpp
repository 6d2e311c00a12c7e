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

/// What an entry is read from.
struct EntryMembers
{
    int id = 0;
    QString name;
    QString path;
    QStringList traces;
    QStringList extraReferences;
    bool isReference = false;
    QString timeUnit;
    QString digestion;
    QString sampleType;
    QJsonObject metadata;
    QJsonObject fileMetadata;
};

Result<EntryMembers> readMembers(const QJsonObject &json)
{
    MemberReader reader(json);
    EntryMembers members;
    members.id = reader.integer(kId, 0);
    members.name = reader.text(kName);
    members.path = reader.text(pathKey(reader));
    members.traces = textsOf(&reader, kTraces, kOldTraces);
    members.extraReferences = textsOf(&reader, kExtraReferences, kOldExtraReferences);
    members.isReference = reader.flag(kReference, false);
    members.timeUnit = reader.text(kTimeUnit);
    members.digestion = reader.text(kDigestion);
    members.sampleType = reader.text(kSampleType);
    // Trees of rows have a text here, which says nothing that is asked of it.
    members.metadata = json.value(kMetadata).toObject();
    members.fileMetadata = reader.object(kFileMetadata);
    ORV_RETURN_IF_ERROR(reader.error());
    return members;
}

Entry entryOf(const EntryMembers &members, QStringList *unreadable)
{
    Entry entry;
    entry.id = members.id;
    entry.name = members.name;
    entry.msFile = referencesOf({members.path}, unreadable).value(0);
    entry.traces = referencesOf(members.traces, unreadable);
    entry.extraReferences = referencesOf(members.extraReferences, unreadable);
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
           texts == ResourceReferenceUtils::toStringList(referencesOf(stored, &unreadable));
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

void storePath(QJsonObject *json, QLatin1String key, const ResourceReferenceSPtr &now, const QString &stored)
{
    const QString path = ResourceReferenceUtils::toString(now);
    QStringList unreadable;
    if (path != stored &&
        path != ResourceReferenceUtils::toString(referencesOf({stored}, &unreadable).value(0)))
        json->insert(key, path);
}

} // namespace

Result<Entry> Entry::fromJson(const QJsonObject &json)
{
    QStringList unreadable;
    Result<EntryMembers> members = readMembers(json);
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
    const EntryMembers before = readMembers(stored).valueOr({});
    QJsonObject json = stored;
    if (id != before.id || !json.contains(kId))
        json.insert(kId, id);
    if (name != before.name || !json.contains(kName))
        json.insert(kName, name);
    storePath(&json, pathKey(MemberReader(stored)), msFile, before.path);
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
