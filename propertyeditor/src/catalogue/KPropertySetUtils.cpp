#include "orv/propertyeditor/KPropertySetUtils.h"

#include <KProperty>
#include <KPropertySet>

#include <memory>
#include <vector>

namespace orv::KPropertySetUtils {

namespace {

constexpr const char *kCommonGroup = "common";

struct Moved
{
    QByteArray group;
    std::unique_ptr<KProperty> property;
};

/// Takes all properties that stand behind \a last out of the set, in their order.
std::vector<Moved> takeBehind(const KProperty *last, KPropertySet *set)
{
    std::vector<KProperty *> tail;
    bool behind = !last;
    for (KPropertySetIterator it(*set); it.current(); ++it) {
        if (behind)
            tail.push_back(it.current());
        behind = behind || it.current() == last;
    }
    std::vector<Moved> taken;
    taken.reserve(tail.size());
    for (KProperty *property : tail) {
        // Who hears of a removal may have removed this one as well: the set is asked before it is touched.
        const QByteArray group = set->groupNameForProperty(*property);
        if (group.isEmpty())
            continue;
        taken.push_back({group, std::make_unique<KProperty>(*property)});
        set->removeProperty(property);
    }
    return taken;
}

/// The first caption of a group stands.
void addWithCaption(const QByteArray &name, const QString &caption, KProperty *property, KPropertySet *set)
{
    const bool isNew = !caption.isEmpty() && name != kCommonGroup && !set->groupNames().contains(name);
    set->addProperty(property, name);
    if (isNew)
        set->setGroupCaption(name, caption);
}

/// The property behind which position \a position of the group lies; null for the front of the set.
const KProperty *propertyBefore(const QList<QByteArray> &names, int position, const KPropertySet &set)
{
    if (position > 0)
        return &set.property(names.at(position - 1));
    const KProperty *before = nullptr;
    for (KPropertySetIterator it(set); it.current() && it.current()->name() != names.constFirst(); ++it)
        before = it.current();
    return before;
}

} // namespace

QByteArray groupName(const QString &group)
{
    return group.isEmpty() ? QByteArray(kCommonGroup) : group.toLower().toUtf8();
}

int propertyIndex(const QString &key, const QString &group, const KPropertySet &set)
{
    return int(set.propertyNamesForGroup(groupName(group)).indexOf(key.toUtf8()));
}

void insertInKPropertySet(const QString &group, KProperty *property, KPropertySet *set, int position)
{
    const QByteArray name = groupName(group);
    // Loads add at the end, and a list for each property would make them quadratic.
    const QList<QByteArray> names = position < 0 ? QList<QByteArray>() : set->propertyNamesForGroup(name);
    if (names.isEmpty() || position > names.size()) {
        addWithCaption(name, group, property, set);
        return;
    }
    std::vector<Moved> behind = takeBehind(propertyBefore(names, position, *set), set);
    // The group has its caption, even if all of it is out of the set for the moment.
    set->addProperty(property, name);
    for (Moved &moved : behind)
        set->addProperty(moved.property.release(), moved.group);
}

} // namespace orv::KPropertySetUtils
