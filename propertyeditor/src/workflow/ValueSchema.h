// What the "value" of an entry may be, as JSON Schema.
#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <QJsonObject>
#include <QJsonValue>

namespace orv::ValueSchema {

/// The name of the definition of a table's node.
inline constexpr QLatin1String kTableDefinition("table");

/// {"$ref": "#/$defs/NAME"}
[[nodiscard]] QJsonObject reference(const QString &name);

/// A setting: its stored form by the type of the property, as PropertySetCreator reads it.
[[nodiscard]] QJsonObject ofSetting(PropertyId id);

/// The contents of a cell of tables.
[[nodiscard]] QJsonObject ofTable(PropertyId id);

} // namespace orv::ValueSchema
