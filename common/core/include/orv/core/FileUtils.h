#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QFileDevice>
#include <QString>

#include <functional>
#include <optional>

/// Whole files in and out, safely.
namespace orv::FileUtils {

/// The largest file that readFile takes unless it is told otherwise: 128 MiB. A document of 10,000 samples
/// has about a tenth of that; what is larger is no workflow, and would fill the memory of a cluster node.
inline constexpr qint64 kMaxFileSize = qint64(128) * 1024 * 1024;

/// All bytes of a regular file. Fails with CannotOpenFile and the message "Could not open the file: %1" for
/// what is missing, unreadable, a folder or no regular file (a pipe would block for ever), and with
/// InvalidContent for a file larger than \a maxSize. Details name the reason and the remedy.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QByteArray> readFile(const QString &path,
                                                              qint64 maxSize = kMaxFileSize);

/// InvalidContent for bytes that readFile would refuse as too many, before they are written.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error checkReadable(QByteArrayView bytes, qint64 maxSize = kMaxFileSize);

/// The first \a count bytes of a regular file, all of them if it has fewer. Fails as readFile does for what
/// can't be opened.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QByteArray> readBeginning(const QString &path, qint64 count);

/// Replaces the file at \a path by \a bytes, whole or not at all: the bytes go to a file beside it, which is
/// flushed and then renamed, so that an interrupted or failed write leaves the old file as it was. A link
/// stays a link; of several names of one file (hard links) this one becomes a file of its own, with a warning
/// in the log; a folder, pipe or device is refused. A file that can be written in a folder in which nothing
/// can be made is written in place, with a warning of the risk: a write that fails puts the old content back,
/// but an interrupted one leaves it cut. Answers QFileDevice::NoError (0) on success; otherwise \a errorText,
/// when not null, receives the device's words.
ORV_WORKFLOW_EXPORT QFileDevice::FileError writeToFile(const QString &path, const QByteArray &bytes,
                                                       QString *errorText = nullptr);

/// Why a copy was not made.
struct CopyFailure
{
    enum class Side
    {
        Source,     ///< it is missing, unreadable or no regular file
        Destination ///< it exists, or can't be written
    };

    Side side = Side::Source;
    QString reason; ///< the device's words
};

/// Hears how many bytes of a copy are there, of how many.
using CopyProgress = std::function<void(qint64 done, qint64 total)>;

/// Copies a regular file with its permissions, writable by its owner, to \a destination, which must not
/// exist. Where the file system can, both share their blocks and nothing is moved. A copy that fails leaves
/// no destination behind.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<CopyFailure>
copyFile(const QString &source, const QString &destination, const CopyProgress &progress = {});

/// As writeToFile, for files that can be made again and are many: the system decides when the bytes reach the
/// disk, which takes a tenth of the time. A program that ends, a full disk and any failure leave the old file
/// as it was; after a power failure a file may be empty.
ORV_WORKFLOW_EXPORT QFileDevice::FileError writeReproducibleFile(const QString &path, const QByteArray &bytes,
                                                                 QString *errorText = nullptr);

} // namespace orv::FileUtils
