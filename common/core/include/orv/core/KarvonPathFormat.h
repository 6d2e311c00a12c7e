#pragma once

#include <orv/core/Export.h>

#include <QString>

namespace orv {

/// A path as the parameter files of the search engine hold it: without the long-path prefix of Windows, with
/// slashes between the names, and with "\:" for a colon and two backslashes for one that is part of a name.
/// Paths of Windows, with a drive letter or a share, are taken as such on every system.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString toKarvonPathFormat(const QString &path);

} // namespace orv
