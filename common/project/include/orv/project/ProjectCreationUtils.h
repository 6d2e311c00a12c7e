#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QDateTime>
#include <QDir>
#include <QString>

/// The temporary folders in which projects are created. A folder of the project NAME lies beside it and is
/// called NAME.tmp-20240131T102030456Z, by the moment in UTC at which it was made. Any thread.
namespace orv::ProjectCreationUtils {

/// The name of a temporary folder of the project \a name made at that moment.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString tempFolderName(const QString &name, const QDateTime &moment);

/// Makes a temporary folder of the project \a name in \a dir and gives its absolute path. CannotOpenFile if
/// it can't be made.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QString> createTempFolder(const QDir &dir, const QString &name);

/// The absolute path of the youngest temporary folder of the project \a name in \a dir, by the moments in
/// their names, as copying changes the times of folders; empty if there is none.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString lastTempFolder(const QDir &dir, const QString &name);

} // namespace orv::ProjectCreationUtils
