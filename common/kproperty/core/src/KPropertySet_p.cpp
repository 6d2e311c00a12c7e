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
    return it == entries.cend() ? QByteArray() : it->group->name;
}

QString KPropertySetPrivate::groupCaption(const QByteArray &group) const
{
    const QString caption = groupCaptions.value(group.toLower());
    return caption.isEmpty() ? QString::fromUtf8(group) : caption;
}

KPropertySetPrivate::Groups::iterator KPropertySetPrivate::groupNamed(const QByteArray &name)
{
    const QByteArray key = name.isEmpty() ? QByteArray(kCommonGroup) : name.toLower();
    const auto known = groupByName.constFind(key);
    if (known != groupByName.cend()) {
        return *known;
    }
    return *groupByName.insert(key, groups.insert(groups.end(), Group{key, {}}));
}

bool KPropertySetPrivate::accepts(KProperty *property)
{
    if (!property) {
        qCWarning(kpropertyLog) << "There is no property to add";
        return false;
    }
    if (entries.contains(property) || m_refused.contains(property)) {
        return false;
    }
    const bool isNameless = property->name().isEmpty();
    if (isNameless) {
        qCWarning(kpropertyLog) << "A property without a name is not added";
    }
    if (!isNameless && !byName.contains(property->name().toLower())) {
        return true;
    }
    if (ownsProperties) {
        m_refused.insert(property);
    }
    return false;
}

void KPropertySetPrivate::place(KProperty *property, Properties::iterator position, Groups::iterator group,
                                Names::iterator name)
{
    const QByteArray key = property->name().toLower();
    entries.insert(property, Entry{key, properties.insert(position, property), group,
                                   group->propertyNames.insert(name, property->name())});
    byName.insert(key, property);
    property->d->set = q;
}

void KPropertySetPrivate::addProperty(KProperty *property, const QByteArray &group)
{
    if (!accepts(property)) {
        return;
    }
    const Groups::iterator target = groupNamed(group);
    place(property, properties.end(), target, target->propertyNames.end());
}

void KPropertySetPrivate::insertProperty(KProperty *property, const KProperty &neighbour,
                                         KPropertySet::Side side)
{
    if (!accepts(property)) {
        return;
    }
    const auto found = entries.constFind(&neighbour);
    if (found == entries.cend()) {
        qCWarning(kpropertyLog) << "The set has no property" << neighbour.name() << "to insert"
                                << property->name() << "at; it stands at the end";
        addProperty(property, QByteArray());
        return;
    }
    const int step = side == KPropertySet::Side::Behind ? 1 : 0;
    place(property, std::next(found->position, step), found->group, std::next(found->name, step));
}

bool KPropertySetPrivate::takeOut(KProperty *property)
{
    const auto found = entries.constFind(property);
    if (found == entries.cend()) {
        return false;
    }
    Entry entry = *found; // the erasure ends what was found
    entries.erase(found);
    properties.erase(entry.position);
    byName.remove(entry.key);
    entry.group->propertyNames.erase(entry.name);
    if (entry.group->propertyNames.empty()) {
        groupByName.remove(entry.group->name);
        groups.erase(entry.group);
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
    const Properties doomed = std::exchange(properties, {});
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
