#include "RecentFiles.h"

#include <orv/core/Settings.h>

#include <QFileInfo>

namespace orv::RecentFiles {

namespace {

constexpr QLatin1String kRecentFiles("Editor/RecentFiles");

} // namespace

QStringList all()
{
    return as::value(kRecentFiles, QStringList()).toStringList();
}

void add(const QString &path)
{
    if (!QFileInfo::exists(path))
        return;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = all();
    files.removeAll(absolute);
    files.prepend(absolute);
    as::setValue(kRecentFiles, files.mid(0, kMost));
}

void remove(const QString &path)
{
    QStringList files = all();
    files.removeAll(path);
    as::setValue(kRecentFiles, files);
}

void clear()
{
    as::setValue(kRecentFiles, QStringList());
}

} // namespace orv::RecentFiles
