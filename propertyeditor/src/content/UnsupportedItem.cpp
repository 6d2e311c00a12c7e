#include "orv/propertyeditor/content/UnsupportedItem.h"

namespace orv::PropertyEditor {

UnsupportedItem::~UnsupportedItem() = default;

QJsonObject UnsupportedItem::toJson(PropertyConversionFlag flag) const
{
    Q_UNUSED(flag)
    return m_json;
}

Error UnsupportedItem::assignFromJson(const QJsonObject &json, ValidationOptions options)
{
    Q_UNUSED(options)
    m_json = json;
    Q_EMIT changed();
    return Error::NoError;
}

void UnsupportedItem::clear()
{
    m_json = {};
    Q_EMIT changed();
}

} // namespace orv::PropertyEditor
