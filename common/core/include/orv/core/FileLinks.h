#pragma once

#include <orv/core/Export.h>

#include <QString>

/// Symbolic links of files.
namespace orv::FileLinks {

/// Where a write to \a path ends: behind all links of a chain, also where the last one dangles. Links that
/// lead in a circle end at one of them. Reads the disk; any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString end(const QString &path);

} // namespace orv::FileLinks
