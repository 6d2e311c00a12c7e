#pragma once

#include <orv/core/Decimal.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// How elution peaks are found in a trace: a named preset. A plain value.
///
/// JSON form: {"name", "timeRange": {"start", "end"}, "creationOptions": {...}}. Decimals are texts, so that
/// their count of digits survives. Members that this version doesn't know are kept.
class ORV_WORKFLOW_EXPORT ElutionPeaksOptions
{
public:
    /// Retention times in minutes.
    struct TimeRange
    {
        Decimal start;
        Decimal end;

        /// Whether it begins at 0 or later and doesn't end before it begins.
        [[nodiscard]] bool isValid() const { return !(start < Decimal()) && !(end < start); }
        bool operator==(const TimeRange &) const = default;
    };

    /// What peaks are computed automatically from.
    enum class AutoCompute : int // stored in files, never renumber
    {
        Off = 0,
        ByPeakWidth = 1,
    };

    struct CreationOptions
    {
        bool findsPeaks = true;
        double smoothSigma = 0.1;
        double intervalTimeMinutes = 0.5;
        bool correctsBaseline = true;
        double smoothSigmaBaseline = 1.5;
        AutoCompute autoCompute = AutoCompute::Off; ///< a number that is no enumerator is kept
        std::optional<Decimal> peakWidthFactor;     ///< of the widths that peaks are taken to have
        QJsonObject unknownMembers = {};

        bool operator==(const CreationOptions &) const = default;
    };

    /// Fails with InvalidContent for a member of the wrong type or a text that is no decimal, naming it.
    [[nodiscard]] static Result<ElutionPeaksOptions> fromJson(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson() const;

    [[nodiscard]] const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    /// Where peaks are looked for; nothing for the whole trace.
    [[nodiscard]] const std::optional<TimeRange> &timeRange() const { return m_timeRange; }
    void setTimeRange(const std::optional<TimeRange> &range) { m_timeRange = range; }
    [[nodiscard]] const CreationOptions &creationOptions() const { return m_creationOptions; }
    void setCreationOptions(const CreationOptions &options) { m_creationOptions = options; }

    /// What is wrong with the preset, for people; empty when nothing is.
    [[nodiscard]] QStringList faults() const;

    bool operator==(const ElutionPeaksOptions &) const = default;

private:
    QString m_name;
    std::optional<TimeRange> m_timeRange;
    CreationOptions m_creationOptions;
    QJsonObject m_unknownMembers;
};

} // namespace orv
