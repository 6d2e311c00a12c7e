#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>

#include <QByteArray>
#include <QString>

namespace orv::DocumentSaving {

/// Writes the text of a document, whole or not at all. InvalidContent for more than can be read again,
/// CannotOpenFile with the message "Could not write the file: %1", the device's words and the remedy for what
/// can't be written. What stood in the file stays then. Safe on any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error write(const QString &fileName, const QByteArray &json);

} // namespace orv::DocumentSaving
