#include "orv/propertyeditor/content/GlycanOptionsItem.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>

namespace orv::PropertyEditor {

GlycanOptionsItem::GlycanOptionsItem()
    : BaseTableItem(BaseItemType::GlycanOptions)
{}

GlycanOptionsItem::~GlycanOptionsItem() = default;

QJsonObject GlycanOptionsItem::toJson(PropertyConversionFlag flag) const
{
    QJsonObject json = BaseTableItem::toJson(flag);
    if (flag == PropertyConversionFlag::AbsolutePaths)
        PropertyEditorUtils::updateGlycanDatabaseToAbsolute(baseUrl(), &json);
    return json;
}

PropertyId GlycanOptionsItem::propertyId() const
{
    return PropertyId::GlycanOptions;
}

} // namespace orv::PropertyEditor
