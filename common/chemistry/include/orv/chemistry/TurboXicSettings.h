#pragma once

#include <orv/core/Export.h>

namespace orv {

/// How the fast method of extracting ion chromatograms sorts and keeps its data.
struct ORV_WORKFLOW_EXPORT TurboXicSettings
{
    int scansPerBlock = 0;
    int cacheMegabytes = 0;
    int mzBins = 0;

    bool operator==(const TurboXicSettings &) const = default;
};

/// Settings that fit kinds of computers.
namespace TurboXicSettingsCreator {

/// For a computer with memory to spare: 128 scans in a block, 1024 MB, 64 bins.
[[nodiscard]] ORV_WORKFLOW_EXPORT TurboXicSettings createHighCapacity();

} // namespace TurboXicSettingsCreator

} // namespace orv
