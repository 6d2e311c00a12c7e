#include "DownloadCache.h"

#include <orv/core/FileNameUtils.h>
#include <orv/core/Settings.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace orv {

namespace {

constexpr qint64 kMiB = qint64(1024) * 1024;
constexpr int kDefaultSizeMiB = 20480;
constexpr int kKeptDays = 1;
constexpr qsizetype kEntryNameLength = 32;
// File systems take 255; the file that is being written has a suffix beside.
constexpr qsizetype kMaxNameBytes = 200;

struct DownloadCacheTr
{
    Q_DECLARE_TR_FUNCTIONS(Servers)
};

struct Entry
{
    QString path;
    qint64 size = 0;
    QDateTime lastUse;
};

Error unusable(const QString &folder, const QString &remedy)
{
    return Error(ErrorCode::CannotOpenFile,
                 DownloadCacheTr::tr("The folder \"%1\" for files from servers can't be used.").arg(folder))
        .addDetail(remedy);
}

QString folderOfSettings()
{
    const QString standard = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                             QLatin1String("/orv-servers");
    return QDir::cleanPath(as::value(QStringLiteral("Servers/CacheFolder"), standard).toString());
}

/// Only what this cache has made: the setting may name a folder that holds other things.
QList<Entry> entriesOf(const QString &folder)
{
    static const QRegularExpression pattern(QStringLiteral("^[0-9a-f]{%1}$").arg(kEntryNameLength));
    QList<Entry> entries;
    const QDir::Filters folders = QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    for (const QFileInfo &info : QDir(folder).entryInfoList(folders)) {
        if (!pattern.match(info.fileName()).hasMatch())
            continue;
        Entry entry{info.filePath(), 0, {}};
        for (const QFileInfo &file : QDir(entry.path).entryInfoList(QDir::Files | QDir::Hidden)) {
            entry.size += file.size();
            entry.lastUse = std::max(entry.lastUse, file.lastModified());
        }
        if (!entry.lastUse.isValid()) // nothing in it yet
            entry.lastUse = info.lastModified();
        entries.append(entry);
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry &a, const Entry &b) { return a.lastUse < b.lastUse; });
    return entries;
}

/// Cut at its beginning, since the end tells the type.
QString shortened(QString name)
{
    while (name.toUtf8().size() > kMaxNameBytes)
        name.remove(0, name.front().isHighSurrogate() ? 2 : 1);
    return name;
}

} // namespace

Result<DownloadCache> DownloadCache::open()
{
    const QString folder = folderOfSettings();
    if (QDir::isRelativePath(folder))
        return unusable(folder, DownloadCacheTr::tr("Set \"Servers/CacheFolder\" to an absolute path."));
    if (!QFileInfo(folder).isDir()) {
        if (!QDir().mkpath(folder))
            return unusable(
                folder, DownloadCacheTr::tr("Set \"Servers/CacheFolder\" to a folder that can be written."));
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    const int sizeMiB = as::value(QStringLiteral("Servers/CacheSizeMiB"), kDefaultSizeMiB).toInt();
    return DownloadCache(folder, std::max(sizeMiB, 0) * kMiB);
}

QString DownloadCache::place(const QStringList &identity, const QString &name) const
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString &part : identity)
        hash.addData(QByteArray::number(part.size()) + ':' + part.toUtf8());
    const QString entry = QString::fromLatin1(hash.result().toHex().left(kEntryNameLength));
    return m_folder + QLatin1Char('/') + entry + QLatin1Char('/') +
           shortened(FileNameUtils::nameFromText(name));
}

bool DownloadCache::use(const QString &path) const
{
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    // One that can't be marked is still there; it may have to be fetched again the sooner.
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
    return true;
}

Error DownloadCache::makeRoom(qint64 size, const QString &path)
{
    const QList<Entry> entries = entriesOf(m_folder);
    qint64 used = 0;
    for (const Entry &entry : entries)
        used += entry.size;
    const QDateTime unused = QDateTime::currentDateTimeUtc().addDays(-kKeptDays);
    for (const Entry &entry : entries) {
        if (used + size <= m_maxSize || entry.lastUse >= unused)
            break;
        if (QDir(entry.path).removeRecursively())
            used -= entry.size;
    }
    m_room = std::max<qint64>(m_maxSize - used, 0);
    if (size > m_room)
        return unusable(m_folder,
                        DownloadCacheTr::tr("%1 bytes are needed, and %2 are left of those that it may hold. "
                                            "Raise \"Servers/CacheSizeMiB\", or empty the folder.")
                            .arg(size)
                            .arg(m_room));
    if (!QDir().mkpath(QFileInfo(path).path()))
        return unusable(m_folder, DownloadCacheTr::tr(
                                      "It can't be written; set \"Servers/CacheFolder\" to another one."));
    return Error::NoError;
}

} // namespace orv
