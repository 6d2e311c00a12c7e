#include "orv/core/DriveType.h"

#include <orv/core/FilePathUtils.h>
#include <orv/core/FileUtils.h>

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <array>
#include <string_view>

namespace orv {

namespace {

/// Types of file systems whose files lie on another machine, in alphabetical order, without "fuse.".
constexpr std::array<std::string_view, 30> kNetworkFileSystems = {
    "9p",     "acfs",      "afs",   "beegfs",   "beegfs_nodev", "ceph",      "ceph-fuse", "cifs",
    "coda",   "curlftpfs", "davfs", "davfs2",   "gcsfuse",      "glusterfs", "gpfs",      "gvfsd-fuse",
    "lustre", "ncp",       "ncpfs", "nfs",      "nfs4",         "orangefs",  "rclone",    "s3fs",
    "smb2",   "smb3",      "smbfs", "smbnetfs", "sshfs",        "webdavfs",
};
static_assert(std::is_sorted(kNetworkFileSystems.begin(), kNetworkFileSystems.end()));

DriveType driveTypeOfFileSystem(std::string_view type)
{
    constexpr std::string_view kFuse = "fuse.";
    if (type.starts_with(kFuse))
        type.remove_prefix(kFuse.size());
    const bool isNetwork = std::binary_search(kNetworkFileSystems.begin(), kNetworkFileSystems.end(), type);
    return isNetwork ? DriveType::Network : DriveType::Local;
}

/// The table writes blanks, tabs, line feeds and backslashes as a backslash and three octal digits.
QString unescapedMountPoint(const QByteArray &field)
{
    QByteArray bytes;
    bytes.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isCode = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isCode, 8) : 0;
        bytes.append(isCode ? char(code) : field[i]);
        i += isCode ? 3 : 0;
    }
    return QFile::decodeName(bytes);
}

struct Mount
{
    QString point;
    QByteArray fileSystem;
};

/// "36 35 98:0 / /mnt rw,noatime master:1 - ext3 /dev/root rw": behind the sixth field any number of optional
/// ones, then a dash and the type. A line of another form gives an empty mount point.
Mount readMount(const QByteArray &line)
{
    constexpr qsizetype kMountPoint = 4;
    constexpr qsizetype kFirstOptional = 6;
    const QList<QByteArray> fields = line.split(' ');
    const qsizetype dash = fields.indexOf("-", kFirstOptional);
    if (dash < 0 || dash + 1 >= fields.size())
        return {};
    return {unescapedMountPoint(fields[kMountPoint]), fields[dash + 1]};
}

bool isIn(const QString &path, const QString &folder)
{
    return folder == QLatin1String("/") || path == folder ||
           (path.startsWith(folder) && path[folder.size()] == QLatin1Char('/'));
}

/// The real place of the nearest part of \a path that exists, with the rest behind it.
QString withoutLinks(const QString &path)
{
    QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (QString existing = absolute; existing.contains(QLatin1Char('/'));
         existing.truncate(existing.lastIndexOf(QLatin1Char('/')))) {
        const QString canonical = QFileInfo(existing).canonicalFilePath();
        if (!canonical.isEmpty())
            return canonical + absolute.mid(existing.size());
    }
    return absolute;
}

} // namespace

DriveType driveType(const QString &path, const QByteArray &mountTable)
{
    if (FilePathUtils::isUncPath(path))
        return DriveType::Network;
    if (FilePathUtils::hasDriveLetter(path))
        return DriveType::Unknown;
    const QString clean = QDir::cleanPath(path);
    Mount nearest;
    for (const QByteArray &line : mountTable.split('\n')) {
        const Mount mount = readMount(line);
        if (!mount.point.isEmpty() && isIn(clean, mount.point) && mount.point.size() >= nearest.point.size())
            nearest = mount;
    }
    const bool isFound = clean.startsWith(QLatin1Char('/')) && !nearest.point.isEmpty();
    return isFound ? driveTypeOfFileSystem(nearest.fileSystem.toStdString()) : DriveType::Unknown;
}

DriveType driveType(const QString &path)
{
    if (path.isEmpty())
        return DriveType::Unknown;
    const Result<QByteArray> table = FileUtils::readFile(QStringLiteral("/proc/self/mountinfo"));
    const bool hasForeignForm = FilePathUtils::isUncPath(path) || FilePathUtils::hasDriveLetter(path);
    if (!table.hasError())
        return driveType(hasForeignForm ? path : withoutLinks(path), *table);
    if (FilePathUtils::isUncPath(path))
        return DriveType::Network;
    const QByteArray fileSystem = QStorageInfo(path).fileSystemType();
    return fileSystem.isEmpty() ? DriveType::Unknown : driveTypeOfFileSystem(fileSystem.toStdString());
}

} // namespace orv
