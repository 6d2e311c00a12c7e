#include "orv/samples/MetadataInSamples.h"

#include <orv/core/Logging.h>

#include <QHash>
#include <QSet>

namespace orv {

namespace {

using SamplesInput::CustomColumn;
using SamplesInput::SamplesArrayWithCustomColumns;

void removeColumnsFromMetadata(SamplesArrayWithCustomColumns *samples)
{
    const QSet<QString> stale = samples->columns.removeColumnsFromMetadata();
    if (stale.isEmpty())
        return;
    for (SamplesInput::SampleWithCustomColumns &sample : samples->samples)
        sample.customValues.removeIf([&stale](auto value) { return stale.contains(value.key()); });
}

/// The names of the new columns, by attribute.
QHash<QString, QStringList> addColumns(const QList<TalvaneMetadataMappingConnection> &connections,
                                       SamplesArrayWithCustomColumns *samples)
{
    QHash<QString, QStringList> names;
    for (const TalvaneMetadataMappingConnection &connection : connections) {
        const QString name = connection.columnName();
        if (samples->columns.addCustomColumn(
                CustomColumn{name, QStringLiteral("text"), connection.attribute, {}})) {
            names[connection.attribute].append(name);
        } else {
            qCWarning(genericLog()).noquote()
                << "The samples can't show the attribute" << connection.attribute << "in a column" << name;
        }
    }
    return names;
}

/// What a cell can hold; lists and objects are shown as their JSON text.
QVariant cellOf(const QJsonValue &value)
{
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    return value.isNull() ? QVariant() : value.toVariant();
}

/// By sample id and attribute; of several values the last.
QHash<int, QHash<QString, QVariant>> cellsOf(const QList<MetadataMapping> &mappings)
{
    QHash<int, QHash<QString, QVariant>> cells;
    for (const MetadataMapping &mapping : mappings) {
        const QVariant cell = cellOf(mapping.value.value);
        if (!cell.isValid())
            continue;
        for (int id : mapping.sampleIds)
            cells[id].insert(mapping.value.attribute, cell);
    }
    return cells;
}

} // namespace

void rebuildMetadataInSamples(const QList<TalvaneMetadataMappingConnection> &connections,
                              const QList<MetadataMapping> &mappings, SamplesArrayWithCustomColumns *samples)
{
    removeColumnsFromMetadata(samples);
    const QHash<QString, QStringList> names = addColumns(connections, samples);
    const QHash<int, QHash<QString, QVariant>> cells = cellsOf(mappings);
    for (SamplesInput::SampleWithCustomColumns &sample : samples->samples) {
        const QHash<QString, QVariant> ofSample = cells.value(sample.id);
        for (auto it = ofSample.begin(); it != ofSample.end(); ++it) {
            for (const QString &name : names.value(it.key()))
                sample.customValues.insert(name, it.value());
        }
    }
}

} // namespace orv
