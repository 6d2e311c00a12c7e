#include "rectedit.h"

#include "internal/ComposedFields.h"

#include <QRect>

namespace {

const Internal::ComposedField<QRect> kQRectFields[] = {
    {"x", Internal::kX, Internal::kXDescription, KProperty::Int,
     [](const QRect &v) { return QVariant(v.x()); },
     [](const QVariant &part, QRect *v) { v->moveLeft(part.toInt()); }},
    {"y", Internal::kY, Internal::kYDescription, KProperty::Int,
     [](const QRect &v) { return QVariant(v.y()); },
     [](const QVariant &part, QRect *v) { v->moveTop(part.toInt()); }},
    {"width", Internal::kWidth, Internal::kWidth, KProperty::UInt,
     [](const QRect &v) { return QVariant(v.width()); },
     [](const QVariant &part, QRect *v) { v->setWidth(part.toInt()); }},
    {"height", Internal::kHeight, Internal::kHeight, KProperty::UInt,
     [](const QRect &v) { return QVariant(v.height()); },
     [](const QVariant &part, QRect *v) { v->setHeight(part.toInt()); }},
};

} // namespace

KRectComposedProperty::KRectComposedProperty(KProperty *parent)
    : KComposedPropertyInterface(parent)
{
    Internal::createChildren(kQRectFields, parent);
}

void KRectComposedProperty::setValue(KProperty *property, const QVariant &value,
                                     KProperty::ValueOptions valueOptions)
{
    Internal::writeChildren(kQRectFields, property, value, valueOptions);
}

void KRectComposedProperty::childValueChanged(KProperty *child, const QVariant &value,
                                              KProperty::ValueOptions valueOptions)
{
    Internal::writeParent(kQRectFields, child, value, valueOptions);
}

KPropertyRectDelegate::KPropertyRectDelegate() = default;

QString KPropertyRectDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const QRect v = value.toRect();
    return QStringLiteral("%1, %2, %3x%4")
        .arg(Internal::partText(v.x(), locale), Internal::partText(v.y(), locale),
             Internal::partText(v.width(), locale), Internal::partText(v.height(), locale));
}
