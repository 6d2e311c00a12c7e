#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>

#include <QSet>

namespace orv {

/// The properties that a cell of that type may hold; none for a type that the table doesn't know. A file may
/// hold more: those are no part of the cell and are refused or dropped by its reader. Safe on any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT const QSet<PropertyId> &allowedProperties(BaseItemType type);

} // namespace orv
