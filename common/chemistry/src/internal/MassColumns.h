#pragma once

#include <QLatin1String>

/// Columns of the table of masses, as they stand in files.
namespace orv::Internal::MassColumns {

inline constexpr QLatin1String kName("Name");
inline constexpr QLatin1String kMass("Mass");
inline constexpr QLatin1String kProtein("Protein");
inline constexpr QLatin1String kSamplesIds("SamplesIds");

} // namespace orv::Internal::MassColumns
