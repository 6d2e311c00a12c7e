#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

#include <QString>

/// Stores of data that the server knows by a name, and that are mounted here as well. Any thread.
namespace orv::ExternalDataSources {

/// The setting (orv/core/Settings.h) with the absolute path of the folder at which the source \a name is
/// mounted: "ExternalDataSources/archive", or ORV_EXTERNALDATASOURCES_ARCHIVE in the environment.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString settingsKey(const QString &name);

/// Where a reference of the scheme ExternalDataSource lies on this machine. Doesn't touch the disk. Fails
/// with InvalidContent for any other reference, for a source that isn't mounted here, and for a path with
/// "..", which would lead out of the source.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QString> localPath(const ResourceReferenceSPtr &reference);

} // namespace orv::ExternalDataSources
