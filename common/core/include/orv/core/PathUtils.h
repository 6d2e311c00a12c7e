#pragma once

#include <orv/core/Export.h>

#include <QString>

/// Questions about paths. A trailing separator doesn't change an answer.
namespace orv::PathUtils {

/// Whether the last name of \a path ends with "." and \a extension, ignoring case. \a extension is given
/// without its dot and may hold dots ("wiff.scan"). Doesn't touch the disk.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool hasExtension(const QString &path, const QString &extension);

/// Whether \a path is an existing folder, links followed. The two names say the same; both are in use.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isDirectory(const QString &path);
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isExistingDir(const QString &path);

/// Whether \a path is an existing regular file, links followed.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isExistingFile(const QString &path);

} // namespace orv::PathUtils
