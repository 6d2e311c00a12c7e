#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/project/ProjectCreationOptionsDao.h>

#include <QList>
#include <QString>

/// Writes new projects.
namespace orv::ProjectFile {

/// The form that projects have today. Stored in files; the forms are told apart in docs/formats.md.
inline constexpr int kCurrentSchemaVersion = 3;

/// Creates a project that holds \a options, whole or not at all. Fails with InvalidContent for a file that
/// exists, an unknown \a schemaVersion, and for two options of one key in the form of today; with
/// CannotOpenFile if it can't be written. Any thread.
ORV_WORKFLOW_EXPORT Error create(const QString &fileName, const QList<ProjectCreationOption> &options,
                                 int schemaVersion = kCurrentSchemaVersion);

} // namespace orv::ProjectFile
