#include <orv/core/Logging.h>
#include <orv/core_ms/ElutionPeaksBackwardsCompatibility.h>
#include <orv/core_ms/MsUtils.h>
#include <orv/resources/ResourceManager.h>

#include <QHash>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace orv {

namespace {

using Entry = TracesImportList::Entry;

// Kinds of which the list holds just what files have.
constexpr std::array kKindsOfFiles = {TraceType::Other, TraceType::Tic, TraceType::Bpi, TraceType::Uv};

/// What the files of all samples have, each trace once and in their order.
struct Found
{
    using Key = std::pair<TraceType, QString>;

    QList<TraceItem> traces;
    QSet<TraceItem> known;
    QMap<Key, TraceItem> byName; ///< in lower case
    QMap<Key, TraceItem> byId;
    QMap<TraceType, QList<TraceItem>> byType;
    bool isComplete = true;

    void add(const TraceItem &item)
    {
        if (known.contains(item))
            return;
        known.insert(item);
        traces.append(item);
        byType[item.type()].append(item);
        insertFirst(&byName, {item.type(), item.channelName().toLower()}, item);
        insertFirst(&byId, {item.type(), item.channelId()}, item);
    }

    [[nodiscard]] std::optional<TraceItem> again(const TraceItem &old) const
    {
        if (known.contains(old))
            return old;
        if (const auto same = byName.constFind({old.type(), old.channelName().toLower()});
            same != byName.end())
            return *same;
        if (const auto same = byId.constFind({old.type(), old.channelId()}); same != byId.end())
            return *same;
        const bool isOneOfAKind = old.type() == TraceType::Tic || old.type() == TraceType::Bpi;
        const QList<TraceItem> alike = byType.value(old.type());
        return isOneOfAKind && alike.size() == 1 ? std::optional(alike.first()) : std::nullopt;
    }

private:
    static void insertFirst(QMap<Key, TraceItem> *hash, const Key &key, const TraceItem &item)
    {
        if (!hash->contains(key))
            hash->insert(key, item);
    }
};

Error addTracesOf(const MsUtils::AccessorForMsFile &file, Found *found)
{
    if (file.error) {
        if (file.accessor->isFormatRead())
            return file.error;
        qCWarning(genericLog()).noquote()
            << "The traces of" << file.accessor->path() << "stay as they were:" << file.error.errorMessage();
        found->isComplete = false;
        return Error::NoError;
    }
    Result<QList<TraceItem>> traces = MsUtils::extractTraces(*file.accessor);
    if (traces.hasError())
        return traces.ecatch();
    for (const TraceItem &trace : std::as_const(*traces))
        found->add(trace);
    return Error::NoError;
}

Result<Found> tracesOf(const QList<ResourceReferenceSPtr> &files)
{
    Found found;
    for (const ResourceReferenceSPtr &reference : files) {
        // What was fetched lives as long as its handler.
        Result<ResourceHandlerSPtr> handler = ResourceManager::retrieve(reference);
        if (handler.hasError())
            return handler.ecatch();
        Result<QString> path = (*handler)->grab();
        if (path.hasError())
            return path.ecatch();
        for (const MsUtils::AccessorForMsFile &file : MsUtils::accessorsForMsFiles({*path}))
            ORV_RETURN_IF_ERROR(addTracesOf(file, &found));
    }
    return found;
}

/// The old entries under their new names. Two that turn out to be one trace become one entry.
QList<Entry> renamed(const QList<Entry> &old, const Found &found)
{
    QList<Entry> entries;
    QHash<TraceItem, qsizetype> places;
    for (Entry entry : old) {
        const std::optional<TraceItem> item = found.again(entry.traceItem());
        const bool isOfFiles = std::ranges::count(kKindsOfFiles, entry.traceItem().type()) > 0;
        if (!item && isOfFiles && found.isComplete) {
            qCWarning(genericLog()) << "No file has the trace" << entry.traceItem().channelName()
                                    << "any more; it is left out.";
            continue;
        }
        entry.setTraceItem(item.value_or(entry.traceItem()));
        if (const auto place = places.constFind(entry.traceItem()); place != places.constEnd()) {
            entries[*place].setImported(entries[*place].isImported() || entry.isImported());
            continue;
        }
        places.insert(entry.traceItem(), entries.size());
        entries.append(entry);
    }
    return entries;
}

} // namespace

Error ElutionPeaksBackwardsCompatibility::updateTracesAfterMsReaderApiChanged(
    const QList<ResourceReferenceSPtr> &files, TraceImportAndProcessingOptions *options)
{
    if (files.isEmpty())
        return Error::NoError;
    Result<Found> found = tracesOf(files);
    if (found.hasError())
        return found.ecatch();
    QList<Entry> entries = renamed(options->traces.list(), *found);
    const QList<TraceItem> items = traceItemsFromTracesEntries(entries);
    const QSet<TraceItem> listed(items.begin(), items.end());
    for (const TraceItem &item : std::as_const(found->traces)) {
        if (listed.contains(item))
            continue;
        Entry entry(item);
        entry.setImported(false);
        entries.append(entry);
    }
    TracesImportList::sortTracesByGroup(&entries);
    options->traces.setList(entries);
    return Error::NoError;
}

} // namespace orv
