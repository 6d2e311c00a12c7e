#pragma once

#include <orv/core_ms/internal/FormatDetectorBase.h>

namespace orv::msreader::internal {

/// Folders of seven kinds, told by the files inside.
class FormatDetectorBruker : public FormatDetectorBase
{
public:
    [[nodiscard]] QSet<VendorDataFormat> formats() const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString &path) const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
    [[nodiscard]] QString fileNameExtension(VendorDataFormat format) const override;
    [[nodiscard]] bool isFile(VendorDataFormat format) const override;
    [[nodiscard]] bool isFolder(VendorDataFormat format) const override;
    [[nodiscard]] QString formatDescription(VendorDataFormat format) const override;
};

} // namespace orv::msreader::internal
