// What becomes of two lists of named things.
#pragma once

#include "NameMatching.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonValue>

namespace orv {

/// One list made of two.
class NamedListMerge
{
public:
    /// Both outlive this.
    NamedListMerge(const CountedNames &left, const CountedNames &right)
        : m_left(left)
        , m_right(right)
    {}

    using Place = std::optional<qsizetype>;

    /// What stands for the elements at these places; undefined for nothing.
    void put(Place left, Place right, const QJsonValue &value);
    /// In the order of the left list, or else of the right one; what only the other has stands behind its
    /// neighbour there.
    [[nodiscard]] QJsonArray merged(bool takesRightOrder) const;

private:
    const CountedNames &m_left;
    const CountedNames &m_right;
    QHash<CountedNames::Key, QJsonValue> m_values;
};

/// The groups of what one of two lists has alone: of repeated names, the others would be told by other
/// numbers if one of them went.
class OneSidedGroups
{
public:
    /// Valid until the next call; begins with \a none.
    [[nodiscard]] qsizetype *of(const QString &name, qsizetype none)
    {
        const auto found = m_groups.find(name);
        return found != m_groups.end() ? &found.value() : &m_groups.insert(name, none).value();
    }

private:
    QHash<QString, qsizetype> m_groups;
};

/// Compares two lists whose elements have names, and gives \a left with what is wanted of \a right.
/// \a compare gives what becomes of elements that both have; \a add tells of one that either lacks, and
/// \a addOrder of another order: whether the right side is wanted.
template<typename Compare, typename Add, typename AddOrder>
QJsonArray mergeNamed(const QJsonArray &left, const CountedNames &leftNames, const QJsonArray &right,
                      const CountedNames &rightNames, bool merges, qsizetype noGroup, Compare compare,
                      Add add, AddOrder addOrder)
{
    NamedListMerge merge(leftNames, rightNames);
    OneSidedGroups groups;
    matchNames(leftNames, rightNames, [&](const QString &label, auto i, auto j) {
        if (i && j) {
            merge.put(i, j, compare(label, *i, *j));
            return;
        }
        const QString name = (i ? leftNames.keys().at(*i) : rightNames.keys().at(*j)).first;
        const bool isChosen = add(label, i, j, groups.of(name, noGroup));
        const QJsonValue alone = i ? left.at(*i) : right.at(*j);
        merge.put(i, j, bool(i) != isChosen ? alone : QJsonValue(QJsonValue::Undefined));
    });
    const bool takesOrder = addOrder();
    return merges ? merge.merged(takesOrder) : left;
}

} // namespace orv
