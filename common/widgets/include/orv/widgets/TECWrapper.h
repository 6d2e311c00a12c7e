#pragma once

#include <orv/widgets/Export.h>

#include <QString>

/// The frame in which a label script is edited: a line in front and a line behind that mark it as a script.
/// Any thread.
namespace orv::TECWrapper {

/// \a script in its frame; a text that has one already stays as it is.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString wrapTEC(const QString &script);

/// What stands in the frame; a text without one as it is. unwrapTEC(wrapTEC(script)) is \a script, but for
/// one that was in a frame itself.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString unwrapTEC(const QString &text);

} // namespace orv::TECWrapper
