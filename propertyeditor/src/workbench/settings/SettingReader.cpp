#include "SettingReader.h"

#include <KProperty.h>
#include <KPropertyFactory.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonObject>

#include <algorithm>

namespace orv {

namespace {

/// A longer value is told by its beginning.
constexpr qsizetype kMostCharacters = 65536;

bool isReferenceToNothing(const QVariant &value)
{
    return !value.isValid() ||
           (value.typeId() == qMetaTypeId<ResourceReferenceSPtr>() && !value.value<ResourceReferenceSPtr>());
}

/// An object whose members are empty shows as one without members.
bool isEmpty(const QJsonValue &value)
{
    if (!value.isObject())
        return value.isNull() || (value.isString() && value.toString().isEmpty());
    const QJsonObject members = value.toObject();
    return std::all_of(members.begin(), members.end(), [](const QJsonValue &member) {
        return member.isString() && member.toString().isEmpty();
    });
}

/// Of \a property if it had the value; nothing if it has.
std::optional<QString> otherValue(const KProperty &property, PropertyId id, const QJsonValue &value)
{
    if (value.isUndefined() || SettingReader::areSame(value, SettingReader::stored(property)))
        return {};
    KProperty other(property);
    if (!PropertySetCreator::setValueFromJson(id, value, &other))
        return {};
    return SettingReader::valueText(other);
}

} // namespace

PropertyId SettingReader::idOf(const KProperty &property)
{
    const QByteArray name = property.name();
    return name.startsWith(':') ? PropertyId::NoProperty
                                : PropertiesNames::findPropertyForName(QString::fromUtf8(name));
}

bool SettingReader::areSame(const QJsonValue &first, const QJsonValue &second)
{
    return first == second || (isEmpty(first) && isEmpty(second));
}

QString SettingReader::valueText(const KProperty &property)
{
    if (property.type() == PropertiesTraits::ResourceReferenceType && isReferenceToNothing(property.value()))
        return {};
    return KPropertyFactoryManager::self()->propertyValueToLocalizedString(&property).left(kMostCharacters);
}

QJsonValue SettingReader::stored(const KProperty &property, PropertyEditor::PropertyConversionFlag paths)
{
    if (property.type() == PropertiesTraits::ResourceReferenceType && isReferenceToNothing(property.value()))
        return QString();
    return PropertySetCreator::valueToJson(property, paths);
}

QJsonValue SettingReader::storedDefault(PropertyId id)
{
    const auto known = m_defaults.constFind(id);
    if (known != m_defaults.cend())
        return *known;
    const QJsonValue byDefault = PropertySetCreator::storedDefault(id);
    KProperty property;
    QList<QString> errors;
    const bool isMade = !byDefault.isUndefined() &&
                        PropertySetCreator::modifyKProperty(id, PropertySetCreator::Priority::Unset,
                                                            byDefault, &property, &errors);
    return *m_defaults.insert(id, isMade ? stored(property) : QJsonValue(QJsonValue::Undefined));
}

SettingTexts SettingReader::textsOf(const KProperty &property, PropertyId id, const StoredSettings *saved)
{
    SettingTexts texts;
    texts.name = property.name();
    texts.formerName = PropertiesNames::names()->value(id).internalNameV1;
    texts.caption = property.captionOrName();
    texts.toolTip = property.description();
    texts.value = valueText(property);
    texts.defaultValue = otherValue(property, id, storedDefault(id));
    if (saved) {
        texts.savedValue =
            otherValue(property, id, saved->value(property.name(), QJsonValue(QJsonValue::Undefined)));
    }
    texts.isReadOnly = property.isReadOnly();
    return texts;
}

QList<SettingTexts> SettingReader::read(const KPropertySet &set, const StoredSettings *saved)
{
    QList<SettingTexts> settings;
    settings.reserve(set.count());
    for (KPropertySetIterator property(set); *property; ++property) {
        const PropertyId id = idOf(**property);
        if (id != PropertyId::NoProperty)
            settings.append(textsOf(**property, id, saved));
    }
    return settings;
}

StoredSettings SettingReader::stored(const KPropertySet &set)
{
    StoredSettings values;
    for (KPropertySetIterator property(set); *property; ++property) {
        if (idOf(**property) != PropertyId::NoProperty)
            values.insert((*property)->name(), stored(**property));
    }
    return values;
}

} // namespace orv
