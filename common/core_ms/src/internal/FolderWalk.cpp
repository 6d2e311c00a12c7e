#include "FolderWalk.h"

#include <orv/core/Logging.h>

#include <QFile>
#include <QSet>

#include <deque>
#include <filesystem>
#include <system_error>

namespace orv::msreader::internal {

namespace {

namespace fs = std::filesystem;

struct Folder
{
    QString path;
    int level = 0;
};

class Walk
{
public:
    Walk(const QString &root, const std::function<bool(const QString &)> &wanted)
        : m_root(root)
        , m_wanted(wanted)
    {
        m_folders.push_back({root, 0});
    }

    bool run()
    {
        while (!m_folders.empty() && !m_found && m_entries <= kMostEntries) {
            const Folder folder = m_folders.front();
            m_folders.pop_front();
            look(folder);
        }
        if (m_entries > kMostEntries) {
            qCWarning(genericLog()) << "Folder" << m_root << "has too many entries, stopped looking after"
                                    << kMostEntries;
        }
        return m_found;
    }

private:
    void look(const Folder &folder)
    {
        std::error_code error;
        fs::directory_iterator entry(QFile::encodeName(folder.path).constData(),
                                     fs::directory_options::skip_permission_denied, error);
        for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
            if (++m_entries > kMostEntries)
                return;
            const std::string name = entry->path().filename().string();
            const QString path =
                folder.path + QLatin1Char('/') + QFile::decodeName(QByteArray::fromStdString(name));
            if (m_wanted(path)) {
                m_found = true;
                return;
            }
            if (folder.level < kMostLevels && isNewFolder(*entry, path))
                m_folders.push_back({path, folder.level + 1});
        }
    }

    /// The kind of an entry comes with its name; only links cost a look at the disk.
    bool isNewFolder(const fs::directory_entry &entry, const QString &path)
    {
        std::error_code error;
        if (!entry.is_symlink(error))
            return entry.is_directory(error);
        if (!entry.is_directory(error))
            return false;
        const fs::path target = fs::canonical(entry.path(), error);
        if (error)
            return false;
        // What is wanted may depend on the names on the way, which begin with the link's own.
        const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
        const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
        const QString extension = dot > slash ? path.mid(dot).toLower() : QString();
        const QString place = extension + QLatin1Char('/') + QString::fromStdString(target.string());
        if (m_targets.contains(place))
            return false;
        m_targets.insert(place);
        return true;
    }

    QString m_root;
    const std::function<bool(const QString &)> &m_wanted;
    std::deque<Folder> m_folders;
    QSet<QString> m_targets;
    int m_entries = 0;
    bool m_found = false;
};

} // namespace

bool anyBelow(const QString &folder, const std::function<bool(const QString &)> &wanted)
{
    return Walk(folder, wanted).run();
}

} // namespace orv::msreader::internal
