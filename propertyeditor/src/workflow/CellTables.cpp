#include "orv/propertyeditor/workflow/CellTables.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/SequenceDatabaseItems.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QJsonArray>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;
using SamplesInput::Entry;
using SamplesInput::SampleWithCustomColumns;

namespace {

bool isTable(const QJsonObject &value)
{
    return value.value(DATA).isArray() && value.value(CHILDREN).isArray();
}

/// A column of the samples table that shows a member of the samples.
struct SampleColumn
{
    QLatin1String name;
    bool isAlwaysShown;
    QVariant (*valueOf)(const Entry &);
};

QVariant textsOf(const QList<ResourceReferenceSPtr> &references)
{
    const QStringList texts = ResourceReferenceUtils::toStringList(references);
    return texts.isEmpty() ? QVariant() : QVariant(QVariantList(texts.begin(), texts.end()));
}

QVariant textOrNothing(const QString &text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

const QList<SampleColumn> &sampleColumns()
{
    static const QList<SampleColumn> columns = {
        {QLatin1String("SamplesId"), true, [](const Entry &entry) { return QVariant(entry.id); }},
        {QLatin1String("SampleName"), true, [](const Entry &entry) { return QVariant(entry.name); }},
        {QLatin1String("SamplePath"), true,
         [](const Entry &entry) { return QVariant(ResourceReferenceUtils::toString(entry.msFile)); }},
        {QLatin1String("Reference"), true, [](const Entry &entry) { return QVariant(entry.isReference); }},
        {QLatin1String("Traces"), false, [](const Entry &entry) { return textsOf(entry.traces); }},
        {QLatin1String("ExtraReferences"), false,
         [](const Entry &entry) { return textsOf(entry.extraReferences); }},
        {QLatin1String("SampleTimeUnit"), false,
         [](const Entry &entry) { return textOrNothing(entry.timeUnit); }},
        {QLatin1String("Digestion"), false,
         [](const Entry &entry) { return textOrNothing(entry.digestion); }},
        {QLatin1String("SampleType"), false,
         [](const Entry &entry) { return textOrNothing(entry.sampleType); }},
    };
    return columns;
}

QList<SampleColumn> columnsShown(const QList<SampleWithCustomColumns> &samples)
{
    QList<SampleColumn> shown;
    for (const SampleColumn &column : sampleColumns()) {
        const bool isUsed = std::any_of(samples.begin(), samples.end(), [&column](const Entry &sample) {
            return !column.valueOf(sample).isNull();
        });
        if (column.isAlwaysShown || isUsed)
            shown.append(column);
    }
    return shown;
}

RowNode tableOf(const SamplesInput::SamplesArrayWithCustomColumns &samples)
{
    const QList<SampleColumn> columns = columnsShown(samples.samples);
    const QStringList customColumns = samples.columns.customColumnNames();
    RowNode table;
    for (const SampleColumn &column : columns)
        table.data.append(QString(column.name));
    for (const QString &name : customColumns)
        table.data.append(name);
    for (const SampleWithCustomColumns &sample : samples.samples) {
        RowNode *row = table.addNewChildMatchRootDataSize();
        qsizetype place = 0;
        for (const SampleColumn &column : columns)
            row->data[place++] = column.valueOf(sample);
        for (const QString &name : customColumns)
            row->data[place++] = sample.customValues.value(name);
    }
    return table;
}

RowNode tableOf(const QList<SequenceDatabaseItem> &databases)
{
    RowNode table(VariantItems{QStringLiteral("id"), QStringLiteral("fasta"), QStringLiteral("species")});
    for (const SequenceDatabaseItem &database : databases) {
        RowNode *row = table.addNewChildMatchRootDataSize();
        row->data = {database.id(), ResourceReferenceUtils::toString(database.fastaReference()),
                     database.species()};
    }
    return table;
}

/// The columns of the root name tables, its children are these.
QList<CellTable> tablesBelow(const RowNode &root)
{
    QList<CellTable> tables;
    for (int i = 0; i < root.getChildListSize(); ++i)
        tables.append({root.data.value(i).toString(), *root.getChild(i)});
    return tables;
}

Result<QList<CellTable>> tablesOfEntry(const QJsonObject &entry, PropertyId id)
{
    const QString name = entry.value(NAME_KEY).toString();
    if (id == PropertyId::SamplesTable) {
        Result<SamplesAndTracesContent> content =
            SamplesAndTracesContent::fromJson(PropertyEditorJsonUtils::propValueObject(entry));
        if (content.hasError())
            return content.ecatch();
        return QList<CellTable>{{name, tableOf(content->samples)}};
    }
    if (id == PropertyId::SequenceDatabases) {
        Result<QList<SequenceDatabaseItem>> items = PropertyEditor::SequenceDatabaseItems::fromJson(entry);
        if (items.hasError())
            return items.ecatch();
        return QList<CellTable>{{name, tableOf(*items)}};
    }
    const QJsonObject value = PropertyEditorJsonUtils::propValueObject(entry);
    if (!isTable(value))
        return QList<CellTable>();
    RowNode root = PropertyEditorJsonUtils::objectToRowNode(value);
    if (root.data.contains(kChains))
        return tablesBelow(root);
    return QList<CellTable>{{name, std::move(root)}};
}

} // namespace

Result<QList<CellTable>> cellTables(const QJsonObject &cell)
{
    const BaseItemType type = baseItemTypeFromString(cell.value(TYPE_KEY).toString());
    QList<CellTable> tables;
    for (const auto value : cell.value(PROPERTIES_KEY).toArray()) {
        const QJsonObject entry = value.toObject();
        Result<QList<CellTable>> found =
            tablesOfEntry(entry, PropertyEditorJsonUtils::findPropertyBackCompat(entry, type));
        if (found.hasError())
            return found.ecatch();
        tables += *std::move(found);
    }
    return tables;
}

} // namespace orv
