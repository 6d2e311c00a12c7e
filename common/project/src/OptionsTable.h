// The table of creation options, for those who read and who write it.
#pragma once

#include <QLatin1String>

namespace orv::OptionsTable {

// Stored in files.
inline constexpr QLatin1String kName("ProjectCreationOptions");
inline constexpr QLatin1String kKeyColumn("Key");
inline constexpr QLatin1String kValueColumn("Value");

} // namespace orv::OptionsTable
