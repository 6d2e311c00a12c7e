#include "orv/propertyeditor/content/KeyValueItem.h"

#include "Announce.h"

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
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

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
    if (m_source && m_source->isStoredForm)
        return flag == PropertyConversionFlag::AbsolutePaths ? sourceWithAbsolutePaths() : m_source->cell;
    if (m_source && flag == PropertyConversionFlag::KeepPaths)
        return PropertySetCreator::propertySetToObject(*read(m_source->cell), flag).value_or(QJsonObject());
    if (!set())
        return {};
    if (flag == PropertyConversionFlag::AbsolutePaths && hasGlycanDatabase())
        return toJsonWithAbsoluteGlycans();
    return PropertySetCreator::propertySetToObject(*set(), flag).value_or(QJsonObject());
}

bool KeyValueItem::hasGlycanDatabase() const
{
    const QList<PropertyId> properties = PropertyEditorUtils::propertiesWithGlycanDatabases();
    return std::ranges::any_of(properties, [this](PropertyId id) { return contains(id); });
}

QJsonObject KeyValueItem::toJsonWithAbsoluteGlycans() const
{
    const KPropertySet copy(*set());
    for (const PropertyId id : PropertyEditorUtils::propertiesWithGlycanDatabases()) {
        KProperty &property = copy.property(nameOf(id).toUtf8());
        if (!property.isNull())
            makeGlycansAbsolute(&property);
    }
    return PropertySetCreator::propertySetToObject(copy, PropertyConversionFlag::AbsolutePaths)
        .value_or(QJsonObject());
}

void KeyValueItem::makeGlycansAbsolute(KProperty *property) const
{
    QJsonObject object = PropertyEditorJsonUtils::variantToObject(property->value());
    PropertyEditorUtils::updateGlycanDatabaseToAbsolute(m_baseUrl, &object);
    property->setValue(QJsonDocument(object).toJson());
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
    // Each load renews the stamp in it, and so writes the text anew.
    ORV_RETURN_IF_ERROR(WflwMetaData::faultInText(json.value(META_IN_JSON_KEY).toString()));
    ORV_RETURN_IF_ERROR(BaseItem::assignFromJson(json, options));
    m_set.reset();
    m_source.reset();
    m_hasRenamed = false;
    const bool skipsType = options.testFlag(ValidationOption::SkipTypeValidation);
    const std::optional<BaseItemType> expected = skipsType ? std::nullopt : std::optional(type());
    if (const std::optional<PropertyIdSet> ids = PropertySetCreator::propertiesInStoredForm(json, expected)) {
        const QByteArray stamp = json.value(META_IN_JSON_KEY).toString().toUtf8();
        keepUnread(json, QString::fromUtf8(WflwMetaData::restamped(stamp)));
        m_source->isStoredForm = true;
        m_source->ids = *ids;
        return Error::NoError;
    }
    Result<KPropertySet *> set = PropertySetCreator::objectToPropertySet(json, expected, context);
    if (set.hasError())
        return set.ecatch();
    m_set.reset(*set);
    // A document may have many cells of a later version, and nobody looks into them.
    if (skipsType && type() == BaseItemType::Unknown && nothingWasDropped(json)) {
        keepUnread(json, m_set->propertyValue(META_KEY.data()).toString());
        m_set.reset();
    }
    if (m_set && !m_baseUrl.isEmpty())
        applyBaseUrl();
    return Error::NoError;
}

void KeyValueItem::setBaseUrl(const QUrl &url)
{
    m_baseUrl = url;
    if (m_set)
        applyBaseUrl();
}

void KeyValueItem::applyBaseUrl() const
{
    for (KPropertySetIterator it(*set()); it.current(); ++it) {
        if (it.current()->type() == PropertiesTraits::ResourceReferenceType)
            it.current()->setOption(kbaseUrl, m_baseUrl);
    }
}

void KeyValueItem::clear()
{
    if (count() == 0)
        return;
    editedSet()->clear();
    m_hasRenamed = false;
    announce(
        this, [this] { Q_EMIT countChanged(count()); }, [this] { Q_EMIT changed(); });
}

int KeyValueItem::count() const
{
    return isUnread() ? int(unreadKeys().size()) : set() ? set()->count() : 0;
}

QStringList KeyValueItem::keys() const
{
    if (isUnread())
        return unreadKeys();
    QStringList keys;
    if (!set())
        return keys;
    keys.reserve(count());
    for (KPropertySetIterator it(*set()); it.current(); ++it)
        keys.append(textOf(*it.current()));
    return keys;
}

bool KeyValueItem::has(const QByteArray &name) const
{
    if (const std::optional<PropertyId> id = unreadId(QString::fromUtf8(name)))
        return m_source->ids.test(size_t(*id));
    return mayHold(name) && set() && set()->contains(name);
}

const KProperty *KeyValueItem::holderOf(const QByteArray &name) const
{
    if (has(name))
        return &set()->property(name);
    if (!m_hasRenamed)
        return nullptr;
    for (KPropertySetIterator it(*set()); it.current(); ++it) {
        if (it.current()->name().toLower() == name.toLower())
            return it.current();
    }
    return nullptr;
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
    if (const std::optional<PropertyId> id = unreadId(key))
        return unreadValue(*id);
    const QByteArray name = key.toUtf8();
    return mayHold(name) && set() ? set()->propertyValue(name) : QVariant();
}

QVariant KeyValueItem::value(PropertyId id) const
{
    return value(nameOf(id));
}

int KeyValueItem::type(const QString &key) const
{
    const QByteArray name = key.toUtf8();
    return has(name) ? set()->property(name).type() : 0;
}

bool KeyValueItem::insert(const QString &key, const QVariant &value, int type)
{
    return insert(key, {}, value, type, {});
}

bool KeyValueItem::insert(const QString &key, const QString &group, const QVariant &value, int type,
                          const QString &keyBefore)
{
    if (!set() || holderOf(key.toUtf8()))
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
    if (!isStorable(*property))
        return false;
    if (keyBefore.isEmpty())
        KPropertySetUtils::insertInKPropertySet(group, property.release(), editedSet(), -1);
    else
        KPropertySetUtils::insertBehind(keyBefore, group, property.release(), editedSet());
    announce(
        this, [&] { Q_EMIT inserted(key, value); }, [&] { Q_EMIT inserted(key, group, value); },
        [this] { Q_EMIT countChanged(count()); }, [this] { Q_EMIT changed(); });
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
    KProperty &property = editedSet()->property(name);
    const KProperty *namesake = holderOf(newKey.toUtf8());
    if (newKey.isEmpty() || (namesake && namesake != &property)) {
        qCWarning(propertyEditorLog) << "Cannot give" << key << "the name of" << newKey
                                     << (newKey.isEmpty() ? "which is empty" : "which is there");
        return false;
    }
    const KProperty replacement(newKey.toUtf8(), value, QString(), QString(), type);
    if (!isStorable(replacement))
        return false;
    m_hasRenamed = m_hasRenamed || newKey != key;
    property = replacement;
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
    editedSet()->removeProperty(name);
    announce(
        this, [&] { Q_EMIT removed(key); }, [this] { Q_EMIT countChanged(count()); },
        [this] { Q_EMIT changed(); });
    return true;
}

bool KeyValueItem::remove(const QStringList &keys)
{
    const QPointer<KeyValueItem> alive(this);
    return std::ranges::all_of(keys, [&](const QString &key) { return alive && remove(key); });
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
    KProperty &property = editedSet()->property(name);
    if (property.type() == KProperty::ValueFromList)
        return setListValue(key, &property, value);
    const QVariant old = property.value();
    // A copy: the caller's value may lie in what a listener removes.
    const QVariant stored = value;
    if (!setPlainValue(&property, stored))
        return false;
    announce(
        this, [&] { Q_EMIT valueChanged(key, stored, old); }, [this] { Q_EMIT changed(); });
    return true;
}

bool KeyValueItem::isStorable(const KProperty &property)
{
    // Parameter files of the engine give a peak filter as bare text; saving tells of one that is left so.
    const bool isBareText =
        property.value().typeId() == QMetaType::QString &&
        textOf(property) == PropertiesNames::internalNameForType(PropertyId::KarvonPeakFilterSelected);
    const bool isStorable = isBareText || PropertySetCreator::canStore(property);
    if (!isStorable) {
        qCWarning(propertyEditorLog) << "A file can't hold the value" << property.value() << "of"
                                     << textOf(property);
    }
    return isStorable;
}

bool KeyValueItem::setPlainValue(KProperty *property, const QVariant &value)
{
    constexpr int kFirstUserMetaType = QMetaType::User;
    const bool takesType = value.typeId() < kFirstUserMetaType && property->type() < KProperty::UserDefined;
    const int type = takesType ? value.typeId() : property->type();
    if (!isStorable(KProperty(property->name(), value, QString(), QString(), type)))
        return false;
    property->setType(type);
    property->setValue(value);
    return true;
}

Error KeyValueItem::checkWritable() const
{
    if (!m_set)
        return Error::NoError;
    for (KPropertySetIterator it(*m_set); it.current(); ++it) {
        const KProperty &property = *it.current();
        if (!textOf(property).startsWith(QLatin1Char(':')) &&
            PropertySetCreator::valueToJson(property, PropertyConversionFlag::KeepPaths).isUndefined()) {
            return Error(ErrorCode::InvalidContent,
                         tr("The property \"%1\" can't be written.").arg(textOf(property)))
                .addDetail(tr("A file can't hold its value, which is of the type %1.")
                               .arg(QString::fromLatin1(property.value().typeName())));
        }
    }
    return Error::NoError;
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
    editedSet()->changeProperty(property->name(), text);
    announce(
        this, [&] { Q_EMIT valueChanged(key, text, old); }, [this] { Q_EMIT changed(); });
    return true;
}

QVariant KeyValueItem::option(const QString &key, const QByteArray &name) const
{
    return set() ? set()->property(key.toUtf8()).option(name.constData()) : QVariant();
}

bool KeyValueItem::setOption(const QString &key, const QByteArray &name, const QVariant &value)
{
    const QByteArray property = key.toUtf8();
    if (!warnUnless(has(property), key))
        return false;
    editedSet()->property(property).setOption(name.constData(), value);
    Q_EMIT changed();
    return true;
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
