#pragma once

#include <orv/core/Export.h>

#include <QString>

namespace orv {

/// The version of the library, such as "0.1.0".
[[nodiscard]] ORV_WORKFLOW_EXPORT QString libraryVersion();

} // namespace orv
