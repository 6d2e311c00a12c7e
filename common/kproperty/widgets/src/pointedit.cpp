#include "pointedit.h"

#include "internal/ComposedFields.h"

#include <QPoint>

namespace {

const Internal::ComposedField<QPoint> kQPointFields[] = {
    {"x", Internal::kX, Internal::kXDescription, KProperty::Int,
     [](const QPoint &v) { return QVariant(v.x()); },
     [](const QVariant &part, QPoint *v) { v->setX(part.toInt()); }},
    {"y", Internal::kY, Internal::kYDescription, KProperty::Int,
     [](const QPoint &v) { return QVariant(v.y()); },
     [](const QVariant &part, QPoint *v) { v->setY(part.toInt()); }},
};

} // namespace

KPointComposedProperty::KPointComposedProperty(KProperty *parent)
    : KComposedPropertyInterface(parent)
{
    Internal::createChildren(kQPointFields, parent);
}

void KPointComposedProperty::setValue(KProperty *property, const QVariant &value,
                                      KProperty::ValueOptions valueOptions)
{
    Internal::writeChildren(kQPointFields, property, value, valueOptions);
}

void KPointComposedProperty::childValueChanged(KProperty *child, const QVariant &value,
                                               KProperty::ValueOptions valueOptions)
{
    Internal::writeParent(kQPointFields, child, value, valueOptions);
}

KPropertyPointDelegate::KPropertyPointDelegate() = default;

QString KPropertyPointDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const QPoint v = value.toPoint();
    return QStringLiteral("%1, %2").arg(Internal::partText(v.x(), locale), Internal::partText(v.y(), locale));
}
