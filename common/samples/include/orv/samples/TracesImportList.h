#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/samples/TraceItem.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QString>

namespace orv {

/// For which samples a trace is used: for all, also those that come later, or for the named ones.
class ORV_WORKFLOW_EXPORT TraceSampleIds
{
public:
    /// All samples.
    TraceSampleIds() = default;
    explicit TraceSampleIds(const QList<int> &ids)
        : m_isAll(false)
        , m_ids(ids)
        , m_set(ids.begin(), ids.end())
    {}

    [[nodiscard]] bool isAll() const { return m_isAll; }
    /// Empty when it is all.
    [[nodiscard]] const QList<int> &ids() const { return m_ids; }
    [[nodiscard]] bool contains(int sampleId) const { return m_isAll || m_set.contains(sampleId); }

    bool operator==(const TraceSampleIds &) const = default;

private:
    bool m_isAll = true;
    QList<int> m_ids;
    QSet<int> m_set;
};

/// The traces that a workflow may use, and which of them it imports. A plain value.
///
/// JSON form: an array of {"type", "channelName", "channelId", "imported", "samplesIds", "peaksOptions"}; an
/// absent "imported" is true, absent "samplesIds" are all samples.
class ORV_WORKFLOW_EXPORT TracesImportList
{
public:
    class Entry
    {
    public:
        Entry() = default;
        explicit Entry(TraceItem traceItem)
            : m_traceItem(std::move(traceItem))
        {}

        [[nodiscard]] const TraceItem &traceItem() const { return m_traceItem; }
        void setTraceItem(const TraceItem &traceItem) { m_traceItem = traceItem; }
        [[nodiscard]] bool isImported() const { return m_isImported; }
        void setImported(bool isImported) { m_isImported = isImported; }
        [[nodiscard]] const TraceSampleIds &samplesIds() const { return m_samplesIds; }
        void setSamplesIds(const TraceSampleIds &ids) { m_samplesIds = ids; }
        /// The name of the ElutionPeaksOptions by which peaks are found in the trace; empty for none.
        [[nodiscard]] const QString &peaksOptionsName() const { return m_peaksOptionsName; }
        void setPeaksOptionsName(const QString &name) { m_peaksOptionsName = name; }

        bool operator==(const Entry &) const = default;

    private:
        friend class TracesImportList;

        TraceItem m_traceItem;
        bool m_isImported = true;
        TraceSampleIds m_samplesIds;
        QString m_peaksOptionsName;
        QJsonObject m_unknownMembers;
    };

    /// Fails with InvalidContent for a member of the wrong type, naming it and its place.
    [[nodiscard]] static Result<TracesImportList> fromJson(const QJsonArray &json);
    [[nodiscard]] QJsonArray toJson() const;

    [[nodiscard]] const QList<Entry> &list() const { return m_list; }
    void setList(const QList<Entry> &list) { m_list = list; }

    /// Puts traces of one kind together: TIC, BPI, XIC, UV, other chromatograms, tables, the three of
    /// electrophoresis, and then kinds that this version doesn't know. Within a kind the order stays.
    static void sortTracesByGroup(QList<Entry> *list);

    bool operator==(const TracesImportList &) const = default;

private:
    [[nodiscard]] static Result<Entry> readEntry(const QJsonObject &json);
    [[nodiscard]] static QJsonObject writeEntry(const Entry &entry);

    QList<Entry> m_list;
};

} // namespace orv
