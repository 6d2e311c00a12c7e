#pragma once

#include <orv/core/Export.h>
#include <orv/table/VariantItems.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Functions on the raw JSON of cells and properties. Free of shared state; safe on any thread.
namespace orv::PropertyEditorJsonUtils {

/// The cells of a tab in the value form, each convertible to its compact JSON bytes.
[[nodiscard]] ORV_WORKFLOW_EXPORT VariantItems jsonArrayToVariantItems(const QJsonArray &array);

/// The cells as objects, each with a "metadata" text that stamps it with the current user, time and version.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonArray variantItemsToJsonArray(const VariantItems &items);

/// An element that is no string reads as an empty one.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList jsonArrayToStringList(const QJsonArray &array);
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonArray stringListToJsonArray(const QStringList &list);

/// The object in a cell or a byte value; empty for null, for other JSON and, with a warning, for other bytes.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject variantToObject(const QVariant &value);

} // namespace orv::PropertyEditorJsonUtils
