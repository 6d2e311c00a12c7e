#include "DocumentComparison.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

QJsonObject metadataWithoutStamp(QJsonObject metadata)
{
    const QStringList stamp = WflwMetaData::metaDataObject(QString()).keys();
    for (const QString &key : stamp)
        metadata.remove(key);
    return metadata;
}

QJsonObject unstampedCell(const QVariant &cell)
{
    QJsonObject object = RawCell::objectOf(cell);
    object.remove(META_IN_JSON_KEY);
    return object;
}

bool areAlike(const QVariant &a, const QVariant &b)
{
    return unstampedCell(a) == unstampedCell(b);
}

bool areAlike(const PropertyEditorContent::Tab &a, const PropertyEditorContent::Tab &b)
{
    const VariantItems &cellsOfA = a.second.second;
    const VariantItems &cellsOfB = b.second.second;
    return a.first == b.first && a.second.first == b.second.first &&
           std::equal(cellsOfA.begin(), cellsOfA.end(), cellsOfB.begin(), cellsOfB.end(),
                      [](const QVariant &x, const QVariant &y) { return areAlike(x, y); });
}

} // namespace

bool differ(const PropertyEditorContent &a, const PropertyEditorContent &b)
{
    if (metadataWithoutStamp(a.metadata()) != metadataWithoutStamp(b.metadata()) ||
        a.extendedMetadataInfo() != b.extendedMetadataInfo())
        return true;
    const PropertyEditorContent::Tabs tabsOfA = a.tabsAndContent();
    const PropertyEditorContent::Tabs tabsOfB = b.tabsAndContent();
    if (tabsOfA.constData() == tabsOfB.constData())
        return tabsOfA.size() != tabsOfB.size();
    return !std::ranges::equal(tabsOfA, tabsOfB, [](const auto &x, const auto &y) { return areAlike(x, y); });
}

} // namespace orv
