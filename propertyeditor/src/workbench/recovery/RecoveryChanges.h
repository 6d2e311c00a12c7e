#pragma once

#include <orv/propertyeditor/workbench/RecoveryEntry.h>

#include <QJsonObject>

#include <optional>

namespace orv {

/// What differs between two documents, the workflow's own properties (name, description, icon and type)
/// included, which saved documents are compared without. Stamps don't count. Any thread.
[[nodiscard]] RecoveryChanges changesBetween(const QJsonObject &before, const QJsonObject &after);

/// Where the last of them is that stands in a tab; nothing if there is none. Any thread.
[[nodiscard]] std::optional<RecoveryPlace> placeOfLastChange(const QJsonObject &before,
                                                             const QJsonObject &after);

} // namespace orv
