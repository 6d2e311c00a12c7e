#include "orv/propertyeditor/workflow/MirelElutionPeaksBackwardsCompatibility.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

#include <QCoreApplication>

#include <array>

namespace orv {

namespace {

struct MirelElutionPeaksTr
{
    Q_DECLARE_TR_FUNCTIONS(MirelElutionPeaksBackwardsCompatibility)
};

using Compatibility = ElutionPeaksBackwardsCompatibility;
using PropertyEditor::KeyValueItem;

// Keys of old documents, never rename. The first five are read.
constexpr std::array kKeys = {
    "%1PeakMethod",          "%1SmoothSigma",       "%1IntervalTimeMin",       "%1BaselineMethod",
    "%1SmoothSigmaBaseline", "%1BaselineMaxAngle",  "%1BaselineMaxLimit",      "%1BaselineMinAngle",
    "%1BaselineMinLimit",    "%1BaselinePushLimit", "%1BaselinePushTolerance", "%1PeakTolMax",
    "%1PeakTolMin",
};

constexpr std::array kPrefixes = {QLatin1String("Tic"), QLatin1String("Bpi"), QLatin1String("Uv")};
constexpr QLatin1String kInterestTimeStart("InterestTimeStart");
constexpr QLatin1String kInterestTimeEnd("InterestTimeEnd");
constexpr QLatin1String kEnable("Enable");
constexpr int kTimeDecimals = 2;
constexpr double kTimeTolerance = 1e-12;

QString keyWithPrefix(size_t index, QLatin1String prefix)
{
    return QString::fromLatin1(kKeys.at(index)).arg(prefix);
}

void removeIfThere(const QString &key, KeyValueItem *item)
{
    if (item->contains(key))
        item->remove(key);
}

void readMethod(const KeyValueItem &item, const QString &key, int *method)
{
    if (item.contains(key))
        *method = item.value(key).toString() == kEnable ? 1 : 0;
}

void readNumber(const KeyValueItem &item, const QString &key, double *number)
{
    if (item.contains(key))
        *number = item.value(key).toDouble();
}

/// \a options come in with the values of keys that are missing.
void takeOptions(QLatin1String prefix, KeyValueItem *item, Compatibility::OldPeaksOptions *options)
{
    readMethod(*item, keyWithPrefix(0, prefix), &options->peakMethod);
    readNumber(*item, keyWithPrefix(1, prefix), &options->smoothSigma);
    readNumber(*item, keyWithPrefix(2, prefix), &options->intervalTimeMinutes);
    readMethod(*item, keyWithPrefix(3, prefix), &options->baselineMethod);
    readNumber(*item, keyWithPrefix(4, prefix), &options->smoothSigmaBaseline);
    for (size_t i = 0; i < kKeys.size(); ++i)
        removeIfThere(keyWithPrefix(i, prefix), item);
}

std::optional<ElutionPeaksOptions::TimeRange> timeRange(double startMinutes, double endMinutes)
{
    if (startMinutes < -kTimeTolerance || endMinutes < startMinutes)
        return {};
    const std::optional<Decimal> start = Decimal::fromDouble(startMinutes, kTimeDecimals);
    const std::optional<Decimal> end = Decimal::fromDouble(endMinutes, kTimeDecimals);
    if (start && end)
        return ElutionPeaksOptions::TimeRange{*start, *end};
    qCWarning(propertyEditorLog).noquote()
        << MirelElutionPeaksTr::tr(
               "The time range of interest from %1 to %2 minutes can't be held and is left "
               "out; enter it in the peak presets of the table of samples.")
               .arg(startMinutes)
               .arg(endMinutes);
    return {};
}

std::optional<ElutionPeaksOptions::TimeRange> takeTimeRange(KeyValueItem *item)
{
    std::optional<ElutionPeaksOptions::TimeRange> range;
    if (item->contains(kInterestTimeStart) && item->contains(kInterestTimeEnd))
        range =
            timeRange(item->value(kInterestTimeStart).toDouble(), item->value(kInterestTimeEnd).toDouble());
    removeIfThere(kInterestTimeStart, item);
    removeIfThere(kInterestTimeEnd, item);
    return range;
}

} // namespace

Compatibility::Input
MirelElutionPeaksBackwardsCompatibility::inputFromWlfw(const RowNode &samples,
                                                       const std::optional<RowNode> &customColumnsMetaData,
                                                       KeyValueItem *item, bool isIntact, const QUrl &baseUrl)
{
    Compatibility::Input input;
    extractSamplesAndAllTracesFromWlfwSamplesRowNode(samples, customColumnsMetaData, &input.samples.samples,
                                                     &input.samples.columns, &input.traces, baseUrl);
    for (size_t kind = 0; kind < kPrefixes.size(); ++kind)
        takeOptions(kPrefixes.at(kind), item, &input.oldOptions.at(kind));
    input.timeRangeOfInterest = takeTimeRange(item);
    input.advancedText = item->value(PropertyId::AdvancedConfiguration).toString();
    input.isIntact = isIntact;
    return input;
}

} // namespace orv
