#include "orv/propertyeditor/content/OligoProteinsTableItem.h"

namespace orv::PropertyEditor {

OligoProteinsTableItem::OligoProteinsTableItem()
    : BaseTableItem(BaseItemType::OligoMolecules)
{}

OligoProteinsTableItem::~OligoProteinsTableItem() = default;

PropertyId OligoProteinsTableItem::propertyId() const
{
    return PropertyId::OligoMolecules;
}

} // namespace orv::PropertyEditor
