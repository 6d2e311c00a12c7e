#pragma once

#include <orv/core/Export.h>

#include <QString>

/// References to local files by their text.
namespace orv::LocalResourceReference {

/// Whether \a text is a reference to a local file; the file need not exist. An empty text names none.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isLocalReference(const QString &text);

} // namespace orv::LocalResourceReference
