#pragma once

#include <orv/table/RowNode.h>

#include <QDateTime>

#include <algorithm>
#include <cstring>

/// Stricter than the comparison of QVariant, for which 5 equals 5.0 and NaN not even itself.
namespace CellComparison {

inline bool isSame(const QVariant &a, const QVariant &b);

template<typename Map>
bool isSameMap(const Map &a, const Map &b)
{
    if (a.keys() != b.keys())
        return false;
    for (const QString &key : a.keys()) {
        if (!isSame(a.value(key), b.value(key)))
            return false;
    }
    return true;
}

inline QVariantMap sorted(const QVariantHash &hash)
{
    QVariantMap map;
    for (auto it = hash.begin(); it != hash.end(); ++it)
        map.insert(it.key(), it.value());
    return map;
}

inline bool isSameNumber(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (a != a && b != b);
}

inline bool isSameDateTime(const QDateTime &a, const QDateTime &b)
{
    return a == b && (!a.isValid() || a.timeSpec() == b.timeSpec()) &&
           a.timeZoneAbbreviation() == b.timeZoneAbbreviation();
}

/// Same type and same value, bit by bit for numbers, all the way down.
inline bool isSame(const QVariant &a, const QVariant &b)
{
    if (a.metaType() != b.metaType())
        return false;
    switch (a.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return isSameNumber(a.toDouble(), b.toDouble());
    case QMetaType::QVariantList: {
        const QVariantList left = a.toList();
        const QVariantList right = b.toList();
        return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [](const QVariant &x, const QVariant &y) { return isSame(x, y); });
    }
    case QMetaType::QVariantMap:
        return isSameMap(a.toMap(), b.toMap());
    case QMetaType::QVariantHash:
        return isSameMap(sorted(a.toHash()), sorted(b.toHash()));
    case QMetaType::QDateTime:
        return isSameDateTime(a.toDateTime(), b.toDateTime());
    default:
        return a == b;
    }
}

inline bool isSame(const orv::RowNode &a, const orv::RowNode &b)
{
    if (!std::equal(a.data.begin(), a.data.end(), b.data.begin(), b.data.end(),
                    [](const QVariant &left, const QVariant &right) { return isSame(left, right); }) ||
        a.getChildListSize() != b.getChildListSize())
        return false;
    for (int i = 0; i < a.getChildListSize(); ++i) {
        if (!isSame(*a.getChild(i), *b.getChild(i)))
            return false;
    }
    return true;
}

} // namespace CellComparison
