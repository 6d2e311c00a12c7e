#include "orv/propertyeditor/content/IsotopeTableItem.h"

namespace orv::PropertyEditor {

IsotopeTableItem::IsotopeTableItem()
    : BaseTableItem(BaseItemType::Isotope)
{}

IsotopeTableItem::~IsotopeTableItem() = default;

PropertyId IsotopeTableItem::propertyId() const
{
    return PropertyId::Isotope;
}

} // namespace orv::PropertyEditor
