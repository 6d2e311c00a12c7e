#include "orv/propertyeditor/workflow/WorkflowSchema.h"

#include "ValueSchema.h"

#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/NewWorkflow.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QJsonArray>
#include <QMap>
#include <QMetaEnum>
#include <QSet>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::KeyValueItem;
using ValueSchema::reference;

namespace {

constexpr QLatin1String kTab("tab");
constexpr QLatin1String kCell("cell");
constexpr QLatin1String kEntry("entry");
constexpr QLatin1String kMetadataText("metadataText");

using NamesById = QMap<PropertyId, QStringList>;

QJsonObject text(const char *description)
{
    return {{TYPE_KEY, QStringLiteral("string")}, {DESCRIPTION_KEY, QLatin1String(description)}};
}

QJsonObject arrayOf(const QJsonObject &items)
{
    return {{TYPE_KEY, QStringLiteral("array")}, {QStringLiteral("items"), items}};
}

QJsonObject objectOf(const QJsonObject &properties, const QStringList &required = {})
{
    QJsonObject schema{{TYPE_KEY, QStringLiteral("object")}, {PROPERTIES_KEY, properties}};
    if (!required.isEmpty())
        schema.insert(QStringLiteral("required"), QJsonArray::fromStringList(required));
    return schema;
}

QJsonObject oneOf(const QStringList &texts)
{
    if (texts.size() == 1)
        return {{QStringLiteral("const"), texts.first()}};
    return {{QStringLiteral("enum"), QJsonArray::fromStringList(texts)}};
}

/// \a then for objects whose member \a key is one of \a texts.
QJsonObject when(QLatin1String key, const QStringList &texts, const QJsonObject &then)
{
    const QJsonObject condition{{PROPERTIES_KEY, QJsonObject{{key, oneOf(texts)}}},
                                {QStringLiteral("required"), QJsonArray{key}}};
    return {{QStringLiteral("if"), condition}, {QStringLiteral("then"), then}};
}

/// The names under which files hold the properties of a cell: the current one first.
NamesById namesIn(BaseItemType type)
{
    const QSet<PropertyId> &allowed = allowedProperties(type);
    const PropertiesCsvReader &catalogue = PropertiesCsvReader::instance();
    NamesById names;
    const auto add = [&](const QString &name) {
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat({{NAME_KEY, name}}, type);
        if (allowed.contains(id) && !names.value(id).contains(name))
            names[id].append(name);
    };
    for (const PropertyId id : allowed)
        add(catalogue.internalNameV2(id));
    for (const PropertyId id : PropertiesNames::names()->keys()) {
        add(catalogue.internalNameV2(id));
        add(catalogue.internalNameV1(id));
    }
    // Old documents hold their samples under a name that means something else in other cells.
    if (type == BaseItemType::Samples)
        add(kSamples);
    return names;
}

QJsonObject prioritySchema()
{
    QJsonArray numbers;
    QStringList legend;
    const auto priorities = QMetaEnum::fromType<PropertySetCreator::Priority>();
    for (int i = 0; i < priorities.keyCount(); ++i) {
        numbers.append(priorities.value(i));
        legend.append(
            QStringLiteral("%1: %2").arg(priorities.value(i)).arg(QLatin1String(priorities.key(i))));
    }
    return {
        {QStringLiteral("enum"), numbers},
        {DESCRIPTION_KEY,
         QStringLiteral("How prominently the setting is shown. %1").arg(legend.join(QLatin1String("; ")))}};
}

/// What every entry of "properties" has.
QJsonObject entrySchema()
{
    return objectOf({{NAME_KEY, text("Which property this is.")},
                     {VALUE_KEY, QJsonObject()},
                     {PRIORITY_KEY, prioritySchema()},
                     {GROUP_KEY, text("The caption under which the setting is shown.")}},
                    {NAME_KEY, VALUE_KEY});
}

QJsonObject tableSchema()
{
    QJsonObject schema = objectOf(
        {{DATA, QJsonObject{{TYPE_KEY, QStringLiteral("array")},
                            {DESCRIPTION_KEY, QStringLiteral("The names of the columns, or the entries "
                                                             "of a row in the order of the columns.")}}},
         {CHILDREN, arrayOf(reference(ValueSchema::kTableDefinition))}},
        {DATA});
    schema.insert(DESCRIPTION_KEY, QStringLiteral("A table or a row of one."));
    return schema;
}

QJsonObject tabSchema()
{
    QJsonObject cells = arrayOf(reference(kCell));
    cells.insert(DESCRIPTION_KEY,
                 QStringLiteral("Row by row: cell number i lies in column i modulo the number "
                                "of columns."));
    return objectOf({{NAME_KEY, text("The name of the tab.")},
                     {COLUMNS_KEY, arrayOf(text("The name of a column, from left to right."))},
                     {CELLS_KEY, cells}},
                    {NAME_KEY, COLUMNS_KEY, CELLS_KEY});
}

QJsonObject extendedMetadataSchema()
{
    QJsonObject schema = objectOf(
        {{QStringLiteral("metadataCache"), arrayOf({{TYPE_KEY, QStringLiteral("object")}})},
         {QStringLiteral("metadataMappingConnections"), arrayOf({{TYPE_KEY, QStringLiteral("object")}})}});
    schema.insert(DESCRIPTION_KEY, QStringLiteral("What the server told of the samples."));
    return schema;
}

/// Collects the definitions while cells and settings refer to them.
class SchemaMaker
{
public:
    QJsonObject make()
    {
        m_definitions.insert(kMetadataText,
                             text("The JSON text of the metadata: user, created, version, name and others."));
        m_definitions.insert(ValueSchema::kTableDefinition, tableSchema());
        m_definitions.insert(kEntry, entrySchema());
        m_definitions.insert(kTab, tabSchema());
        m_definitions.insert(kCell, cellSchema());
        QJsonObject schema = objectOf({{TABS_KEY, arrayOf(reference(kTab))},
                                       {META_IN_JSON_KEY, reference(kMetadataText)},
                                       {EXTENDED_METADATA_IN_JSON_KEY, extendedMetadataSchema()}},
                                      {TABS_KEY});
        schema.insert(QStringLiteral("$schema"),
                      QStringLiteral("https://json-schema.org/draft/2020-12/schema"));
        schema.insert(QStringLiteral("title"), QStringLiteral("Workflow document"));
        schema.insert(DESCRIPTION_KEY, QStringLiteral("A .wflw file of version %1.")
                                           .arg(WflwMetaData::currentWorkflowVersion().toString()));
        schema.insert(QStringLiteral("$defs"), m_definitions);
        return schema;
    }

private:
    QJsonObject cellSchema()
    {
        QStringList names;
        QJsonArray rules;
        for (const BaseItemType type : NewWorkflow::cellTypes()) {
            const QString name = baseItemTypeToString(type);
            names.append(name);
            rules.append(when(TYPE_KEY, {name}, contentsOf(type)));
        }
        QJsonObject schema =
            objectOf({{TYPE_KEY, QJsonObject{{QStringLiteral("enum"), QJsonArray::fromStringList(names)}}},
                      {NAME_KEY, text("The name of the cell.")},
                      {TITLE_KEY, text("The title of the cell.")},
                      {META_IN_JSON_KEY, reference(kMetadataText)},
                      {PROPERTIES_KEY, QJsonObject{{TYPE_KEY, QStringLiteral("array")}}}},
                     {TYPE_KEY});
        schema.insert(QStringLiteral("allOf"), rules);
        return schema;
    }

    /// The rule for the cells of one type: which entries they have.
    QJsonObject contentsOf(BaseItemType type)
    {
        const QString definition = QStringLiteral("entry.") + baseItemTypeToString(type);
        m_definitions.insert(definition, entriesOf(type));
        return {{PROPERTIES_KEY, QJsonObject{{PROPERTIES_KEY, arrayOf(reference(definition))}}}};
    }

    QJsonObject entriesOf(BaseItemType type)
    {
        const bool holdsSettings = KeyValueItem::holds(type);
        const NamesById properties = namesIn(type);
        QStringList names;
        QJsonArray rules{reference(kEntry)};
        for (auto it = properties.begin(); it != properties.end(); ++it) {
            names += *it;
            rules.append(
                when(NAME_KEY, *it,
                     reference(holdsSettings ? settingDefinition(it.key()) : tableDefinition(it.key()))));
        }
        if (!holdsSettings && !names.contains(CUSTOM_COLUMNS_KEY))
            names.append(CUSTOM_COLUMNS_KEY);
        return {{PROPERTIES_KEY, QJsonObject{{NAME_KEY, QJsonObject{{QStringLiteral("enum"),
                                                                     QJsonArray::fromStringList(names)}}}}},
                {QStringLiteral("allOf"), rules}};
    }

    QString settingDefinition(PropertyId id)
    {
        return define(QStringLiteral("setting."), id, ValueSchema::ofSetting);
    }

    QString tableDefinition(PropertyId id)
    {
        return define(QStringLiteral("table."), id, ValueSchema::ofTable);
    }

    QString define(const QString &prefix, PropertyId id, QJsonObject (*valueSchema)(PropertyId))
    {
        QString name = prefix + PropertiesNames::internalNameForType(id);
        if (!m_definitions.contains(name))
            m_definitions.insert(name,
                                 QJsonObject{{PROPERTIES_KEY, QJsonObject{{VALUE_KEY, valueSchema(id)}}}});
        return name;
    }

    QJsonObject m_definitions;
};

} // namespace

QJsonObject WorkflowSchema::make()
{
    return SchemaMaker().make();
}

} // namespace orv
