#include "KPropertyFactory.h"

#include <QGlobalStatic>
#include <QReadWriteLock>
#include <QSet>

#include <atomic>
#include <mutex>

namespace {

/// Functions that wait for the manager to be asked for. Nothing is constructed before the first one comes.
class PendingInits
{
public:
    void add(void (*function)())
    {
        const std::lock_guard locker(m_mutex);
        m_functions.append(function);
        m_any = true;
    }

    /// Other threads wait until all have run; a function that asks for the manager itself goes on at once.
    void run()
    {
        if (!m_any) {
            return;
        }
        const std::lock_guard locker(m_mutex);
        if (m_running) {
            return;
        }
        m_running = true;
        while (!m_functions.isEmpty()) {
            m_functions.takeFirst()();
        }
        m_running = false;
        m_any = false;
    }

private:
    std::recursive_mutex m_mutex;
    QList<void (*)()> m_functions;
    std::atomic<bool> m_any = false;
    bool m_running = false;
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
    pendingInits().run();
    return manager;
}

void KPropertyFactoryManager::addInitFunction(void (*initFunction)())
{
    pendingInits().add(initFunction);
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
