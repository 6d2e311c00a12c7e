#pragma once

#include <QString>

/// The workflows that come with an application, which its makers keep at the newest version.
namespace orv::SystemWorkflows {

/// Upgrades the workflow files right in \a folder in place, in the name of the makers. A file whose upgrade
/// fails is written as far as that came; that one, and one of which something is lost, is kept as it was
/// beside it. What can't be read or written is told in the log. Any thread.
void upgradeAllIn(const QString &folder);

} // namespace orv::SystemWorkflows
