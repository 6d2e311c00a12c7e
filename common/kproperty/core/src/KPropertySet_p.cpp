#include "KPropertySet_p.h"

#include "KProperty_p.h"
#include "internal/Logging.h"

#include <QPointer>

#include <iterator>
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
    const Entry *found = byName.value(KPropertyKey(name));
    return found ? found->property : nullptr;
}

KPropertySetEntry *KPropertySetPrivate::entryOf(const KProperty *property) const
{
    return property->d->set == q ? property->d->entry : m_shared.value(property);
}

KProperty &KPropertySetPrivate::nullProperty() const
{
    // Callers may have written to it, and must not find that again.
    m_null = KProperty();
    return m_null;
}

QByteArray KPropertySetPrivate::groupNameOf(const KProperty *property) const
{
    const Entry *entry = property ? entryOf(property) : nullptr;
    return entry ? entry->group->name : QByteArray();
}

QString KPropertySetPrivate::groupCaption(const QByteArray &group) const
{
    const QString caption = groupCaptions.value(group.toLower());
    return caption.isEmpty() ? QString::fromUtf8(group) : caption;
}

KPropertySetPrivate::Groups::iterator KPropertySetPrivate::groupNamed(const QByteArray &name)
{
    if (m_lastGroup != groups.end() && m_lastGroup->name == name) {
        return m_lastGroup;
    }
    const QByteArray key = name.isEmpty() ? QByteArray(kCommonGroup) : name.toLower();
    const auto known = groupByName.constFind(key);
    m_lastGroup = known != groupByName.cend()
                      ? *known
                      : *groupByName.insert(key, groups.insert(groups.end(), Group{key, {}}));
    return m_lastGroup;
}

bool KPropertySetPrivate::accepts(KProperty *property)
{
    if (!property) {
        qCWarning(kpropertyLog) << "There is no property to add";
        return false;
    }
    if (contains(property) || m_refused.contains(property)) {
        return false;
    }
    const bool isNameless = property->name().isEmpty();
    if (isNameless) {
        qCWarning(kpropertyLog) << "A property without a name is not added";
    }
    if (!isNameless && !byName.contains(property->d->key)) {
        return true;
    }
    if (ownsProperties) {
        m_refused.insert(property);
    }
    return false;
}

void KPropertySetPrivate::place(KProperty *property, Entries::iterator position, Groups::iterator group,
                                std::list<const Entry *>::iterator positionInGroup)
{
    KProperty::Private &known = *property->d;
    if (known.set) {
        known.set->d->m_shared.insert(property, known.entry);
    }
    const auto entry = entries.insert(position, Entry{property, known.key, known.name, {}, group, {}});
    entry->position = entry;
    entry->positionInGroup = group->entries.insert(positionInGroup, &*entry);
    byName.insert(entry->key, &*entry);
    known.set = q;
    known.entry = &*entry;
}

void KPropertySetPrivate::addProperty(KProperty *property, const QByteArray &group)
{
    if (!accepts(property)) {
        return;
    }
    const Groups::iterator target = groupNamed(group);
    place(property, entries.end(), target, target->entries.end());
}

void KPropertySetPrivate::insertProperty(KProperty *property, const KProperty &neighbour,
                                         KPropertySet::Side side)
{
    if (!accepts(property)) {
        return;
    }
    const Entry *const found = entryOf(&neighbour);
    if (!found) {
        qCWarning(kpropertyLog) << "The set has no property" << neighbour.name() << "to insert"
                                << property->name() << "at; it stands at the end";
        addProperty(property, QByteArray());
        return;
    }
    const int step = side == KPropertySet::Side::Behind ? 1 : 0;
    place(property, std::next(found->position, step), found->group, std::next(found->positionInGroup, step));
}

bool KPropertySetPrivate::takeOut(KProperty *property)
{
    const Entry *const entry = entryOf(property);
    if (!entry) {
        return false;
    }
    if (property->d->set == q) {
        property->d->set = nullptr;
        property->d->entry = nullptr;
    }
    m_shared.remove(property);
    byName.remove(entry->key);
    const Groups::iterator group = entry->group;
    group->entries.erase(entry->positionInGroup);
    if (group->entries.empty()) {
        groupByName.remove(group->name);
        if (m_lastGroup == group) {
            m_lastGroup = groups.end();
        }
        groups.erase(group);
    }
    entries.erase(entry->position);
    return true;
}

void KPropertySetPrivate::removeProperty(KProperty *property)
{
    if (!property || !contains(property)) {
        return;
    }
    // Who hears of it may delete the property, or the set.
    const QPointer<KPropertySet> guard(q);
    const KProperty::Private::Watch watch(property->d.get());
    Q_EMIT q->aboutToDeleteProperty(*q, *property);
    if (guard && watch.isAlive() && takeOut(property) && ownsProperties) {
        delete property;
    }
}

void KPropertySetPrivate::deleteAll()
{
    const Entries doomed = std::exchange(entries, {});
    byName.clear();
    m_shared.clear();
    groups.clear();
    m_lastGroup = groups.end();
    groupByName.clear();
    for (const Entry &entry : doomed) {
        if (entry.property->d->set == q) {
            entry.property->d->set = nullptr;
            entry.property->d->entry = nullptr;
        }
        if (ownsProperties) {
            delete entry.property;
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
    for (const Entry &entry : other.entries) {
        addProperty(new KProperty(*entry.property), entry.group->name);
    }
    groupCaptions = other.groupCaptions;
    groupIconNames = other.groupIconNames;
    previousSelection = other.previousSelection;
    readOnly = other.readOnly;
}

void KPropertySetPrivate::emitPropertyChanged(KPropertySet *set, KProperty *property)
{
    const QPointer<KPropertySet> guard(set);
    const KProperty::Private::Watch watch(property->d.get());
    Q_EMIT set->propertyChangedInternal(*set, *property);
    if (guard && watch.isAlive() && set->d->contains(property)) {
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
