#include "PropertyValueForms.h"

#include <KPropertySet>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/KPropertySetUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

using Lists = UserVisibleListConverter;

bool isStoredSwitch(const QJsonValue &value, PropertyId)
{
    const QString text = value.toString();
    return text == QLatin1String("true") || text == QLatin1String("false");
}

bool isStoredInt(const QJsonValue &value, PropertyId)
{
    if (!value.isDouble())
        return false;
    const double number = value.toDouble();
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max() &&
           std::trunc(number) == number && !(number == 0 && std::signbit(number));
}

/// Whether writing the number gives the text again, told without making the number: at most six digits, none
/// of them idle, and no exponent needed.
bool isShortDecimal(QStringView text)
{
    constexpr qsizetype kDigits = 6;
    constexpr qsizetype kZerosBehindPoint = 3;
    if (text.startsWith(u'-'))
        text = text.sliced(1);
    const qsizetype point = text.indexOf(u'.');
    const QStringView whole = point < 0 ? text : text.first(point);
    const QStringView part = point < 0 ? QStringView() : text.sliced(point + 1);
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (whole.isEmpty() || (whole.size() > 1 && whole.front() == u'0') || (point >= 0 && part.isEmpty()) ||
        part.endsWith(u'0') || !std::ranges::all_of(whole, isDigit) || !std::ranges::all_of(part, isDigit))
        return false;
    if (whole != u"0")
        return whole.size() + part.size() <= kDigits;
    const auto zeros = std::ranges::find_if(part, [](QChar c) { return c != u'0'; }) - part.begin();
    return zeros <= kZerosBehindPoint && part.size() - zeros <= kDigits;
}

bool isStoredDouble(const QJsonValue &value, PropertyId)
{
    const QString text = value.toString();
    // Zero with a sign is left to those who read it.
    return isShortDecimal(text) && text != QLatin1String("-0");
}

bool isStoredText(const QJsonValue &value, PropertyId)
{
    return value.isString();
}

bool isStoredList(const QJsonValue &value, PropertyId id)
{
    if (const auto texts = Lists::listItemsMap().constFind(id); texts != Lists::listItemsMap().cend()) {
        if (Lists::isStringSerializableList(id))
            return value.isString() && texts->contains(value.toString());
        return isStoredInt(value, id) && value.toInt() >= 0 && value.toInt() < texts->size();
    }
    if (Lists::associativeListItemsMap().contains(id))
        return isStoredInt(value, id) && !Lists::isStringSerializableList(id);
    return Lists::associativeStringListItemsMap().contains(id) && value.isString();
}

bool isStoredObject(const QJsonValue &value, PropertyId id)
{
    const QJsonObject object = value.toObject();
    const bool hasEditor = PropertySetCreator::editorForProperty(id) != PropertySetCreator::Editor::Unset;
    return value.isObject() && !(hasEditor && object.value(DATA).isObject());
}

bool isStoredReference(const QJsonValue &value, PropertyId)
{
    const QString text = value.toString();
    if (!value.isString() || text.isEmpty())
        return value.isString();
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    return !reference.hasError() && (*reference)->text() == text;
}

bool areStoredTexts(const QJsonValue &value, PropertyId)
{
    const QJsonArray array = value.toArray();
    return value.isArray() &&
           std::ranges::all_of(array, [](const QJsonValue &element) { return element.isString(); });
}

using Rule = bool (*)(const QJsonValue &value, PropertyId id);

/// Null for types whose values are always read and written anew.
Rule ruleFor(PropertyId id)
{
    const PropertiesTraits::TypeFeatures features =
        PropertiesTraits::typeFeatures(PropertiesNames::valueTypeNameOfPropertyType(id));
    switch (features.type) {
    case KProperty::Bool:
        return features.options.contains(kThreeStateOption) ? nullptr : &isStoredSwitch;
    case KProperty::Int:
        return &isStoredInt;
    case KProperty::Double:
        return &isStoredDouble;
    case KProperty::String:
        return &isStoredText;
    case KProperty::ValueFromList:
        return &isStoredList;
    case PropertiesTraits::ObjectType:
        return &isStoredObject;
    case PropertiesTraits::ResourceReferenceType:
        return &isStoredReference;
    case PropertiesTraits::CheckableListType:
        return &areStoredTexts;
    default:
        return nullptr;
    }
}

const std::array<Rule, kPropertyCount> &rules()
{
    static const auto rules = [] {
        std::array<Rule, kPropertyCount> made{};
        for (int id = 0; id < kPropertyCount; ++id)
            made[size_t(id)] = ruleFor(PropertyId(id));
        return made;
    }();
    return rules;
}

/// Groups have one caption each, the first that stands; that of the group which has none isn't written.
class Captions
{
public:
    bool accept(const QString &caption)
    {
        if (!m_known.empty() && m_known.back().caption == caption)
            return true;
        const QByteArray name = KPropertySetUtils::groupName(caption);
        const auto found = std::ranges::find(m_known, name, &Group::name);
        if (found != m_known.end())
            return found->caption == caption;
        if (caption.isEmpty() || name == KPropertySetUtils::groupName({}) || caption == generalCaption())
            return false;
        m_known.push_back({name, caption});
        return true;
    }

private:
    struct Group
    {
        QByteArray name;
        QString caption;
    };

    static QString generalCaption() { return KPropertySet().groupCaption(KPropertySetUtils::groupName({})); }

    std::vector<Group> m_known;
};

class EntryRules
{
public:
    explicit EntryRules(const std::optional<BaseItemType> &expected)
        : m_allowed(expected ? &allowedProperties(*expected) : nullptr)
    {}

    bool accept(const QJsonObject &entry)
    {
        const QString name = entry.value(NAME_KEY).toString();
        const PropertyId id = PropertiesNames::findPropertyForName(name);
        // Names that lead to another property are those of former formats, or belong to tables.
        if (id == PropertyId::NoProperty || id == PropertyId::DatabaseFile || name == kSamples ||
            m_seen.test(size_t(id)) || (m_allowed && !m_allowed->contains(id)))
            return false;
        m_seen.set(size_t(id));
        const Rule rule = rules()[size_t(id)];
        return rule && rule(entry.value(VALUE_KEY), id) && name == PropertiesNames::internalNameForType(id) &&
               acceptGroupAndPriority(entry);
    }

    [[nodiscard]] const PropertyIdSet &seen() const { return m_seen; }

private:
    bool acceptGroupAndPriority(const QJsonObject &entry)
    {
        constexpr qsizetype kNameValueAndPriority = 3;
        constexpr int kUnset = int(PropertySetCreator::Priority::Unset);
        const QJsonValue priority = entry.value(QLatin1String(kPriorityOption));
        if (!isStoredInt(priority, PropertyId::NoProperty) || priority.toInt() == kUnset)
            return false;
        return entry.size() == kNameValueAndPriority ||
               (entry.size() == kNameValueAndPriority + 1 &&
                m_captions.accept(entry.value(GROUP_KEY).toString()));
    }

    const QSet<PropertyId> *m_allowed;
    PropertyIdSet m_seen;
    Captions m_captions;
};

/// Whether the cell's own members are texts, and only those that each cell has. A stamp that is missing would
/// stand behind the other members.
bool hasPlainMembers(const QJsonObject &cell)
{
    if (!cell.contains(META_IN_JSON_KEY))
        return false;
    qsizetype members = 1;
    for (const QLatin1String key : {META_IN_JSON_KEY, NAME_KEY, TITLE_KEY, TYPE_KEY}) {
        const QJsonValue value = cell.value(key);
        if (!value.isString() && !value.isUndefined())
            return false;
        members += value.isString() ? 1 : 0;
    }
    return cell.size() == members && cell.value(PROPERTIES_KEY).isArray();
}

} // namespace

std::optional<PropertyIdSet>
PropertySetCreator::propertiesInStoredForm(const QJsonObject &cell, const std::optional<BaseItemType> &type)
{
    if (!hasPlainMembers(cell))
        return {};
    EntryRules rules(type);
    const QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    const bool isStored = std::ranges::all_of(
        entries, [&rules](const QJsonValue &entry) { return rules.accept(entry.toObject()); });
    return isStored ? std::optional(rules.seen()) : std::nullopt;
}

} // namespace orv
