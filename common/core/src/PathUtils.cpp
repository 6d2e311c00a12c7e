#include "orv/core/PathUtils.h"

#include <QFileInfo>

namespace orv::PathUtils {

namespace {

QStringView withoutTrailingSeparators(QStringView path)
{
    while (path.endsWith(QLatin1Char('/')) || path.endsWith(QLatin1Char('\\')))
        path.chop(1);
    return path;
}

} // namespace

bool hasExtension(const QString &path, const QString &extension)
{
    const QStringView trimmed = withoutTrailingSeparators(path);
    const qsizetype dot = trimmed.size() - extension.size() - 1;
    return !extension.isEmpty() && dot >= 0 && trimmed[dot] == QLatin1Char('.') &&
           trimmed.endsWith(extension, Qt::CaseInsensitive);
}

bool isDirectory(const QString &path)
{
    return QFileInfo(path).isDir();
}

bool isExistingDir(const QString &path)
{
    return isDirectory(path);
}

bool isExistingFile(const QString &path)
{
    return QFileInfo(path).isFile();
}

} // namespace orv::PathUtils
