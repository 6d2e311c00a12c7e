#include <orv/core/Logging.h>
#include <orv/samples/MetadataInSamples.h>

#include <QHash>

namespace orv {

namespace {

using SamplesInput::CustomColumn;
using SamplesInput::SamplesArrayWithCustomColumns;

void removeColumnsFromMetadata(SamplesArrayWithCustomColumns *samples)
{
    const QList<CustomColumn> columns = samples->columns.columns();
    for (const CustomColumn &column : columns) {
        if (column.isFromMetadata())
            samples->removeCustomColumn(column.name);
    }
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

} // namespace

void rebuildMetadataInSamples(const QList<TalvaneMetadataMappingConnection> &connections,
                              const QList<MetadataMapping> &mappings, SamplesArrayWithCustomColumns *samples)
{
    removeColumnsFromMetadata(samples);
    const QHash<QString, QStringList> names = addColumns(connections, samples);
    QMultiHash<int, qsizetype> placesById;
    for (qsizetype i = 0; i < samples->samples.size(); ++i)
        placesById.insert(samples->samples.at(i).id, i);
    for (const MetadataMapping &mapping : mappings) {
        const QVariant cell = cellOf(mapping.value.value);
        if (!cell.isValid())
            continue;
        for (int id : mapping.sampleIds) {
            for (qsizetype place : placesById.values(id)) {
                for (const QString &name : names.value(mapping.value.attribute))
                    samples->samples[place].customValues.insert(name, cell);
            }
        }
    }
}

} // namespace orv
