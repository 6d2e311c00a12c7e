#pragma once

#include <orv/samples/ElutionPeaksOptions.h>
#include <orv/samples/TracesImportList.h>
#include <orv/table_model/RecordSheet.h>

#include <QSet>

#include <memory>

/// The columns of the tables of traces and of presets of peak options.
namespace orv::TraceColumns {

inline constexpr QLatin1String kSamples("samplesIds");
inline constexpr QLatin1String kPreset("peaksOptions");
inline constexpr QLatin1String kPresetName("name");
inline constexpr QLatin1String kStart("start");
inline constexpr QLatin1String kEnd("end");

using PresetNames = std::shared_ptr<QSet<QString>>;

/// The samples that there are to choose from.
using SampleCodes = std::function<TableCodes()>;

/// \a presets are those that a trace may name; who changes them has the table looked at again.
[[nodiscard]] RecordSheet<TracesImportList::Entry>::Columns ofTraces(const PresetNames &presets,
                                                                     const SampleCodes &samples);
[[nodiscard]] RecordSheet<ElutionPeaksOptions>::Columns ofPresets();

/// What the column of samples holds for all samples.
[[nodiscard]] QString allSamples();
/// The ids that such a cell holds; nothing for all and for what is no list of them.
[[nodiscard]] QList<int> idsIn(QStringView text);

} // namespace orv::TraceColumns
