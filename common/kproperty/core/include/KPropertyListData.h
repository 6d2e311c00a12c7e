#pragma once

#include "kpropertycore_export.h"

#include <QList>
#include <QPair>
#include <QStringList>
#include <QVariant>

#include <memory>

/*! Keys that a value may take, each with the name that the user sees at the same position.

    Keys should be unique; the two lists may differ in length, then the rest has no name or no key.
    A plain value: use it in one thread at a time. */
class KPROPERTYCORE_EXPORT KPropertyListData
{
public:
    KPropertyListData();
    KPropertyListData(const KPropertyListData &other);
    KPropertyListData(const QStringList &keys, const QStringList &names);
    KPropertyListData(const QVariantList &keys, const QVariantList &names);
    KPropertyListData(const QVariantList &keys, const QStringList &names);
    /// From (key, name) pairs, as tables of list texts hold them.
    explicit KPropertyListData(const QList<QPair<int, QString>> &items);
    explicit KPropertyListData(const QList<QPair<QString, QString>> &items);
    ~KPropertyListData();

    KPropertyListData &operator=(const KPropertyListData &other);
    bool operator==(const KPropertyListData &other) const;
    inline bool operator!=(const KPropertyListData &other) const { return !operator==(other); }

    QVariantList keys() const;
    QStringList keysAsStringList() const;
    void setKeys(const QVariantList &keys);
    void setKeysAsStringList(const QStringList &keys);

    QVariantList names() const;
    QStringList namesAsStringList() const;
    void setNames(const QVariantList &names);
    void setNamesAsStringList(const QStringList &names);

private:
    class Private;
    const std::unique_ptr<Private> d;
};
