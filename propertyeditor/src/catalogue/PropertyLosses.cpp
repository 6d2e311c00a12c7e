#include "PropertyLosses.h"

#include "PropertyValueForms.h"

#include <KProperty>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonDocument>

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

} // namespace

void reportEntryLosses(const PropertyEditor::LoadContext &context, const QJsonObject &entry,
                       const KProperty &property)
{
    if (!context.isObserved())
        return;
    const QJsonValue value = entry.value(VALUE_KEY);
    const QString name = entry.value(NAME_KEY).toString();
    if (!isRead(value, property)) {
        context.lost(VALUE_KEY, PropertyLossesTr::tr("value of the property \"%1\"").arg(name),
                     PropertyLossesTr::tr("it is %1 that this property can't hold")
                         .arg(JsonUtils::typeDescription(value.type())));
    }
    const QStringList kept = {NAME_KEY, VALUE_KEY, GROUP_KEY, QString::fromLatin1(kPriorityOption)};
    for (auto it = entry.begin(); it != entry.end(); ++it) {
        if (!kept.contains(it.key()))
            context.lost(it.key(),
                         PropertyLossesTr::tr("member \"%1\" of the property \"%2\"").arg(it.key(), name),
                         PropertyLossesTr::tr("the format has no such member here"));
    }
}

} // namespace orv
