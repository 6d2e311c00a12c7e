#pragma once

#include <QKeySequence>
#include <QList>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace orv::YieldingShortcuts {

/// Gives \a action of a window its shortcuts, but for those that a widget around the focus has for a command
/// of its own, as tables do: two commands of one key would do nothing.
void set(QAction *action, const QList<QKeySequence> &shortcuts);

} // namespace orv::YieldingShortcuts
