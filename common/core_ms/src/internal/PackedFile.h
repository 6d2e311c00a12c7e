#pragma once

#include <orv/core/Result.h>

#include <QIODevice>
#include <QString>

#include <memory>

namespace orv::msreader::internal {

/// Whether the name ends as that of a gzip file: "run.mzML.gz".
[[nodiscard]] bool hasPackedName(const QString &path);
/// \a path without that end.
[[nodiscard]] QString unpackedName(const QString &path);

/// Whether the file at \a path is gzip, told by its first bytes.
[[nodiscard]] bool isPacked(const QString &path);

/// The file at \a path, open for reading; a gzip file is unpacked on the way, and can't be moved about in. A
/// device that fails isn't at its end when it gives no more. CannotOpenFile for what is missing, unreadable
/// or no regular file.
[[nodiscard]] Result<std::unique_ptr<QIODevice>> openFile(const QString &path);

} // namespace orv::msreader::internal
