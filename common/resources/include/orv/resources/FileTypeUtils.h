#pragma once

#include <orv/core/ApplicationType.h>
#include <orv/core/Export.h>
#include <orv/core/FileTypes.h>
#include <orv/resources/ResourceReference.h>

#include <QString>

/// Which application a file belongs to. Told by the suffix, ignoring case. Any thread.
namespace orv::FileTypeUtils {

/// None for files that belong to no single application: data, tables, presets.
[[nodiscard]] ORV_WORKFLOW_EXPORT ApplicationType appType(FileType type);
[[nodiscard]] ORV_WORKFLOW_EXPORT ApplicationType appType(const ResourceReferenceSPtr &reference);

} // namespace orv::FileTypeUtils
