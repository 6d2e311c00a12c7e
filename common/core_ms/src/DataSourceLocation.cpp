#include "orv/core_ms/DataSourceLocation.h"

#include <orv/core/FilePathUtils.h>

#include <QCoreApplication>

namespace orv::msreader {

namespace {

struct DataSourceLocationTr
{
    Q_DECLARE_TR_FUNCTIONS(DataSourceLocation)
};

} // namespace

DataSourceLocation DataSourceLocation::ofPath(const QString &path)
{
    DataSourceLocation location;
    location.localPath = path;
    return location;
}

DataSourceLocation DataSourceLocation::ofDatabase(DocumentDatabaseHandler *handler)
{
    DataSourceLocation location;
    location.kind = Kind::ProjectDatabase;
    location.dbHandler = handler;
    return location;
}

QString DataSourceLocation::toString() const
{
    QString text = kind == Kind::LocalPath
                       ? QStringLiteral("local_path: ") + localPath
                       : QStringLiteral("dbHandler: 0x%1").arg(quintptr(dbHandler), 0, 16);
    if (key)
        text += QStringLiteral(" : ") + *key;
    if (sample)
        text += QStringLiteral("sampleName: %1, nativeSampleId: %2")
                    .arg(sample->sampleName, sample->nativeSampleId);
    return text;
}

Error DataSourceLocation::checkValidVendorFilePath(const QString &path)
{
    if (path.isEmpty())
        return {ErrorCode::InvalidContent, DataSourceLocationTr::tr("Vendor file name is empty")};
    if (FilePathUtils::isWinLongPath(path) && !FilePathUtils::hasWinLongPathPrefix(path)) {
        return Error(ErrorCode::InvalidContent,
                     DataSourceLocationTr::tr("The path exceeds %1").arg(FilePathUtils::winMaxPathLength()))
            .addDetail(DataSourceLocationTr::tr("It has %1 characters.").arg(path.size()))
            .addDetail(DataSourceLocationTr::tr(
                R"(Move the data into a shorter folder, or write "\\?\" in front of the path.)"));
    }
    return Error::NoError;
}

} // namespace orv::msreader
