#pragma once

#include "KPropertyWidgetsFactory.h"

namespace Internal {

/// A point as two doubles.
class PointFComposedProperty : public KComposedPropertyInterface
{
public:
    explicit PointFComposedProperty(KProperty *parent);

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions valueOptions) override;
    void childValueChanged(KProperty *child, const QVariant &value,
                           KProperty::ValueOptions valueOptions) override;
};

class PointFDelegate : public KPropertyLabelCreator, public KComposedPropertyCreator<PointFComposedProperty>
{
public:
    PointFDelegate();

    QString propertyValueToString(const KProperty *property, const QLocale &locale) const override;
    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};

/// A size as two doubles.
class SizeFComposedProperty : public KComposedPropertyInterface
{
public:
    explicit SizeFComposedProperty(KProperty *parent);

    void setValue(KProperty *property, const QVariant &value, KProperty::ValueOptions valueOptions) override;
    void childValueChanged(KProperty *child, const QVariant &value,
                           KProperty::ValueOptions valueOptions) override;
};

class SizeFDelegate : public KPropertyLabelCreator, public KComposedPropertyCreator<SizeFComposedProperty>
{
public:
    SizeFDelegate();

    QString propertyValueToString(const KProperty *property, const QLocale &locale) const override;
    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};

} // namespace Internal
