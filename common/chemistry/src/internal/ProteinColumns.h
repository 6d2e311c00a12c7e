#pragma once

#include <QLatin1String>

/// Columns of the tables of chains, of the proteins built from them and of building blocks, as they stand in
/// files.
namespace orv::Internal::ProteinColumns {

inline constexpr QLatin1String kNumber("Number");
inline constexpr QLatin1String kChainId("ChainId");
inline constexpr QLatin1String kName("Name");
inline constexpr QLatin1String kSequence("Sequence");
inline constexpr QLatin1String kType("Type");
inline constexpr QLatin1String kMonoisotopicMass("MonoisotopicMass");
inline constexpr QLatin1String kAverageMass("AverageMass");

inline constexpr QLatin1String kChainNumbers("ChainNumbers");
inline constexpr QLatin1String kDisulfides("Disulfides");
inline constexpr QLatin1String kSamplesIds("SamplesIds");

inline constexpr QLatin1String kSymbol("Symbol");
inline constexpr QLatin1String kFormula("Formula");

} // namespace orv::Internal::ProteinColumns
