#include "orv/propertyeditor/content/IntactOptionsTableItem.h"

namespace orv::PropertyEditor {

IntactOptionsTableItem::IntactOptionsTableItem()
    : BaseTableItem(BaseItemType::IntactOptions)
{}

IntactOptionsTableItem::~IntactOptionsTableItem() = default;

PropertyId IntactOptionsTableItem::propertyId() const
{
    return PropertyId::IntactOptions;
}

} // namespace orv::PropertyEditor
