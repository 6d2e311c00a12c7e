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
    // Samples may be folders, whose paths may end with a separator.
    const QString name = QFileInfo(QDir::cleanPath(source)).fileName();
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const qsizetype baseSize = dot > 0 ? dot : name.size(); // the dot of a hidden file begins no extension
    const QDir dir(folder);
    QString destination = dir.filePath(name);
    for (int number = 2; isTaken(destination); ++number) {
        destination =
            dir.filePath(name.first(baseSize) + QStringLiteral(" (%1)").arg(number) + name.sliced(baseSize));
    }
    return destination;
}

} // namespace orv::FileNameUtils
