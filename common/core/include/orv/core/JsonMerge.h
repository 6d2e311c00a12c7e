#pragma once

#include <orv/core/Export.h>

#include <QByteArray>
#include <QJsonObject>

namespace orv {

/// A text of the object \a wanted in which every value that stands in \a text, too, is the same byte for
/// byte: the digits of numbers that no double holds, the order of members, blanks and line ends. \a text is
/// the JSON text of an object, free of faults (JsonUtils::objectFromJson takes it). What is new is written
/// like the members around it; in an array of another length the elements that were there are found again.
/// Linear in time for the members of objects and for arrays that keep their length.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray mergedJson(const QByteArray &text, const QJsonObject &wanted);

} // namespace orv
