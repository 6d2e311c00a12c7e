#pragma once

#include <orv/core/Export.h>

#include <QString>

namespace orv::FileNameUtils {

/// A path in \a folder for a copy of \a source that no file or folder there has yet: the file's own name, or
/// with " (2)", " (3)", ... before its extension when the name is taken.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString generateUniqueDestination(const QString &source,
                                                                    const QString &folder);

} // namespace orv::FileNameUtils
