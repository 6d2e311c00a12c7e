#include "orv/core_ms/MsUtils.h"

#include <orv/core_ms/CustomSettingsUtils.h>
#include <orv/core_ms/MsDataAccessorsFactory.h>

#include <algorithm>
#include <array>

namespace orv::MsUtils {

using msreader::ChromatogramInfo;
using msreader::ChromatogramType;
using msreader::MsReaderAccessor;

namespace {

struct Row
{
    ChromatogramType chromatogram;
    TraceType trace;
};

// All others are TraceType::Other.
constexpr std::array kRows = {
    Row{ChromatogramType::Tic, TraceType::Tic},
    Row{ChromatogramType::BasePeak, TraceType::Bpi},
    Row{ChromatogramType::SelectedIonCurrent, TraceType::Xic},
    Row{ChromatogramType::SelectedIonMonitoring, TraceType::Xic},
    Row{ChromatogramType::SelectedReactionMonitoring, TraceType::Xic},
    Row{ChromatogramType::Light, TraceType::Uv},
};

/// Traces that can be made from spectra, and how they are called then.
struct SummaryTrace
{
    TraceType type;
    const char *name;
};

constexpr std::array kSummaryTraces = {SummaryTrace{TraceType::Tic, "TIC"},
                                       SummaryTrace{TraceType::Bpi, "BPC"}};

bool hasType(const QList<TraceItem> &traces, TraceType type)
{
    return std::any_of(traces.begin(), traces.end(),
                       [type](const TraceItem &trace) { return trace.type() == type; });
}

/// 0 and 1 for the traces that summarise spectra, the same higher number for all others.
int rank(const TraceItem &trace)
{
    const auto *const place =
        std::find_if(kSummaryTraces.begin(), kSummaryTraces.end(),
                     [&trace](const SummaryTrace &row) { return row.type == trace.type(); });
    return int(place - kSummaryTraces.begin());
}

} // namespace

TraceType traceTypeFromChromatogramType(ChromatogramType type)
{
    const auto *const row =
        std::find_if(kRows.begin(), kRows.end(), [type](const Row &r) { return r.chromatogram == type; });
    return row == kRows.end() ? TraceType::Other : row->trace;
}

Result<QList<TraceItem>> extractTraces(const MsReaderAccessor &accessor)
{
    Result<QList<ChromatogramInfo>> infos = accessor.chromatogramInfoList();
    if (infos.hasError())
        return infos.ecatch();
    QList<TraceItem> traces;
    for (const ChromatogramInfo &info : std::as_const(*infos))
        traces.append({traceTypeFromChromatogramType(info.type), {info.name, info.id}});
    if (!hasType(traces, TraceType::Tic) || !hasType(traces, TraceType::Bpi)) {
        Result<bool> hasSpectra = accessor.hasMsProfileData(1);
        if (hasSpectra.hasError())
            return hasSpectra.ecatch();
        for (const SummaryTrace &row : kSummaryTraces) {
            const QString name = QString::fromLatin1(row.name);
            if (*hasSpectra && !hasType(traces, row.type))
                traces.append({row.type, {name, name}});
        }
    }
    std::stable_sort(traces.begin(), traces.end(),
                     [](const TraceItem &a, const TraceItem &b) { return rank(a) < rank(b); });
    return traces;
}

QList<AccessorForMsFile> accessorsForMsFiles(const QStringList &paths)
{
    QList<AccessorForMsFile> accessors;
    for (const QString &path : paths) {
        msreader::MsReaderOptions options(path);
        CustomSettingsUtils::extendFromCurrentCustomSettings(&options);
        AccessorForMsFile file{msreader::MsDataAccessorsFactory::createReader(options), {}};
        file.error = file.accessor->open();
        accessors.append(std::move(file));
    }
    return accessors;
}

} // namespace orv::MsUtils
