#pragma once

#include <QString>

/// Texts of the chemistry tables that stand in files: never rename.
namespace orv {

/// Parts per million, a unit of mass tolerances.
inline constexpr QLatin1String kppm("ppm");
/// Unified atomic mass unit, a unit of mass tolerances and the first of the possible ones.
inline constexpr QLatin1String kDalton("Dalton");

/// Columns of the one-row table of a match tolerance.
inline constexpr QLatin1String kMassToleranceValue("Value");
inline constexpr QLatin1String kMassToleranceUnit("Unit");

/// Column of a mass table that the widget alone uses, and that is never saved by it.
inline constexpr QLatin1String kId("Id");

/// Columns of the root of intact proteins and oligonucleotides; the child at the column's index is that
/// table.
inline constexpr QLatin1String kChains("Chains");
inline constexpr QLatin1String kProteins("Proteins");
inline constexpr QLatin1String kBuildingBlocks("BuildingBlocks");

/// Column of the chains: 1 for a chain that the user entered, 0 for one that came from a server's metadata.
inline constexpr QLatin1String kisCustom("isCustom");

/// Key beside the table of proteins that holds their annotations.
inline constexpr QLatin1String kProteinAnnotations("proteinAnnotations");

/// Columns of the table of proteins.
inline constexpr QLatin1String kProteinAccessionName("ProteinAccessionName");
inline constexpr QLatin1String kProteinAliasName("ProteinAliasName");
inline constexpr QLatin1String kProteinSequence("ProteinSequence");

} // namespace orv
