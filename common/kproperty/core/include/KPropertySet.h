#pragma once

#include "KProperty.h"
#include "kpropertycore_export.h"

#include <QByteArray>
#include <QDebug>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

class KPropertySetPrivate;

/// Chooses properties for an iterator or a count.
class KPROPERTYCORE_EXPORT KPropertySelector
{
public:
    KPropertySelector();
    virtual ~KPropertySelector();
    Q_DISABLE_COPY_MOVE(KPropertySelector)

    virtual bool operator()(const KProperty &prop) const = 0;
    /// A deep copy, owned by the caller: an iterator keeps its own.
    virtual KPropertySelector *clone() const = 0;
};

/*! Walks over the properties that a set holds when the iterator is made or its order is set.

    @code
    for (KPropertySetIterator it(set); it.current(); ++it) { use(*it.current()); }
    @endcode

    Properties that are added later are not visited; a property must not be removed before it is visited. */
class KPROPERTYCORE_EXPORT KPropertySetIterator
{
public:
    explicit KPropertySetIterator(const KPropertySet &set);
    /// Visits only what \a selector selects. The iterator keeps a clone.
    KPropertySetIterator(const KPropertySet &set, const KPropertySelector &selector);
    KPropertySetIterator(const KPropertySetIterator &set);
    ~KPropertySetIterator();

    KPropertySetIterator &operator=(const KPropertySetIterator &other);
    /// True when both stand at the same property of the same set in the same order.
    bool operator==(const KPropertySetIterator &other) const;
    inline bool operator!=(const KPropertySetIterator &other) const { return !operator==(other); }

    enum class Order
    {
        Insertion,         ///< as added
        Alphabetical,      ///< by caption, or name where there is none, without regard to case
        AlphabeticalByName ///< by name, without regard to case
    };

    /// Starts again at the first property.
    void setOrder(Order order);
    Order order() const;

    void operator++();
    inline KProperty *operator*() const { return current(); }
    /// Null at the end.
    KProperty *current() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/*! Owns properties, keeps them in the order in which they were added, and tells of their changes.

    Names of properties and groups are found without regard to (ASCII) case. Groups exist as long as they
    have properties and stand in the order in which they came to be; their names are kept in lower case.

    Signals of a change come in this order: propertyChangedInternal, propertyChanged, and for
    KProperty::resetValue() propertyReset after these. The destructor emits aboutToBeCleared,
    aboutToBeDeleted, aboutToBeCleared.

    Lookups, additions, insertions and removals take time that does not grow with the set. Use a set in one
   thread at a time. */
class KPROPERTYCORE_EXPORT KPropertySet : public QObject
{
    Q_OBJECT

public:
    explicit KPropertySet(QObject *parent = nullptr);
    /// A deep copy without QObject parent.
    explicit KPropertySet(const KPropertySet &set);
    ~KPropertySet() override;

    int count() const;
    int count(const KPropertySelector &selector) const;
    bool isEmpty() const;
    bool hasVisibleProperties() const;
    bool hasProperties(const KPropertySelector &selector) const;

    /// A read-only set cannot be edited in a view; functions change it all the same.
    bool isReadOnly() const;

    bool contains(const QByteArray &name) const;
    /// A null property when there is none of that name; changes to it are lost.
    KProperty &property(const QByteArray &name) const;
    KProperty &operator[](const QByteArray &name) const;
    QVariant propertyValue(const QByteArray &name, const QVariant &defaultValue = QVariant()) const;

    /// Replaces the contents by a deep copy of \a set, after aboutToBeCleared.
    KPropertySet &operator=(const KPropertySet &set);

    /// The name itself when no caption was set. "common" has the caption "General" until clear().
    QString groupCaption(const QByteArray &group) const;
    QString groupIconName(const QByteArray &group) const;
    /// Empty when the set does not have the property.
    QByteArray groupNameForProperty(const QByteArray &propertyName) const;
    QByteArray groupNameForProperty(const KProperty &property) const;
    /// In the order in which the groups came to be.
    QList<QByteArray> groupNames() const;
    /// In the order in which they stand, as the properties were called when they were added; \a group in
    /// lower case.
    QList<QByteArray> propertyNamesForGroup(const QByteArray &group) const;

    /// Where a view stood when it last showed this set.
    QByteArray previousSelection() const;

    /// Writes the set to the debug log.
    void debug() const;

    QMap<QByteArray, QVariant> propertyValues() const;

    /// On which side of its neighbour a property is inserted.
    enum class Side
    {
        Before,
        Behind
    };
    /*! Adds \a property to the group of \a neighbour, right at that one's \a side both there and in the order
        of the set; no other property is touched. Ownership and refusals are those of addProperty(). With a
        \a neighbour that isn't in the set: a warning, and the property stands at the end of "common". */
    void insertProperty(KProperty *property, const KProperty &neighbour, Side side);

    void clearModifiedFlags();
    bool isModified() const;

public Q_SLOTS:
    /*! Takes ownership in every case. A null property, and one whose name is taken, is kept out of sight
        until the set is cleared; the property that was there first stays. */
    void addProperty(KProperty *property, const QByteArray &group = "common");

    /// Deletes the property, after aboutToDeleteProperty. Nothing happens when the set does not have it.
    void removeProperty(KProperty *property);
    void removeProperty(const QByteArray &name);

    /// Deletes all properties and forgets captions and icons of groups, after aboutToBeCleared.
    void clear();

    /// Warns when there is no such property.
    void changeProperty(const QByteArray &property, const QVariant &value);
    void changePropertyIfExists(const QByteArray &property, const QVariant &value);

    /// May be set before the group has properties.
    void setGroupCaption(const QByteArray &group, const QString &caption);
    void setGroupIconName(const QByteArray &group, const QString &iconName);
    void setPreviousSelection(const QByteArray &prevSelection);
    void setReadOnly(bool readOnly);

Q_SIGNALS:
    void propertyChanged(KPropertySet &set, KProperty &property);
    /// Before propertyChanged, so that an editor shows the new value when others hear of it.
    void propertyChangedInternal(KPropertySet &set, KProperty &property);
    void propertyReset(KPropertySet &set, KProperty &property);
    void aboutToDeleteProperty(KPropertySet &set, KProperty &property);
    /// A child goes while its parent stays, as when the parent is assigned to: an editor drops its row.
    void aboutToDeleteChildInternal(KProperty &child);
    void aboutToBeCleared();
    void aboutToBeDeleted();
    void readOnlyFlagChanged();

protected:
    /// A set that does not own its properties shows those of others.
    explicit KPropertySet(bool propertyOwner);

private:
    const std::unique_ptr<KPropertySetPrivate> d;
    friend class KPropertySetPrivate;
    friend class KPropertySetIterator;
};

KPROPERTYCORE_EXPORT QDebug operator<<(QDebug dbg, const KPropertySet &set);
