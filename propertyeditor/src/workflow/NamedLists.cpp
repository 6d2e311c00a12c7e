#include "NamedLists.h"

#include <algorithm>

namespace orv {

namespace {

/// Where an element of the other list goes: right behind this place of the list, -1 for its beginning.
using Anchor = qsizetype;

} // namespace

void NamedListMerge::put(Place left, Place right, const QJsonValue &value)
{
    m_values.insert(left ? m_left.keys().at(*left) : m_right.keys().at(*right), value);
}

QJsonArray NamedListMerge::merged(bool takesRightOrder) const
{
    const CountedNames &first = takesRightOrder ? m_right : m_left;
    const CountedNames &second = takesRightOrder ? m_left : m_right;
    QHash<CountedNames::Key, qsizetype> places;
    QHash<QString, Anchor> lastOfName; // repeated names are counted in their order
    QJsonArray list;
    for (const CountedNames::Key &key : first.keys()) {
        const QJsonValue value = m_values.value(key);
        if (value.isUndefined())
            continue;
        places.insert(key, list.size());
        lastOfName.insert(key.first, list.size());
        list.append(value);
    }
    QHash<Anchor, QJsonArray> behind;
    Anchor last = -1;
    for (const CountedNames::Key &key : second.keys()) {
        if (const auto place = places.constFind(key); place != places.cend()) {
            last = *place;
        } else if (const QJsonValue value = m_values.value(key);
                   !first.contains(key) && !value.isUndefined()) {
            const Anchor anchor = std::max(last, lastOfName.value(key.first, -1));
            lastOfName.insert(key.first, anchor);
            behind[anchor].append(value);
        }
    }
    if (behind.isEmpty())
        return list;
    QJsonArray merged = behind.value(-1);
    for (qsizetype i = 0; i < list.size(); ++i) {
        merged.append(list.at(i));
        for (const auto value : behind.value(i))
            merged.append(value);
    }
    return merged;
}

} // namespace orv
