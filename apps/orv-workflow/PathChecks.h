#pragma once

#include "Arguments.h"
#include "Failure.h"

#include <optional>

namespace orv::cli {

/// A path that can't be used, and why.
struct PathRefusal
{
    QString path;
    Failure failure;
};

/// Looks at the paths that were given for \a arguments before anything is read or written: names that can't
/// be opened, and outputs that are inputs too. The inputs of a batch are left to the batch.
[[nodiscard]] std::optional<PathRefusal> refusedPath(const QList<Argument> &arguments);

} // namespace orv::cli
