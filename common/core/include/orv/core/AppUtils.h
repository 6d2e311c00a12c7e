#pragma once

#include <orv/core/Export.h>

#include <QString>

namespace orv::AppUtils {

/// The login name of the user who runs the process, as the operating system knows it. Never empty: where
/// the system has no name for the user (as in some containers), the environment's, and at last the user's
/// number.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString currentUserName();

} // namespace orv::AppUtils
