#include "orv/propertyeditor/content/SequenceDatabasesTableItem.h"

#include "TableLosses.h"

#include <orv/propertyeditor/content/SequenceDatabaseItems.h>
#include <orv/resources/ResourceReferenceUtils.h>

namespace orv::PropertyEditor {

SequenceDatabasesTableItem::SequenceDatabasesTableItem()
    : BaseTableItem(BaseItemType::Database)
{}

SequenceDatabasesTableItem::~SequenceDatabasesTableItem() = default;

PropertyId SequenceDatabasesTableItem::propertyId() const
{
    return PropertyId::SequenceDatabases;
}

QJsonObject SequenceDatabasesTableItem::toJson(PropertyConversionFlag flag) const
{
    QList<SequenceDatabaseItem> items = m_items;
    if (flag == PropertyConversionFlag::AbsolutePaths && baseUrl().isValid()) {
        for (SequenceDatabaseItem &item : items) {
            if (ResourceReferenceUtils::isRelative(item.fastaReference()))
                item.setFastaReference(ResourceReferenceUtils::resolved(item.fastaReference(), baseUrl()));
        }
    }
    return cellWithValue(flag, SequenceDatabaseItems::toJson(items));
}

Error SequenceDatabasesTableItem::load(const QJsonObject &json, ValidationOptions options,
                                       const LoadContext &context)
{
    m_items.clear();
    ORV_RETURN_IF_ERROR(assignCommon(json, options));
    Result<QJsonObject> entry = mainEntry(json);
    if (entry.hasError())
        return entry.ecatch();
    Result<QList<SequenceDatabaseItem>> items = SequenceDatabaseItems::fromJson(*entry);
    if (items.hasError())
        return items.ecatch();
    m_items = std::move(items).value();
    if (context.isObserved())
        reportTableLosses(context, json, {PropertyId::NoProperty, {}, {}, {}, {propertyId()}});
    return announceReset();
}

void SequenceDatabasesTableItem::clear()
{
    m_items.clear();
    BaseTableItem::clear();
}

} // namespace orv::PropertyEditor
