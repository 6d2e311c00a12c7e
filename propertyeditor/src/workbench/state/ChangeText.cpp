#include "ChangeText.h"

#include "TableCaptions.h"
#include "panels/ShortText.h"
#include "settings/SettingReader.h"

#include <KProperty.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;

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
    return ChangeText::isQuantity(value) || value.isBool() || value.isDouble() ||
           type == KProperty::ValueFromList;
}

bool holdsValuesAlone(const QJsonArray &list)
{
    return std::none_of(list.begin(), list.end(),
                        [](const QJsonValue &element) { return element.isObject() || element.isArray(); });
}

QString textOf(const QJsonValue &value, const QStringList &columns = {});

QString textOfList(const QJsonArray &list)
{
    if (!holdsValuesAlone(list))
        return ChangeTextTr::tr("Entries: %1").arg(list.size());
    QStringList texts;
    for (const auto element : list)
        texts.append(textOf(element));
    return texts.join(QLatin1String(", "));
}

/// What is empty tells nothing.
void appendCaptioned(const QString &name, const QJsonValue &value, QStringList *texts)
{
    const QString text = textOf(value);
    if (text.isEmpty())
        return;
    const QString caption = TableCaptions::ofColumn(name);
    texts->append(caption.isEmpty() ? text : ChangeTextTr::tr("%1: %2").arg(caption, text));
}

QString textOfTable(const QJsonArray &data, const QJsonArray &rows, const QStringList &columns)
{
    if (!rows.isEmpty())
        return ChangeTextTr::tr("Rows: %1").arg(rows.size());
    QStringList texts;
    for (qsizetype i = 0; i < data.size(); ++i)
        appendCaptioned(columns.value(i), data.at(i), &texts);
    return texts.join(QLatin1String("; "));
}

/// In words, since nobody but a file speaks JSON.
QString textOf(const QJsonValue &value, const QStringList &columns)
{
    if (value.isUndefined() || value.isNull())
        return {};
    if (value.isString())
        return value.toString();
    if (value.isArray())
        return textOfList(value.toArray());
    if (!value.isObject()) {
        // A value alone is no JSON document for the writer; its list is.
        const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        return QString::fromUtf8(json.mid(1, json.size() - 2));
    }
    const QJsonObject members = value.toObject();
    if (members.value(DATA).isArray() && members.value(CHILDREN).isArray())
        return textOfTable(members.value(DATA).toArray(), members.value(CHILDREN).toArray(), columns);
    QStringList texts;
    for (auto member = members.begin(); member != members.end(); ++member)
        appendCaptioned(member.key(), member.value(), &texts);
    return texts.join(QLatin1String("; "));
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
    const QString row = place.row.value_or(0) > 0
                            ? TableCaptions::ofStep(QStringLiteral("row %1").arg(*place.row))
                            : QString();
    return ShortText::end(joined(QStringList{place.tab, place.column, row, captionOf(place.property),
                                             ofPartOfSetting(place.below)}),
                          kLongestPlace);
}

QString ChangeText::ofText(const QString &text)
{
    constexpr qsizetype kLongestText = 120;
    return ShortText::beginning(text, kLongestText);
}

QString ChangeText::ofPartOfSetting(const QString &below)
{
    QStringList steps = below.split(kSeparatorInPaths);
    std::ranges::transform(steps, steps.begin(), &TableCaptions::ofStep);
    return joined(steps);
}

QString ChangeText::ofValue(const QJsonValue &value, const QStringList &columns)
{
    if (const QJsonValue name = value[QLatin1String("name")]; name.isString())
        return ofText(name.toString());
    return ofText(textOf(value, columns));
}

bool ChangeText::isQuantity(const QJsonValue &value)
{
    return value[VALUE_KEY].isDouble() && value[QLatin1String("unit")].isString();
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
