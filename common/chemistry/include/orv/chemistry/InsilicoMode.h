#pragma once

#include <orv/core/Export.h>

#include <QString>

namespace orv {

/// Where the expected peptides of a map come from. Numbers are stored in files, never renumber.
enum class InsilicoMode : int
{
    Off = 0,
    TheoreticalDigest = 1,
};

/// The mode of a stored text, which is its number. The words of the switch that stood there before, "false"
/// and "true", are read too. Any other text is Off, with a warning in the log unless it is empty.
[[nodiscard]] ORV_WORKFLOW_EXPORT InsilicoMode modeFromString(const QString &text);

} // namespace orv
