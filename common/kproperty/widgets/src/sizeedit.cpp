#include "sizeedit.h"

#include "internal/ComposedFields.h"

#include <QSize>

namespace {

const Internal::ComposedField<QSize> kQSizeFields[] = {
    {"width", Internal::kWidth, Internal::kWidth, KProperty::UInt,
     [](const QSize &v) { return QVariant(v.width()); },
     [](const QVariant &part, QSize *v) { v->setWidth(part.toInt()); }},
    {"height", Internal::kHeight, Internal::kHeight, KProperty::UInt,
     [](const QSize &v) { return QVariant(v.height()); },
     [](const QVariant &part, QSize *v) { v->setHeight(part.toInt()); }},
};

} // namespace

KSizeComposedProperty::KSizeComposedProperty(KProperty *parent)
    : KComposedPropertyInterface(parent)
{
    Internal::createChildren(kQSizeFields, parent);
}

void KSizeComposedProperty::setValue(KProperty *property, const QVariant &value,
                                     KProperty::ValueOptions valueOptions)
{
    Internal::writeChildren(kQSizeFields, property, value, valueOptions);
}

void KSizeComposedProperty::childValueChanged(KProperty *child, const QVariant &value,
                                              KProperty::ValueOptions valueOptions)
{
    Internal::writeParent(kQSizeFields, child, value, valueOptions);
}

KPropertySizeDelegate::KPropertySizeDelegate() = default;

QString KPropertySizeDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const QSize v = value.toSize();
    return QStringLiteral("%1x%2").arg(Internal::partText(v.width(), locale),
                                       Internal::partText(v.height(), locale));
}
