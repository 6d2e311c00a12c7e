#include "StampedCells.h"

#include <KProperty>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

namespace orv {

using namespace PropertyEditorStringConstants;

QJsonArray stampedCells(const VariantItems &cells, const QString &stamp)
{
    QJsonArray array;
    for (const QVariant &cell : cells) {
        QJsonObject object = RawCell::objectOf(cell);
        object.insert(META_IN_JSON_KEY, stamp);
        array.append(object);
    }
    return array;
}

namespace PropertyEditorJsonUtils {

VariantItems jsonArrayToVariantItems(const QJsonArray &array)
{
    VariantItems items;
    items.reserve(array.size());
    for (const auto element : array)
        items.append(RawCell(element.toObject()).toVariant());
    return items;
}

QJsonArray variantItemsToJsonArray(const VariantItems &items)
{
    return stampedCells(items, QString::fromUtf8(WflwMetaData::metaDataString(KProperty())));
}

QStringList jsonArrayToStringList(const QJsonArray &array)
{
    QStringList list;
    list.reserve(array.size());
    for (const auto element : array)
        list.append(element.toString());
    return list;
}

QJsonArray stringListToJsonArray(const QStringList &list)
{
    return QJsonArray::fromStringList(list);
}

QJsonObject variantToObject(const QVariant &value)
{
    return RawCell::objectOf(value);
}

} // namespace PropertyEditorJsonUtils

} // namespace orv
