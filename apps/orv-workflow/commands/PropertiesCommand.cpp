#include "../Console.h"
#include "../Failure.h"
#include "Command.h"

#include <orv/core/NearestNames.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySearch.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QJsonDocument>
#include <QMetaEnum>

#include <utility>

namespace orv::cli {

namespace {

using PropertyEditor::BaseItem;

/// Tables and objects stand in the catalogue as JSON bytes.
QJsonValue defaultOf(const QVariant &value)
{
    if (value.typeId() == qMetaTypeId<ResourceReferenceSPtr>()) {
        const QString text = ResourceReferenceUtils::toString(value.value<ResourceReferenceSPtr>());
        return text.isEmpty() ? QJsonValue() : QJsonValue(text);
    }
    if (value.typeId() == QMetaType::QByteArray)
        return QJsonDocument::fromJson(value.toByteArray()).object();
    if (value.metaType().flags().testFlag(QMetaType::IsEnumeration))
        return value.toInt();
    return QJsonValue::fromVariant(value);
}

QString textOf(const QJsonValue &value)
{
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    if (value.isArray())
        return value.toVariant().toStringList().join(QLatin1String(", "));
    return value.toVariant().toString();
}

QString editorOf(PropertyId id)
{
    const auto editors = QMetaEnum::fromType<PropertySetCreator::Editor>();
    return QString::fromLatin1(editors.valueToKey(int(PropertySetCreator::editorForProperty(id))));
}

/// The entries of a property's list, with the keys that files hold in their place.
struct ListEntries
{
    QStringList keys;
    QStringList texts;
};

ListEntries listOf(PropertyId id)
{
    ListEntries entries;
    if (!UserVisibleListConverter::keysAndValuesForList(id, &entries.keys, &entries.texts)) {
        entries.texts = UserVisibleListConverter::valuesForCheckableList(id);
        entries.keys = entries.texts;
    }
    return entries;
}

QJsonValue listJson(const QStringList &entries)
{
    return entries.isEmpty() ? QJsonValue() : QJsonArray::fromStringList(entries);
}

/// Texts, each behind its key where that is another.
QString listText(const ListEntries &entries)
{
    QStringList texts;
    for (qsizetype i = 0; i < entries.texts.size(); ++i) {
        const QString &key = entries.keys.at(i);
        const QString &text = entries.texts.at(i);
        texts.append(key == text ? text : QStringLiteral("%1 = %2").arg(key, text));
    }
    return texts.join(QLatin1String("; "));
}

QStringList cellsWith(PropertyId id)
{
    QStringList types;
    const QMap<BaseItemType, QString> names = BaseItem::typeNameMap();
    for (auto it = names.begin(); it != names.end(); ++it) {
        if (allowedProperties(it.key()).contains(id))
            types.append(it.value());
    }
    return types;
}

QJsonObject toJson(PropertyId id, const PropertyFeatures &features)
{
    const PropertiesCsvReader &texts = PropertiesCsvReader::instance();
    const QString keyword = texts.verificationFunction(id);
    const ListEntries list = listOf(id);
    QJsonObject options;
    for (auto it = features.typeOptions.begin(); it != features.typeOptions.end(); ++it)
        options.insert(QString::fromUtf8(it.key()), it.value());
    const QJsonObject verification{{QStringLiteral("keyword"), keyword},
                                   {QStringLiteral("parameter"), texts.verificationParameters(id)}};
    const bool hasDefault = features.defaultValue.isValid();
    return {
        {QStringLiteral("id"), int(id)},
        {QStringLiteral("internalName"), features.internalNameV2},
        {QStringLiteral("internalNameV1"), features.internalNameV1},
        {QStringLiteral("displayName"), features.displayName},
        {QStringLiteral("toolTip"), features.toolTip},
        {QStringLiteral("typeName"), features.typeName},
        {QStringLiteral("type"), int(PropertiesNames::valueTypeOfPropertyType(id))},
        {QStringLiteral("typeOptions"), options},
        {QStringLiteral("reader"), QString(PropertiesNames::readerCode(id))},
        {QStringLiteral("default"), defaultOf(PropertiesNames::defaultValueInFileUnit(id))},
        {QStringLiteral("defaultType"),
         hasDefault ? QJsonValue(QString::fromLatin1(features.defaultValue.typeName())) : QJsonValue()},
        {QStringLiteral("editor"), editorOf(id)},
        {QStringLiteral("verification"), keyword.isEmpty() ? QJsonValue() : QJsonValue(verification)},
        {QStringLiteral("list"), listJson(list.texts)},
        {QStringLiteral("keys"), listJson(list.keys)},
        {QStringLiteral("allowedIn"), QJsonArray::fromStringList(cellsWith(id))},
    };
}

/// One property in one line: number, name, caption, and what the tooltip says.
QString line(PropertyId id, const PropertyFeatures &features)
{
    return QStringLiteral("%1  %2  %3: %4\n")
        .arg(int(id), 3)
        .arg(features.internalNameV2, -36)
        .arg(features.displayName, features.toolTip);
}

/// One property with all there is to know of it.
QString details(PropertyId id, const PropertyFeatures &features)
{
    const PropertiesCsvReader &texts = PropertiesCsvReader::instance();
    QString text = styled(features.displayName, Style::Heading) + QLatin1Char('\n');
    const auto add = [&text](const char *label, const QString &value) {
        if (!value.isEmpty())
            text += QStringLiteral("  %1 %2\n").arg(QLatin1String(label), -12).arg(value);
    };
    add("Number", QString::number(int(id)));
    add("Name", features.internalNameV2);
    if (features.internalNameV1 != features.internalNameV2)
        add("Former name", features.internalNameV1);
    add("Meaning", features.toolTip);
    add("Type", features.typeName);
    add("Default", textOf(defaultOf(PropertiesNames::defaultValueInFileUnit(id))));
    add("Rule",
        (texts.verificationFunction(id) + QLatin1Char(' ') + texts.verificationParameters(id)).trimmed());
    add("Values", listText(listOf(id)));
    add("In cells", cellsWith(id).join(QLatin1String(", ")));
    return text;
}

class PropertiesCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        arguments.positionals(
            "PROPERTY", &m_properties,
            "Numbers or names of properties, or words that their names, captions and tool tips hold "
            "(default: all)",
            {.kind = ValueKind::Property});
    }

    int run(const GlobalOptions &options) override
    {
        if (m_properties.isEmpty())
            return print({PropertiesNames::names()->keys(), {}}, options);
        Found found;
        for (const QString &argument : m_properties) {
            if (const PropertyId id = PropertySearch::named(argument); id != PropertyId::NoProperty) {
                found.named.append(id);
                continue;
            }
            const QList<PropertyId> ids = PropertySearch::matching(argument);
            if (ids.isEmpty()) {
                return printWrongUsage(
                    argument,
                    QStringLiteral(
                        "There is no such property, and none speaks of it; orv-workflow properties "
                        "lists all.") +
                        NearestNames::question(argument, PropertySearch::namesAndCaptions()),
                    options);
            }
            found.searched += ids;
        }
        if (found.searched.size() == 1)
            found.named += std::exchange(found.searched, {});
        return print(found, options);
    }

private:
    struct Found
    {
        QList<PropertyId> searched; ///< told in a line each
        QList<PropertyId> named;    ///< told whole
    };

    static int print(const Found &found, const GlobalOptions &options)
    {
        const auto &catalogue = *PropertiesNames::names();
        if (options.json) {
            QJsonArray array;
            for (const PropertyId id : found.searched + found.named)
                array.append(toJson(id, catalogue[id]));
            return printJson(array);
        }
        QString text;
        for (const PropertyId id : found.searched)
            text += line(id, catalogue[id]);
        for (const PropertyId id : found.named)
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + details(id, catalogue[id]);
        return printText(text);
    }

    QStringList m_properties;
};

} // namespace

std::unique_ptr<Command> createPropertiesCommand()
{
    return std::make_unique<PropertiesCommand>();
}

} // namespace orv::cli
