#include "Announce.h"

#include <KPropertySet>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/KPropertySetUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

namespace orv::PropertyEditor {

QString KeyValueItem::group(const QString &key) const
{
    return set() ? QString::fromUtf8(set()->groupNameForProperty(key.toUtf8())) : QString();
}

QString KeyValueItem::group(PropertyId id) const
{
    return group(PropertiesNames::internalNameForType(id));
}

QString KeyValueItem::groupCaption(const QString &key) const
{
    return set() ? set()->groupCaption(set()->groupNameForProperty(key.toUtf8())) : QString();
}

QString KeyValueItem::groupCaption(PropertyId id) const
{
    return groupCaption(PropertiesNames::internalNameForType(id));
}

QList<QByteArray> KeyValueItem::groupNames() const
{
    return set() ? set()->groupNames() : QList<QByteArray>();
}

bool KeyValueItem::hasGroup(const QString &name) const
{
    return groupNames().contains(name.toUtf8());
}

QList<QByteArray> KeyValueItem::properties(const QByteArray &groupName) const
{
    return set() ? set()->propertyNamesForGroup(groupName) : QList<QByteArray>();
}

bool KeyValueItem::setGroup(const QString &key, const QString &group)
{
    const QByteArray name = key.toUtf8();
    if (!warnUnless(has(name), key))
        return false;
    const QString oldGroup = this->group(key);
    if (group.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot move the property" << key << "to an empty group";
        return false;
    }
    if (QString::fromUtf8(KPropertySetUtils::groupName(group)) == oldGroup) {
        qCWarning(propertyEditorLog) << "Cannot move the property" << key << "to the same group";
        return false;
    }
    auto copy = std::make_unique<KProperty>(set()->property(name));
    const QPointer<KeyValueItem> alive(this);
    const QPointer<KPropertySet> before(editedSet());
    remove(key);
    if (!alive)
        return false;
    // Who hears of the removal may put the key back, or give the cell another content: that stands.
    if (!before || before != set() || has(name)) {
        qCWarning(propertyEditorLog) << "Cannot move the property" << key << "changed by a listener";
        return false;
    }
    KPropertySetUtils::insertInKPropertySet(group, copy.release(), editedSet(), -1);
    announce(
        this, [&] { Q_EMIT groupChanged(key, group, oldGroup); }, [this] { Q_EMIT changed(); });
    return true;
}

bool KeyValueItem::setGroupCaption(const QString &groupName, const QString &caption)
{
    if (!set())
        return false;
    editedSet()->setGroupCaption(groupName.toUtf8(), caption);
    Q_EMIT changed();
    return true;
}

bool KeyValueItem::removeGroup(const QString &name)
{
    QStringList keys;
    for (const QByteArray &key : properties(name.toUtf8()))
        keys.append(QString::fromUtf8(key));
    return remove(keys);
}

void KeyValueItem::moveGroup(const QString &group, const QString &afterGroup)
{
    if (!set())
        return;
    struct Moved
    {
        QByteArray group;
        std::unique_ptr<KProperty> property;
    };
    const QList<QByteArray> names = set()->groupNames();
    std::vector<Moved> moved;
    for (qsizetype i = names.indexOf(afterGroup.toUtf8()) + 1; i < names.size(); ++i) {
        const QByteArray &name = names.at(i);
        if (set()->groupCaption(name) == group)
            continue;
        for (const QByteArray &key : set()->propertyNamesForGroup(name)) {
            moved.push_back({name, std::make_unique<KProperty>(set()->property(key))});
            editedSet()->removeProperty(key);
        }
    }
    for (Moved &entry : moved)
        editedSet()->addProperty(entry.property.release(), entry.group);
    Q_EMIT changed();
}

} // namespace orv::PropertyEditor
