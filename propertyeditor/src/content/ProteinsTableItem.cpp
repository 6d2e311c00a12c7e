#include "orv/propertyeditor/content/ProteinsTableItem.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

namespace orv::PropertyEditor {

ProteinsTableItem::ProteinsTableItem()
    : BaseTableItem(BaseItemType::Proteins, {{}, {}, {kProteinAnnotations}})
{}

ProteinsTableItem::~ProteinsTableItem() = default;

PropertyId ProteinsTableItem::propertyId() const
{
    return PropertyId::Proteins;
}

void ProteinsTableItem::setContent(const ProteinsContent &content)
{
    rootNode() = content.root;
    m_annotations = content.annotations;
    Q_EMIT changed();
}

QJsonObject ProteinsTableItem::toJson(PropertyConversionFlag flag) const
{
    QJsonObject value = PropertyEditorJsonUtils::rowNodeToObject(rootNode());
    value.insert(kProteinAnnotations, ProteinAnnotationEntry::listToJson(m_annotations));
    return cellWithValue(flag, value);
}

Error ProteinsTableItem::load(const QJsonObject &json, ValidationOptions options, const LoadContext &context)
{
    m_annotations.clear();
    ORV_RETURN_IF_ERROR(BaseTableItem::load(json, options, context));
    Result<QJsonObject> entry = mainEntry(json);
    if (entry.hasError())
        return entry.ecatch();
    const QJsonValue annotations =
        PropertyEditorJsonUtils::propValueObject(*entry).value(kProteinAnnotations);
    Result<QList<ProteinAnnotationEntry>> list = ProteinAnnotationEntry::listFromJson(annotations.toArray());
    if (list.hasError())
        return list.ecatch();
    m_annotations = std::move(list).value();
    return Error::NoError;
}

void ProteinsTableItem::clear()
{
    m_annotations.clear();
    BaseTableItem::clear();
}

} // namespace orv::PropertyEditor
