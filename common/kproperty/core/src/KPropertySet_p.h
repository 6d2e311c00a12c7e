#pragma once

#include "KPropertySet.h"

#include <QHash>
#include <QSet>

#include <list>

class KPropertySetPrivate
{
public:
    // Linked lists: whatever is added or removed in the middle, no other place moves.
    using Properties = std::list<KProperty *>;
    using Names = std::list<QByteArray>;

    struct Group
    {
        QByteArray name;
        /// As the properties were called when they were added: lookups go by that, renamed or not.
        Names propertyNames;
    };
    using Groups = std::list<Group>;

    struct Entry
    {
        /// The name at the time of addition: a property that is renamed is still found under it.
        QByteArray key;
        Properties::iterator position;
        Groups::iterator group;
        Names::iterator name;
    };

    KPropertySetPrivate(KPropertySet *set, bool owner);
    ~KPropertySetPrivate();
    Q_DISABLE_COPY_MOVE(KPropertySetPrivate)

    KProperty *find(const QByteArray &name) const;
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
    Properties properties;
    QHash<QByteArray, KProperty *> byName;
    QHash<const KProperty *, Entry> entries;
    Groups groups;
    QHash<QByteArray, Groups::iterator> groupByName;
    QHash<QByteArray, QString> groupCaptions;
    QHash<QByteArray, QString> groupIconNames;
    QByteArray previousSelection;

private:
    Groups::iterator groupNamed(const QByteArray &name);
    /// False for what the set has already, and for what it keeps out of sight.
    bool accepts(KProperty *property);
    /// Before the given places.
    void place(KProperty *property, Properties::iterator position, Groups::iterator group,
               Names::iterator name);
    void deleteAll();

    /// Additions that were refused: owned, since the caller gave them away.
    QSet<KProperty *> m_refused;
    mutable KProperty m_null;
};
