#include "RecentFiles.h"

#include <orv/core/Settings.h>

#include <QFileInfo>

namespace orv::RecentFiles {

namespace {

constexpr QLatin1String kRecentFiles("Editor/RecentFiles");

QStringList remembered()
{
    return as::value(kRecentFiles, QStringList()).toStringList();
}

} // namespace

QStringList all()
{
    QStringList files = remembered();
    files.removeIf([](const QString &path) { return !QFileInfo::exists(path); });
    return files;
}

void add(const QString &path)
{
    if (!QFileInfo::exists(path))
        return;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = remembered();
    files.removeAll(absolute);
    files.prepend(absolute);
    as::setValue(kRecentFiles, files.mid(0, kMost));
}

void clear()
{
    as::setValue(kRecentFiles, QStringList());
}

} // namespace orv::RecentFiles
