#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>
#include <orv/samples/ElutionPeaksOptions.h>
#include <orv/samples/SamplesInput.h>
#include <orv/samples/TraceImportAndProcessingOptions.h>
#include <orv/table/RowNode.h>

#include <QLatin1String>
#include <QList>
#include <QString>

#include <array>
#include <optional>

namespace orv {

/// What became of settings of traces: below version 5.6.0 documents set per kind of trace how its peaks are
/// found; now presets in the table of samples do, which traces name.
class ORV_WORKFLOW_EXPORT ElutionPeaksBackwardsCompatibility
{
public:
    /// The old settings of one kind of trace.
    struct OldPeaksOptions
    {
        int peakMethod = 1; ///< 1 finds peaks, 0 doesn't
        double smoothSigma = 0.1;
        double intervalTimeMinutes = 0.5;
        int baselineMethod = 1; ///< 1 corrects the baseline, 0 doesn't
        double smoothSigmaBaseline = 1.5;

        bool operator==(const OldPeaksOptions &) const = default;
    };

    /// The kinds of trace that had settings, by their place in Input::oldOptions.
    enum OldKind
    {
        Tic,
        Bpi,
        Uv,
    };

    /// All that an old document tells of its samples and traces.
    struct Input
    {
        SamplesInput::SamplesArrayWithCustomColumns samples;
        QList<TracesImportList::Entry> traces;
        std::array<OldPeaksOptions, 3> oldOptions{OldPeaksOptions{}, OldPeaksOptions{},
                                                  OldPeaksOptions{.smoothSigma = 0.05}};
        std::optional<ElutionPeaksOptions::TimeRange> timeRangeOfInterest;
        QString advancedText;
        bool isIntact = false; ///< whether the settings are those of an Intact step
    };

    /// The same in the present form.
    struct Output
    {
        SamplesInput::SamplesArrayWithCustomColumns samples;
        TraceImportAndProcessingOptions options;
        QString advancedText;
    };

    // Expert settings that presets took over, with their section. Never rename.
    static constexpr QLatin1String kAutoCompute{"ElutionPeaks/AutoCompute"};
    static constexpr QLatin1String kPeakWidthFactor{"ElutionPeaks/PeakWidthFactor"};

    /// Makes five presets, in this order:
    ///
    ///     TIC-preset, BPI-preset, UV-preset   the old settings of that kind
    ///     CSV-preset                          for tables in text files: the settings of UV
    ///     Default-preset                      for all other traces: the settings of TIC for an Intact step,
    ///                                         otherwise those of UV
    ///
    /// All have the time range of interest and what the advanced text says of kAutoCompute (a switch, see
    /// CustomSettings::toSwitch) and kPeakWidthFactor (above 0, kept with 2 decimals). These two leave the
    /// text unless their value can't be read, which is a warning. Each trace names the preset of its kind,
    /// and traces are put together by kind. Fails with InvalidContent for an old setting that is below 0 or
    /// isn't finite, naming it.
    [[nodiscard]] static Result<Output> createOptionsFromOldPreset(const Input &input);

    /// Gives the traces the names by which today's reader finds them in \a files, the MS files of the
    /// samples. A trace keeps whether it is imported, its samples and its preset. It is found again by its
    /// type together with its name in any case of letters or its id, TIC and base peak by their type alone if
    /// the files agree on one. Traces that no file has any more are left out with a warning in the log,
    /// unless a file's format has no reader here; tables, extracted ion chromatograms and electropherograms
    /// stay. Traces that the list lacked follow, not imported. The list is put together by kind.
    ///
    /// Fails as the home of a file or its reader does, and then changes nothing. A format that has no reader
    /// here is no failure: it is logged as a warning, and nothing new is told of that file.
    [[nodiscard]] static Error updateTracesAfterMsReaderApiChanged(const QList<ResourceReferenceSPtr> &files,
                                                                   TraceImportAndProcessingOptions *options);

    /// Empties the cells of \a row and of the rows below that hold "--", which stood for nothing in old
    /// tables.
    static void removeAllDoubleDashFromRowNode(RowNode *row);

    /// The trace that a table in a text file gives: it has the file's name, so that files of one name in
    /// several folders, one for each sample, give one trace. That is the one of \a existing where it has such
    /// a table already, letters' case aside. Nothing for a null or empty reference.
    [[nodiscard]] static std::optional<TraceItem> createTraceCsvTrace(const ResourceReferenceSPtr &file,
                                                                      const QList<TraceItem> &existing);

    /// The traces themselves, in their order.
    [[nodiscard]] static QList<TraceItem>
    traceItemsFromTracesEntries(const QList<TracesImportList::Entry> &entries);
};

} // namespace orv
