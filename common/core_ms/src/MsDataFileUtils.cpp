#include "orv/core_ms/MsDataFileUtils.h"

#include <orv/core/FileTypes.h>
#include <orv/core_ms/MsFileInfo.h>
#include <orv/core_ms/TolqUtils.h>

#include <QFileInfo>

namespace orv::MsDataFileUtils {

using msreader::DataSourceLocation;
using msreader::MsFileInfo;
using msreader::VendorDataFormat;

namespace {

/// What lies inside an acquired sample, by its name; nothing where that can't be read.
QSet<VendorDataFormat> formatsInside(const QString &tolqPath)
{
    const Result<TolqMetadata> metadata = TolqUtils::readMetadata(tolqPath);
    if (metadata.hasError())
        return {};
    return MsFileInfo::detectFormatByName(DataSourceLocation::ofPath(metadata->sample()));
}

} // namespace

bool hasMsExtension(const QString &name)
{
    return FileTypes::hasMsDataSuffix(name);
}

QSet<msreader::VendorDataFormat> detectPossibleVendorFormats(const QString &path)
{
    const bool isThere = QFileInfo::exists(path);
    QSet<VendorDataFormat> formats =
        MsFileInfo::detectFormat(DataSourceLocation::ofPath(path), !isThere, false);
    if (isThere && formats.contains(VendorDataFormat::Tolq))
        formats.unite(formatsInside(path));
    return formats;
}

} // namespace orv::MsDataFileUtils
