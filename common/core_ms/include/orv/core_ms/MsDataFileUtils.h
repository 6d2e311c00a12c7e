#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/MsDataFormat.h>

#include <QSet>
#include <QString>

/// Questions about the files of samples. Any thread.
namespace orv::MsDataFileUtils {

/// Whether the last name of \a name carries an extension of mass-spectrometry data, ignoring case. Doesn't
/// touch the disk.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool hasMsExtension(const QString &name);

/// The formats that the data at \a path may have: told by looking at what lies there, or by the name alone
/// while nothing does. An acquired sample (.tolq) may have that of the sample inside, too.
[[nodiscard]] ORV_WORKFLOW_EXPORT QSet<msreader::VendorDataFormat>
detectPossibleVendorFormats(const QString &path);

} // namespace orv::MsDataFileUtils
