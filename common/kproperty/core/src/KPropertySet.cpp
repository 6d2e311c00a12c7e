#include "KPropertySet.h"

#include "KPropertySet_p.h"
#include "internal/Logging.h"

#include <algorithm>
#include <utility>

KPropertySet::KPropertySet(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<KPropertySetPrivate>(this, true))
{}

KPropertySet::KPropertySet(const KPropertySet &set)
    : QObject(nullptr)
    , d(std::make_unique<KPropertySetPrivate>(this, true))
{
    d->copyFrom(*set.d);
}

KPropertySet::KPropertySet(bool propertyOwner)
    : d(std::make_unique<KPropertySetPrivate>(this, propertyOwner))
{}

KPropertySet::~KPropertySet()
{
    Q_EMIT aboutToBeCleared();
    Q_EMIT aboutToBeDeleted();
    d->clear();
}

int KPropertySet::count() const
{
    return static_cast<int>(d->entries.size());
}

int KPropertySet::count(const KPropertySelector &selector) const
{
    return static_cast<int>(
        std::count_if(d->entries.cbegin(), d->entries.cend(),
                      [&selector](const KPropertySetEntry &entry) { return selector(*entry.property); }));
}

bool KPropertySet::isEmpty() const
{
    return d->entries.empty();
}

bool KPropertySet::hasVisibleProperties() const
{
    return std::any_of(d->entries.cbegin(), d->entries.cend(),
                       [](const KPropertySetEntry &entry) { return entry.property->isVisible(); });
}

bool KPropertySet::hasProperties(const KPropertySelector &selector) const
{
    return std::any_of(d->entries.cbegin(), d->entries.cend(),
                       [&selector](const KPropertySetEntry &entry) { return selector(*entry.property); });
}

bool KPropertySet::isReadOnly() const
{
    return d->readOnly;
}

bool KPropertySet::contains(const QByteArray &name) const
{
    return d->find(name) != nullptr;
}

KProperty &KPropertySet::property(const QByteArray &name) const
{
    if (KProperty *found = d->find(name)) {
        return *found;
    }
    return d->nullProperty();
}

KProperty &KPropertySet::operator[](const QByteArray &name) const
{
    return property(name);
}

QVariant KPropertySet::propertyValue(const QByteArray &name, const QVariant &defaultValue) const
{
    const KProperty *found = d->find(name);
    return found ? found->value() : defaultValue;
}

KPropertySet &KPropertySet::operator=(const KPropertySet &set)
{
    if (&set != this) {
        d->clear();
        d->copyFrom(*set.d);
    }
    return *this;
}

QString KPropertySet::groupCaption(const QByteArray &group) const
{
    return d->groupCaption(group);
}

QString KPropertySet::groupIconName(const QByteArray &group) const
{
    return d->groupIconNames.value(group.toLower());
}

QByteArray KPropertySet::groupNameForProperty(const QByteArray &propertyName) const
{
    return d->groupNameOf(d->find(propertyName));
}

QByteArray KPropertySet::groupNameForProperty(const KProperty &property) const
{
    return d->groupNameOf(&property);
}

QList<QByteArray> KPropertySet::groupNames() const
{
    QList<QByteArray> names;
    names.reserve(static_cast<qsizetype>(d->groups.size()));
    for (const KPropertySetPrivate::Group &group : std::as_const(d->groups)) {
        names.append(group.name);
    }
    return names;
}

QList<QByteArray> KPropertySet::propertyNamesForGroup(const QByteArray &group) const
{
    const auto found = d->groupByName.constFind(group);
    if (found == d->groupByName.cend()) {
        return {};
    }
    QList<QByteArray> names;
    for (const KPropertySetEntry *entry : std::as_const((*found)->entries)) {
        names.append(entry->name);
    }
    return names;
}

QByteArray KPropertySet::previousSelection() const
{
    return d->previousSelection;
}

void KPropertySet::debug() const
{
    qCDebug(kpropertyLog) << *this;
}

QMap<QByteArray, QVariant> KPropertySet::propertyValues() const
{
    QMap<QByteArray, QVariant> values;
    for (const KPropertySetEntry &entry : std::as_const(d->entries)) {
        values.insert(entry.property->name(), entry.property->value());
    }
    return values;
}

void KPropertySet::clearModifiedFlags()
{
    for (const KPropertySetEntry &entry : std::as_const(d->entries)) {
        entry.property->clearModifiedFlag();
    }
}

bool KPropertySet::isModified() const
{
    return std::any_of(d->entries.cbegin(), d->entries.cend(),
                       [](const KPropertySetEntry &entry) { return entry.property->isModified(); });
}

void KPropertySet::addProperty(KProperty *property, const QByteArray &group)
{
    d->addProperty(property, group);
}

void KPropertySet::insertProperty(KProperty *property, const KProperty &neighbour, Side side)
{
    d->insertProperty(property, neighbour, side);
}

void KPropertySet::removeProperty(KProperty *property)
{
    d->removeProperty(property);
}

void KPropertySet::removeProperty(const QByteArray &name)
{
    d->removeProperty(d->find(name));
}

void KPropertySet::clear()
{
    d->clear();
}

void KPropertySet::changeProperty(const QByteArray &property, const QVariant &value)
{
    KProperty *found = d->find(property);
    if (!found) {
        qCWarning(kpropertyLog) << "There is no property" << property << "to change";
        return;
    }
    found->setValue(value);
}

void KPropertySet::changePropertyIfExists(const QByteArray &property, const QVariant &value)
{
    if (KProperty *found = d->find(property)) {
        found->setValue(value);
    }
}

void KPropertySet::setGroupCaption(const QByteArray &group, const QString &caption)
{
    d->groupCaptions.insert(group.toLower(), caption);
}

void KPropertySet::setGroupIconName(const QByteArray &group, const QString &iconName)
{
    d->groupIconNames.insert(group.toLower(), iconName);
}

void KPropertySet::setPreviousSelection(const QByteArray &prevSelection)
{
    d->previousSelection = prevSelection;
}

void KPropertySet::setReadOnly(bool readOnly)
{
    if (d->readOnly != readOnly) {
        d->readOnly = readOnly;
        Q_EMIT readOnlyFlagChanged();
    }
}

QDebug operator<<(QDebug dbg, const KPropertySet &set)
{
    const QDebugStateSaver saver(dbg);
    dbg.nospace() << "KPropertySet( PROPERTIES(" << set.count() << "):";
    for (KPropertySetIterator it(set); it.current(); ++it) {
        dbg.nospace() << '\n' << *it.current();
    }
    dbg.nospace() << "\n)";
    return dbg;
}
