#include "orv/core_ms/MsFileInfo.h"

#include "internal/FormatDetectors.h"

#include <orv/core/Logging.h>
#include <orv/core_ms/internal/FormatDetectorRegistry.h>

namespace orv::msreader {

namespace {

const internal::FormatDetectorRegistry &detectors()
{
    static const internal::FormatDetectorRegistry detectors(internal::createFormatDetectors());
    return detectors;
}

const internal::FormatDetectorBase *detectorOf(VendorDataFormat format)
{
    const internal::FormatDetectorBase *detector = detectors().detectorOf(format);
    if (!detector)
        qCWarning(genericLog()) << "Unknown file format:" << int(format);
    return detector;
}

} // namespace

QString MsFileInfo::fileNameExtension(VendorDataFormat format)
{
    const internal::FormatDetectorBase *detector = detectorOf(format);
    return detector ? detector->fileNameExtension(format) : QString();
}

QString MsFileInfo::formatDescription(VendorDataFormat format)
{
    const internal::FormatDetectorBase *detector = detectorOf(format);
    return detector ? detector->formatDescription(format) : QString();
}

bool MsFileInfo::isFile(VendorDataFormat format)
{
    const internal::FormatDetectorBase *detector = detectorOf(format);
    return detector && detector->isFile(format);
}

bool MsFileInfo::isFolder(VendorDataFormat format)
{
    const internal::FormatDetectorBase *detector = detectorOf(format);
    return detector && detector->isFolder(format);
}

QSet<QString> MsFileInfo::fileNameExtensions(const QSet<VendorDataFormat> &formats)
{
    QSet<QString> extensions;
    for (VendorDataFormat format : formats) {
        const QString extension = fileNameExtension(format);
        if (!extension.isEmpty())
            extensions.insert(extension);
    }
    return extensions;
}

QSet<VendorDataFormat> MsFileInfo::allFormats()
{
    return detectors().formats();
}

QSet<VendorDataFormat> MsFileInfo::detectFormat(const DataSourceLocation &location, bool byName,
                                                bool firstOnly)
{
    if (location.kind == DataSourceLocation::Kind::ProjectDatabase)
        return {VendorDataFormat::DataCutEmbedded};
    QSet<VendorDataFormat> formats;
    for (const auto &detector : detectors().detectors()) {
        formats += byName ? detector->detectFormatByName(location.localPath)
                          : detector->detectFormat(location.localPath);
        if (firstOnly && !formats.isEmpty())
            break;
    }
    return formats;
}

QSet<VendorDataFormat> MsFileInfo::detectFormatByName(const DataSourceLocation &location)
{
    return detectFormat(location, true, false);
}

QSet<VendorDataFormat> MsFileInfo::detectFormat(const DataSourceLocation &location)
{
    return detectFormat(location, false, false);
}

bool MsFileInfo::isRecognised(const DataSourceLocation &location, bool byName)
{
    return !detectFormat(location, byName, true).isEmpty();
}

} // namespace orv::msreader
