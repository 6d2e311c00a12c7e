#pragma once

#include "Arguments.h"
#include "PathChecks.h"

#include <optional>

namespace orv::cli {

/// Refuses to append the log to a file that is no log yet and that is an input of the call or a file to which
/// one refers. Looks into the inputs only where there is such a file.
[[nodiscard]] std::optional<PathRefusal> refusedLog(const QString &log, const QList<Argument> &arguments);

} // namespace orv::cli
