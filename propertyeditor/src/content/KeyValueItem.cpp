#include "orv/propertyeditor/content/KeyValueItem.h"

#include <KPropertyListData>
#include <KPropertySet>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/KPropertySetUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonDocument>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

QString nameOf(PropertyId id)
{
    return PropertiesNames::internalNameForType(id);
}

QString textOf(const KProperty &property)
{
    return QString::fromUtf8(property.name());
}

} // namespace

bool KeyValueItem::holds(BaseItemType type)
{
    const CellType *row = CellTypes::find(type);
    return row && row->holdsSettings;
}

KeyValueItem::KeyValueItem(BaseItemType type)
    : BaseItem(type)
{}

KeyValueItem::~KeyValueItem() = default;

QJsonObject KeyValueItem::toJson(PropertyConversionFlag flag) const
{
    if (!m_set)
        return {};
    if (flag == PropertyConversionFlag::AbsolutePaths && hasGlycanDatabase())
        return toJsonWithAbsoluteGlycans();
    return PropertySetCreator::propertySetToObject(*m_set, flag).value_or(QJsonObject());
}

bool KeyValueItem::hasGlycanDatabase() const
{
    const QList<PropertyId> properties = PropertyEditorUtils::propertiesWithGlycanDatabases();
    return std::ranges::any_of(properties, [this](PropertyId id) { return contains(id); });
}

QJsonObject KeyValueItem::toJsonWithAbsoluteGlycans() const
{
    const KPropertySet copy(*m_set);
    for (const PropertyId id : PropertyEditorUtils::propertiesWithGlycanDatabases()) {
        KProperty &property = copy.property(nameOf(id).toUtf8());
        if (property.isNull())
            continue;
        QJsonObject object = PropertyEditorJsonUtils::variantToObject(property.value());
        PropertyEditorUtils::updateGlycanDatabaseToAbsolute(m_baseUrl, &object);
        property.setValue(QJsonDocument(object).toJson());
    }
    return PropertySetCreator::propertySetToObject(copy, PropertyConversionFlag::AbsolutePaths)
        .value_or(QJsonObject());
}

Error KeyValueItem::assignFromJson(const QJsonObject &json, ValidationOptions options)
{
    return load(json, options, {});
}

Error KeyValueItem::load(const QJsonObject &json, ValidationOptions options, const LoadContext &context)
{
    if (!json.value(PROPERTIES_KEY).isArray()) {
        return Error(ErrorCode::MalformedStructure,
                     tr("Could not parse JSON. \"%1\" has unsupported format.").arg(PROPERTIES_KEY));
    }
    ORV_RETURN_IF_ERROR(BaseItem::assignFromJson(json, options));
    m_set.reset();
    const bool skipsType = options.testFlag(ValidationOption::SkipTypeValidation);
    Result<KPropertySet *> set = PropertySetCreator::objectToPropertySet(
        json, skipsType ? std::nullopt : std::optional(type()), context);
    if (set.hasError())
        return set.ecatch();
    m_set.reset(*set);
    return Error::NoError;
}

void KeyValueItem::setBaseUrl(const QUrl &url)
{
    m_baseUrl = url;
    if (!m_set)
        return;
    for (KPropertySetIterator it(*m_set); it.current(); ++it) {
        if (it.current()->type() == PropertiesTraits::ResourceReferenceType)
            it.current()->setOption(kbaseUrl, url);
    }
}

void KeyValueItem::clear()
{
    if (count() == 0)
        return;
    m_set->clear();
    Q_EMIT countChanged(count());
    Q_EMIT changed();
}

int KeyValueItem::count() const
{
    return m_set ? m_set->count() : 0;
}

QStringList KeyValueItem::keys() const
{
    QStringList keys;
    if (!m_set)
        return keys;
    keys.reserve(count());
    for (KPropertySetIterator it(*m_set); it.current(); ++it)
        keys.append(textOf(*it.current()));
    return keys;
}

bool KeyValueItem::has(const QByteArray &name) const
{
    return m_set && m_set->contains(name);
}

bool KeyValueItem::contains(const QString &key) const
{
    return has(key.toUtf8());
}

bool KeyValueItem::contains(PropertyId id) const
{
    return contains(nameOf(id));
}

QVariant KeyValueItem::value(const QString &key) const
{
    return m_set ? m_set->propertyValue(key.toUtf8()) : QVariant();
}

QVariant KeyValueItem::value(PropertyId id) const
{
    return value(nameOf(id));
}

int KeyValueItem::type(const QString &key) const
{
    const QByteArray name = key.toUtf8();
    return has(name) ? m_set->property(name).type() : 0;
}

bool KeyValueItem::insert(const QString &key, const QVariant &value, int type)
{
    return insert(key, {}, value, type, {});
}

bool KeyValueItem::insert(const QString &key, const QString &group, const QVariant &value, int type,
                          const QString &keyBefore)
{
    if (!m_set || contains(key))
        return false;
    if (key.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot insert a property without a key";
        return false;
    }
    QVariant converted = value;
    if (type < KProperty::UserDefined && !converted.convert(QMetaType(type))) {
        qCWarning(propertyEditorLog) << "Cannot convert variant" << value << "to type" << type;
        return false;
    }
    auto property = std::make_unique<KProperty>(key.toUtf8(), converted, QString(), QString(), type);
    const int position =
        keyBefore.isEmpty() ? -1 : KPropertySetUtils::propertyIndex(keyBefore, group, *m_set) + 1;
    KPropertySetUtils::insertInKPropertySet(group, property.release(), m_set.get(), position);
    Q_EMIT inserted(key, value);
    Q_EMIT inserted(key, group, value);
    Q_EMIT countChanged(count());
    Q_EMIT changed();
    return true;
}

bool KeyValueItem::warnUnless(bool exists, const QString &key) const
{
    if (!exists)
        qCWarning(propertyEditorLog) << "Cannot update the non-existing key" << key;
    return exists;
}

bool KeyValueItem::replace(const QString &key, const QString &newKey, const QVariant &value, int type)
{
    const QByteArray name = key.toUtf8();
    if (!warnUnless(has(name), key))
        return false;
    m_set->property(name) = KProperty(newKey.toUtf8(), value, QString(), QString(), type);
    Q_EMIT changed();
    return true;
}

bool KeyValueItem::remove(const QString &key)
{
    const QByteArray name = key.toUtf8();
    if (!has(name)) {
        qCWarning(propertyEditorLog) << "Cannot remove the non-existing key" << key;
        return false;
    }
    m_set->removeProperty(name);
    Q_EMIT removed(key);
    Q_EMIT countChanged(count());
    Q_EMIT changed();
    return true;
}

bool KeyValueItem::remove(const QStringList &keys)
{
    return std::ranges::all_of(keys, [this](const QString &key) { return remove(key); });
}

bool KeyValueItem::setValue(PropertyId id, const QVariant &value)
{
    return setValue(nameOf(id), value);
}

bool KeyValueItem::setValue(const QString &key, const QVariant &value)
{
    const QByteArray name = key.toUtf8();
    if (!warnUnless(has(name), key))
        return false;
    KProperty &property = m_set->property(name);
    if (property.type() == KProperty::ValueFromList)
        return setListValue(key, &property, value);
    const QVariant old = property.value();
    setPlainValue(&property, value);
    Q_EMIT valueChanged(key, value, old);
    Q_EMIT changed();
    return true;
}

void KeyValueItem::setPlainValue(KProperty *property, const QVariant &value)
{
    constexpr int kFirstUserMetaType = QMetaType::User;
    if (value.typeId() < kFirstUserMetaType && property->type() < KProperty::UserDefined)
        property->setType(value.typeId());
    property->setValue(value);
}

bool KeyValueItem::setListValue(const QString &key, KProperty *property, const QVariant &value)
{
    const KPropertyListData *list = property->listData();
    if (!list || list->keys().isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot change an empty list with the key" << key;
        return false;
    }
    const QString name = textOf(*property);
    const PropertyId id = PropertiesNames::findPropertyForName(name);
    if (id == PropertyId::NoProperty) {
        qCWarning(propertyEditorLog) << "Unknown property " << name;
        return false;
    }
    QString text;
    if (PropertySetCreator::listPropertiesData().contains(id)) {
        bool ok = false;
        text = PropertyEditorJsonUtils::getValueFromList(value, list->namesAsStringList(), name,
                                                         PropertiesTraits::isEditableList(id), &ok);
        if (!ok) {
            qCWarning(propertyEditorLog) << "Can't find correct value for" << name;
            return false;
        }
    } else {
        text = PropertySetCreator::isStringSerializableList(id) ? value.toString()
                                                                : QString::number(value.toInt());
    }
    const QVariant old = property->value();
    qCDebug(propertyEditorLog) << "Updating a list with new string value" << text << "from value: " << value;
    m_set->changeProperty(property->name(), text);
    Q_EMIT valueChanged(key, text, old);
    Q_EMIT changed();
    return true;
}

QVariant KeyValueItem::option(const QString &key, const QByteArray &name) const
{
    return m_set ? m_set->property(key.toUtf8()).option(name.constData()) : QVariant();
}

bool KeyValueItem::setOption(const QString &key, const QByteArray &name, const QVariant &value)
{
    const QByteArray property = key.toUtf8();
    if (!warnUnless(has(property), key))
        return false;
    m_set->property(property).setOption(name.constData(), value);
    Q_EMIT changed();
    return true;
}

QString KeyValueItem::group(const QString &key) const
{
    return m_set ? QString::fromUtf8(m_set->groupNameForProperty(key.toUtf8())) : QString();
}

QString KeyValueItem::group(PropertyId id) const
{
    return group(nameOf(id));
}

QString KeyValueItem::groupCaption(const QString &key) const
{
    return m_set ? m_set->groupCaption(m_set->groupNameForProperty(key.toUtf8())) : QString();
}

QString KeyValueItem::groupCaption(PropertyId id) const
{
    return groupCaption(nameOf(id));
}

QList<QByteArray> KeyValueItem::groupNames() const
{
    return m_set ? m_set->groupNames() : QList<QByteArray>();
}

bool KeyValueItem::hasGroup(const QString &name) const
{
    return groupNames().contains(name.toUtf8());
}

QList<QByteArray> KeyValueItem::properties(const QByteArray &groupName) const
{
    return m_set ? m_set->propertyNamesForGroup(groupName) : QList<QByteArray>();
}

bool KeyValueItem::setGroup(const QString &key, const QString &group)
{
    const QByteArray name = key.toUtf8();
    if (!warnUnless(has(name), key))
        return false;
    const QString oldGroup = this->group(key);
    if (group.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot move the property" << key << "to an empty group";
        return false;
    }
    if (QString::fromUtf8(KPropertySetUtils::groupName(group)) == oldGroup) {
        qCWarning(propertyEditorLog) << "Cannot move the property" << key << "to the same group";
        return false;
    }
    auto copy = std::make_unique<KProperty>(m_set->property(name));
    remove(key);
    KPropertySetUtils::insertInKPropertySet(group, copy.release(), m_set.get(), -1);
    Q_EMIT groupChanged(key, group, oldGroup);
    Q_EMIT changed();
    return true;
}

bool KeyValueItem::setGroupCaption(const QString &groupName, const QString &caption)
{
    if (!m_set)
        return false;
    m_set->setGroupCaption(groupName.toUtf8(), caption);
    Q_EMIT changed();
    return true;
}

bool KeyValueItem::removeGroup(const QString &name)
{
    QStringList keys;
    for (const QByteArray &key : properties(name.toUtf8()))
        keys.append(QString::fromUtf8(key));
    return remove(keys);
}

void KeyValueItem::moveGroup(const QString &group, const QString &afterGroup)
{
    if (!m_set)
        return;
    struct Moved
    {
        QByteArray group;
        std::unique_ptr<KProperty> property;
    };
    const QList<QByteArray> names = m_set->groupNames();
    std::vector<Moved> moved;
    for (qsizetype i = names.indexOf(afterGroup.toUtf8()) + 1; i < names.size(); ++i) {
        const QByteArray &name = names.at(i);
        if (m_set->groupCaption(name) == group)
            continue;
        for (const QByteArray &key : m_set->propertyNamesForGroup(name)) {
            moved.push_back({name, std::make_unique<KProperty>(m_set->property(key))});
            m_set->removeProperty(key);
        }
    }
    for (Moved &entry : moved)
        m_set->addProperty(entry.property.release(), entry.group);
    Q_EMIT changed();
}

QMultiMap<PropertyId, QVariant> KeyValueItem::propertiesMap() const
{
    QMultiMap<PropertyId, QVariant> map;
    for (const QString &key : keys()) {
        const PropertyId id = PropertiesNames::findPropertyForName(key);
        map.insert(id, value(id));
    }
    return map;
}

} // namespace orv::PropertyEditor
