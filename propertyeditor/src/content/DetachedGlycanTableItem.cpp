#include "orv/propertyeditor/content/DetachedGlycanTableItem.h"

namespace orv::PropertyEditor {

DetachedGlycanTableItem::DetachedGlycanTableItem()
    : BaseTableItem(BaseItemType::DetachedGlycans)
{}

DetachedGlycanTableItem::~DetachedGlycanTableItem() = default;

PropertyId DetachedGlycanTableItem::propertyId() const
{
    return PropertyId::DetachedGlycans;
}

} // namespace orv::PropertyEditor
