#include "orv/widgets/FileSystemSettings.h"

#include <orv/core/Settings.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace orv::FileSystemSettings {

QString folder(const DirectoryLocation &location)
{
    const QString remembered = as::value(location.key, QString()).toString();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString &candidate : {remembered, documents}) {
        if (!candidate.isEmpty() && QFileInfo(candidate).isDir())
            return candidate;
    }
    // A dialog takes a folder that isn't there for the name of a file.
    return QDir::homePath();
}

void rememberChosen(const DirectoryLocation &location, const QString &path)
{
    const QFileInfo chosen(path);
    as::setValue(location.key, chosen.isDir() ? chosen.absoluteFilePath() : chosen.absolutePath());
}

} // namespace orv::FileSystemSettings
