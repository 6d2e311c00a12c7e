#include "../Console.h"
#include "../Failure.h"
#include "Command.h"

#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QJsonDocument>
#include <QMetaEnum>

namespace orv::cli {

namespace {

using PropertyEditor::BaseItem;

/// A property by its number or by a name of either generation; NoProperty for anything else.
PropertyId propertyFor(const QString &argument)
{
    bool isNumber = false;
    const int number = argument.toInt(&isNumber);
    if (isNumber)
        return number >= 0 && number < kPropertyCount ? PropertyId(number) : PropertyId::NoProperty;
    return PropertiesNames::findPropertyForName(argument);
}

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

QStringList listOf(PropertyId id)
{
    QStringList keys;
    QStringList texts;
    return UserVisibleListConverter::keysAndValuesForList(id, &keys, &texts)
               ? texts
               : UserVisibleListConverter::valuesForCheckableList(id);
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
    const QStringList list = listOf(id);
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
        {QStringLiteral("default"), defaultOf(features.defaultValue)},
        {QStringLiteral("defaultType"),
         hasDefault ? QJsonValue(QString::fromLatin1(features.defaultValue.typeName())) : QJsonValue()},
        {QStringLiteral("editor"), editorOf(id)},
        {QStringLiteral("verification"), keyword.isEmpty() ? QJsonValue() : QJsonValue(verification)},
        {QStringLiteral("list"), list.isEmpty() ? QJsonValue() : QJsonArray::fromStringList(list)},
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
    add("Default", textOf(defaultOf(features.defaultValue)));
    add("Rule",
        (texts.verificationFunction(id) + QLatin1Char(' ') + texts.verificationParameters(id)).trimmed());
    add("Values", listOf(id).join(QLatin1String("; ")));
    add("In cells", cellsWith(id).join(QLatin1String(", ")));
    return text;
}

class PropertiesCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        arguments.positionals("PROPERTY", &m_properties, "Numbers or names of properties (default: all)",
                              {.kind = ValueKind::Property});
    }

    int run(const GlobalOptions &options) override
    {
        QList<PropertyId> ids;
        for (const QString &argument : m_properties) {
            const PropertyId id = propertyFor(argument);
            if (id == PropertyId::NoProperty) {
                printRemark(argument,
                            QStringLiteral("There is no such property; orv-workflow properties lists all."));
                return WrongUsage;
            }
            ids.append(id);
        }
        return options.json ? printJson(allToJson(ids)) : printText(allToText(ids));
    }

private:
    static QJsonArray allToJson(const QList<PropertyId> &ids)
    {
        QJsonArray array;
        const auto &catalogue = *PropertiesNames::names();
        for (const PropertyId id : ids.isEmpty() ? catalogue.keys() : ids)
            array.append(toJson(id, catalogue.value(id)));
        return array;
    }

    static QString allToText(const QList<PropertyId> &ids)
    {
        QString text;
        const auto &catalogue = *PropertiesNames::names();
        for (auto it = catalogue.begin(); ids.isEmpty() && it != catalogue.end(); ++it)
            text += line(it.key(), it.value());
        for (const PropertyId id : ids)
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + details(id, catalogue.value(id));
        return text;
    }

    QStringList m_properties;
};

} // namespace

std::unique_ptr<Command> createPropertiesCommand()
{
    return std::make_unique<PropertiesCommand>();
}

} // namespace orv::cli
