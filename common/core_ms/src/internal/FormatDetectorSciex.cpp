#include "FormatDetectorSciex.h"

#include <orv/core/Logging.h>

#include <QFileInfo>

namespace orv::msreader::internal {

namespace {

bool hasScans(const QString &path, const QString &wiffPath, const char *complaint)
{
    if (QFileInfo::exists(wiffPath + QLatin1String(".scan")))
        return true;
    qCWarning(genericLog()) << "File" << path << complaint;
    return false;
}

} // namespace

QSet<VendorDataFormat> FormatDetectorSciexWiff::detectFormat(const QString &path) const
{
    return formatIf(isThere(path) &&
                    hasScans(path, path, "looks like ABI SCIEX WIFF file. But .wiff.scan file is absent"));
}

QSet<VendorDataFormat> FormatDetectorSciexWiff2::detectFormat(const QString &path) const
{
    return formatIf(isThere(path) && hasScans(path, path.chopped(1),
                                              "looks like SCIEX WIFF2 file. But .wiff.scan file is absent"));
}

} // namespace orv::msreader::internal
