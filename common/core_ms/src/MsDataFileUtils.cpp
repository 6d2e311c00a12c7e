#include <orv/core/FileTypes.h>
#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/core_ms/MsFileInfo.h>

#include <QFileInfo>

namespace orv::MsDataFileUtils {

using msreader::DataSourceLocation;
using msreader::MsFileInfo;

bool hasMsExtension(const QString &name)
{
    return FileTypes::hasMsDataSuffix(name);
}

QSet<msreader::VendorDataFormat> detectPossibleVendorFormats(const QString &path)
{
    return MsFileInfo::detectFormat(DataSourceLocation::ofPath(path), !QFileInfo::exists(path), false);
}

} // namespace orv::MsDataFileUtils
