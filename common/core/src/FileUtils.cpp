#include <orv/core/FileUtils.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>

namespace orv::FileUtils {

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(FileUtils)
};

Error cannotOpen(const QString &path, const QString &detail)
{
    return Error(ErrorCode::CannotOpenFile, Tr::tr("Could not open the file: %1").arg(path)).addDetail(detail);
}

Error tooLarge(const QString &path, qint64 size, qint64 maxSize)
{
    const QLocale locale = QLocale::c();
    return Error(ErrorCode::InvalidContent,
                 Tr::tr("The file is too large: %1 (%2, at most %3 are read)")
                     .arg(path, locale.formattedDataSize(size), locale.formattedDataSize(maxSize)));
}

} // namespace

Result<QByteArray> readFile(const QString &path, qint64 maxSize)
{
    const QFileInfo info(path);
    if (info.isDir())
        return cannotOpen(path, Tr::tr("It is a folder; name a file."));
    if (info.exists() && !info.isFile())
        return cannotOpen(path, Tr::tr("It is a pipe or a device; name a regular file."));

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannotOpen(path, file.errorString());
    if (file.size() > maxSize)
        return tooLarge(path, file.size(), maxSize);

    // The size is asked for before: a file that grows while it is read must not grow the buffer.
    QByteArray bytes = file.read(maxSize + 1);
    if (file.error() != QFileDevice::NoError)
        return cannotOpen(path, file.errorString());
    if (bytes.size() > maxSize)
        return tooLarge(path, bytes.size(), maxSize);
    return bytes;
}

QFileDevice::FileError writeToFile(const QString &path, const QByteArray &bytes, QString *errorText)
{
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (written)
        return QFileDevice::NoError;
    if (errorText)
        *errorText = file.errorString();
    const QFileDevice::FileError error = file.error();
    return error == QFileDevice::NoError ? QFileDevice::WriteError : error;
}

} // namespace orv::FileUtils
