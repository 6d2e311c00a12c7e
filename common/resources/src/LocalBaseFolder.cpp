#include "internal/LocalPath.h"

#include <orv/resources/LocalBaseFolder.h>

#include <QDir>

namespace orv {

namespace {

thread_local const LocalBaseFolder *currentFolder = nullptr;

} // namespace

LocalBaseFolder::LocalBaseFolder(const QString &folder)
    : m_folder(folder)
    , m_outer(std::exchange(currentFolder, this))
{}

LocalBaseFolder::~LocalBaseFolder()
{
    currentFolder = m_outer;
}

QString LocalBaseFolder::resolved(const QString &path)
{
    if (!currentFolder || path.isEmpty() || LocalPath::isAbsolute(path))
        return path;
    return QDir(currentFolder->m_folder).filePath(path);
}

} // namespace orv
