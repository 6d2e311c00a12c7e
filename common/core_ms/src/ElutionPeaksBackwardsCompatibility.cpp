#include "orv/core_ms/ElutionPeaksBackwardsCompatibility.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/table/CustomSettings.h>

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace orv {

namespace {

using Compatibility = ElutionPeaksBackwardsCompatibility;
using OldPeaksOptions = Compatibility::OldPeaksOptions;
using CreationOptions = ElutionPeaksOptions::CreationOptions;

constexpr int kFactorDecimals = 2;

struct ElutionPeaksBackwardsCompatibilityTr
{
    Q_DECLARE_TR_FUNCTIONS(ElutionPeaksBackwardsCompatibility)
};

struct Preset
{
    QLatin1String name; ///< stored in files, never rename
    std::optional<TraceType> traces;
    std::optional<Compatibility::OldKind> kind; ///< nothing for the kind that leads the analysis
};

/// A later version takes the fifth for a pattern of further ones: keep the order.
constexpr std::array kPresets = {
    Preset{QLatin1String("TIC-preset"), TraceType::Tic, Compatibility::Tic},
    Preset{QLatin1String("BPI-preset"), TraceType::Bpi, Compatibility::Bpi},
    Preset{QLatin1String("UV-preset"), TraceType::Uv, Compatibility::Uv},
    Preset{QLatin1String("CSV-preset"), TraceType::Csv, Compatibility::Uv},
    Preset{QLatin1String("Default-preset"), {}, {}},
};

constexpr std::array kKindNames = {"TIC", "BPI", "UV"};

QString presetNameOf(TraceType type)
{
    const auto preset = std::ranges::find_if(
        kPresets, [type](const Preset &row) { return !row.traces || row.traces == type; });
    return preset->name;
}

Error faultOf(const OldPeaksOptions &options, const char *kind)
{
    const auto isBad = [](double value) { return !std::isfinite(value) || value < 0; };
    if (!isBad(options.smoothSigma) && !isBad(options.intervalTimeMinutes) &&
        !isBad(options.smoothSigmaBaseline))
        return Error::NoError;
    return Error(ErrorCode::InvalidContent, ElutionPeaksBackwardsCompatibilityTr::tr(
                                                "The peak settings of a kind of trace are out of range."))
        .addDetail(ElutionPeaksBackwardsCompatibilityTr::tr(
                       "Kind of trace: %1; smoothing width %2, interval time %3, smoothing width of the "
                       "baseline %4 minutes.")
                       .arg(QLatin1String(kind))
                       .arg(options.smoothSigma)
                       .arg(options.intervalTimeMinutes)
                       .arg(options.smoothSigmaBaseline))
        .addDetail(ElutionPeaksBackwardsCompatibilityTr::tr(
            "Set them to 0 or more with the version that wrote the document."));
}

/// What the expert settings say for all presets, and the text without them.
struct Expert
{
    ElutionPeaksOptions::AutoCompute autoCompute = ElutionPeaksOptions::AutoCompute::Off;
    std::optional<Decimal> peakWidthFactor;
    QString rest;
    Warnings warnings;
};

std::optional<Decimal> factorOf(const QString &text)
{
    bool ok = false;
    const std::optional<Decimal> factor = Decimal::fromDouble(text.toDouble(&ok), kFactorDecimals);
    return ok && factor && Decimal() < *factor ? factor : std::nullopt;
}

Expert expertSettings(const QString &text)
{
    CustomSettings settings;
    // Lines that are no settings stay as they are.
    const Warnings ignored = settings.setupValues(text, CustomSettings::Format::Sections);
    Expert expert;
    QSet<QString> taken;
    const auto take = [&](QLatin1String key, bool isRead) {
        if (isRead) {
            taken.insert(key);
        } else if (settings.contains(key)) {
            expert.warnings.append(
                ElutionPeaksBackwardsCompatibilityTr::tr(
                    "The advanced setting \"%1\" has the value \"%2\", which can't be read. It stays in the "
                    "advanced configuration without effect; enter its value in the table of samples.")
                    .arg(key, settings.value(key).toString()));
        }
    };
    const std::optional<bool> isAuto =
        CustomSettings::toSwitch(settings.value(Compatibility::kAutoCompute).toString());
    if (isAuto.value_or(false))
        expert.autoCompute = ElutionPeaksOptions::AutoCompute::ByPeakWidth;
    take(Compatibility::kAutoCompute, isAuto.has_value());
    expert.peakWidthFactor = factorOf(settings.value(Compatibility::kPeakWidthFactor).toString());
    take(Compatibility::kPeakWidthFactor, expert.peakWidthFactor.has_value());
    expert.rest = CustomSettings::withoutSettings(text, CustomSettings::Format::Sections, taken);
    return expert;
}

ElutionPeaksOptions presetOf(const Preset &row, const Compatibility::Input &input, const Expert &expert)
{
    const Compatibility::OldKind leading = input.isIntact ? Compatibility::Tic : Compatibility::Uv;
    const OldPeaksOptions &old = input.oldOptions.at(row.kind.value_or(leading));
    ElutionPeaksOptions preset;
    preset.setName(row.name);
    preset.setTimeRange(input.timeRangeOfInterest);
    preset.setCreationOptions(CreationOptions{.findsPeaks = old.peakMethod == 1,
                                              .smoothSigma = old.smoothSigma,
                                              .intervalTimeMinutes = old.intervalTimeMinutes,
                                              .correctsBaseline = old.baselineMethod == 1,
                                              .smoothSigmaBaseline = old.smoothSigmaBaseline,
                                              .autoCompute = expert.autoCompute,
                                              .peakWidthFactor = expert.peakWidthFactor});
    return preset;
}

bool isDoubleDash(const QVariant &cell)
{
    return cell.typeId() == QMetaType::QString && cell.toString().trimmed() == QLatin1String("--");
}

void emptyDoubleDashes(VariantItems *cells)
{
    VariantItems emptied;
    emptied.reserve(cells->size());
    for (const QVariant &cell : *cells)
        emptied.append(isDoubleDash(cell) ? QVariant(QString()) : cell);
    *cells = emptied;
}

} // namespace

Result<Compatibility::Output> Compatibility::createOptionsFromOldPreset(const Input &input)
{
    for (size_t kind = 0; kind < input.oldOptions.size(); ++kind)
        ORV_RETURN_IF_ERROR(faultOf(input.oldOptions.at(kind), kKindNames.at(kind)));
    const Expert expert = expertSettings(input.advancedText);
    Output output{input.samples, {}, expert.rest};
    for (const Preset &row : kPresets)
        output.options.peaksOptions.append(presetOf(row, input, expert));
    QList<TracesImportList::Entry> traces = input.traces;
    for (TracesImportList::Entry &trace : traces)
        trace.setPeaksOptionsName(presetNameOf(trace.traceItem().type()));
    TracesImportList::sortTracesByGroup(&traces);
    output.options.traces.setList(traces);
    return {output, expert.warnings};
}

void Compatibility::removeAllDoubleDashFromRowNode(RowNode *row)
{
    // Without recursion: the depth of a table comes from a file.
    QList<RowNode *> waiting{row};
    while (!waiting.isEmpty()) {
        RowNode *node = waiting.takeLast();
        emptyDoubleDashes(&node->data);
        for (int i = 0; i < node->getChildListSize(); ++i)
            waiting.append(node->getChild(i));
    }
}

std::optional<TraceItem> Compatibility::createTraceCsvTrace(const ResourceReferenceSPtr &file,
                                                            const QList<TraceItem> &existing)
{
    const QString name = ResourceReferenceUtils::localName(file);
    if (name.isEmpty())
        return {};
    const auto known = std::ranges::find_if(existing, [&name](const TraceItem &trace) {
        return trace.type() == TraceType::Csv && trace.channelName().compare(name, Qt::CaseInsensitive) == 0;
    });
    return known == existing.end() ? TraceItem(TraceType::Csv, {name, name}) : *known;
}

QList<TraceItem> Compatibility::traceItemsFromTracesEntries(const QList<TracesImportList::Entry> &entries)
{
    QList<TraceItem> items;
    items.reserve(entries.size());
    for (const TracesImportList::Entry &entry : entries)
        items.append(entry.traceItem());
    return items;
}

} // namespace orv
