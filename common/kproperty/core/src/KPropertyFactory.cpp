#include "KPropertyFactory.h"

#include "KPropertySet_p.h"
#include "KProperty_p.h"
#include "internal/VariantUtils.h"

#include <QSet>

#include <utility>

class KComposedPropertyInterface::Private
{
public:
    KProperty *property = nullptr;
    bool childValueChangedEnabled = true;
};

KComposedPropertyInterface::KComposedPropertyInterface(KProperty *parent)
    : d(std::make_unique<Private>(Private{parent, true}))
{
    // A property whose type changes from one composed type to another must not keep both kinds of children.
    parent->d->deleteChildren();
}

KComposedPropertyInterface::~KComposedPropertyInterface() = default;

bool KComposedPropertyInterface::valuesEqual(const QVariant &first, const QVariant &second)
{
    return Internal::identicalVariants(first, second);
}

void KComposedPropertyInterface::childValueChangedInternal(KProperty *child, const QVariant &value,
                                                           KProperty::ValueOptions valueOptions)
{
    if (d->childValueChangedEnabled) {
        childValueChanged(child, value, valueOptions);
    }
}

bool KComposedPropertyInterface::childValueChangedEnabled() const
{
    return d->childValueChangedEnabled;
}

void KComposedPropertyInterface::setChildValueChangedEnabled(bool set)
{
    d->childValueChangedEnabled = set;
}

void KComposedPropertyInterface::emitPropertyChanged()
{
    if (KPropertySet *set = d->property->d->set) {
        KPropertySetPrivate::emitPropertyChanged(set, d->property);
    }
}

KComposedPropertyCreatorInterface::KComposedPropertyCreatorInterface() = default;
KComposedPropertyCreatorInterface::~KComposedPropertyCreatorInterface() = default;

KPropertyValueDisplayInterface::KPropertyValueDisplayInterface() = default;
KPropertyValueDisplayInterface::~KPropertyValueDisplayInterface() = default;

int KPropertyValueDisplayInterface::maxStringValueLength()
{
    return 250;
}

QString KPropertyValueDisplayInterface::valueToLocalizedString(const QVariant &value)
{
    const QString text = value.toString();
    return text.size() > maxStringValueLength() ? text.left(maxStringValueLength()) + QLatin1String("...")
                                                : text;
}

class KPropertyFactory::Private
{
public:
    QHash<int, KComposedPropertyCreatorInterface *> creators;
    QHash<int, KPropertyValueDisplayInterface *> displays;
    /// Sets, since one object may serve several types.
    QSet<KComposedPropertyCreatorInterface *> ownedCreators;
    QSet<KPropertyValueDisplayInterface *> ownedDisplays;
};

KPropertyFactory::KPropertyFactory()
    : d(std::make_unique<Private>())
{}

KPropertyFactory::~KPropertyFactory()
{
    qDeleteAll(d->ownedCreators);
    qDeleteAll(d->ownedDisplays);
}

QHash<int, KComposedPropertyCreatorInterface *> KPropertyFactory::composedPropertyCreators() const
{
    return d->creators;
}

QHash<int, KPropertyValueDisplayInterface *> KPropertyFactory::valueDisplays() const
{
    return d->displays;
}

void KPropertyFactory::addComposedPropertyCreator(int type, KComposedPropertyCreatorInterface *creator)
{
    addComposedPropertyCreatorInternal(type, creator, true);
}

void KPropertyFactory::addDisplay(int type, KPropertyValueDisplayInterface *display)
{
    addDisplayInternal(type, display, true);
}

void KPropertyFactory::addComposedPropertyCreatorInternal(int type,
                                                          KComposedPropertyCreatorInterface *creator,
                                                          bool own)
{
    d->creators.insert(type, creator);
    if (own) {
        d->ownedCreators.insert(creator);
    }
}

void KPropertyFactory::addDisplayInternal(int type, KPropertyValueDisplayInterface *display, bool own)
{
    d->displays.insert(type, display);
    if (own) {
        d->ownedDisplays.insert(display);
    }
}
