#pragma once

#include <orv/widgets/Export.h>

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QStyleOptionViewItem)

/// Empty boxes that can be seen on dark palettes, where styles take their frame from the window's colour,
/// which is next to black there. GUI thread.
namespace orv::CheckBoxLook {

/// For the check boxes of the whole application, from now on.
ORV_PROPERTY_EDITOR_EXPORT void install();

/// For the boxes of a list, where it fills in what its rows are painted with.
ORV_PROPERTY_EDITOR_EXPORT void apply(QStyleOptionViewItem *option);

} // namespace orv::CheckBoxLook
