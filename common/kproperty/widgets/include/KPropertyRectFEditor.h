#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

/// A rectangle as four doubles.
class KPROPERTYWIDGETS_EXPORT KRectFComposedProperty : public KComposedPropertyInterface
{
public:
    explicit KRectFComposedProperty(KProperty *parent);

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions valueOptions) override;
    void childValueChanged(KProperty *child, const QVariant &value,
                           KProperty::ValueOptions valueOptions) override;
};

class KPROPERTYWIDGETS_EXPORT KPropertyRectFDelegate : public KPropertyLabelCreator,
                                                       public KComposedPropertyCreator<KRectFComposedProperty>
{
public:
    KPropertyRectFDelegate();

    QString propertyValueToString(const KProperty *property, const QLocale &locale) const override;
    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
