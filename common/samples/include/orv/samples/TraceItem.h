#pragma once

#include <orv/core/Export.h>

#include <QHash>
#include <QString>

namespace orv {

/// What a trace shows. Stored in files, never renumber; a number that is no enumerator is kept.
enum class TraceType : int
{
    Other = 0, ///< a further chromatogram of an MS file
    Tic = 1,   ///< total ion current
    Bpi = 2,   ///< base peak intensity
    Uv = 3,
    Xic = 4, ///< extracted ion chromatogram
    Csv = 5, ///< a table in a text file
    Electropherogram = 6,
    IcIef = 7,
    IntaBio = 8,
};

/// How a reader of MS files names a trace.
struct TraceInfo
{
    QString channelName;
    QString channelId;

    bool operator==(const TraceInfo &) const = default;
    friend size_t qHash(const TraceInfo &info, size_t seed = 0)
    {
        return qHashMulti(seed, info.channelName, info.channelId);
    }
};

/// One trace that a workflow may use. A plain value.
class TraceItem
{
public:
    TraceItem() = default;
    TraceItem(TraceType type, TraceInfo info)
        : m_type(type)
        , m_info(std::move(info))
    {}

    [[nodiscard]] TraceType type() const { return m_type; }
    [[nodiscard]] const QString &channelName() const { return m_info.channelName; }
    [[nodiscard]] const QString &channelId() const { return m_info.channelId; }
    [[nodiscard]] const TraceInfo &info() const { return m_info; }

    bool operator==(const TraceItem &) const = default;
    friend size_t qHash(const TraceItem &item, size_t seed = 0)
    {
        return qHashMulti(seed, int(item.m_type), item.m_info);
    }

private:
    TraceType m_type = TraceType::Other;
    TraceInfo m_info;
};

} // namespace orv
