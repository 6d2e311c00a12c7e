#include "TolqArchive.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringList>
#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipfileinfo.h>

#include <algorithm>

namespace orv::internal {

namespace {

struct TolqArchiveTr
{
    Q_DECLARE_TR_FUNCTIONS(TolqArchive)
};

constexpr qint64 kArchiveChunkBytes = 1 << 18;
constexpr qsizetype kMostLevels = 64;

/// Whether each part of \a name is the name of something below the folder in which it counts, and not too
/// deep.
bool staysBelow(const QString &name)
{
    if (name.contains(QLatin1Char('\\')) || name.contains(QLatin1Char(':')) || name.contains(QChar(0)))
        return false;
    QStringList parts = name.split(QLatin1Char('/'));
    if (parts.last().isEmpty())
        parts.removeLast(); // a folder
    return !parts.isEmpty() && parts.size() <= kMostLevels &&
           std::none_of(parts.begin(), parts.end(), [](const QString &part) {
               return part.isEmpty() || part == QLatin1String(".") || part == QLatin1String("..");
           });
}

} // namespace

class TolqArchive::Private
{
public:
    explicit Private(const QString &path)
        : m_path(path)
        , m_zip(path)
    {}

    Error open()
    {
        const QFileInfo info(m_path);
        if (!info.isFile() || !info.isReadable())
            return Error(ErrorCode::CannotOpenFile,
                         TolqArchiveTr::tr("Could not open the file: %1").arg(m_path))
                .addDetail(TolqArchiveTr::tr("It isn't there, no regular file, or may not be read."));
        if (!m_zip.open(QuaZip::mdUnzip))
            return damaged({}, TolqArchiveTr::tr("It is no zip archive, or was cut short."));
        if (m_zip.getEntriesCount() < 0 || m_zip.getEntriesCount() > kMostEntries)
            return damaged({}, TolqArchiveTr::tr("It has more than %1 entries.").arg(kMostEntries));
        m_bytesLeft = std::max(kFreeBytes, info.size() * kMostRatio);
        return Error::NoError;
    }

    Result<QByteArray> readEntry(const QString &name)
    {
        if (!m_zip.setCurrentFile(name, QuaZip::csSensitive))
            return damaged(name, TolqArchiveTr::tr("The entry is missing."));
        ORV_RETURN_IF_ERROR(checkEntry(name));
        QuaZipFile entry(&m_zip);
        if (!entry.open(QIODevice::ReadOnly))
            return damaged(name, entry.errorString());
        const QByteArray bytes = entry.read(kMostMetadataBytes + 1);
        if (bytes.size() > kMostMetadataBytes)
            return damaged(name, TolqArchiveTr::tr("It is too large."));
        entry.close();
        if (entry.getZipError() != UNZ_OK)
            return damaged(name, TolqArchiveTr::tr("Its checksum is wrong."));
        return bytes;
    }

    Error extract(const QString &wanted, const QString &directory)
    {
        bool isFound = false;
        QSet<QString> names;
        for (bool more = m_zip.goToFirstFile(); more; more = m_zip.goToNextFile()) {
            const QString name = m_zip.getCurrentFileName();
            if (name != wanted && !name.startsWith(wanted + QLatin1Char('/')))
                continue;
            isFound = true;
            ORV_RETURN_IF_ERROR(checkEntry(name));
            if (names.contains(name))
                return damaged(name, TolqArchiveTr::tr("It is there twice."));
            names.insert(name);
            ORV_RETURN_IF_ERROR(unpack(name, directory + QLatin1Char('/') + name));
        }
        if (m_zip.getZipError() != UNZ_OK && m_zip.getZipError() != UNZ_END_OF_LIST_OF_FILE)
            return damaged({}, TolqArchiveTr::tr("Its list of entries is damaged."));
        return isFound ? Error() : damaged(wanted, TolqArchiveTr::tr("The entry is missing."));
    }

private:
    /// Of the entry at which the archive stands.
    Error checkEntry(const QString &name)
    {
        QuaZipFileInfo64 info;
        if (!m_zip.getCurrentFileInfo(&info))
            return damaged(name, TolqArchiveTr::tr("Its description is damaged."));
        if (!staysBelow(name))
            return damaged(name, TolqArchiveTr::tr("Its name leads out of the archive, or too deep."));
        if (info.isSymbolicLink())
            return damaged(name, TolqArchiveTr::tr("It is a link."));
        if (info.isEncrypted())
            return damaged(name, TolqArchiveTr::tr("It is encrypted."));
        return Error::NoError;
    }

    Error unpack(const QString &name, const QString &target)
    {
        const bool isFolder = name.endsWith(QLatin1Char('/'));
        if (!QDir().mkpath(isFolder ? target : QFileInfo(target).path()))
            return cannotWrite(target, TolqArchiveTr::tr("Its folder can't be made."));
        if (isFolder)
            return Error::NoError;
        QuaZipFile entry(&m_zip);
        if (!entry.open(QIODevice::ReadOnly))
            return damaged(name, entry.errorString());
        QFile file(target);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return cannotWrite(target, file.errorString());
        ORV_RETURN_IF_ERROR(copy(entry, file, name));
        entry.close();
        if (entry.getZipError() != UNZ_OK)
            return damaged(name, TolqArchiveTr::tr("Its checksum is wrong."));
        if (!file.flush())
            return cannotWrite(target, file.errorString());
        return Error::NoError;
    }

    /// Sizes that an archive tells of itself may be lies; only bytes count.
    Error copy(QuaZipFile &entry, QFile &file, const QString &name)
    {
        for (;;) {
            const QByteArray chunk = entry.read(kArchiveChunkBytes);
            if (entry.getZipError() != UNZ_OK)
                return damaged(name, TolqArchiveTr::tr("It can't be unpacked."));
            if (chunk.isEmpty())
                return Error::NoError;
            m_bytesLeft -= chunk.size();
            if (m_bytesLeft < 0)
                return damaged(name, TolqArchiveTr::tr("It unpacks to far more than samples do."));
            if (file.write(chunk) != chunk.size())
                return cannotWrite(file.fileName(), file.errorString());
        }
    }

    [[nodiscard]] Error damaged(const QString &entry, const QString &reason) const
    {
        Error error(ErrorCode::InvalidContent,
                    TolqArchiveTr::tr("The acquired sample can't be read: %1").arg(m_path));
        error.addDetail(entry.isEmpty() ? reason : TolqArchiveTr::tr("Entry \"%1\": %2").arg(entry, reason));
        return error.addDetail(TolqArchiveTr::tr("Copy or download it again."));
    }

    static Error cannotWrite(const QString &path, const QString &reason)
    {
        return Error(ErrorCode::CannotOpenFile, TolqArchiveTr::tr("Could not write the file: %1").arg(path))
            .addDetail(reason);
    }

    QString m_path;
    QuaZip m_zip;
    qint64 m_bytesLeft = 0;
};

TolqArchive::TolqArchive(const QString &path)
    : d(std::make_unique<Private>(path))
{}

TolqArchive::~TolqArchive() = default;

Error TolqArchive::open()
{
    return d->open();
}

Result<QByteArray> TolqArchive::readEntry(const QString &name)
{
    return d->readEntry(name);
}

Error TolqArchive::extract(const QString &name, const QString &directory)
{
    return d->extract(name, directory);
}

} // namespace orv::internal
