#pragma once

#include <orv/core/Export.h>

#include <QString>
#include <QStringList>

namespace orv::FileNameUtils {

/// A path in \a folder for a copy of \a source that no file or folder there has yet, nor one of the names
/// \a reserved: the file's own name, or with " (2)", " (3)", ... before its extension when the name is taken,
/// then no longer than 255 bytes. Names that differ in case alone count as one.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString generateUniqueDestination(const QString &source,
                                                                    const QString &folder,
                                                                    const QStringList &reserved = {});

/// \a text, such as the name of a sample, as the name of a file on every system: characters that mean
/// something in paths, control characters, and blanks and dots at the end become underscores, and so does an
/// empty text. Different texts may give one name.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString nameFromText(const QString &text);

} // namespace orv::FileNameUtils
