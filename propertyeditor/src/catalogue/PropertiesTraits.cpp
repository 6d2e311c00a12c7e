#include "orv/propertyeditor/PropertiesTraits.h"

#include <KProperty>
#include <orv/propertyeditor/UserVisibleListConverter.h>

#include <QMetaType>

namespace orv {

using namespace Qt::StringLiterals;

namespace {

static_assert(PropertiesTraits::ObjectType == int(KProperty::UserDefined));

using FeaturesByName = QHash<QString, PropertiesTraits::TypeFeatures>;

const FeaturesByName &featuresByName()
{
    static const FeaturesByName features = {
        {u"3state"_s, {KProperty::Bool, {{"3State", true}}}},
        {u"list"_s, {KProperty::ValueFromList, {}}},
        {u"map"_s, {KProperty::Map, {}}},
        {u"penstyle"_s, {KProperty::LineStyle, {}}},
        {u"multiLine"_s, {KProperty::String, {{"multiLine", true}}}},
        {u"object"_s,
         {PropertiesTraits::ObjectType, {{"selectButton", true}, {"readOnlyInternalEditor", true}}}},
        {u"ResourceReference"_s, {PropertiesTraits::ResourceReferenceType, {}}},
        {u"CheckableList"_s, {PropertiesTraits::CheckableListType, {{"displaySeparator", u""_s}}}},
    };
    return features;
}

/// Types that are registered at run time have numbers that differ from start to start; they count as one.
int metaTypeOf(const QString &typeName)
{
    return qMin(QMetaType::fromName(typeName.toUtf8()).id(), int(QMetaType::User));
}

} // namespace

PropertiesTraits::TypeFeatures PropertiesTraits::typeFeatures(const QString &typeName)
{
    const auto found = featuresByName().constFind(typeName);
    if (found != featuresByName().cend())
        return *found;
    return {typeName.isEmpty() ? 0 : metaTypeOf(typeName), {}};
}

bool PropertiesTraits::isEditableList(PropertyId id)
{
    return UserVisibleListConverter::isEditableList(id);
}

bool PropertiesTraits::isStringSerializableList(PropertyId id)
{
    return UserVisibleListConverter::isStringSerializableList(id);
}

} // namespace orv
