#pragma once

#include <orv/core/Result.h>

#include <QString>
#include <QStringList>

namespace orv {

/// The folder of what was fetched from servers. Each entry is a folder of its own, so that files keep their
/// names, and no two entries meet. Entries that nobody used for a day make room for new ones, the longest
/// unused first; younger ones may be in use by another program.
class DownloadCache
{
public:
    /// The cache that the settings name, made if need be, for its owner's eyes alone. Fails with
    /// CannotOpenFile.
    [[nodiscard]] static Result<DownloadCache> open();

    /// The path of what \a identity tells apart from all else, whose file is called \a name; whatever
    /// characters both have, the path lies in the cache.
    [[nodiscard]] QString place(const QStringList &identity, const QString &name) const;

    /// Whether there is a file at \a path, which then counts as used now.
    [[nodiscard]] bool use(const QString &path) const;

    /// Sees to it that \a size bytes more may be stored, and that the folder of \a path is there. Fails with
    /// CannotOpenFile when they are too many.
    [[nodiscard]] Error makeRoom(qint64 size, const QString &path);

    /// How many bytes may be stored; counted by makeRoom.
    [[nodiscard]] qint64 room() const { return m_room; }

private:
    DownloadCache(QString folder, qint64 maxSize)
        : m_folder(std::move(folder))
        , m_maxSize(maxSize)
    {}

    QString m_folder;
    qint64 m_maxSize;
    qint64 m_room = 0;
};

} // namespace orv
