// The differences of two JSON values in a document, below the structure of tabs and cells.
#pragma once

#include "DifferenceList.h"

namespace orv {

/// Compares any two values: tables row by row, objects by members, lists of named objects by name, and
/// anything else as a whole. At least one difference comes of values that differ. Gives \a left with what is
/// wanted of \a right.
QJsonValue compareValues(const QJsonValue &left, const QJsonValue &right, const DifferenceList::Place &place,
                         DifferenceList *differences);

/// The same for a metadata member, whose text is JSON itself.
QJsonValue compareMetadata(const QJsonValue &left, const QJsonValue &right,
                           const DifferenceList::Place &place, DifferenceList *differences);

/// Calls \a visit with each key of either object, ascending.
template<typename Visit>
void forEachMember(const QJsonObject &left, const QJsonObject &right, Visit visit)
{
    auto l = left.begin();
    auto r = right.begin();
    while (l != left.end() || r != right.end()) {
        const bool takesLeft = r == right.end() || (l != left.end() && l.key() <= r.key());
        const QString key = takesLeft ? l.key() : r.key();
        visit(key, left.value(key), right.value(key));
        if (l != left.end() && l.key() == key)
            ++l;
        if (r != right.end() && r.key() == key)
            ++r;
    }
}

/// \a original, which is \a left or has members beside those of it, with what \a merge gives for each member
/// of \a left and \a right that becomes another one.
template<typename Merge>
QJsonObject mergedMembers(QJsonObject original, const QJsonObject &left, const QJsonObject &right,
                          Merge merge)
{
    forEachMember(left, right, [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
        // An undefined value takes the member away.
        if (const QJsonValue merged = merge(key, l, r); merged != l)
            original.insert(key, merged);
    });
    return original;
}

} // namespace orv
