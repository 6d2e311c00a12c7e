#include "FileIdentity.h"

#include "Inputs.h"

#include <orv/core/FileLinks.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace orv::cli {

QString fileIdentity(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0) {
        return QStringLiteral("%1:%2").arg(quint64(status.st_dev)).arg(quint64(status.st_ino));
    }
    const QFileInfo info(QDir::cleanPath(QFileInfo(FileLinks::end(path)).absoluteFilePath()));
    const QString folder = info.path();
    return folder == info.filePath() ? folder : fileIdentity(folder) + QLatin1Char('/') + info.fileName();
}

bool isSameOutput(const QString &first, const QString &second)
{
    const QFileInfo info(first);
    const bool takesSeveral = first == kStandardInput || second == kStandardInput ||
                              (info.exists() && !info.isFile() && !info.isDir());
    return !takesSeveral && fileIdentity(first) == fileIdentity(second);
}

bool isSameFile(const QString &first, const QString &second)
{
    const bool isFile = first != kStandardInput && second != kStandardInput && QFileInfo(first).isFile();
    return isFile && fileIdentity(first) == fileIdentity(second);
}

} // namespace orv::cli
