#pragma once

#include "KPropertySet.h"
#include "KProperty_p.h"

#include <QHash>
#include <QSet>

#include <list>

struct KPropertySetEntry;

struct KPropertySetGroup
{
    QByteArray name;
    std::list<const KPropertySetEntry *> entries;
};

/// Where a property stands in a set. Linked lists: whatever is added or removed in the middle, no other place
/// moves.
struct KPropertySetEntry
{
    KProperty *property;
    /// The names at the time of addition, in lower case and as written: a property that is renamed is still
    /// found and listed under them.
    KPropertyKey key;
    QByteArray name;
    std::list<KPropertySetEntry>::iterator position;
    std::list<KPropertySetGroup>::iterator group;
    std::list<const KPropertySetEntry *>::iterator positionInGroup;
};

class KPropertySetPrivate
{
public:
    using Entry = KPropertySetEntry;
    using Entries = std::list<KPropertySetEntry>;
    using Group = KPropertySetGroup;
    using Groups = std::list<KPropertySetGroup>;

    KPropertySetPrivate(KPropertySet *set, bool owner);
    ~KPropertySetPrivate();
    Q_DISABLE_COPY_MOVE(KPropertySetPrivate)

    KProperty *find(const QByteArray &name) const;
    bool contains(const KProperty *property) const { return entryOf(property); }
    KProperty &nullProperty() const;
    QByteArray groupNameOf(const KProperty *property) const;
    QString groupCaption(const QByteArray &group) const;

    void addProperty(KProperty *property, const QByteArray &group);
    void insertProperty(KProperty *property, const KProperty &neighbour, KPropertySet::Side side);
    void removeProperty(KProperty *property);
    /// Takes a property out of all indexes without deleting it.
    bool takeOut(KProperty *property);
    void clear();
    void copyFrom(const KPropertySetPrivate &other);

    // Called by a property; here because a property must not know how a set is built.
    static void emitPropertyChanged(KPropertySet *set, KProperty *property);
    static void emitPropertyReset(KPropertySet *set, KProperty *property);
    static void emitAboutToDeleteChild(KPropertySet *set, KProperty *child);
    static void forget(KPropertySet *set, KProperty *property);

    KPropertySet *const q;
    const bool ownsProperties;
    bool readOnly = false;
    Entries entries;
    QHash<KPropertyKey, Entry *> byName;
    Groups groups;
    QHash<QByteArray, Groups::iterator> groupByName;
    QHash<QByteArray, QString> groupCaptions;
    QHash<QByteArray, QString> groupIconNames;
    QByteArray previousSelection;

private:
    Groups::iterator groupNamed(const QByteArray &name);
    /// Null for what isn't in this set.
    Entry *entryOf(const KProperty *property) const;
    /// False for what the set has already, and for what it keeps out of sight.
    bool accepts(KProperty *property);
    /// Before the given places.
    void place(KProperty *property, Entries::iterator position, Groups::iterator group,
               std::list<const Entry *>::iterator positionInGroup);
    void deleteAll();

    /// The one that was asked for last, as its neighbours mostly are; end() if it is gone.
    Groups::iterator m_lastGroup = groups.end();
    /// Of properties that were added to another set since, which knows their place there.
    QHash<const KProperty *, Entry *> m_shared;
    /// Additions that were refused: owned, since the caller gave them away.
    QSet<KProperty *> m_refused;
    mutable KProperty m_null;
};
