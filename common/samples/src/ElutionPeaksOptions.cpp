#include "orv/samples/ElutionPeaksOptions.h"

#include "internal/MemberReader.h"

#include <QCoreApplication>

#include <cmath>

namespace orv {

namespace {

constexpr QLatin1String kOptionsName("name");
constexpr QLatin1String kTimeRange("timeRange");
constexpr QLatin1String kStart("start");
constexpr QLatin1String kEnd("end");
constexpr QLatin1String kCreationOptions("creationOptions");
constexpr QLatin1String kFindsPeaks("findsPeaks");
constexpr QLatin1String kSmoothSigma("smoothSigma");
constexpr QLatin1String kIntervalTime("intervalTimeMinutes");
constexpr QLatin1String kCorrectsBaseline("correctsBaseline");
constexpr QLatin1String kSmoothSigmaBaseline("smoothSigmaBaseline");
constexpr QLatin1String kAutoCompute("autoCompute");
constexpr QLatin1String kPeakWidthFactor("peakWidthFactor");

struct ElutionPeaksOptionsTr
{
    Q_DECLARE_TR_FUNCTIONS(ElutionPeaksOptions)
};

using CreationOptions = ElutionPeaksOptions::CreationOptions;
using TimeRange = ElutionPeaksOptions::TimeRange;

Decimal readDecimal(MemberReader *reader, QLatin1String key)
{
    const QString text = reader->text(key);
    const std::optional<Decimal> number = Decimal::fromString(text);
    if (!number) {
        reader->fail(Error(ErrorCode::InvalidContent,
                           ElutionPeaksOptionsTr::tr("\"%1\" is no number: \"%2\".").arg(key, text))
                         .addDetail(ElutionPeaksOptionsTr::tr(
                             "Write it with a point and at most 9 decimals, as in \"1.00\".")));
    }
    return number.value_or(Decimal());
}

Result<CreationOptions> readCreationOptions(const QJsonObject &json)
{
    MemberReader reader(json);
    const CreationOptions usual;
    CreationOptions options;
    options.findsPeaks = reader.flag(kFindsPeaks, usual.findsPeaks);
    options.smoothSigma = reader.number(kSmoothSigma, usual.smoothSigma);
    options.intervalTimeMinutes = reader.number(kIntervalTime, usual.intervalTimeMinutes);
    options.correctsBaseline = reader.flag(kCorrectsBaseline, usual.correctsBaseline);
    options.smoothSigmaBaseline = reader.number(kSmoothSigmaBaseline, usual.smoothSigmaBaseline);
    options.autoCompute =
        ElutionPeaksOptions::AutoCompute(reader.integer(kAutoCompute, int(usual.autoCompute)));
    if (reader.has(kPeakWidthFactor))
        options.peakWidthFactor = readDecimal(&reader, kPeakWidthFactor);
    ORV_RETURN_IF_ERROR(reader.error());
    options.unknownMembers = json;
    for (QLatin1String key : {kFindsPeaks, kSmoothSigma, kIntervalTime, kCorrectsBaseline,
                              kSmoothSigmaBaseline, kAutoCompute, kPeakWidthFactor})
        options.unknownMembers.remove(key);
    return options;
}

QJsonObject writeCreationOptions(const CreationOptions &options)
{
    QJsonObject json = options.unknownMembers;
    json.insert(kFindsPeaks, options.findsPeaks);
    json.insert(kSmoothSigma, options.smoothSigma);
    json.insert(kIntervalTime, options.intervalTimeMinutes);
    json.insert(kCorrectsBaseline, options.correctsBaseline);
    json.insert(kSmoothSigmaBaseline, options.smoothSigmaBaseline);
    json.insert(kAutoCompute, int(options.autoCompute));
    if (options.peakWidthFactor)
        json.insert(kPeakWidthFactor, options.peakWidthFactor->toString());
    return json;
}

} // namespace

Result<ElutionPeaksOptions> ElutionPeaksOptions::fromJson(const QJsonObject &json)
{
    MemberReader reader(json);
    ElutionPeaksOptions options;
    options.m_name = reader.text(kOptionsName);
    if (reader.has(kTimeRange)) {
        const QJsonObject range = reader.object(kTimeRange);
        MemberReader rangeReader(range);
        options.m_timeRange = TimeRange{readDecimal(&rangeReader, kStart), readDecimal(&rangeReader, kEnd)};
        reader.fail(rangeReader.error());
    }
    Result<CreationOptions> creation = readCreationOptions(reader.object(kCreationOptions));
    ORV_RETURN_IF_ERROR(reader.error());
    if (creation.hasError())
        return creation.ecatch();
    options.m_creationOptions = *creation;
    options.m_unknownMembers = json;
    for (QLatin1String key : {kOptionsName, kTimeRange, kCreationOptions})
        options.m_unknownMembers.remove(key);
    return options;
}

QJsonObject ElutionPeaksOptions::toJson() const
{
    QJsonObject json = m_unknownMembers;
    json.insert(kOptionsName, m_name);
    if (m_timeRange) {
        json.insert(kTimeRange, QJsonObject{{kStart, m_timeRange->start.toString()},
                                            {kEnd, m_timeRange->end.toString()}});
    }
    json.insert(kCreationOptions, writeCreationOptions(m_creationOptions));
    return json;
}

QStringList ElutionPeaksOptions::faults() const
{
    QStringList faults;
    if (m_name.isEmpty())
        faults.append(ElutionPeaksOptionsTr::tr("A peak options preset has no name."));
    if (m_timeRange && !m_timeRange->isValid()) {
        faults.append(
            ElutionPeaksOptionsTr::tr(
                "The time range of the peak options preset \"%1\" is out of order (%2 to %3 minutes).")
                .arg(m_name, m_timeRange->start.toString(), m_timeRange->end.toString()));
    }
    const auto checkPositive = [this, &faults](double value, const QString &what) {
        if (!(value > 0) || !std::isfinite(value)) {
            faults.append(
                ElutionPeaksOptionsTr::tr("The %1 of the peak options preset \"%2\" must be greater than 0.")
                    .arg(what, m_name));
        }
    };
    checkPositive(m_creationOptions.smoothSigma, ElutionPeaksOptionsTr::tr("smoothing width"));
    checkPositive(m_creationOptions.intervalTimeMinutes, ElutionPeaksOptionsTr::tr("interval time"));
    checkPositive(m_creationOptions.smoothSigmaBaseline,
                  ElutionPeaksOptionsTr::tr("smoothing width of the baseline"));
    if (m_creationOptions.peakWidthFactor)
        checkPositive(m_creationOptions.peakWidthFactor->toDouble(),
                      ElutionPeaksOptionsTr::tr("peak width factor"));
    return faults;
}

} // namespace orv
