#include "DifferenceList.h"

#include <QHash>

namespace orv {

namespace {

/// Of a name in a path: places repeat the names above them.
constexpr qsizetype kLongestName = 200;
constexpr QLatin1String kSeparator(" / ");

} // namespace

using Place = DifferenceList::Place;

Place Place::below(const QString &name) const
{
    Place place = *this;
    place.columns.clear();
    if (!path.isEmpty())
        place.path += kSeparator;
    place.path += name.size() <= kLongestName ? name : name.left(kLongestName) + QLatin1String("...");
    return place;
}

Place Place::tableRow(const QString &name, const QStringList &tableColumns) const
{
    Place place = below(name);
    place.columns = tableColumns;
    return place;
}

Place Place::inTab(const QString &name) const
{
    Place place = below(name);
    place.tab = name;
    place.known = place.path.size();
    return place;
}

Place Place::inColumn(const QString &name) const
{
    Place place = below(name);
    place.column = name;
    place.known = place.path.size();
    return place;
}

Place Place::inRow(qsizetype number) const
{
    Place place = below(QStringLiteral("row %1").arg(number));
    place.row = number;
    place.known = place.path.size();
    return place;
}

Place Place::inSetting(const QString &name) const
{
    Place place = below(name);
    place.property = name;
    place.known = place.path.size();
    return place;
}

bool DifferenceList::add(const Place &place, const QJsonValue &left, const QJsonValue &right)
{
    const Kind kind = left.isUndefined() ? Kind::Added : right.isUndefined() ? Kind::Removed : Kind::Changed;
    const qsizetype separator = place.known > 0 && place.known < place.path.size() ? kSeparator.size() : 0;
    m_differences.append({kind, place.path, place.tab, place.column, place.row, place.property, left, right,
                          place.path.mid(place.known + separator), m_group, place.columns});
    return m_group == kNoGroup && isChosen(size() - 1);
}

bool DifferenceList::add(const Place &place, const QJsonValue &left, const QJsonValue &right,
                         qsizetype *group)
{
    if (*group == kNoGroup)
        *group = size();
    const bool isWanted = add(place, left, right);
    if (m_group == kNoGroup)
        m_differences.last().together = *group;
    return isWanted;
}

bool DifferenceList::addOrder(const Place &place, const QString &what, const CountedNames &left,
                              const CountedNames &right)
{
    const QJsonArray leftOrder = left.sharedWith(right);
    const QJsonArray rightOrder = right.sharedWith(left);
    return leftOrder != rightOrder && add(place.below(what), leftOrder, rightOrder);
}

/// One alone needs no other.
QList<WorkflowDifference> DifferenceList::take()
{
    QHash<qsizetype, int> counts;
    for (const WorkflowDifference &difference : std::as_const(m_differences))
        ++counts[difference.together];
    for (WorkflowDifference &difference : m_differences) {
        if (counts.value(difference.together) == 1)
            difference.together = kNoGroup;
    }
    return std::move(m_differences);
}

} // namespace orv
