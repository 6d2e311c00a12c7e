#include "orv/widgets/FileSystemSettings.h"

#include <orv/core/Settings.h>

#include <QFileInfo>
#include <QStandardPaths>

namespace orv::FileSystemSettings {

QString folder(const DirectoryLocation &location)
{
    const QString remembered = as::value(location.key, QString()).toString();
    return !remembered.isEmpty() && QFileInfo(remembered).isDir()
               ? remembered
               : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void rememberChosen(const DirectoryLocation &location, const QString &path)
{
    const QFileInfo chosen(path);
    as::setValue(location.key, chosen.isDir() ? chosen.absoluteFilePath() : chosen.absolutePath());
}

} // namespace orv::FileSystemSettings
