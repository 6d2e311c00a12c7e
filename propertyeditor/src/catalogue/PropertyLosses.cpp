#include "PropertyLosses.h"

#include "PropertyValueForms.h"

#include <KProperty>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonDocument>

#include <algorithm>
#include <array>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

struct PropertyLossesTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyLosses)
};

/// Objects may stand as their text.
bool isObject(const QJsonValue &value)
{
    const QString text = value.toString();
    return value.isObject() ||
           (value.isString() && (text.isEmpty() || QJsonDocument::fromJson(text.toUtf8()).isObject()));
}

bool isRead(const QJsonValue &value, const KProperty &property)
{
    if (value.isNull())
        return true;
    switch (property.type()) {
    case KProperty::Bool:
        return value.isBool() || value.isDouble() || value.isString();
    case KProperty::Int:
        return value.isDouble();
    case KProperty::String:
        return value.isString();
    case PropertiesTraits::ObjectType:
        return isObject(value);
    case PropertiesTraits::ResourceReferenceType:
        return value.isString() && (value.toString().isEmpty() || property.value().isValid());
    case PropertiesTraits::CheckableListType:
        return value.isArray();
    default:
        return true;
    }
}

/// Files hold switches as texts, as truth values and as numbers.
bool isSwitch(const QJsonValue &stored)
{
    static constexpr std::array kWords = {"true", "false", "yes", "no", "ok", ""};
    const QString text = stored.toString().toLower();
    bool isNumber = false;
    text.toInt(&isNumber);
    return !stored.isString() || isNumber ||
           std::ranges::any_of(kWords, [&text](const char *word) { return text == QLatin1String(word); });
}

/// Whether the entry of a list stands for the other form of it: its text, its position, or its number.
bool isSameEntry(PropertyId id, const QJsonValue &stored, const QJsonValue &written)
{
    const QStringList texts = PropertySetCreator::listPropertiesData().value(id);
    if (stored.isString() && written.isDouble() && !texts.isEmpty())
        return texts.value(written.toInt()) == stored.toString();
    if (stored.isDouble() && written.isString())
        return texts.isEmpty() ? stored.toVariant().toString() == written.toString()
                               : double(texts.indexOf(written.toString())) == stored.toDouble();
    if (stored.isString() && written.isDouble()) {
        bool isNumber = false;
        return stored.toString().toInt(&isNumber) == written.toInt() && isNumber;
    }
    // Some lists were switches once.
    return stored.isBool() || stored == written;
}

/// Whether what a save would write, \a written, says what is stored.
bool meansTheSame(const QJsonValue &stored, const QJsonValue &written, const KProperty &property)
{
    if (stored.isNull() || stored.isUndefined())
        return true;
    switch (property.type()) {
    case KProperty::Bool:
        return isSwitch(stored);
    case KProperty::Int:
    case KProperty::String:
    case PropertiesTraits::ResourceReferenceType:
    case PropertiesTraits::CheckableListType:
        return stored == written;
    case KProperty::ValueFromList:
        return isSameEntry(PropertiesNames::findPropertyForName(QString::fromUtf8(property.name())), stored,
                           written);
    default:
        return true;
    }
}

void reportValue(const PropertyEditor::LoadContext &context, const QJsonValue &value, const QString &name,
                 const KProperty &property)
{
    const QString what = PropertyLossesTr::tr("value of the property \"%1\"").arg(name);
    const QJsonValue written =
        PropertySetCreator::valueToJson(property, PropertyEditor::PropertyConversionFlag::KeepPaths);
    if (!isRead(value, property)) {
        context.changed(VALUE_KEY, what, value, written,
                        PropertyLossesTr::tr("it is %1 that this property can't hold")
                            .arg(JsonUtils::typeDescription(value.type())));
    } else if (!meansTheSame(value, written, property)) {
        context.changed(VALUE_KEY, what, value, written);
    } else if (property.type() == PropertiesTraits::ObjectType && !value.toString().isEmpty()) {
        if (const Error fault = JsonUtils::faultOf(value.toString().toUtf8()))
            context.changed(VALUE_KEY, what, value, written, fault.errorMessage());
    }
}

void reportGroupAndPriority(const PropertyEditor::LoadContext &context, const QJsonObject &entry,
                            const QString &name, const KProperty &property)
{
    const QString priorityKey = QString::fromLatin1(kPriorityOption);
    const QJsonValue group = entry.value(GROUP_KEY);
    const QJsonValue priority = entry.value(priorityKey);
    const QJsonValue readPriority = property.option(kPriorityOption).toInt();
    if (!group.isUndefined() && !group.isString())
        context.changed(GROUP_KEY, PropertyLossesTr::tr("group of the property \"%1\"").arg(name), group,
                        QString());
    if (!priority.isUndefined() && priority != readPriority)
        context.changed(priorityKey, PropertyLossesTr::tr("priority of the property \"%1\"").arg(name),
                        priority, readPriority);
}

} // namespace

void reportEntryLosses(const PropertyEditor::LoadContext &context, const QJsonObject &entry,
                       const KProperty &property)
{
    const QString name = entry.value(NAME_KEY).toString();
    reportValue(context, entry.value(VALUE_KEY), name, property);
    reportGroupAndPriority(context, entry, name, property);
    const QStringList kept = {NAME_KEY, VALUE_KEY, GROUP_KEY, QString::fromLatin1(kPriorityOption)};
    for (auto it = entry.begin(); it != entry.end(); ++it) {
        if (!kept.contains(it.key()))
            context.lost(it.key(),
                         PropertyLossesTr::tr("member \"%1\" of the property \"%2\"").arg(it.key(), name),
                         PropertyLossesTr::tr("the format has no such member here"));
    }
}

} // namespace orv
