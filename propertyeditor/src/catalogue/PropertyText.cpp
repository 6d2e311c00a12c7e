#include "orv/propertyeditor/PropertyText.h"

#include "PropertyValueForms.h"
#include "ValueUnitText.h"

#include <KProperty>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReference.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <array>
#include <cmath>

namespace orv::PropertyText {

namespace {

using Read = std::optional<QVariant>;

struct PropertyTextTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyText)
};

Read toSwitch(const QString &text)
{
    static constexpr std::array kTrue = {"true", "yes", "ok", "on", "1"};
    static constexpr std::array kFalse = {"false", "no", "off", "0"};
    const auto isOneOf = [word = text.trimmed().toLower()](const auto &words) {
        return std::ranges::any_of(words, [&word](const char *each) { return word == QLatin1String(each); });
    };
    if (isOneOf(kTrue))
        return true;
    return isOneOf(kFalse) ? Read(false) : std::nullopt;
}

Read toInteger(const QString &text)
{
    bool ok = false;
    const int number = text.trimmed().toInt(&ok);
    return ok ? Read(number) : std::nullopt;
}

Read toNumber(const QString &text)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(number) ? Read(number) : std::nullopt;
}

Read toReference(const QString &text)
{
    if (text.isEmpty())
        return QVariant::fromValue(ResourceReferenceSPtr());
    const auto reference = ResourceReference::fromString(text);
    return reference ? Read(QVariant::fromValue(*reference)) : std::nullopt;
}

Read toObject(const QString &text)
{
    const QByteArray json = text.toUtf8();
    const auto object = JsonUtils::objectFromJson(json);
    return object && !nestsTooDeeply(json) ? Read(QJsonDocument(*object).toJson(QJsonDocument::Indented))
                                           : std::nullopt;
}

Read toCheckedTexts(PropertyId id, const QString &text)
{
    const QStringList available = UserVisibleListConverter::valuesForCheckableList(id);
    QStringList chosen;
    for (const QString &part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (!available.contains(part.trimmed()))
            return {};
        chosen.append(part.trimmed());
    }
    return chosen;
}

/// Whether the texts of a setting stand for numbers, as its default does.
bool meansNumber(PropertyId id)
{
    bool isNumber = false;
    const QVariant byDefault = PropertiesNames::defaultValueForType(id);
    if (byDefault.typeId() == QMetaType::QString)
        byDefault.toString().toDouble(&isNumber);
    return isNumber;
}

/// Some such settings take lists of numbers, too.
Read toText(PropertyId id, const QString &text)
{
    return meansNumber(id) && !std::isfinite(text.trimmed().toDouble()) ? std::nullopt : Read(text);
}

/// A text or key that users see or files hold, or a position in the list.
Read toListValue(PropertyId id, const QString &text)
{
    QStringList keys;
    QStringList texts;
    UserVisibleListConverter::keysAndValuesForList(id, &keys, &texts);
    if (keys.contains(text))
        return text;
    if (const qsizetype position = texts.indexOf(text); position >= 0)
        return keys.at(position);
    if (UserVisibleListConverter::isEditableList(id))
        return text;
    bool isNumber = false;
    const int position = text.toInt(&isNumber);
    const bool byPosition = isNumber && UserVisibleListConverter::listItemsMap().contains(id);
    return byPosition && position >= 0 && position < keys.size() ? Read(keys.at(position)) : std::nullopt;
}

Read readText(PropertyId id, const QString &text, const KProperty &property)
{
    if (!unitsOf(id).isEmpty())
        return toValueWithUnit(id, text, property);
    switch (property.type()) {
    case KProperty::Bool:
        return toSwitch(text);
    case KProperty::Int:
        return toInteger(withoutShownUnit(text, property));
    case KProperty::Double:
        return toNumber(withoutShownUnit(text, property));
    case KProperty::ValueFromList:
        return toListValue(id, text);
    case PropertiesTraits::ResourceReferenceType:
        return toReference(text);
    case PropertiesTraits::ObjectType:
        return toObject(text);
    case PropertiesTraits::CheckableListType:
        return toCheckedTexts(id, text);
    default:
        return toText(id, text);
    }
}

/// An interval as people say it, not as rules write it.
QString rangeOf(PropertyId id)
{
    const PropertiesCsvReader &catalogue = PropertiesCsvReader::instance();
    if (catalogue.verificationFunction(id) != QLatin1String("range"))
        return {};
    const QString range = catalogue.verificationParameters(id).trimmed();
    const QStringList limits = range.mid(1).chopped(1).split(u';');
    if (limits.size() != 2)
        return PropertyTextTr::tr(" in %1").arg(range);
    const bool hasLeast = range.startsWith(u'[');
    const bool hasMost = range.endsWith(u']');
    const QString form = hasLeast && hasMost ? PropertyTextTr::tr(" from %1 to %2")
                         : hasMost           ? PropertyTextTr::tr(" above %1 and at most %2")
                         : hasLeast          ? PropertyTextTr::tr(" of at least %1 and below %2")
                                             : PropertyTextTr::tr(" above %1 and below %2");
    return form.arg(limits[0].trimmed(), limits[1].trimmed());
}

QString legalListValues(PropertyId id)
{
    QStringList keys;
    QStringList texts;
    UserVisibleListConverter::keysAndValuesForList(id, &keys, &texts);
    QStringList entries;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        entries.append(keys.at(i) == texts.at(i)
                           ? QStringLiteral("\"%1\"").arg(texts.at(i))
                           : PropertyTextTr::tr("%1 for \"%2\"").arg(keys.at(i), texts.at(i)));
    }
    const QString list = entries.join(QLatin1String(", "));
    return UserVisibleListConverter::isEditableList(id) ? PropertyTextTr::tr("any text, such as %1").arg(list)
                                                        : PropertyTextTr::tr("one of: %1").arg(list);
}

bool asksTheDisk(PropertyId id)
{
    static constexpr std::array kKeywords = {"local-url", "local-or-talvane-url", "glycans"};
    const QString keyword = PropertiesCsvReader::instance().verificationFunction(id);
    return std::ranges::any_of(kKeywords, [&](const char *each) { return keyword == QLatin1String(each); });
}

/// What the property's rule says against \a value; nothing if it passes.
std::optional<QStringList> objectionsTo(PropertyId id, const QVariant &value,
                                        PropertyEditorContent::ContentMode mode)
{
    const VerificationFunction rule = PropertiesNames::names()->value(id).verification;
    QStringList errors;
    QStringList warnings;
    if (!rule || asksTheDisk(id) || rule(id, value, mode, &errors, &warnings))
        return {};
    return errors;
}

Error refusal(PropertyId id, const QString &text, const KProperty &property, const QStringList &objections)
{
    Error error(ErrorCode::InvalidContent, PropertyTextTr::tr("The value \"%1\" is not allowed for %2.")
                                               .arg(text, QString::fromUtf8(property.name())));
    for (const QString &objection : objections)
        error.addDetail(objection);
    error.addDetail(PropertyTextTr::tr("Allowed: %1.").arg(legalValues(id, property)));
    return error;
}

/// With as few digits as tell the number from others.
QString exact(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

/// The number and the unit of an object that has nothing else; else JSON.
ValueText textOfObject(PropertyId id, const QJsonValue &stored)
{
    const QJsonObject object = stored.toObject();
    const QJsonValue number = object.value(PropertyEditorStringConstants::VALUE_KEY);
    const QString unit = object.value(QLatin1String("unit")).toString();
    if (unitsOf(id).contains(unit) && number.isDouble() && object.size() == 2)
        return {exact(number.toDouble()), unit};
    return {stored.isObject() ? QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact))
                              : stored.toString(),
            {}};
}

ValueText textOf(PropertyId id, const KProperty &property, const QJsonValue &stored)
{
    const QVariant value = property.value();
    const QString unit = property.option("suffix").toString().trimmed();
    switch (property.type()) {
    case KProperty::Bool:
        return {value.toBool() ? QStringLiteral("true") : QStringLiteral("false"), {}};
    case KProperty::Int:
        return {QString::number(value.toInt()), unit};
    case KProperty::Double:
        return {exact(value.toDouble()), unit};
    case PropertiesTraits::ResourceReferenceType:
        return {stored.toString(), {}};
    case PropertiesTraits::ObjectType:
        return textOfObject(id, stored);
    case PropertiesTraits::CheckableListType:
        return {value.toStringList().join(QLatin1String(", ")), {}};
    default:
        return unitsOf(id).isEmpty() ? ValueText{value.toString(), {}} : textOfObject(id, stored);
    }
}

} // namespace

QStringList knownUnits(PropertyId id)
{
    return unitsOf(id);
}

QString legalValues(PropertyId id, const KProperty &property)
{
    if (!unitsOf(id).isEmpty())
        return legalValuesWithUnit(id);
    switch (property.type()) {
    case KProperty::Bool:
        return PropertyTextTr::tr("true or false");
    case KProperty::Int:
        return PropertyTextTr::tr("a whole number") + rangeOf(id);
    case KProperty::Double:
        return PropertyTextTr::tr("a number") + rangeOf(id);
    case KProperty::ValueFromList:
        return legalListValues(id);
    case PropertiesTraits::ResourceReferenceType:
        return PropertyTextTr::tr("a path or the text of a reference");
    case PropertiesTraits::ObjectType:
        return PropertyTextTr::tr("a JSON object");
    case PropertiesTraits::CheckableListType:
        return PropertyTextTr::tr("any of these, separated by commas: %1")
            .arg(UserVisibleListConverter::valuesForCheckableList(id).join(QLatin1String(", ")));
    default:
        return meansNumber(id) ? PropertyTextTr::tr("a number") : PropertyTextTr::tr("a text");
    }
}

Result<QVariant> toValue(PropertyId id, const QString &text, const KProperty &property,
                         PropertyEditorContent::ContentMode mode)
{
    const Read value = readText(id, text, property);
    if (!value)
        return refusal(id, text, property, {});
    if (Error error = check(id, *value, text, property, mode))
        return error;
    return *value;
}

Error check(PropertyId id, const QVariant &value, const QString &text, const KProperty &property,
            PropertyEditorContent::ContentMode mode)
{
    const std::optional<QStringList> objections = objectionsTo(id, value, mode);
    return objections ? refusal(id, text, property, *objections) : Error(Error::NoError);
}

std::optional<ValueText> fromValue(PropertyId id, const KProperty &property)
{
    const auto stored = [](const KProperty &each) {
        return PropertySetCreator::valueToJson(each, PropertyEditor::PropertyConversionFlag::KeepPaths);
    };
    const ValueText text = textOf(id, property, stored(property));
    const Read value = readText(id, text.unit.isEmpty() ? text.text : text.text + u' ' + text.unit, property);
    KProperty other(property);
    if (!value || (other.value() != *value && !other.setValue(*value)) || stored(other) != stored(property))
        return {};
    return text;
}

} // namespace orv::PropertyText
