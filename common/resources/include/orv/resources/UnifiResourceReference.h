#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

#include <QString>

/// References to UNIFI items.
namespace orv::UnifiResourceReference {

/// The reference to the item \a id, with or without braces, in the folder \a path of \a server, with or
/// without slashes at its ends. Fails with InvalidContent when server, id or name is missing, or can't be
/// written.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<ResourceReferenceSPtr>
create(const QString &server, const QString &id, const QString &path, const QString &name);

} // namespace orv::UnifiResourceReference
