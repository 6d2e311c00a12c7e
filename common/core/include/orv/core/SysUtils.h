#pragma once

#include <orv/core/Export.h>

namespace orv::SysUtils {

/// The number of logical processors, at least 1.
[[nodiscard]] ORV_WORKFLOW_EXPORT int cpuCoresNumber();

} // namespace orv::SysUtils
