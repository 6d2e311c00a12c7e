#pragma once

#include <orv/core/Export.h>

#include <QByteArray>
#include <QString>

namespace orv {

/// Where a path lies. The numbers are those by which rules and hosts know them.
enum class DriveType : int
{
    Unknown = 0, ///< a drive letter on a system without drives, or a file system that nothing is known of
    Local = 1,
    Network = 3,
};

/// Where \a path lies, which need not exist: its nearest existing folder decides, links followed. A path of
/// the form \\server\share is on the network on every system. Reads the mount table and may block while a
/// server doesn't answer. Any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT DriveType driveType(const QString &path);

/// The same by a given mount table (of the form of /proc/self/mountinfo) and without looking at the disk: the
/// longest mount point that holds \a path decides, the later one of two on the same place. A relative path
/// and an empty table give Unknown.
[[nodiscard]] ORV_WORKFLOW_EXPORT DriveType driveType(const QString &path, const QByteArray &mountTable);

} // namespace orv
