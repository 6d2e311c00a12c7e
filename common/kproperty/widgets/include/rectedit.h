#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

/// A rectangle as four integers.
class KPROPERTYWIDGETS_EXPORT KRectComposedProperty : public KComposedPropertyInterface
{
public:
    explicit KRectComposedProperty(KProperty *parent);

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions valueOptions) override;
    void childValueChanged(KProperty *child, const QVariant &value,
                           KProperty::ValueOptions valueOptions) override;
};

class KPROPERTYWIDGETS_EXPORT KPropertyRectDelegate : public KPropertyLabelCreator,
                                                      public KComposedPropertyCreator<KRectComposedProperty>
{
public:
    KPropertyRectDelegate();

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
