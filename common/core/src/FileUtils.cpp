#include "orv/core/FileUtils.h"

#include "orv/core/FileLinks.h"

#include <orv/core/Logging.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <system_error>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

namespace orv::FileUtils {

namespace {

struct FileUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(FileUtils)
};

QString notRegular()
{
    return FileUtilsTr::tr("It is a pipe or a device; name a regular file.");
}

QString notPutBack(const QString &reason, const QString &lost)
{
    return FileUtilsTr::tr("%1 The old content couldn't be put back: %2").arg(reason, lost);
}

QString emptyName()
{
    return FileUtilsTr::tr("The name is empty; name a file.");
}

Error cannotOpen(const QString &path, const QString &detail)
{
    return Error(ErrorCode::CannotOpenFile, FileUtilsTr::tr("Could not open the file: %1").arg(path))
        .addDetail(detail);
}

Error tooLarge(const QString &path, qint64 size, qint64 maxSize)
{
    const QLocale locale = QLocale::c();
    return Error(ErrorCode::InvalidContent,
                 FileUtilsTr::tr("The file is too large: %1 (%2, at most %3 are read)")
                     .arg(path, locale.formattedDataSize(size), locale.formattedDataSize(maxSize)));
}

/// Reads \a file to its end, but never much beyond \a maxSize. The buffer has the size that the file tells:
/// the limit is far above what files have, and reserving it would cost each of them.
QByteArray readUpTo(QFile &file, qint64 maxSize)
{
    constexpr qint64 kChunk = qint64(64) * 1024;
    const qint64 size = file.size();
    QByteArray bytes = file.read(size + 1);
    if (bytes.size() <= size)
        return bytes;
    // It tells no size, as files of the system do, or grows while it is read.
    while (bytes.size() <= maxSize) {
        const QByteArray more = file.read(kChunk);
        if (more.isEmpty())
            break;
        bytes += more;
    }
    return bytes;
}

/// Whether the file system made \a to a clone of \a from.
bool shareBlocks(const QFile &from, const QFile &to)
{
#if defined(Q_OS_LINUX) && defined(FICLONE)
    return ioctl(to.handle(), FICLONE, from.handle()) == 0;
#else
    Q_UNUSED(from)
    Q_UNUSED(to)
    return false;
#endif
}
/// A rename would put a file in the place of a pipe or device, /dev/null for one.
QString refusalToWrite(const QString &path)
{
    const QFileInfo target(path);
    if (path.isEmpty())
        return emptyName();
    return target.exists() && !target.isFile() && !target.isDir() ? notRegular() : QString();
}

QFileDevice::FileError failed(QFileDevice::FileError error, const QString &reason, QString *errorText)
{
    if (errorText)
        *errorText = reason;
    return error;
}

/// Why it can't be written; empty when all of it was. A part that was written hides the reason why the rest
/// was not.
QString writeAll(QFile &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 count = file.write(bytes.data(), bytes.size());
        if (count <= 0)
            return file.errorString();
        bytes = bytes.sliced(count);
    }
    return {};
}

bool flushToDisk(const QFile &file)
{
#ifdef Q_OS_UNIX
    return ::fsync(file.handle()) == 0;
#else
    Q_UNUSED(file)
    return true;
#endif
}

/// File systems have names of so many bytes.
constexpr qsizetype kLongestName = 255;
/// What QSaveFile puts behind a name: a point and six letters.
constexpr qsizetype kSaveFileSuffix = 7;

bool fitsQSaveFile(const QString &path)
{
    const QFileInfo target(FileLinks::end(path));
    return QFile::encodeName(target.fileName()).size() + kSaveFileSuffix <= kLongestName;
}

/// A name beside \a path that no other thread or program takes. Where nothing fits behind the name, its
/// beginning has to do.
QString nameBeside(const QString &path)
{
    static std::atomic<quint32> count = 0;
    const QFileInfo info(path);
    const QString suffix = QStringLiteral(".%1-%2").arg(QCoreApplication::applicationPid()).arg(count++);
    QString name = info.fileName();
    while (!name.isEmpty() && QFile::encodeName(name + suffix).size() > kLongestName)
        name.chop(1);
    return info.path() + u'/' + name + suffix;
}

enum class Durability
{
    Flushed, ///< stands on the disk also after a power cut
    Unflushed,
};

/// Writes beside \a path and renames.
QFileDevice::FileError writeAside(const QString &path, const QByteArray &bytes, Durability durability,
                                  QString *errorText)
{
    const QString target = FileLinks::end(path);
    const QFileInfo old(target);
    // Nobody can name the file behind a circle, and nobody wants a link of it to become one.
    if (old.isSymLink())
        return failed(QFileDevice::OpenError, qt_error_string(ELOOP), errorText);
    const bool isReplaced = old.exists();
    if (isReplaced && !old.isWritable())
        return failed(QFileDevice::OpenError, qt_error_string(EACCES), errorText);

    QFile file(nameBeside(target));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return failed(QFileDevice::OpenError, file.errorString(), errorText);
    QString reason = writeAll(file, bytes);
    if (reason.isEmpty() && durability == Durability::Flushed && !flushToDisk(file))
        reason = qt_error_string(errno);
    file.close();
    if (reason.isEmpty() && isReplaced && !file.setPermissions(old.permissions()))
        reason = file.errorString();
    if (reason.isEmpty()) {
        std::error_code renameError;
        std::filesystem::rename(file.filesystemFileName(), old.filesystemFilePath(), renameError);
        if (!renameError)
            return QFileDevice::NoError;
        reason = QString::fromStdString(renameError.message());
    }
    file.remove();
    return failed(QFileDevice::WriteError, reason, errorText);
}

/// Whoever has linked copies of a folder, as backups are, wants them to stay; whoever has not shall hear why
/// the names differ from now on.
void warnOfOtherNames(const QString &path)
{
    const QFileInfo target(path);
    if (!target.isFile())
        return;
    std::error_code error;
    const auto names = std::filesystem::hard_link_count(target.filesystemCanonicalFilePath(), error);
    if (!error && names > 1) {
        qCWarning(genericLog).noquote()
            << QStringLiteral("%1 is one of %2 names (hard links) of a file. It becomes a file of its own; "
                              "the other names keep what was there.")
                   .arg(path)
                   .arg(names);
    }
}

/// A file that can be written in a folder in which none can be made.
bool allowsOnlyTheFile(const QString &path)
{
    const QFileInfo target(QFileInfo(path).canonicalFilePath());
    return target.isFile() && target.isWritable() && !QFileInfo(target.path()).isWritable();
}

QFileDevice::FileError writeInPlace(const QString &path, const QByteArray &bytes, QString *errorText)
{
    const Result<QByteArray> old = readFile(path, std::numeric_limits<qint64>::max());
    QFile file(path);
    if (old.hasError() || !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return failed(QFileDevice::OpenError, file.errorString(), errorText);
    qCWarning(genericLog).noquote()
        << QStringLiteral(
               "%1 is written in place, as nothing can be made in its folder: if the program or the "
               "machine stops now, the file may be cut short.")
               .arg(path);
    const auto write = [&file](const QByteArray &content) {
        const QString reason = file.seek(0) ? writeAll(file, content) : file.errorString();
        return !reason.isEmpty() || file.resize(content.size()) ? reason : file.errorString();
    };
    const QString reason = write(bytes);
    if (reason.isEmpty())
        return flushToDisk(file) ? QFileDevice::NoError
                                 : failed(QFileDevice::WriteError, qt_error_string(errno), errorText);
    const QString lost = write(*old);
    return failed(QFileDevice::WriteError, lost.isEmpty() ? reason : notPutBack(reason, lost), errorText);
}

std::optional<CopyFailure> copyBytes(QFile &from, QFile &to, const CopyProgress &progress)
{
    using Side = CopyFailure::Side;
    constexpr qint64 kChunk = qint64(4) * 1024 * 1024;
    QByteArray chunk(qsizetype(kChunk), Qt::Uninitialized);
    const qint64 total = from.size();
    for (qint64 done = 0;;) {
        const qint64 size = from.read(chunk.data(), kChunk);
        if (size < 0)
            return CopyFailure{Side::Source, from.errorString()};
        if (size == 0)
            break;
        if (to.write(chunk.constData(), size) != size)
            return CopyFailure{Side::Destination, to.errorString()};
        done += size;
        if (progress)
            progress(done, std::max(done, total));
    }
    if (!to.flush())
        return CopyFailure{Side::Destination, to.errorString()};
    return {};
}

Error openRegular(const QString &path, QFile *file)
{
    const QFileInfo info(path);
    if (info.isDir())
        return cannotOpen(path, FileUtilsTr::tr("It is a folder; name a file."));
    if (info.exists() && !info.isFile())
        return cannotOpen(path, notRegular());
    if (path.isEmpty())
        return cannotOpen(path, emptyName());
    file->setFileName(path);
    if (!file->open(QIODevice::ReadOnly))
        return cannotOpen(path, file->errorString());
    return Error::NoError;
}

} // namespace

Error checkReadable(QByteArrayView bytes, qint64 maxSize)
{
    if (bytes.size() <= maxSize)
        return Error::NoError;
    const QLocale locale = QLocale::c();
    return Error(ErrorCode::InvalidContent,
                 FileUtilsTr::tr(
                     "What is to be written is too large to be read again (%1, at most %2 are read)")
                     .arg(locale.formattedDataSize(bytes.size()), locale.formattedDataSize(maxSize)))
        .addDetail(FileUtilsTr::tr("Nothing was written. Remove what isn't needed, or divide it."));
}

Result<QByteArray> readBeginning(const QString &path, qint64 count)
{
    QFile file;
    ORV_RETURN_IF_ERROR(openRegular(path, &file));
    QByteArray bytes = file.read(count);
    if (file.error() != QFileDevice::NoError)
        return cannotOpen(path, file.errorString());
    return bytes;
}

Result<QByteArray> readFile(const QString &path, qint64 maxSize)
{
    QFile file;
    ORV_RETURN_IF_ERROR(openRegular(path, &file));
    if (file.size() > maxSize)
        return tooLarge(path, file.size(), maxSize);

    QByteArray bytes = readUpTo(file, maxSize);
    if (file.error() != QFileDevice::NoError)
        return cannotOpen(path, file.errorString());
    if (bytes.size() > maxSize)
        return tooLarge(path, bytes.size(), maxSize);
    return bytes;
}

std::optional<CopyFailure> copyFile(const QString &source, const QString &destination,
                                    const CopyProgress &progress)
{
    using Side = CopyFailure::Side;
    if (source.isEmpty())
        return CopyFailure{Side::Source, emptyName()};
    if (const QFileInfo info(source); info.exists() && !info.isFile())
        return CopyFailure{Side::Source, notRegular()};
    QFile from(source);
    // Unbuffered: the chunks are large.
    if (!from.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return CopyFailure{Side::Source, from.errorString()};
    QFile to(destination);
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return CopyFailure{Side::Destination, to.errorString()};

    std::optional<CopyFailure> failure = shareBlocks(from, to) ? std::nullopt : copyBytes(from, to, progress);
    if (failure) {
        to.remove();
        return failure;
    }
    to.setPermissions(from.permissions() | QFileDevice::WriteOwner);
    if (progress)
        progress(from.size(), from.size());
    return {};
}

QFileDevice::FileError writeToFile(const QString &path, const QByteArray &bytes, QString *errorText)
{
    if (const QString refusal = refusalToWrite(path); !refusal.isEmpty())
        return failed(QFileDevice::OpenError, refusal, errorText);
    warnOfOtherNames(path);
    if (allowsOnlyTheFile(path))
        return writeInPlace(path, bytes, errorText);
    if (!fitsQSaveFile(path))
        return writeAside(path, bytes, Durability::Flushed, errorText);
    QSaveFile file(path);
    errno = 0;
    // Without the flush a disk that is full shows only inside commit(), which renames the cut file all the
    // same.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    if (written)
        return QFileDevice::NoError;
    const int systemError = errno;
    const QFileDevice::FileError error = file.error();
    // A flush that fails leaves the reason with the system alone.
    const bool reasonKnown = error != QFileDevice::NoError && error != QFileDevice::WriteError;
    if (errorText)
        *errorText = reasonKnown || systemError == 0 ? file.errorString() : qt_error_string(systemError);
    return error == QFileDevice::NoError ? QFileDevice::WriteError : error;
}

QFileDevice::FileError writeReproducibleFile(const QString &path, const QByteArray &bytes, QString *errorText)
{
    if (const QString refusal = refusalToWrite(path); !refusal.isEmpty())
        return failed(QFileDevice::OpenError, refusal, errorText);
    return writeAside(path, bytes, Durability::Unflushed, errorText);
}

} // namespace orv::FileUtils
