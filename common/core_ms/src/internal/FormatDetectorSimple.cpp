#include "FormatDetectorSimple.h"

#include <orv/core/PathUtils.h>

#include <QCoreApplication>

namespace orv::msreader::internal {

FormatDetectorSimple::FormatDetectorSimple(VendorDataFormat format, Kind kind, const QString &extension,
                                           const QString &description)
    : m_format(format)
    , m_isFolder(kind == Kind::Folder)
    , m_extension(extension)
    , m_description(description)
{}

QSet<VendorDataFormat> FormatDetectorSimple::formats() const
{
    return {m_format};
}

QSet<VendorDataFormat> FormatDetectorSimple::detectFormatByName(const QString &path) const
{
    return formatIf(hasName(path));
}

QSet<VendorDataFormat> FormatDetectorSimple::detectFormat(const QString &path) const
{
    return formatIf(isThere(path));
}

QString FormatDetectorSimple::fileNameExtension(VendorDataFormat /*format*/) const
{
    return m_extension.mid(1);
}

bool FormatDetectorSimple::isFile(VendorDataFormat format) const
{
    return !isFolder(format);
}

bool FormatDetectorSimple::isFolder(VendorDataFormat /*format*/) const
{
    return m_isFolder;
}

QString FormatDetectorSimple::formatDescription(VendorDataFormat /*format*/) const
{
    return QCoreApplication::translate("FormatDetectors", m_description.toLatin1().constData());
}

bool FormatDetectorSimple::hasName(const QString &path) const
{
    return path.endsWith(m_extension, Qt::CaseInsensitive);
}

bool FormatDetectorSimple::isThere(const QString &path) const
{
    return hasName(path) && (m_isFolder ? PathUtils::isExistingDir(path) : PathUtils::isExistingFile(path));
}

QSet<VendorDataFormat> FormatDetectorSimple::formatIf(bool holds) const
{
    return holds ? formats() : QSet<VendorDataFormat>();
}

} // namespace orv::msreader::internal
