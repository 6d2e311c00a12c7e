#pragma once

#include <QLatin1String>

/// Columns of the table of deconvolution options, as they stand in files.
namespace orv::Internal::IntactOptionsColumns {

inline constexpr QLatin1String kName("Name");
inline constexpr QLatin1String kMinimumMz("MinimumMz");
inline constexpr QLatin1String kMaximumMz("MaximumMz");
inline constexpr QLatin1String kMinimumMass("MinimumMass");
inline constexpr QLatin1String kMaximumMass("MaximumMass");
inline constexpr QLatin1String kMinimumCharge("MinimumCharge");
inline constexpr QLatin1String kMaximumCharge("MaximumCharge");
inline constexpr QLatin1String kAdduct("Adduct");

} // namespace orv::Internal::IntactOptionsColumns
