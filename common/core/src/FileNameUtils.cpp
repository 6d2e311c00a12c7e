#include <orv/core/FileNameUtils.h>

#include <QDir>
#include <QFileInfo>

namespace orv::FileNameUtils {

namespace {

bool isTaken(const QString &path)
{
    // A dangling link has no target, but its name can't be used for a copy.
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

QString generateUniqueDestination(const QString &source, const QString &folder)
{
    const QFileInfo info(source);
    const QDir dir(folder);
    QString destination = dir.filePath(info.fileName());
    const QString suffix = info.suffix();
    const QString dotSuffix = suffix.isEmpty() ? QString() : QLatin1Char('.') + suffix;
    for (int number = 2; isTaken(destination); ++number) {
        destination = dir.filePath(
            QStringLiteral("%1 (%2)%3").arg(info.completeBaseName(), QString::number(number), dotSuffix));
    }
    return destination;
}

} // namespace orv::FileNameUtils
