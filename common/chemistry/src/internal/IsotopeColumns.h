#pragma once

#include <QLatin1String>

/// Columns of the table of isotope labels, as they stand in files.
namespace orv::Internal::IsotopeColumns {

inline constexpr QLatin1String kName("Name");
inline constexpr QLatin1String kElement("Element");
inline constexpr QLatin1String kMassNumber("MassNumber");
inline constexpr QLatin1String kEnrichment("Enrichment");

} // namespace orv::Internal::IsotopeColumns
