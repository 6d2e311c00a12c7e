// Cells whose properties nobody has asked for.
#include <KPropertySet>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

QString nameOfEntry(const QJsonValue &entry)
{
    return entry.toObject().value(NAME_KEY).toString();
}

const PropertyIdSet &glycanDatabases()
{
    static const PropertyIdSet ids = [] {
        PropertyIdSet found;
        for (const PropertyId id : PropertyEditorUtils::propertiesWithGlycanDatabases())
            found.set(size_t(id));
        return found;
    }();
    return ids;
}

/// The properties that are written otherwise with absolute paths.
const PropertyIdSet &propertiesWithPaths()
{
    static const PropertyIdSet ids = [] {
        PropertyIdSet found = glycanDatabases();
        for (int id = 0; id < kPropertyCount; ++id) {
            if (int(PropertiesNames::valueTypeOfPropertyType(PropertyId(id))) ==
                PropertiesTraits::ResourceReferenceType)
                found.set(size_t(id));
        }
        return found;
    }();
    return ids;
}

} // namespace

void KeyValueItem::keepUnread(const QJsonObject &json, const QString &stamp)
{
    m_source = Source{json, false, {}, -1};
    m_source->cell.insert(META_IN_JSON_KEY, stamp);
}

// Another reading would tell again of what was dropped.
bool KeyValueItem::nothingWasDropped(const QJsonObject &json) const
{
    const qsizetype members = json.size() - 1 + (json.contains(META_IN_JSON_KEY) ? 0 : 1);
    return m_set->count() == members + json.value(PROPERTIES_KEY).toArray().size();
}

std::unique_ptr<KPropertySet> KeyValueItem::read(const QJsonObject &json)
{
    Result<KPropertySet *> set = PropertySetCreator::objectToPropertySet(json, std::nullopt);
    std::unique_ptr<KPropertySet> owned(set.hasError() ? new KPropertySet : *set);
    // The stamp is that of the load.
    owned->property(META_KEY.data()).setValue(json.value(META_IN_JSON_KEY).toString().toUtf8());
    return owned;
}

const KPropertySet *KeyValueItem::set() const
{
    if (!m_set && m_source) {
        m_set = read(m_source->cell);
        if (!m_source->isStoredForm)
            m_source.reset();
        applyBaseUrl();
    }
    return m_set.get();
}

KPropertySet *KeyValueItem::editedSet() const
{
    (void)set();
    m_source.reset();
    return m_set.get();
}

bool KeyValueItem::mayHold(const QByteArray &name) const
{
    if (m_set || !m_source || name.startsWith(':'))
        return true;
    const QJsonArray entries = m_source->cell.value(PROPERTIES_KEY).toArray();
    return std::ranges::any_of(entries, [&name](const QJsonValue &entry) {
        const PropertyId id =
            PropertyEditorJsonUtils::findPropertyBackCompat(nameOfEntry(entry), BaseItemType::Unknown);
        return PropertiesNames::internalNameForType(id).toUtf8().compare(name, Qt::CaseInsensitive) == 0;
    });
}

bool KeyValueItem::isUnread() const
{
    return !m_set && m_source && m_source->isStoredForm;
}

std::optional<PropertyId> KeyValueItem::unreadId(const QString &key) const
{
    const PropertyId id = isUnread() ? PropertiesNames::findPropertyForName(key) : PropertyId::NoProperty;
    return id != PropertyId::NoProperty && PropertiesNames::internalNameForType(id) == key ? std::optional(id)
                                                                                           : std::nullopt;
}

QStringList KeyValueItem::unreadKeys() const
{
    QStringList keys;
    for (const QLatin1String member : {META_IN_JSON_KEY, NAME_KEY, TITLE_KEY, TYPE_KEY}) {
        if (m_source->cell.contains(member))
            keys.append(QLatin1Char(':') + member);
    }
    const QJsonArray entries = m_source->cell.value(PROPERTIES_KEY).toArray();
    keys.reserve(keys.size() + entries.size());
    for (const auto entry : entries)
        keys.append(nameOfEntry(entry));
    return keys;
}

QVariant KeyValueItem::unreadValue(PropertyId id) const
{
    if (!m_source->ids.test(size_t(id)))
        return {};
    const QJsonArray entries = m_source->cell.value(PROPERTIES_KEY).toArray();
    const QString name = PropertiesNames::internalNameForType(id);
    // Most callers go from one to the next.
    for (qsizetype step = 0; step < entries.size(); ++step) {
        const qsizetype position = (m_source->lastRead + 1 + step) % entries.size();
        const QJsonObject entry = entries.at(position).toObject();
        if (entry.value(NAME_KEY).toString() == name) {
            m_source->lastRead = position;
            return PropertySetCreator::valueFromJson(id, entry.value(VALUE_KEY)).value_or(QVariant());
        }
    }
    return {};
}

Result<std::unique_ptr<BaseItem>> KeyValueItem::copied(PropertyConversionFlag flag) const
{
    if (!m_source || !m_source->isStoredForm)
        return BaseItem::copied(flag);
    auto copy = std::make_unique<KeyValueItem>(type());
    Source source = *m_source;
    source.cell = toJson(flag);
    // As a load does it, which other copies go through.
    const QByteArray stamp = source.cell.value(META_IN_JSON_KEY).toString().toUtf8();
    source.cell.insert(META_IN_JSON_KEY, QString::fromUtf8(WflwMetaData::restamped(stamp)));
    ORV_RETURN_IF_ERROR(copy->BaseItem::assignFromJson(source.cell, ValidationOption::SkipTypeValidation));
    copy->m_source = std::move(source);
    return std::unique_ptr<BaseItem>(std::move(copy));
}

QJsonObject KeyValueItem::sourceWithAbsolutePaths() const
{
    QJsonObject cell = m_source->cell;
    if ((m_source->ids & propertiesWithPaths()).none())
        return cell;
    QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        QJsonObject entry = entries.at(i).toObject();
        const PropertyId id = PropertiesNames::findPropertyForName(entry.value(NAME_KEY).toString());
        if (!propertiesWithPaths().test(size_t(id)))
            continue;
        KProperty property;
        QStringList errors;
        (void)PropertySetCreator::modifyKProperty(id, PropertySetCreator::Priority::High,
                                                  entry.value(VALUE_KEY), &property, &errors);
        property.setOption(kbaseUrl, m_baseUrl);
        if (glycanDatabases().test(size_t(id)))
            makeGlycansAbsolute(&property);
        entry.insert(VALUE_KEY,
                     PropertySetCreator::valueToJson(property, PropertyConversionFlag::AbsolutePaths));
        entries.replace(i, entry);
    }
    cell.insert(PROPERTIES_KEY, entries);
    return cell;
}

} // namespace orv::PropertyEditor
