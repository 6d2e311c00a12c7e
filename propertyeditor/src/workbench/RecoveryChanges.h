#pragma once

#include <orv/propertyeditor/workbench/RecoveryEntry.h>

#include <QJsonObject>

namespace orv {

/// What differs between two documents, the workflow's own properties (name, description, icon and type)
/// included, which saved documents are compared without. Stamps don't count. Any thread.
[[nodiscard]] RecoveryChanges changesBetween(const QJsonObject &before, const QJsonObject &after);

} // namespace orv
