#include "KPropertyFactory.h"

#include <QGlobalStatic>
#include <QMutex>
#include <QReadWriteLock>
#include <QSet>

#include <atomic>
#include <utility>

namespace {

/// Functions that wait for the manager to be asked for. Nothing is constructed before the first one comes.
struct PendingInits
{
    QMutex mutex;
    QList<void (*)()> functions;
    std::atomic<bool> any = false;

    QList<void (*)()> take()
    {
        const QMutexLocker locker(&mutex);
        any = false;
        return std::exchange(functions, {});
    }
};

PendingInits &pendingInits()
{
    static PendingInits pending;
    return pending;
}

} // namespace

Q_GLOBAL_STATIC(KPropertyFactoryManager, s_manager)

class KPropertyFactoryManager::Private
{
public:
    KPropertyValueDisplayInterface *display(int type) const
    {
        const QReadLocker locker(&lock);
        return displays.value(type);
    }

    QString toString(int type, const QVariant &value, const QLocale &locale) const
    {
        const KPropertyValueDisplayInterface *const found = display(type);
        return found ? found->valueToString(value, locale) : value.toString();
    }

    mutable QReadWriteLock lock;
    QSet<KPropertyFactory *> factories;
    QHash<int, KComposedPropertyCreatorInterface *> creators;
    QHash<int, KPropertyValueDisplayInterface *> displays;
};

KPropertyFactoryManager::KPropertyFactoryManager()
    : d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("KPropertyFactoryManager"));
}

KPropertyFactoryManager::~KPropertyFactoryManager()
{
    qDeleteAll(d->factories);
}

KPropertyFactoryManager *KPropertyFactoryManager::self()
{
    KPropertyFactoryManager *const manager = s_manager();
    if (pendingInits().any) {
        const QList<void (*)()> functions = pendingInits().take();
        for (void (*function)() : functions) {
            function();
        }
    }
    return manager;
}

void KPropertyFactoryManager::addInitFunction(void (*initFunction)())
{
    PendingInits &pending = pendingInits();
    const QMutexLocker locker(&pending.mutex);
    pending.functions.append(initFunction);
    pending.any = true;
}

KComposedPropertyInterface *KPropertyFactoryManager::createComposedProperty(KProperty *parent)
{
    const KComposedPropertyCreatorInterface *creator = nullptr;
    {
        const QReadLocker locker(&d->lock);
        creator = d->creators.value(parent->type());
    }
    return creator ? creator->createComposedProperty(parent) : nullptr;
}

void KPropertyFactoryManager::registerFactory(KPropertyFactory *factory)
{
    const QWriteLocker locker(&d->lock);
    d->factories.insert(factory);
    d->creators.insert(factory->composedPropertyCreators());
    d->displays.insert(factory->valueDisplays());
}

bool KPropertyFactoryManager::canConvertValueToText(int type) const
{
    return d->display(type) != nullptr;
}

bool KPropertyFactoryManager::canConvertValueToText(const KProperty *property) const
{
    return property && canConvertValueToText(property->type());
}

QString KPropertyFactoryManager::propertyValueToString(const KProperty *property) const
{
    if (!property) {
        return QString();
    }
    const KPropertyValueDisplayInterface *const display = d->display(property->type());
    return display ? display->propertyValueToString(property, QLocale::c()) : property->value().toString();
}

QString KPropertyFactoryManager::valueToString(int type, const QVariant &value) const
{
    return d->toString(type, value, QLocale::c());
}

QString KPropertyFactoryManager::propertyValueToLocalizedString(const KProperty *property) const
{
    if (!property) {
        return QString();
    }
    const KPropertyValueDisplayInterface *const display = d->display(property->type());
    return display ? display->propertyValueToString(property, QLocale())
                   : KPropertyValueDisplayInterface::valueToLocalizedString(property->value());
}

QString KPropertyFactoryManager::valueToLocalizedString(int type, const QVariant &value) const
{
    const KPropertyValueDisplayInterface *const display = d->display(type);
    return display ? display->valueToString(value, QLocale())
                   : KPropertyValueDisplayInterface::valueToLocalizedString(value);
}
