#include "RealGeometry.h"

#include "ComposedFields.h"
#include "NumberOptions.h"

#include <QPointF>
#include <QSizeF>

namespace Internal {

namespace {

const ComposedField<QPointF> kQPointFFields[] = {
    {"x", kX, kXDescription, KProperty::Double, [](const QPointF &v) { return QVariant(v.x()); },
     [](const QVariant &part, QPointF *v) { v->setX(part.toDouble()); }},
    {"y", kY, kYDescription, KProperty::Double, [](const QPointF &v) { return QVariant(v.y()); },
     [](const QVariant &part, QPointF *v) { v->setY(part.toDouble()); }},
};

} // namespace

PointFComposedProperty::PointFComposedProperty(KProperty *parent)
    : KComposedPropertyInterface(parent)
{
    createChildren(kQPointFFields, parent);
}

void PointFComposedProperty::setValue(KProperty *property, const QVariant &value,
                                      KProperty::ValueOptions valueOptions)
{
    writeChildren(kQPointFFields, property, value, valueOptions);
}

void PointFComposedProperty::childValueChanged(KProperty *child, const QVariant &value,
                                               KProperty::ValueOptions valueOptions)
{
    writeParent(kQPointFFields, child, value, valueOptions);
}

PointFDelegate::PointFDelegate() = default;

QString PointFDelegate::propertyValueToString(const KProperty *property, const QLocale &locale) const
{
    return NumberText(*property).around(valueToString(property->value(), locale));
}

QString PointFDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const QPointF v = value.toPointF();
    return QStringLiteral("%1, %2").arg(partText(v.x(), locale), partText(v.y(), locale));
}

namespace {

const ComposedField<QSizeF> kQSizeFFields[] = {
    {"width", kWidth, kWidth, KProperty::Double, [](const QSizeF &v) { return QVariant(v.width()); },
     [](const QVariant &part, QSizeF *v) { v->setWidth(part.toDouble()); }},
    {"height", kHeight, kHeight, KProperty::Double, [](const QSizeF &v) { return QVariant(v.height()); },
     [](const QVariant &part, QSizeF *v) { v->setHeight(part.toDouble()); }},
};

} // namespace

SizeFComposedProperty::SizeFComposedProperty(KProperty *parent)
    : KComposedPropertyInterface(parent)
{
    createChildren(kQSizeFFields, parent);
}

void SizeFComposedProperty::setValue(KProperty *property, const QVariant &value,
                                     KProperty::ValueOptions valueOptions)
{
    writeChildren(kQSizeFFields, property, value, valueOptions);
}

void SizeFComposedProperty::childValueChanged(KProperty *child, const QVariant &value,
                                              KProperty::ValueOptions valueOptions)
{
    writeParent(kQSizeFFields, child, value, valueOptions);
}

SizeFDelegate::SizeFDelegate() = default;

QString SizeFDelegate::propertyValueToString(const KProperty *property, const QLocale &locale) const
{
    return NumberText(*property).around(valueToString(property->value(), locale));
}

QString SizeFDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const QSizeF v = value.toSizeF();
    return QStringLiteral("%1x%2").arg(partText(v.width(), locale), partText(v.height(), locale));
}

} // namespace Internal
