#pragma once

#include <orv/core_ms/internal/FormatDetectorRegistry.h>

namespace orv::msreader::internal {

/// The detectors of the product, in the order in which they are asked.
[[nodiscard]] FormatDetectors createFormatDetectors();

} // namespace orv::msreader::internal
