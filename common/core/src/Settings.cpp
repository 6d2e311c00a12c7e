#include "orv/core/Settings.h"

#include <QHash>
#include <QMutex>
#include <QSettings>

namespace orv::as {

namespace {

struct Overrides
{
    QMutex mutex;
    QHash<QString, QVariant> values;

    static Overrides &instance()
    {
        static Overrides overrides;
        return overrides;
    }

    QVariant get(const QString &key)
    {
        const QMutexLocker lock(&mutex);
        return values.value(key);
    }

    /// Sets or, for an invalid value, removes the override; answers the one before.
    QVariant exchange(const QString &key, const QVariant &value)
    {
        const QMutexLocker lock(&mutex);
        QVariant previous = values.take(key);
        if (value.isValid())
            values.insert(key, value);
        return previous;
    }
};

QByteArray environmentName(const QString &key)
{
    QByteArray name = "ORV_" + key.toUpper().toLatin1();
    for (char &c : name) {
        const bool plain = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (!plain)
            c = '_';
    }
    return name;
}

QVariant foundValue(const QString &key)
{
    if (QVariant overridden = Overrides::instance().get(key); overridden.isValid())
        return overridden;
    const QByteArray variable = environmentName(key);
    if (qEnvironmentVariableIsSet(variable.constData()))
        return qEnvironmentVariable(variable.constData());
    return QSettings().value(key);
}

/// QVariant cuts a number that is too large for an int without a word.
bool fits(const QVariant &found, const QVariant &converted)
{
    return converted.typeId() != QMetaType::Int || found.toLongLong() == converted.toInt();
}

} // namespace

QVariant value(const QString &key, const QVariant &defaultValue)
{
    QVariant found = foundValue(key);
    if (!found.isValid())
        return defaultValue;
    if (!defaultValue.isValid() || found.metaType() == defaultValue.metaType())
        return found;
    QVariant converted = found;
    if (!converted.convert(defaultValue.metaType()) || !fits(found, converted))
        return defaultValue;
    return converted;
}

void setValue(const QString &key, const QVariant &value)
{
    QSettings().setValue(key, value);
}

ScopedOverride::ScopedOverride(const QString &key, const QVariant &value)
    : m_key(key)
    , m_previous(Overrides::instance().exchange(key, value))
{}

ScopedOverride::~ScopedOverride()
{
    Overrides::instance().exchange(m_key, m_previous);
}

} // namespace orv::as
