#include "ValueSchema.h"

#include <KProperty>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/PropertyVerification.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/NewWorkflow.h>

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <optional>

namespace orv::ValueSchema {

using namespace PropertyEditorStringConstants;
using Lists = UserVisibleListConverter;

namespace {

constexpr QLatin1String kType("type");
constexpr QLatin1String kPattern("pattern");
constexpr QLatin1String kEnum("enum");
constexpr QLatin1String kProperties("properties");
constexpr QLatin1String kItems("items");
constexpr QLatin1String kDescription("description");

constexpr QLatin1String kNumberPattern(R"(^[-+]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][-+]?[0-9]+)?$)");
// Regular expressions of JSON Schema have no flag for case.
constexpr QLatin1String kSwitchPattern(
    "^([Tt][Rr][Uu][Ee]|[Ff][Aa][Ll][Ss][Ee]|[Yy][Ee][Ss]|[Nn][Oo]|[Oo][Kk]|[Nn][Oo][Nn][Ee]|[-+]?[0-9]+)?$");

QJsonObject typed(std::initializer_list<const char *> names)
{
    QJsonArray types;
    for (const char *name : names)
        types.append(QLatin1String(name));
    return {{kType, types.size() == 1 ? types.first() : QJsonValue(types)}};
}

QJsonObject with(QJsonObject schema, QLatin1String key, const QJsonValue &value)
{
    schema.insert(key, value);
    return schema;
}

/// The limits of a range rule, if that is the setting's.
std::optional<PropertyVerification::Range> rangeOf(PropertyId id)
{
    const PropertiesCsvReader &catalogue = PropertiesCsvReader::instance();
    if (catalogue.verificationFunction(id).trimmed().compare(QLatin1String("range"), Qt::CaseInsensitive) !=
        0)
        return {};
    return PropertyVerification::parseRange(catalogue.verificationParameters(id));
}

QJsonObject withRange(QJsonObject schema, PropertyId id)
{
    const auto range = rangeOf(id);
    if (!range)
        return schema;
    schema.insert(range->lowInclusive ? QLatin1String("minimum") : QLatin1String("exclusiveMinimum"),
                  range->low.toDouble());
    schema.insert(range->highInclusive ? QLatin1String("maximum") : QLatin1String("exclusiveMaximum"),
                  range->high.toDouble());
    return schema;
}

QJsonObject ofSwitch(PropertyId id)
{
    Q_UNUSED(id)
    return with(typed({"string", "boolean", "number", "null"}), kPattern, kSwitchPattern);
}

QJsonObject ofInteger(PropertyId id)
{
    return withRange(typed({"integer"}), id);
}

/// Engines read 0 from a number that is none in quotes. Limits hold for numbers alone, so words tell them.
QJsonObject ofDouble(PropertyId id)
{
    QJsonObject schema = with(typed({"string"}), kPattern, kNumberPattern);
    const auto range = rangeOf(id);
    if (!range)
        return schema;
    return with(schema, kDescription,
                QStringLiteral("A number in quotes, %1 %2 and %3 %4.")
                    .arg(range->lowInclusive ? QLatin1String("at least") : QLatin1String("above"), range->low,
                         range->highInclusive ? QLatin1String("at most") : QLatin1String("below"),
                         range->high));
}

QJsonObject ofText(PropertyId id)
{
    Q_UNUSED(id)
    return typed({"string"});
}

QJsonObject ofReference(PropertyId id)
{
    Q_UNUSED(id)
    return typed({"string", "null"});
}

/// What the number of a list means: "0: Off; 1: On".
QString legend(const QList<QPair<int, QString>> &entries)
{
    QStringList parts;
    for (const auto &[number, text] : entries)
        parts.append(QStringLiteral("%1: %2").arg(number).arg(text));
    return parts.join(QLatin1String("; "));
}

/// One of the texts or its position.
QJsonObject ofPlainList(PropertyId id, const QStringList &texts)
{
    QJsonArray values = QJsonArray::fromStringList(texts);
    QList<QPair<int, QString>> entries;
    for (int i = 0; i < texts.size(); ++i)
        entries.append({i, texts.at(i)});
    if (Lists::isEditableList(id)) {
        const QJsonObject schema = with(typed({"string", "integer"}), QLatin1String("minimum"), 0);
        return with(with(schema, QLatin1String("maximum"), texts.size() - 1), QLatin1String("examples"),
                    values);
    }
    for (int i = 0; i < texts.size(); ++i)
        values.append(i);
    return with({{kEnum, values}}, kDescription, legend(entries));
}

/// A number of the list, as text too.
QJsonObject ofNumberList(const QList<QPair<int, QString>> &entries)
{
    QJsonArray values;
    for (const auto &[number, text] : entries)
        values.append(number);
    for (const auto &[number, text] : entries)
        values.append(QString::number(number));
    return with({{kEnum, values}}, kDescription, legend(entries));
}

QJsonObject ofKeyList(PropertyId id, const QList<QPair<QString, QString>> &entries)
{
    QJsonArray keys;
    for (const auto &[key, text] : entries)
        keys.append(key);
    if (Lists::isEditableList(id))
        return with(typed({"string"}), QLatin1String("examples"), keys);
    return {{kEnum, keys}};
}

/// Properties that were switches once take the words of a switch too.
QJsonObject withSwitch(const QJsonObject &schema)
{
    QJsonArray values = schema.value(kEnum).toArray();
    for (const QJsonValue &value : {QJsonValue(true), QJsonValue(false), QJsonValue(QLatin1String("true")),
                                    QJsonValue(QLatin1String("false"))})
        values.append(value);
    return with(schema, kEnum, values);
}

QJsonObject ofList(PropertyId id)
{
    QJsonObject schema;
    if (Lists::listItemsMap().contains(id))
        schema = ofPlainList(id, Lists::listItemsMap().value(id));
    else if (Lists::associativeListItemsMap().contains(id))
        schema = ofNumberList(Lists::associativeListItemsMap().value(id));
    else
        schema = ofKeyList(id, Lists::associativeStringListItemsMap().value(id));
    const bool wasSwitch = Lists::associativeListWithBoolBackwardsCompatibility().contains(id);
    return wasSwitch && schema.contains(kEnum) ? withSwitch(schema) : schema;
}

QJsonObject ofCheckedTexts(PropertyId id)
{
    const QJsonArray texts = QJsonArray::fromStringList(Lists::valuesForCheckableList(id));
    return with(typed({"array"}), kItems, QJsonObject{{kEnum, texts}});
}

/// An object, or its text.
QJsonObject ofObject(PropertyId id)
{
    QJsonObject schema = typed({"object", "string"});
    const QJsonObject text = typed({"string"});
    switch (PropertySetCreator::editorForProperty(id)) {
    case PropertySetCreator::Editor::ValueUnit:
        return with(schema, kProperties,
                    QJsonObject{{VALUE_KEY, with(typed({"number", "string"}), kPattern, kNumberPattern)},
                                {QLatin1String("unit"), text}});
    case PropertySetCreator::Editor::Modifications:
        return with(schema, kProperties, QJsonObject{{MODS_KEY, text}});
    case PropertySetCreator::Editor::Glycans:
        return with(schema, kProperties, QJsonObject{{GLYCANS_KEY, text}});
    case PropertySetCreator::Editor::PeakFilter:
        return with(schema, kProperties, QJsonObject{{PEAK_FILTER_KEY, text}});
    default:
        return schema;
    }
}

struct TypeRow
{
    int type;
    QJsonObject (*schema)(PropertyId id);
};

// The types of the catalogue.
constexpr std::array kTypes = {
    TypeRow{KProperty::Bool, &ofSwitch},
    TypeRow{KProperty::Int, &ofInteger},
    TypeRow{KProperty::Double, &ofDouble},
    TypeRow{KProperty::String, &ofText},
    TypeRow{KProperty::ValueFromList, &ofList},
    TypeRow{PropertiesTraits::ObjectType, &ofObject},
    TypeRow{PropertiesTraits::ResourceReferenceType, &ofReference},
    TypeRow{PropertiesTraits::CheckableListType, &ofCheckedTexts},
};

/// Caption and meaning in front of what the schema says of itself.
QJsonObject explained(QJsonObject schema, PropertyId id)
{
    const PropertyFeatures features = PropertiesNames::names()->value(id);
    const QStringList texts{features.toolTip, schema.value(kDescription).toString()};
    schema.insert(QLatin1String("title"), features.displayName);
    schema.insert(kDescription, texts.join(QLatin1Char(' ')).trimmed());
    return schema;
}

/// Cells of tables that hold something else.
QJsonObject ofPlainContents(PropertyId id)
{
    QJsonObject object = typed({"object"});
    const QJsonObject rows = with(typed({"array"}), kItems, object);
    switch (id) {
    case PropertyId::SamplesTable:
        return with(object, kProperties,
                    QJsonObject{{kSamples, rows}, {CUSTOM_COLUMNS_KEY, typed({"array"})}});
    case PropertyId::SequenceDatabases:
        return with(typed({"object", "string"}), kProperties,
                    QJsonObject{{QLatin1String("sequences"), rows}});
    case PropertyId::Tolerances:
    case PropertyId::OligoImpurities:
        return object;
    default:
        return reference(kTableDefinition);
    }
}

} // namespace

QJsonObject reference(const QString &name)
{
    return {{QStringLiteral("$ref"), QStringLiteral("#/$defs/") + name}};
}

QJsonObject ofSetting(PropertyId id)
{
    const int type = PropertiesNames::valueTypeOfPropertyType(id);
    const auto *const row = std::ranges::find(kTypes, type, &TypeRow::type);
    QJsonObject schema = explained(row == kTypes.end() ? QJsonObject() : row->schema(id), id);
    if (const QJsonValue value = PropertySetCreator::storedDefault(id); !value.isUndefined())
        schema.insert(QLatin1String("default"), value);
    return schema;
}

QJsonObject ofTable(PropertyId id)
{
    return explained(ofPlainContents(id), id);
}

} // namespace orv::ValueSchema
