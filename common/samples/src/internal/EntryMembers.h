#pragma once

#include <QLatin1String>

#include <array>

/// Members of a sample's JSON object. The names of old documents, never rename.
namespace orv::SamplesInput::Members {

inline constexpr QLatin1String kId("SamplesId");
inline constexpr QLatin1String kName("SampleName");
inline constexpr QLatin1String kPath("SamplePath");
inline constexpr QLatin1String kTraces("Traces");
inline constexpr QLatin1String kExtraReferences("ExtraReferences");
inline constexpr QLatin1String kReference("Reference");
inline constexpr QLatin1String kTimeUnit("SampleTimeUnit");
inline constexpr QLatin1String kDigestion("Digestion");
inline constexpr QLatin1String kSampleType("SampleType");
inline constexpr QLatin1String kMetadata("Metadata");
inline constexpr QLatin1String kFileMetadata("FileMetadata");

// Read where the present member is absent.
inline constexpr std::array kOldPaths = {QLatin1String("FilePath"), QLatin1String("FileName")};
inline constexpr std::array kOldTraces = {QLatin1String("TracesCsv"), QLatin1String("TracesMs")};
inline constexpr std::array kOldExtraReferences = {QLatin1String("Ms2Search")};

inline constexpr std::array kReserved = {
    kId,
    kName,
    kPath,
    kTraces,
    kExtraReferences,
    kReference,
    kTimeUnit,
    kDigestion,
    kSampleType,
    kMetadata,
    kFileMetadata,
    kOldPaths[0],
    kOldPaths[1],
    kOldTraces[0],
    kOldTraces[1],
    kOldExtraReferences[0],
};

} // namespace orv::SamplesInput::Members
