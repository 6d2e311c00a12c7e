#pragma once

#include "KProperty.h"
#include "kpropertycore_export.h"

#include <QHash>
#include <QLocale>
#include <QObject>
#include <QString>

#include <memory>

/*! Splits a value into child properties and puts it together again.

    A subclass makes the children in its constructor: new KProperty(..., parent). It is owned by its property.
 */
class KPROPERTYCORE_EXPORT KComposedPropertyInterface
{
public:
    explicit KComposedPropertyInterface(KProperty *parent);
    virtual ~KComposedPropertyInterface();

    /// Writes the children for \a value, with \a valueOptions. The property still has its former value.
    virtual void setValue(KProperty *property, const QVariant &value,
                          KProperty::ValueOptions valueOptions) = 0;

    /// Calls childValueChanged() unless that is switched off.
    void childValueChangedInternal(KProperty *child, const QVariant &value,
                                   KProperty::ValueOptions valueOptions);

    /// Switched off while the property writes its children.
    bool childValueChangedEnabled() const;
    void setChildValueChangedEnabled(bool set);

    /// Exactly, type included. Values that Qt compares otherwise need an override.
    virtual bool valuesEqual(const QVariant &first, const QVariant &second);

protected:
    /// Puts \a value of \a child into the value of its parent. The child still has its former value.
    virtual void childValueChanged(KProperty *child, const QVariant &value,
                                   KProperty::ValueOptions valueOptions) = 0;

    /// Emits the signals of a change for the parent property.
    void emitPropertyChanged();

private:
    Q_DISABLE_COPY(KComposedPropertyInterface)
    class Private;
    const std::unique_ptr<Private> d;
};

/// Makes the composed property of a type.
class KPROPERTYCORE_EXPORT KComposedPropertyCreatorInterface
{
public:
    KComposedPropertyCreatorInterface();
    virtual ~KComposedPropertyCreatorInterface();

    /// Owned by the caller.
    virtual KComposedPropertyInterface *createComposedProperty(KProperty *parent) const = 0;

private:
    Q_DISABLE_COPY(KComposedPropertyCreatorInterface)
};

template<class ComposedProperty>
class KComposedPropertyCreator : public KComposedPropertyCreatorInterface
{
public:
    KComposedPropertyCreator() = default;
    ~KComposedPropertyCreator() override = default;

    ComposedProperty *createComposedProperty(KProperty *parent) const override
    {
        return new ComposedProperty(parent);
    }

    Q_DISABLE_COPY(KComposedPropertyCreator)
};

/// Writes values of a type as text.
class KPROPERTYCORE_EXPORT KPropertyValueDisplayInterface
{
public:
    KPropertyValueDisplayInterface();
    virtual ~KPropertyValueDisplayInterface();

    virtual QString propertyValueToString(const KProperty *property, const QLocale &locale) const
    {
        return valueToString(property->value(), locale);
    }

    virtual QString valueToString(const QVariant &value, const QLocale &locale) const = 0;

    /// Longer texts are cut before they are shown or painted: 250 characters.
    static int maxStringValueLength();

    /// The text of \a value, cut to maxStringValueLength() with "..." behind.
    static QString valueToLocalizedString(const QVariant &value);

private:
    Q_DISABLE_COPY(KPropertyValueDisplayInterface)
};

/*! Composed property creators and displays by type.

    What is added is owned by the factory, and may be added for several types. */
class KPROPERTYCORE_EXPORT KPropertyFactory
{
public:
    KPropertyFactory();
    virtual ~KPropertyFactory();

    QHash<int, KComposedPropertyCreatorInterface *> composedPropertyCreators() const;
    QHash<int, KPropertyValueDisplayInterface *> valueDisplays() const;

    void addComposedPropertyCreator(int type, KComposedPropertyCreatorInterface *creator);
    void addDisplay(int type, KPropertyValueDisplayInterface *display);

protected:
    /// With \a own false the caller keeps ownership: for an object that is owned in another role.
    void addComposedPropertyCreatorInternal(int type, KComposedPropertyCreatorInterface *creator,
                                            bool own = true);
    void addDisplayInternal(int type, KPropertyValueDisplayInterface *display, bool own = true);

    Q_DISABLE_COPY(KPropertyFactory)

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/*! The factories of the process. A type belongs to the factory that was registered last for it.

    Lookups may come from any thread, registrations too; what a factory makes is used in the thread that
    asked for it. */
class KPROPERTYCORE_EXPORT KPropertyFactoryManager : public QObject
{
    Q_OBJECT

public:
    /// The composed property for the type of \a parent, owned by the caller; null when the type has none.
    KComposedPropertyInterface *createComposedProperty(KProperty *parent);

    /// Takes ownership.
    void registerFactory(KPropertyFactory *factory);

    static KPropertyFactoryManager *self();

    bool canConvertValueToText(int type) const;
    bool canConvertValueToText(const KProperty *property) const;

    /// In the C locale. Without a display for the type: QVariant::toString(). Empty for a null pointer.
    QString propertyValueToString(const KProperty *property) const;
    QString valueToString(int type, const QVariant &value) const;

    /// In the default locale. Without a display for the type: cut to the length for displaying.
    QString propertyValueToLocalizedString(const KProperty *property) const;
    QString valueToLocalizedString(int type, const QVariant &value) const;

    KPropertyFactoryManager();
    ~KPropertyFactoryManager() override;

    /// \a initFunction runs once, when the manager is next asked for: libraries announce factories this way
    /// without building them at load time.
    static void addInitFunction(void (*initFunction)());

private:
    Q_DISABLE_COPY(KPropertyFactoryManager)
    class Private;
    const std::unique_ptr<Private> d;
};
