#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

namespace orv::PropertyEditorJsonUtils {

using namespace PropertyEditorStringConstants;

namespace {

/// The type of a cell, Unknown with a warning if it has none.
BaseItemType typeOf(const QJsonObject &item)
{
    const QString text = item.value(TYPE_KEY).toString();
    const BaseItemType type = baseItemTypeFromString(text);
    if (type == BaseItemType::Unknown)
        qCWarning(propertyEditorLog) << "Unknown type of cell" << text;
    return type;
}

QJsonObject customColumnsEntry(const QJsonObject &item)
{
    const QJsonArray entries = item.value(PROPERTIES_KEY).toArray();
    for (const auto element : entries) {
        QJsonObject entry = element.toObject();
        if (entry.value(NAME_KEY).toString().compare(CUSTOM_COLUMNS_KEY, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return {};
}

} // namespace

PropertyId findPropertyBackCompat(const QJsonObject &entry, BaseItemType itemType)
{
    return findPropertyBackCompat(entry.value(NAME_KEY).toString(), itemType);
}

PropertyId findPropertyBackCompat(const QString &name, BaseItemType itemType)
{
    if (name == kSamples)
        return itemType == BaseItemType::Samples ? PropertyId::SamplesTable : PropertyId::Samples;
    const PropertyId id = PropertiesNames::findPropertyForName(name);
    // A single file in old documents; the list of today takes its place.
    return id == PropertyId::DatabaseFile ? PropertyId::SequenceDatabases : id;
}

QJsonObject getPropertyWithType(const QJsonObject &item, PropertyId id)
{
    const QJsonArray entries = item.value(PROPERTIES_KEY).toArray();
    if (entries.isEmpty()) {
        qCWarning(propertyEditorLog) << "No properties in json content" << item;
        return {};
    }
    const BaseItemType type = typeOf(item);
    if (type == BaseItemType::Unknown)
        return {};
    for (const auto element : entries) {
        QJsonObject entry = element.toObject();
        if (findPropertyBackCompat(entry, type) == id)
            return entry;
    }
    return {};
}

QJsonObject updatePropertyValue(const QJsonObject &item, PropertyId id, const QJsonObject &value)
{
    const BaseItemType type = typeOf(item);
    if (type == BaseItemType::Unknown)
        return {};
    QJsonArray entries = item.value(PROPERTIES_KEY).toArray();
    bool changed = false;
    for (auto &&element : entries) {
        QJsonObject entry = element.toObject();
        if (findPropertyBackCompat(entry, type) != id)
            continue;
        entry.insert(VALUE_KEY, value);
        entry.insert(NAME_KEY, PropertiesNames::internalNameForType(id));
        element = entry;
        changed = true;
    }
    QJsonObject updated = item;
    if (changed)
        updated.insert(PROPERTIES_KEY, entries);
    return updated;
}

QJsonObject propValueObject(const QJsonObject &entry)
{
    return entry.value(VALUE_KEY).toObject();
}

QHash<QString, QMap<QString, QVariant>> customColumnDefinitions(const QJsonObject &item)
{
    QHash<QString, QMap<QString, QVariant>> definitions;
    const RowNode node = propValueToRowNode(customColumnsEntry(item));
    for (qsizetype i = 0; i < node.data.size(); ++i) {
        const QMap<QString, QVariant> map = node.data.at(i).toMap();
        const QString name = map.value(NAME_KEY).toString();
        if (name.isEmpty())
            qCWarning(propertyEditorLog) << "missing name for item number" << i + 1 << "; map:" << map;
        else
            definitions.insert(name, map);
    }
    return definitions;
}

} // namespace orv::PropertyEditorJsonUtils
