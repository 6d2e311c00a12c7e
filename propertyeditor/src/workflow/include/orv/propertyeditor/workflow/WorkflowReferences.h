#pragma once

#include <orv/core/Export.h>

#include <QJsonObject>
#include <QStringList>
#include <QUrl>

/// The files that a workflow names, for whoever must not write over them.
namespace orv::WorkflowReferences {

/// The absolute paths of all local files and folders that a document of any version may name, each once and
/// in no order: those of samples and their companions, of settings, sequence databases, glycan databases and
/// expert settings, and texts of any setting that are absolute paths. None needs to be there. \a baseUrl is
/// the workflow's folder, with a slash at its end, from which relative paths count. Safe on any thread; asks
/// no disk and no server.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList localPaths(const QJsonObject &document, const QUrl &baseUrl);

/// \a document with every reference that is relative, but for those in texts of any setting, as the absolute
/// one of the same file: for what is to be read in another folder. Everything else stays as it is, and all of
/// it where \a baseUrl is no local folder. Safe on any thread; asks no disk and no server.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject withAbsolutePaths(const QJsonObject &document,
                                                                const QUrl &baseUrl);

} // namespace orv::WorkflowReferences
