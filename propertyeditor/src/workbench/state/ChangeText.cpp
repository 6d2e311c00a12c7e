#include "ChangeText.h"

#include "panels/ShortText.h"
#include "settings/SettingReader.h"

#include <KProperty.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace orv {

namespace {

struct ChangeTextTr
{
    Q_DECLARE_TR_FUNCTIONS(ChangeText)
};

constexpr QLatin1String kSeparatorInPaths(" / ");

QString captionOf(const QString &property)
{
    const QString caption =
        PropertiesNames::displayNameForType(PropertiesNames::findPropertyForName(property));
    return caption.isEmpty() ? property : caption;
}

/// Numbers, switches, choices and numbers with units: values whose rows show more than files have.
bool hasTextOfItsRow(PropertyId id, const QJsonValue &value)
{
    const KProperty::Type type = PropertiesNames::valueTypeOfPropertyType(id);
    const QJsonObject members = value.toObject();
    const bool isQuantity = members.contains(QLatin1String("unit")) &&
                            members.value(QLatin1String("value")).isDouble() && members.size() == 2;
    return isQuantity || value.isBool() || value.isDouble() || type == KProperty::ValueFromList;
}

} // namespace

QString ChangeText::joined(QStringList names)
{
    names.removeAll(QString());
    return names.join(QStringLiteral(" › "));
}

QString ChangeText::ofPlace(const Place &place)
{
    constexpr qsizetype kLongestPlace = 400;
    // Nearly all columns have one cell, which nobody counts.
    const QString row =
        place.row.value_or(0) > 0 ? ChangeTextTr::tr("row %1").arg(*place.row + 1) : QString();
    return ShortText::end(joined(QStringList{place.tab, place.column, row, captionOf(place.property)} +
                                 place.below.split(kSeparatorInPaths)),
                          kLongestPlace);
}

QString ChangeText::ofText(const QString &text)
{
    constexpr qsizetype kLongestText = 120;
    return ShortText::beginning(text, kLongestText);
}

QString ChangeText::ofValue(const QJsonValue &value)
{
    if (value.isUndefined())
        return {};
    if (value.isString())
        return ofText(value.toString());
    if (const QJsonValue name = value[QLatin1String("name")]; name.isString())
        return ofText(name.toString());
    // A value alone is no JSON document for the writer; its list is.
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return ofText(QString::fromUtf8(json.mid(1, json.size() - 2)));
}

QString ChangeText::ofSetting(const QString &property, const QJsonValue &value)
{
    const PropertyId id = PropertiesNames::findPropertyForName(property);
    if (id == PropertyId::NoProperty || !hasTextOfItsRow(id, value))
        return ofValue(value);
    KProperty shown;
    QList<QString> errors;
    const bool isMade =
        PropertySetCreator::modifyKProperty(id, PropertySetCreator::Priority::Unset, value, &shown, &errors);
    const QString text = isMade ? SettingReader::valueText(shown) : QString();
    return text.isEmpty() ? ofValue(value) : ofText(text);
}

} // namespace orv
