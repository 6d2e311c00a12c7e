#pragma once

#include <orv/core/Export.h>
#include <orv/core/FileTypes.h>

#include <QString>

/// Projects that a sample may refer to in place of its data, as a reference that others are compared with:
/// those of Dravik, Intact and Oligo.
namespace orv::PepmapTypesChecker {

[[nodiscard]] ORV_WORKFLOW_EXPORT bool isPepmapType(FileType type);
/// Told by the suffix, ignoring case; doesn't touch the disk.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isPepmapFile(const QString &path);

} // namespace orv::PepmapTypesChecker
