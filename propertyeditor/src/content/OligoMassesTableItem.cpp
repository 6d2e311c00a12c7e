#include "orv/propertyeditor/content/OligoMassesTableItem.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

namespace orv::PropertyEditor {

namespace {

/// Reads the payload of a property into \a target, unless the cell lacks it.
template<typename T>
Error readPayload(const QJsonObject &cell, PropertyId id, T *target)
{
    const QJsonObject entry = PropertyEditorJsonUtils::getPropertyWithType(cell, id);
    if (entry.isEmpty())
        return Error::NoError;
    Result<T> payload = T::fromJson(PropertyEditorJsonUtils::propValueObject(entry));
    if (payload.hasError())
        return payload.ecatch();
    *target = std::move(payload).value();
    return Error::NoError;
}

} // namespace

OligoMassesTableItem::OligoMassesTableItem()
    : MassesTableItem(BaseItemType::OligoMasses, {PropertyId::Tolerances, PropertyId::OligoImpurities})
{}

OligoMassesTableItem::~OligoMassesTableItem() = default;

QJsonObject OligoMassesTableItem::toJson(PropertyConversionFlag flag) const
{
    QJsonObject json = MassesTableItem::toJson(flag);
    appendProperty(&json, PropertyId::Tolerances, m_tolerances.toJson());
    appendProperty(&json, PropertyId::OligoImpurities, m_impurities.toJson());
    return json;
}

Error OligoMassesTableItem::load(const QJsonObject &json, ValidationOptions options,
                                 const LoadContext &context)
{
    ORV_RETURN_IF_ERROR(MassesTableItem::load(json, options, context));
    ORV_RETURN_IF_ERROR(readPayload(json, PropertyId::Tolerances, &m_tolerances));
    ORV_RETURN_IF_ERROR(readPayload(json, PropertyId::OligoImpurities, &m_impurities));
    return Error::NoError;
}

void OligoMassesTableItem::clear()
{
    m_tolerances = {};
    m_impurities = {};
    MassesTableItem::clear();
}

} // namespace orv::PropertyEditor
