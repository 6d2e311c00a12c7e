#pragma once

#include <QLatin1String>

/// Columns of the tables of released glycans and their options, as they stand in files.
namespace orv::Internal::GlycanColumns {

inline constexpr QLatin1String kName("Name");
inline constexpr QLatin1String kComposition("Composition");
inline constexpr QLatin1String kMass("Mass");
inline constexpr QLatin1String kLabel("Label");
inline constexpr QLatin1String kRetentionTime("RetentionTime");

inline constexpr QLatin1String kKind("Kind");
inline constexpr QLatin1String kFormula("Formula");
inline constexpr QLatin1String kComplete("Complete");

inline constexpr QLatin1String kMoiety("Moiety");
inline constexpr QLatin1String kAdduct("Adduct");
inline constexpr QLatin1String kDerivatization("Derivatization");

} // namespace orv::Internal::GlycanColumns
