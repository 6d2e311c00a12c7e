#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

/// A size as two integers.
class KPROPERTYWIDGETS_EXPORT KSizeComposedProperty : public KComposedPropertyInterface
{
public:
    explicit KSizeComposedProperty(KProperty *parent);

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions valueOptions) override;
    void childValueChanged(KProperty *child, const QVariant &value,
                           KProperty::ValueOptions valueOptions) override;
};

class KPROPERTYWIDGETS_EXPORT KPropertySizeDelegate : public KPropertyLabelCreator,
                                                      public KComposedPropertyCreator<KSizeComposedProperty>
{
public:
    KPropertySizeDelegate();

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
