#pragma once

#include "KPropertySet.h"

#include <QHash>
#include <QMap>
#include <QSet>

class KPropertySetPrivate
{
public:
    /// Orders properties and groups. Numbers are never used twice, so removing one moves no other.
    using Sequence = quint64;

    struct Group
    {
        QByteArray name;
        /// As the properties were called when they were added: lookups go by that, renamed or not.
        QMap<Sequence, QByteArray> propertyNames;
    };

    struct Entry
    {
        /// The name at the time of addition: a property that is renamed is still found under it.
        QByteArray key;
        Sequence position = 0;
        Sequence group = 0;
    };

    KPropertySetPrivate(KPropertySet *set, bool owner);
    ~KPropertySetPrivate();
    Q_DISABLE_COPY_MOVE(KPropertySetPrivate)

    KProperty *find(const QByteArray &name) const;
    KProperty &nullProperty() const;
    QByteArray groupNameOf(const KProperty *property) const;
    QString groupCaption(const QByteArray &group) const;

    void addProperty(KProperty *property, const QByteArray &group);
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
    Sequence nextSequence = 1;
    QMap<Sequence, KProperty *> properties;
    QHash<QByteArray, KProperty *> byName;
    QHash<const KProperty *, Entry> entries;
    QMap<Sequence, Group> groups;
    QHash<QByteArray, Sequence> groupByName;
    QHash<QByteArray, QString> groupCaptions;
    QHash<QByteArray, QString> groupIconNames;
    QByteArray previousSelection;

private:
    Group &groupNamed(const QByteArray &name, Sequence *sequence);
    void deleteAll();

    /// Additions that were refused: owned, since the caller gave them away.
    QSet<KProperty *> m_refused;
    mutable KProperty m_null;
};
