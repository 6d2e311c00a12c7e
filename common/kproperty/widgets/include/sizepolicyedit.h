#pragma once

#include "KPropertyListData.h"
#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

/// A size policy as two choices and two stretch factors.
class KPROPERTYWIDGETS_EXPORT KSizePolicyComposedProperty : public KComposedPropertyInterface
{
public:
    explicit KSizePolicyComposedProperty(KProperty *parent);

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions valueOptions) override;
    void childValueChanged(KProperty *child, const QVariant &value,
                           KProperty::ValueOptions valueOptions) override;
    bool valuesEqual(const QVariant &first, const QVariant &second) override;
};

class KPROPERTYWIDGETS_EXPORT KPropertySizePolicyDelegate
    : public KPropertyLabelCreator,
      public KComposedPropertyCreator<KSizePolicyComposedProperty>
{
public:
    KPropertySizePolicyDelegate();

    QString valueToString(const QVariant &value, const QLocale &locale) const override;

    /// The policies by number, with their names.
    static const KPropertyListData &listData();
};
