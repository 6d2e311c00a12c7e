#pragma once

#include <orv/core/Export.h>

#include <QString>

/// The long-path rules of Windows, applied on every system: workflows travel, and a path that one machine
/// writes has to open on the other.
namespace orv::FilePathUtils {

/// MAX_PATH of the Windows API: 260 characters.
[[nodiscard]] ORV_WORKFLOW_EXPORT int winMaxPathLength();

/// Whether \a path has more than winMaxPathLength() characters, so that it needs the long-path prefix. A path
/// of exactly that length passes.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isWinLongPath(const QString &path);

/// Whether \a path begins with "\\?\" (or with "//?/", its form with slashes).
[[nodiscard]] ORV_WORKFLOW_EXPORT bool hasWinLongPathPrefix(const QString &path);

/// \a path without the long-path prefix: "\\?\C:\x" is "C:\x", "\\?\UNC\server\x" is "\\server\x".
[[nodiscard]] ORV_WORKFLOW_EXPORT QString withoutWinLongPathPrefix(const QString &path);

/// Whether \a path, its long-path prefix aside, begins with a letter and a colon, followed by a separator or
/// by nothing. A name such as "a:b" has none.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool hasDriveLetter(const QString &path);

/// Whether \a path names a share of a server, "\\server\share" or "//server/share", with a long-path prefix
/// or without.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isUncPath(const QString &path);

} // namespace orv::FilePathUtils
