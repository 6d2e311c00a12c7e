#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

namespace orv {

/// A precursor to which a search is limited. A plain value.
struct ORV_WORKFLOW_EXPORT InclusionItem
{
    double mz = 0.0;
    int charge = 0;                     ///< 0 for any
    std::optional<double> startMinutes; ///< retention time, unset for no limit
    std::optional<double> endMinutes;
    QString name;
    QJsonObject unknownMembers; ///< read from a file of a newer version, written back as they stand

    bool operator==(const InclusionItem &) const = default;
};

/// The inclusion list of a search in its three forms.
///
/// As text it has a line for each precursor, comma-separated: m/z, charge, begin and end of the retention
/// time in minutes, and name; all but the m/z may be empty, and commas at the end are left out:
///
///     524.265,2,10.5,12,LVNELTEFAK
///     740.4014
///
/// As object it has the array "inclusion" of objects with the members "mz", "charge", "start", "end" and
/// "name"; where the text stands in its place, that is read. Stateless, any thread.
namespace InclusionList {

/// Longest list.
inline constexpr qsizetype kMaximumItems = 100'000;

/// The text of an object, empty for an empty one. Elements that can't be read are passed over with a warning
/// in the log, but for those that toJson made of lines that it couldn't read: they are written as they were.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString toString(const QJsonObject &object);

/// The object of a text, empty when the text has no line but blank ones. A line that can't be read becomes an
/// element with the member "text" alone, so that it isn't lost.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject toJson(const QString &text);

/// The object of a list, empty for an empty one.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject toJson(const QList<InclusionItem> &items);

/// The items of an object. InvalidContent with the element as detail for one that can't be read: an m/z that
/// isn't above 0, a charge outside -1000 to 1000, times that are negative or out of order, a line that toJson
/// couldn't read, and a list that is too long.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<InclusionItem>> toVector(const QJsonObject &object);

} // namespace InclusionList

} // namespace orv
