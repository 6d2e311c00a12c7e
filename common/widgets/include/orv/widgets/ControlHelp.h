#pragma once

#include <orv/widgets/Export.h>

#include <QString>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// F1 explains the control under the focus, in windows and dialogs alike. GUI thread.
namespace ControlHelp {

/// From now on in the whole application; tables, dialogs and main windows call it. A window that has an
/// action of its own on F1 keeps it.
ORV_PROPERTY_EDITOR_EXPORT void install();

/// What F1 shows, as rich text: the name of the control and its what's-this text, or else its tool tip or its
/// description, or that of what it is part of. Of a view what the current cell tells by its
/// own what's-this text, else what its column holds and what is wrong with the cell. Empty where nothing is
/// told.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString explanation(const QWidget *control);

} // namespace ControlHelp

} // namespace orv
