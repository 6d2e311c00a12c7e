#pragma once

#include <orv/core_ms/MsDataFormat.h>

#include <QSet>
#include <QString>

namespace orv::msreader::internal {

/// Recognises the formats of one vendor. Detectors have no state that changes; any thread.
class FormatDetectorBase
{
public:
    FormatDetectorBase() = default;
    virtual ~FormatDetectorBase() = default;
    Q_DISABLE_COPY_MOVE(FormatDetectorBase)

    /// What it can report. No two detectors of a registry share one.
    [[nodiscard]] virtual QSet<VendorDataFormat> formats() const = 0;
    [[nodiscard]] virtual QSet<VendorDataFormat> detectFormatByName(const QString &path) const = 0;
    /// By looking at the disk. What can't be read isn't there.
    [[nodiscard]] virtual QSet<VendorDataFormat> detectFormat(const QString &path) const = 0;
    /// Without the dot.
    [[nodiscard]] virtual QString fileNameExtension(VendorDataFormat format) const = 0;
    [[nodiscard]] virtual bool isFile(VendorDataFormat format) const = 0;
    [[nodiscard]] virtual bool isFolder(VendorDataFormat format) const = 0;
    [[nodiscard]] virtual QString formatDescription(VendorDataFormat format) const = 0;
};

} // namespace orv::msreader::internal
