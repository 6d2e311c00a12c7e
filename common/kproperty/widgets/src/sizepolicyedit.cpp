#include "sizepolicyedit.h"

#include "internal/ComposedFields.h"

#include <QSizePolicy>

namespace {

QSizePolicy::Policy toPolicy(const QVariant &part)
{
    return static_cast<QSizePolicy::Policy>(part.toInt());
}

const Internal::ComposedField<QSizePolicy> kFields[] = {
    {"hor_policy", QT_TRANSLATE_NOOP("KPropertyComposed", "Hor. Policy"),
     QT_TRANSLATE_NOOP("KPropertyComposed", "Horizontal Policy"), KProperty::ValueFromList,
     [](const QSizePolicy &v) { return QVariant(static_cast<int>(v.horizontalPolicy())); },
     [](const QVariant &part, QSizePolicy *v) { v->setHorizontalPolicy(toPolicy(part)); }},
    {"vert_policy", QT_TRANSLATE_NOOP("KPropertyComposed", "Vert. Policy"),
     QT_TRANSLATE_NOOP("KPropertyComposed", "Vertical Policy"), KProperty::ValueFromList,
     [](const QSizePolicy &v) { return QVariant(static_cast<int>(v.verticalPolicy())); },
     [](const QVariant &part, QSizePolicy *v) { v->setVerticalPolicy(toPolicy(part)); }},
    {"hor_stretch", QT_TRANSLATE_NOOP("KPropertyComposed", "Hor. Stretch"),
     QT_TRANSLATE_NOOP("KPropertyComposed", "Horizontal Stretch"), KProperty::UInt,
     [](const QSizePolicy &v) { return QVariant(v.horizontalStretch()); },
     [](const QVariant &part, QSizePolicy *v) { v->setHorizontalStretch(part.toInt()); }},
    {"vert_stretch", QT_TRANSLATE_NOOP("KPropertyComposed", "Vert. Stretch"),
     QT_TRANSLATE_NOOP("KPropertyComposed", "Vertical Stretch"), KProperty::UInt,
     [](const QSizePolicy &v) { return QVariant(v.verticalStretch()); },
     [](const QVariant &part, QSizePolicy *v) { v->setVerticalStretch(part.toInt()); }},
};

QString policyName(QSizePolicy::Policy policy)
{
    const KPropertyListData &data = KPropertySizePolicyDelegate::listData();
    return data.namesAsStringList().value(data.keys().indexOf(static_cast<int>(policy)));
}

} // namespace

KSizePolicyComposedProperty::KSizePolicyComposedProperty(KProperty *parent)
    : KComposedPropertyInterface(parent)
{
    Internal::createChildren(kFields, parent);
    for (const char *name : {"hor_policy", "vert_policy"}) {
        parent->child(name)->setListData(new KPropertyListData(KPropertySizePolicyDelegate::listData()));
    }
}

void KSizePolicyComposedProperty::setValue(KProperty *property, const QVariant &value,
                                           KProperty::ValueOptions valueOptions)
{
    Internal::writeChildren(kFields, property, value, valueOptions);
}

void KSizePolicyComposedProperty::childValueChanged(KProperty *child, const QVariant &value,
                                                    KProperty::ValueOptions valueOptions)
{
    Internal::writeParent(kFields, child, value, valueOptions);
}

bool KSizePolicyComposedProperty::valuesEqual(const QVariant &first, const QVariant &second)
{
    return first.value<QSizePolicy>() == second.value<QSizePolicy>();
}

KPropertySizePolicyDelegate::KPropertySizePolicyDelegate() = default;

QString KPropertySizePolicyDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    const auto policy = value.value<QSizePolicy>();
    return QStringLiteral("%1, %2, %3, %4")
        .arg(policyName(policy.horizontalPolicy()), policyName(policy.verticalPolicy()),
             Internal::partText(policy.horizontalStretch(), locale),
             Internal::partText(policy.verticalStretch(), locale));
}

const KPropertyListData &KPropertySizePolicyDelegate::listData()
{
    static const KPropertyListData data(
        QVariantList{static_cast<int>(QSizePolicy::Fixed), static_cast<int>(QSizePolicy::Minimum),
                     static_cast<int>(QSizePolicy::Maximum), static_cast<int>(QSizePolicy::Preferred),
                     static_cast<int>(QSizePolicy::Expanding),
                     static_cast<int>(QSizePolicy::MinimumExpanding), static_cast<int>(QSizePolicy::Ignored)},
        QStringList{QCoreApplication::translate("KPropertyComposed", "Fixed"),
                    QCoreApplication::translate("KPropertyComposed", "Minimum"),
                    QCoreApplication::translate("KPropertyComposed", "Maximum"),
                    QCoreApplication::translate("KPropertyComposed", "Preferred"),
                    QCoreApplication::translate("KPropertyComposed", "Expanding"),
                    QCoreApplication::translate("KPropertyComposed", "Minimum Expanding"),
                    QCoreApplication::translate("KPropertyComposed", "Ignored")});
    return data;
}
