#include "orv/remote/UnifiResourceMetadata.h"

#include <orv/core/JsonUtils.h>

#include <array>

namespace orv {

namespace {

constexpr QLatin1String kServer("server");
constexpr QLatin1String kItem("item");
constexpr QLatin1String kId("id");
constexpr QLatin1String kName("name");
constexpr QLatin1String kPath("path");
constexpr QLatin1String kFolder("folder");

enum class Presence
{
    Needed,
    Optional,
};

Error readText(const QJsonObject &json, QLatin1String key, Presence presence, QString *text)
{
    if (presence == Presence::Optional && !json.contains(key))
        return Error::NoError;
    Result<QString> value = JsonUtils::stringValue(json, key);
    if (value.hasError())
        return value.ecatch();
    *text = *value;
    return Error::NoError;
}

Result<UnifiResourceMetadata::Item> readItem(const QJsonObject &json)
{
    UnifiResourceMetadata::Item item;
    ORV_RETURN_IF_ERROR(readText(json, kId, Presence::Optional, &item.id));
    ORV_RETURN_IF_ERROR(readText(json, kName, Presence::Needed, &item.name));
    ORV_RETURN_IF_ERROR(readText(json, kPath, Presence::Optional, &item.path));
    if (!json.contains(kFolder))
        return item;
    Result<QJsonObject> object = JsonUtils::objectValue(json, kFolder);
    if (object.hasError())
        return object.ecatch();
    Result<UnifiResourceMetadata::Folder> folder = UnifiResourceMetadata::Folder::fromJson(*object);
    if (folder.hasError())
        return folder.ecatch();
    item.folder = *folder;
    return item;
}

/// What is empty and wasn't there doesn't come in.
void store(QJsonObject *json, QLatin1String key, const QString &text)
{
    if (!text.isEmpty() || json->contains(key))
        json->insert(key, text);
}

} // namespace

Result<UnifiResourceMetadata::Folder> UnifiResourceMetadata::Folder::fromJson(const QJsonObject &json)
{
    Folder folder;
    ORV_RETURN_IF_ERROR(readText(json, kName, Presence::Optional, &folder.name));
    ORV_RETURN_IF_ERROR(readText(json, kPath, Presence::Needed, &folder.path));
    return folder;
}

Result<UnifiResourceMetadata> UnifiResourceMetadata::fromJson(const QJsonObject &json)
{
    UnifiResourceMetadata metadata;
    metadata.stored = json;
    ORV_RETURN_IF_ERROR(readText(json, kServer, Presence::Optional, &metadata.server));
    Result<QJsonObject> object = JsonUtils::objectValue(json, kItem);
    if (object.hasError())
        return object.ecatch();
    Result<Item> item = readItem(*object);
    if (item.hasError())
        return item.ecatch();
    metadata.item = *item;
    return metadata;
}

QJsonObject UnifiResourceMetadata::toJson() const
{
    QJsonObject itemJson = stored.value(kItem).toObject();
    store(&itemJson, kId, item.id);
    store(&itemJson, kName, item.name);
    store(&itemJson, kPath, item.path);
    if (item.folder != Folder() || itemJson.contains(kFolder)) {
        QJsonObject folderJson = itemJson.value(kFolder).toObject();
        store(&folderJson, kName, item.folder.name);
        store(&folderJson, kPath, item.folder.path);
        itemJson.insert(kFolder, folderJson);
    }
    QJsonObject json = stored;
    store(&json, kServer, server);
    json.insert(kItem, itemJson);
    return json;
}

} // namespace orv
