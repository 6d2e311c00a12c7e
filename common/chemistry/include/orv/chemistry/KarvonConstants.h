#pragma once

#include <orv/core/Export.h>

#include <QLatin1String>
#include <QString>

namespace orv {

/// The key of the inclusion list in the parameter files of the search engine.
inline constexpr QLatin1String kinclusion_filter("kinclusion_filter");

/// What an oligonucleotide search looks for. Stored in files, never renumber.
enum class KarvonMoleculeType : int
{
    Rna = 0,
    Dna = 1,
};

/// What the search engine calls things. Stateless, any thread.
namespace KarvonConstants {

/// The engine's text for the machine type of that number: the kind of molecule and how it is fragmented, such
/// as "peptide:HCD". Empty, with a warning in the log, for a number that is no machine type.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString mapMachineTypeComboboxValueToKarvonPresetValue(int machineType);

/// The number of the machine type of that text, in any case; -1, which the rule of the setting refuses, with
/// a warning in the log, for any other text.
[[nodiscard]] ORV_WORKFLOW_EXPORT int machineTypeForKarvonPresetValue(const QString &text);

} // namespace KarvonConstants

} // namespace orv
