#include "ValueTransfer.h"

#include <KProperty.h>
#include <KPropertyListData>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>

namespace orv {

namespace {

PropertyId idOf(const KProperty &property)
{
    return PropertiesNames::findPropertyForName(QString::fromUtf8(property.name()));
}

} // namespace

bool takesValueOf(const KProperty &old, const KProperty &property)
{
    if (old.type() != property.type())
        return false;
    if (old.name() == property.name())
        return true;
    if (const KPropertyListData *list = property.listData())
        return PropertiesTraits::isEditableList(idOf(property)) || list->keys().contains(old.value());
    return old.type() != PropertiesTraits::ObjectType ||
           PropertySetCreator::editorForProperty(idOf(old)) ==
               PropertySetCreator::editorForProperty(idOf(property));
}

} // namespace orv
