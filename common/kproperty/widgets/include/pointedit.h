#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

/// A point as two integers.
class KPROPERTYWIDGETS_EXPORT KPointComposedProperty : public KComposedPropertyInterface
{
public:
    explicit KPointComposedProperty(KProperty *parent);

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions valueOptions) override;
    void childValueChanged(KProperty *child, const QVariant &value,
                           KProperty::ValueOptions valueOptions) override;
};

class KPROPERTYWIDGETS_EXPORT KPropertyPointDelegate : public KPropertyLabelCreator,
                                                       public KComposedPropertyCreator<KPointComposedProperty>
{
public:
    KPropertyPointDelegate();

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
