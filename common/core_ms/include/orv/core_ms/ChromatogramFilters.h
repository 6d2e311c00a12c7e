#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/ChromatogramInfo.h>

#include <functional>

namespace orv::msreader {

using ChromatogramFilter = std::function<bool(const ChromatogramInfo &)>;

namespace ChromatogramFilters {

[[nodiscard]] ORV_WORKFLOW_EXPORT bool all(const ChromatogramInfo &info);
/// Counts of ions.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool ms(const ChromatogramInfo &info);
/// What other detectors and devices recorded beside them.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool nonMs(const ChromatogramInfo &info);

} // namespace ChromatogramFilters

} // namespace orv::msreader
