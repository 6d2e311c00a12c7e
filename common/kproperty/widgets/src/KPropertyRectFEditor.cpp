#include "KPropertyRectFEditor.h"

#include "internal/ComposedFields.h"
#include "internal/NumberOptions.h"

#include <QRectF>

namespace {

const Internal::ComposedField<QRectF> kQRectFFields[] = {
    {"x", Internal::kX, Internal::kXDescription, KProperty::Double,
     [](const QRectF &v) { return QVariant(v.x()); },
     [](const QVariant &part, QRectF *v) { v->moveLeft(part.toDouble()); }},
    {"y", Internal::kY, Internal::kYDescription, KProperty::Double,
     [](const QRectF &v) { return QVariant(v.y()); },
     [](const QVariant &part, QRectF *v) { v->moveTop(part.toDouble()); }},
    {"width", Internal::kWidth, Internal::kWidth, KProperty::Double,
     [](const QRectF &v) { return QVariant(v.width()); },
     [](const QVariant &part, QRectF *v) { v->setWidth(part.toDouble()); }},
    {"height", Internal::kHeight, Internal::kHeight, KProperty::Double,
     [](const QRectF &v) { return QVariant(v.height()); },
     [](const QVariant &part, QRectF *v) { v->setHeight(part.toDouble()); }},
};

} // namespace

KRectFComposedProperty::KRectFComposedProperty(KProperty *parent)
    : KComposedPropertyInterface(parent)
{
    Internal::createChildren(kQRectFFields, parent);
}

void KRectFComposedProperty::setValue(KProperty *property, const QVariant &value,
                                      KProperty::ValueOptions valueOptions)
{
    Internal::writeChildren(kQRectFFields, property, value, valueOptions);
}

void KRectFComposedProperty::childValueChanged(KProperty *child, const QVariant &value,
                                               KProperty::ValueOptions valueOptions)
{
    Internal::writeParent(kQRectFFields, child, value, valueOptions);
}

KPropertyRectFDelegate::KPropertyRectFDelegate() = default;

QString KPropertyRectFDelegate::propertyValueToString(const KProperty *property, const QLocale &locale) const
{
    return Internal::NumberText(*property).around(valueToString(property->value(), locale));
}

QString KPropertyRectFDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const QRectF v = value.toRectF();
    return QStringLiteral("%1, %2, %3x%4")
        .arg(Internal::partText(v.x(), locale), Internal::partText(v.y(), locale),
             Internal::partText(v.width(), locale), Internal::partText(v.height(), locale));
}
