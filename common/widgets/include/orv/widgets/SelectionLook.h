#pragma once

#include <orv/widgets/Export.h>

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QAbstractItemView)
QT_FORWARD_DECLARE_CLASS(QStyleOptionViewItem)

/// How selected rows look, for initViewItemOption() of views.
namespace orv::SelectionLook {

/// Without the focus a view has the inactive colours of the palette, legible ones.
ORV_PROPERTY_EDITOR_EXPORT void apply(const QAbstractItemView &view, QStyleOptionViewItem *option);

} // namespace orv::SelectionLook
