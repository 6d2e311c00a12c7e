#include "orv/samples/ExtendedMetadataInfo.h"

#include <orv/core/JsonUtils.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QSet>

#include <algorithm>

namespace orv {

namespace {

constexpr QLatin1String kCacheKey("metadataCache");
constexpr QLatin1String kConnectionsKey("metadataMappingConnections");
constexpr QLatin1String kReferenceKey("reference");
constexpr QLatin1String kValuesKey("values");
constexpr QLatin1String kAttributeKey("attribute");
constexpr QLatin1String kValueKey("value");
constexpr QLatin1String kTargetKey("target");
constexpr QLatin1String kAliasKey("alias");

struct ExtendedMetadataInfoTr
{
    Q_DECLARE_TR_FUNCTIONS(ExtendedMetadataInfo)
};

QJsonObject without(QJsonObject object, std::initializer_list<QLatin1String> keys)
{
    for (QLatin1String key : keys)
        object.remove(key);
    return object;
}

Error notAnObject(const QJsonValue &element)
{
    return Error(ErrorCode::InvalidContent,
                 ExtendedMetadataInfoTr::tr("An element must be an object, but there is %1.")
                     .arg(JsonUtils::typeDescription(element.type())));
}

/// Reads the elements of the array \a key of \a object, which may be absent, with \a read.
template<typename T>
Result<QList<T>> readList(const QJsonObject &object, QLatin1String key,
                          Result<T> (*read)(const QJsonObject &))
{
    if (!object.contains(key))
        return QList<T>();
    Result<QJsonArray> array = JsonUtils::arrayValue(object, key);
    if (array.hasError())
        return array.ecatch();
    QList<T> list;
    list.reserve(array->size());
    for (const QJsonValue element : *array) {
        Result<T> item = element.isObject() ? read(element.toObject()) : notAnObject(element);
        if (item.hasError()) {
            return item.ecatch().addDetail(
                ExtendedMetadataInfoTr::tr("It is element %1 of \"%2\" in the extended metadata.")
                    .arg(list.size())
                    .arg(key));
        }
        list.append(std::move(item).value());
    }
    return list;
}

template<typename T>
QJsonArray writeList(const QList<T> &list, QJsonObject (*write)(const T &))
{
    QJsonArray array;
    for (const T &item : list)
        array.append(write(item));
    return array;
}

Result<TalvaneExtendedMetaDataValue> readValue(const QJsonObject &object)
{
    Result<QString> attribute = JsonUtils::stringValue(object, kAttributeKey);
    if (attribute.hasError())
        return attribute.ecatch();
    return TalvaneExtendedMetaDataValue{*attribute, object.value(kValueKey),
                                        without(object, {kAttributeKey, kValueKey})};
}

QJsonObject writeValue(const TalvaneExtendedMetaDataValue &value)
{
    QJsonObject object = value.unknownMembers;
    object.insert(kAttributeKey, value.attribute);
    if (!value.value.isUndefined())
        object.insert(kValueKey, value.value);
    return object;
}

Result<TalvaneMetadataMappingConnection> readConnection(const QJsonObject &object)
{
    Result<QString> attribute = JsonUtils::stringValue(object, kAttributeKey);
    if (attribute.hasError())
        return attribute.ecatch();
    const QJsonValue target = object.value(kTargetKey);
    if (!target.isDouble() || double(target.toInt()) != target.toDouble())
        return Error(ErrorCode::InvalidContent,
                     ExtendedMetadataInfoTr::tr("\"%1\" must be a whole number.").arg(kTargetKey));
    const QJsonValue alias = object.value(kAliasKey);
    if (!alias.isString() && !alias.isUndefined())
        return Error(ErrorCode::InvalidContent,
                     ExtendedMetadataInfoTr::tr("\"%1\" must be a text.").arg(kAliasKey));
    return TalvaneMetadataMappingConnection{*attribute, MappingTarget(target.toInt()),
                                            without(object, {kAttributeKey, kTargetKey, kAliasKey}),
                                            alias.toString()};
}

QJsonObject writeConnection(const TalvaneMetadataMappingConnection &connection)
{
    QJsonObject object = connection.unknownMembers;
    object.insert(kAttributeKey, connection.attribute);
    object.insert(kTargetKey, int(connection.target));
    if (!connection.alias.isEmpty())
        object.insert(kAliasKey, connection.alias);
    return object;
}

struct CacheEntry
{
    QString text;
    QList<TalvaneExtendedMetaDataValue> values;
    QJsonObject unknownMembers;
};

Result<CacheEntry> readCacheEntry(const QJsonObject &object)
{
    Result<QString> text = JsonUtils::stringValue(object, kReferenceKey);
    if (text.hasError())
        return text.ecatch();
    Result<QList<TalvaneExtendedMetaDataValue>> values = readList(object, kValuesKey, readValue);
    if (values.hasError())
        return values.ecatch();
    return CacheEntry{*text, *values, without(object, {kReferenceKey, kValuesKey})};
}

QJsonObject writeCacheEntry(const CacheEntry &entry)
{
    QJsonObject object = entry.unknownMembers;
    object.insert(kReferenceKey, entry.text);
    object.insert(kValuesKey, writeList(entry.values, writeValue));
    return object;
}

/// Adds \a members to those of an entry of the same reference; false when both have one with different
/// values.
bool unite(QJsonObject *known, const QJsonObject &members)
{
    for (auto it = members.begin(); it != members.end(); ++it) {
        if (known->contains(it.key()) && known->value(it.key()) != it.value())
            return false;
        known->insert(it.key(), it.value());
    }
    return true;
}

} // namespace

Result<ExtendedMetadataInfo> ExtendedMetadataInfo::fromJson(const QJsonObject &json)
{
    Result<QList<CacheEntry>> entries = readList(json, kCacheKey, readCacheEntry);
    if (entries.hasError())
        return entries.ecatch();
    Result<QList<TalvaneMetadataMappingConnection>> connections =
        readList(json, kConnectionsKey, readConnection);
    if (connections.hasError())
        return connections.ecatch();

    ExtendedMetadataInfo info;
    info.m_connections = *connections;
    info.m_unknown = without(json, {kCacheKey, kConnectionsKey});
    for (const CacheEntry &entry : *entries) {
        const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(entry.text);
        if (reference.hasError()) {
            info.m_entriesWithoutReference.append(writeCacheEntry(entry));
            continue;
        }
        info.m_cache[*reference] += entry.values;
        if (entry.unknownMembers.isEmpty())
            continue;
        if (!unite(&info.m_unknownOfCacheEntries[*reference], entry.unknownMembers)) {
            return Error(ErrorCode::InvalidContent,
                         ExtendedMetadataInfoTr::tr("Two entries of the reference \"%1\" differ in \"%2\".")
                             .arg(entry.text, kCacheKey));
        }
    }
    return info;
}

void ExtendedMetadataInfo::setMetadataCache(const MetadataCache &cache)
{
    m_cache = cache;
    m_unknownOfCacheEntries.removeIf([&cache](auto entry) { return !cache.contains(entry.key()); });
}

QStringList ExtendedMetadataInfo::columnNames() const
{
    QStringList names;
    QSet<QString> attributes;
    for (const TalvaneMetadataMappingConnection &connection : m_connections) {
        if (!attributes.contains(connection.attribute))
            names.append(connection.columnName());
        attributes.insert(connection.attribute);
    }
    return names;
}

QJsonObject ExtendedMetadataInfo::toJson() const
{
    QList<QJsonObject> entries = m_entriesWithoutReference;
    for (auto it = m_cache.begin(); it != m_cache.end(); ++it) {
        const QString text = ResourceReferenceUtils::toString(it.key().reference());
        entries.append(writeCacheEntry({text, it.value(), m_unknownOfCacheEntries.value(it.key())}));
    }
    std::stable_sort(entries.begin(), entries.end(), [](const QJsonObject &a, const QJsonObject &b) {
        return a.value(kReferenceKey).toString() < b.value(kReferenceKey).toString();
    });
    QJsonArray cache;
    for (const QJsonObject &entry : std::as_const(entries))
        cache.append(entry);
    QJsonObject json = m_unknown;
    json.insert(kCacheKey, cache);
    json.insert(kConnectionsKey, writeList(m_connections, writeConnection));
    return json;
}

} // namespace orv
