#include "orv/propertyeditor/content/OligoOptionsTableItem.h"

namespace orv::PropertyEditor {

OligoOptionsTableItem::OligoOptionsTableItem()
    : BaseTableItem(BaseItemType::OligoOptions)
{}

OligoOptionsTableItem::~OligoOptionsTableItem() = default;

PropertyId OligoOptionsTableItem::propertyId() const
{
    return PropertyId::OligoOptions;
}

} // namespace orv::PropertyEditor
