#include "KPropertySet_p.h"

#include "KProperty_p.h"
#include "internal/Logging.h"

#include <QPointer>

#include <utility>

namespace {

const char kCommonGroup[] = "common";

} // namespace

KPropertySetPrivate::KPropertySetPrivate(KPropertySet *set, bool owner)
    : q(set)
    , ownsProperties(owner)
{
    groupCaptions.insert(kCommonGroup, KPropertySet::tr("General"));
}

KPropertySetPrivate::~KPropertySetPrivate()
{
    deleteAll();
}

KProperty *KPropertySetPrivate::find(const QByteArray &name) const
{
    return byName.value(name.toLower());
}

KProperty &KPropertySetPrivate::nullProperty() const
{
    // Callers may have written to it, and must not find that again.
    m_null = KProperty();
    return m_null;
}

QByteArray KPropertySetPrivate::groupNameOf(const KProperty *property) const
{
    const auto it = entries.constFind(property);
    return it == entries.cend() ? QByteArray() : groups.value(it->group).name;
}

QString KPropertySetPrivate::groupCaption(const QByteArray &group) const
{
    const QString caption = groupCaptions.value(group.toLower());
    return caption.isEmpty() ? QString::fromUtf8(group) : caption;
}

KPropertySetPrivate::Group &KPropertySetPrivate::groupNamed(const QByteArray &name, Sequence *sequence)
{
    const QByteArray key = name.isEmpty() ? QByteArray(kCommonGroup) : name.toLower();
    const auto known = groupByName.constFind(key);
    if (known != groupByName.cend()) {
        *sequence = *known;
        return groups[*known];
    }
    *sequence = nextSequence++;
    groupByName.insert(key, *sequence);
    return *groups.insert(groups.cend(), *sequence, Group{key, {}});
}

void KPropertySetPrivate::addProperty(KProperty *property, const QByteArray &group)
{
    if (!property) {
        qCWarning(kpropertyLog) << "There is no property to add";
        return;
    }
    if (entries.contains(property) || m_refused.contains(property)) {
        return;
    }
    const QByteArray key = property->name().toLower();
    if (key.isEmpty() || byName.contains(key)) {
        if (key.isEmpty()) {
            qCWarning(kpropertyLog) << "A property without a name is not added";
        }
        if (ownsProperties) {
            m_refused.insert(property);
        }
        return;
    }
    Entry entry{key, nextSequence++, 0};
    Group &target = groupNamed(group, &entry.group);
    target.propertyNames.insert(target.propertyNames.cend(), entry.position, property->name());
    properties.insert(properties.cend(), entry.position, property);
    byName.insert(key, property);
    entries.insert(property, entry);
    property->d->set = q;
}

bool KPropertySetPrivate::takeOut(KProperty *property)
{
    const Entry entry = entries.take(property);
    if (entry.position == 0) {
        return false;
    }
    properties.remove(entry.position);
    byName.remove(entry.key);
    Group &group = groups[entry.group];
    group.propertyNames.remove(entry.position);
    if (group.propertyNames.isEmpty()) {
        groupByName.remove(group.name);
        groups.remove(entry.group);
    }
    if (property->d->set == q) {
        property->d->set = nullptr;
    }
    return true;
}

void KPropertySetPrivate::removeProperty(KProperty *property)
{
    if (!property || !entries.contains(property)) {
        return;
    }
    Q_EMIT q->aboutToDeleteProperty(*q, *property);
    if (takeOut(property) && ownsProperties) {
        delete property;
    }
}

void KPropertySetPrivate::deleteAll()
{
    const QMap<Sequence, KProperty *> doomed = std::exchange(properties, {});
    entries.clear();
    byName.clear();
    groups.clear();
    groupByName.clear();
    for (KProperty *property : doomed) {
        if (property->d->set == q) {
            property->d->set = nullptr;
        }
        if (ownsProperties) {
            delete property;
        }
    }
    qDeleteAll(std::exchange(m_refused, {}));
}

void KPropertySetPrivate::clear()
{
    Q_EMIT q->aboutToBeCleared();
    deleteAll();
    groupCaptions.clear();
    groupIconNames.clear();
}

void KPropertySetPrivate::copyFrom(const KPropertySetPrivate &other)
{
    for (KProperty *property : other.properties) {
        addProperty(new KProperty(*property), other.groupNameOf(property));
    }
    groupCaptions = other.groupCaptions;
    groupIconNames = other.groupIconNames;
    previousSelection = other.previousSelection;
    readOnly = other.readOnly;
}

void KPropertySetPrivate::emitPropertyChanged(KPropertySet *set, KProperty *property)
{
    const QPointer<KPropertySet> guard(set);
    Q_EMIT set->propertyChangedInternal(*set, *property);
    if (guard && set->d->entries.contains(property)) {
        Q_EMIT set->propertyChanged(*set, *property);
    }
}

void KPropertySetPrivate::emitAboutToDeleteChild(KPropertySet *set, KProperty *child)
{
    Q_EMIT set->aboutToDeleteChildInternal(*child);
}

void KPropertySetPrivate::emitPropertyReset(KPropertySet *set, KProperty *property)
{
    Q_EMIT set->propertyReset(*set, *property);
}

void KPropertySetPrivate::forget(KPropertySet *set, KProperty *property)
{
    Q_EMIT set->aboutToDeleteProperty(*set, *property);
    set->d->takeOut(property);
}
