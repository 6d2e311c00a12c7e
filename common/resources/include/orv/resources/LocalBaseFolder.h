#pragma once

#include <orv/core/Export.h>

#include <QString>

namespace orv {

/// While it lives, relative local references on its thread count from a folder, not from the current folder
/// of the process: for steps that open files of a document which doesn't lie there. One inside another takes
/// its place. References keep their relative texts.
class ORV_WORKFLOW_EXPORT LocalBaseFolder
{
public:
    /// An absolute path.
    explicit LocalBaseFolder(const QString &folder);
    ~LocalBaseFolder();
    Q_DISABLE_COPY_MOVE(LocalBaseFolder)

    /// Where \a path lies: itself if it is absolute or no folder is set on this thread.
    [[nodiscard]] static QString resolved(const QString &path);

private:
    QString m_folder;
    const LocalBaseFolder *m_outer;
};

} // namespace orv
