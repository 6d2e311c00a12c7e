#include "orv/propertyeditor/KPropertySetUtils.h"

#include <KProperty>
#include <KPropertySet>

namespace orv::KPropertySetUtils {

namespace {

constexpr const char *kCommonGroup = "common";

/// The first caption of a group stands.
void addWithCaption(const QByteArray &name, const QString &caption, KProperty *property, KPropertySet *set)
{
    const bool isNew = !caption.isEmpty() && name != kCommonGroup && !set->groupNames().contains(name);
    set->addProperty(property, name);
    if (isNew)
        set->setGroupCaption(name, caption);
}

} // namespace

QByteArray groupName(const QString &group)
{
    return group.isEmpty() ? QByteArray(kCommonGroup) : group.toLower().toUtf8();
}

QStringList groupCaptions(const KPropertySet &set)
{
    QStringList captions;
    for (const QByteArray &name : set.groupNames())
        captions.append(set.groupCaption(name));
    return captions;
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
    // The group has its caption already.
    if (position > 0)
        set->insertProperty(property, set->property(names.at(position - 1)), KPropertySet::Side::Behind);
    else
        set->insertProperty(property, set->property(names.constFirst()), KPropertySet::Side::Before);
}

void insertBehind(const QString &key, const QString &group, KProperty *property, KPropertySet *set)
{
    const QByteArray name = key.toUtf8();
    const KProperty &neighbour = set->property(name);
    const bool stands = !neighbour.isNull() && neighbour.name() == name &&
                        set->groupNameForProperty(neighbour) == groupName(group);
    if (stands)
        set->insertProperty(property, neighbour, KPropertySet::Side::Behind);
    else
        insertInKPropertySet(group, property, set, propertyIndex(key, group, *set) + 1);
}

} // namespace orv::KPropertySetUtils
