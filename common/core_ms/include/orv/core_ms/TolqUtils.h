#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/core_ms/TolqMetadata.h>

#include <QString>

/// Acquired samples (.tolq): a zip archive or a folder, with metadata and the sample inside
/// (docs/formats.md). Any thread.
///
/// Errors: CannotOpenFile for what can't be read or written, InvalidContent for what is damaged or would do
/// harm: names that lead out of the archive, links, encrypted entries, and archives that hold far more than
/// such files do. Details name file, entry and reason.
namespace orv::TolqUtils {

[[nodiscard]] ORV_WORKFLOW_EXPORT Result<TolqMetadata> readMetadata(const QString &path);

/// The path of the sample inside. That of an archive is unpacked into \a directory, which exists, and into
/// which nothing else is written; what a failure leaves there is the caller's to remove. That of a folder
/// stays where it is.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QString> extractSamplePath(const QString &path,
                                                                    const QString &directory);

} // namespace orv::TolqUtils
