#pragma once

#include <QLatin1String>

namespace orv::Internal {

// Stored in files, never change.
inline constexpr QLatin1String kDataKey("data");
inline constexpr QLatin1String kChildrenKey("children");

} // namespace orv::Internal
