#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/DataSourceLocation.h>
#include <orv/core_ms/MsDataFormat.h>

#include <QSet>
#include <QString>

namespace orv::msreader {

/// What is known of the vendors' formats, and which of them a path holds:
/// \code
///     MsFileInfo::detectFormat(DataSourceLocation::ofPath("run.raw"));       // {Thermo} if it is a file
///     MsFileInfo::detectFormatByName(DataSourceLocation::ofPath("run.raw")); // {Thermo, Waters}
/// \endcode
/// Any thread.
class ORV_WORKFLOW_EXPORT MsFileInfo
{
public:
    /// Without the dot; empty for a format that no file name tells. A format that no detector knows gives the
    /// empty text or false here and below, with a warning.
    [[nodiscard]] static QString fileNameExtension(VendorDataFormat format);
    /// What a person reads.
    [[nodiscard]] static QString formatDescription(VendorDataFormat format);
    /// Tolq is a file or a folder, so both hold.
    [[nodiscard]] static bool isFile(VendorDataFormat format);
    [[nodiscard]] static bool isFolder(VendorDataFormat format);

    /// The extensions without dots of all \a formats that have one.
    [[nodiscard]] static QSet<QString> fileNameExtensions(const QSet<VendorDataFormat> &formats);

    /// All formats that some detector reports; Unknown is none of them.
    [[nodiscard]] static QSet<VendorDataFormat> allFormats();

    /// The formats of what lies at \a location; several where a name or a folder fits several vendors.
    /// \a byName goes by the path's text alone, otherwise the disk is read: what is missing or can't be read
    /// has no format. \a firstOnly stops at the first vendor that recognises it. What lies in a project
    /// database is always DataCutEmbedded. A file without the companion that it needs is logged as a warning.
    [[nodiscard]] static QSet<VendorDataFormat> detectFormat(const DataSourceLocation &location, bool byName,
                                                             bool firstOnly);
    /// By name, all vendors.
    [[nodiscard]] static QSet<VendorDataFormat> detectFormatByName(const DataSourceLocation &location);
    /// On the disk, all vendors.
    [[nodiscard]] static QSet<VendorDataFormat> detectFormat(const DataSourceLocation &location);
    [[nodiscard]] static bool isRecognised(const DataSourceLocation &location, bool byName);
};

} // namespace orv::msreader
