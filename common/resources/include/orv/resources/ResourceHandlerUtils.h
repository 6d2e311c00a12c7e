#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

#include <QString>

/// Shortcuts for one question to the handler of a reference. They may block on a disk or a server. Any
/// thread.
namespace orv::ResourceHandlerUtils {

/// Whether there is such a resource, links followed. Fails when that can't be found out: for a null or empty
/// reference, and when nothing here reaches its server.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<bool> exists(const ResourceReferenceSPtr &reference);

/// As exists; that it can't be found out counts as not existing, and is logged as a warning.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool checkExists(const ResourceReferenceSPtr &reference);

/// Whether \a reference can be handed to processing: it isn't empty, its scheme is reached from here, and the
/// resource exists. Why not is logged as a warning.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool validateReference(const ResourceReferenceSPtr &reference);

/// The path of a local reference, without a long-path prefix and with slashes where its system has
/// backslashes; relative when the reference is. Empty for any other reference.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString fullPath(const ResourceReferenceSPtr &reference);

} // namespace orv::ResourceHandlerUtils
