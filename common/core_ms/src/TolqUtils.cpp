#include "orv/core_ms/TolqUtils.h"

#include "internal/TolqArchive.h"

#include <orv/core/FileUtils.h>
#include <orv/core/PathUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace orv::TolqUtils {

namespace {

using internal::TolqArchive;

struct TolqUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(TolqUtils)
};

QString metadataName()
{
    return QStringLiteral("metadata.json");
}

Result<TolqMetadata> parsed(Result<QByteArray> json, const QString &path)
{
    if (json.hasError())
        return json.ecatch();
    Result<TolqMetadata> metadata = TolqMetadata::fromJson(*json);
    if (metadata.hasError())
        return metadata.ecatch().addDetail(TolqUtilsTr::tr("File: %1, %2").arg(path, metadataName()));
    return metadata;
}

/// The sample of a folder may be a link, but not to somewhere else.
Result<QString> samplePathInFolder(const QString &folder, const QString &sample)
{
    const QString path = folder + QLatin1Char('/') + sample;
    const QString place = QFileInfo(path).canonicalFilePath();
    if (place.startsWith(QFileInfo(folder).canonicalFilePath() + QLatin1Char('/')))
        return path;
    return Error(ErrorCode::InvalidContent,
                 TolqUtilsTr::tr("The acquired sample can't be read: %1").arg(folder))
        .addDetail(place.isEmpty()
                       ? TolqUtilsTr::tr("\"%1\" isn't there.").arg(sample)
                       : TolqUtilsTr::tr("\"%1\" is a link that leads out of the folder.").arg(sample));
}

} // namespace

Result<TolqMetadata> readMetadata(const QString &path)
{
    if (PathUtils::isExistingDir(path))
        return parsed(
            FileUtils::readFile(QDir(path).filePath(metadataName()), TolqArchive::kMostMetadataBytes), path);
    TolqArchive archive(path);
    ORV_RETURN_IF_ERROR(archive.open());
    return parsed(archive.readEntry(metadataName()), path);
}

Result<QString> extractSamplePath(const QString &path, const QString &directory)
{
    Result<TolqMetadata> metadata = readMetadata(path);
    if (metadata.hasError())
        return metadata.ecatch();
    if (PathUtils::isExistingDir(path))
        return samplePathInFolder(path, metadata->sample());
    TolqArchive archive(path);
    ORV_RETURN_IF_ERROR(archive.open());
    ORV_RETURN_IF_ERROR(archive.extract(metadata->sample(), directory));
    return QDir(directory).filePath(metadata->sample());
}

} // namespace orv::TolqUtils
