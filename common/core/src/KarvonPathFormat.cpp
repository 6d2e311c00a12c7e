#include "orv/core/KarvonPathFormat.h"

#include <orv/core/FilePathUtils.h>

#include <QDir>

namespace orv {

QString toKarvonPathFormat(const QString &path)
{
    // Most paths are plain, and a study has thousands.
    if (!path.contains(QLatin1Char('\\')) && !path.contains(QLatin1Char(':')) &&
        !FilePathUtils::hasWinLongPathPrefix(path))
        return path;
    QString text = FilePathUtils::withoutWinLongPathPrefix(path);
    if (FilePathUtils::hasDriveLetter(text) || FilePathUtils::isUncPath(text))
        text.replace(QLatin1Char('\\'), QLatin1Char('/'));
    text = QDir::fromNativeSeparators(text);
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char(':'), QLatin1String("\\:"));
    return text;
}

} // namespace orv
