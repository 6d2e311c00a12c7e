#include "orv/samples/TracesImportList.h"

#include "internal/MemberReader.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace orv {

namespace {

constexpr QLatin1String kType("type");
constexpr QLatin1String kChannelName("channelName");
constexpr QLatin1String kChannelId("channelId");
constexpr QLatin1String kImported("imported");
constexpr QLatin1String kSamplesIds("samplesIds");
constexpr QLatin1String kPeaksOptions("peaksOptions");

constexpr std::array kGroupOrder = {
    TraceType::Tic,
    TraceType::Bpi,
    TraceType::Xic,
    TraceType::Uv,
    TraceType::Other,
    TraceType::Csv,
    TraceType::Electropherogram,
    TraceType::IcIef,
    TraceType::IntaBio,
};

struct TracesImportListTr
{
    Q_DECLARE_TR_FUNCTIONS(TracesImportList)
};

auto groupOf(const TracesImportList::Entry &entry)
{
    return std::find(kGroupOrder.begin(), kGroupOrder.end(), entry.traceItem().type());
}

Result<TraceSampleIds> readSampleIds(const QJsonObject &json)
{
    if (!MemberReader(json).has(kSamplesIds))
        return TraceSampleIds();
    const QJsonValue value = json.value(kSamplesIds);
    QList<int> ids;
    for (const auto element : value.toArray()) {
        if (!element.isDouble() || double(element.toInt()) != element.toDouble())
            return Error(ErrorCode::InvalidContent,
                         TracesImportListTr::tr("\"%1\" must hold whole numbers.").arg(kSamplesIds));
        ids.append(element.toInt());
    }
    if (!value.isArray()) {
        return Error(ErrorCode::InvalidContent,
                     TracesImportListTr::tr("\"%1\" must be an array, but there is %2.")
                         .arg(kSamplesIds, JsonUtils::typeDescription(value.type())))
            .addDetail(TracesImportListTr::tr("Leave it out to use the trace for all samples."));
    }
    return TraceSampleIds(ids);
}

} // namespace

Result<TracesImportList::Entry> TracesImportList::readEntry(const QJsonObject &json)
{
    MemberReader reader(json);
    Entry entry(
        TraceItem(TraceType(reader.integer(kType, 0)), {reader.text(kChannelName), reader.text(kChannelId)}));
    entry.m_isImported = reader.flag(kImported, true);
    entry.m_peaksOptionsName = reader.text(kPeaksOptions);
    ORV_RETURN_IF_ERROR(reader.error());
    Result<TraceSampleIds> ids = readSampleIds(json);
    if (ids.hasError())
        return ids.ecatch();
    entry.m_samplesIds = *ids;
    entry.m_unknownMembers = json;
    for (QLatin1String key : {kType, kChannelName, kChannelId, kImported, kSamplesIds, kPeaksOptions})
        entry.m_unknownMembers.remove(key);
    return entry;
}

QJsonObject TracesImportList::writeEntry(const Entry &entry)
{
    QJsonObject json = entry.m_unknownMembers;
    json.insert(kType, int(entry.traceItem().type()));
    json.insert(kChannelName, entry.traceItem().channelName());
    json.insert(kChannelId, entry.traceItem().channelId());
    json.insert(kImported, entry.isImported());
    if (!entry.samplesIds().isAll()) {
        QJsonArray ids;
        for (int id : entry.samplesIds().ids())
            ids.append(id);
        json.insert(kSamplesIds, ids);
    }
    if (!entry.peaksOptionsName().isEmpty())
        json.insert(kPeaksOptions, entry.peaksOptionsName());
    return json;
}

Result<TracesImportList> TracesImportList::fromJson(const QJsonArray &json)
{
    const QLatin1String key("TracesImportList");
    const QJsonObject holder{{key, json}};
    MemberReader reader(holder);
    TracesImportList traces;
    traces.m_list.reserve(json.size());
    reader.forEachObject(key, [&traces](const QJsonObject &element) -> Error {
        Result<Entry> entry = readEntry(element);
        if (entry.hasError())
            return entry.ecatch();
        traces.m_list.append(*entry);
        return Error::NoError;
    });
    ORV_RETURN_IF_ERROR(reader.error());
    return traces;
}

QJsonArray TracesImportList::toJson() const
{
    QJsonArray json;
    for (const Entry &entry : m_list)
        json.append(writeEntry(entry));
    return json;
}

void TracesImportList::sortTracesByGroup(QList<Entry> *list)
{
    std::stable_sort(list->begin(), list->end(),
                     [](const Entry &a, const Entry &b) { return groupOf(a) < groupOf(b); });
}

} // namespace orv
