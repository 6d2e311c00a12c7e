#pragma once

#include <orv/core_ms/internal/FormatDetectorBase.h>

namespace orv::msreader::internal {

/// One format that is a file or a folder with an extension of its own.
class FormatDetectorSimple : public FormatDetectorBase
{
public:
    enum class Kind
    {
        File,
        Folder,
    };

    /// \a extension with its dot.
    FormatDetectorSimple(VendorDataFormat format, Kind kind, const QString &extension,
                         const QString &description);

    [[nodiscard]] QSet<VendorDataFormat> formats() const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString &path) const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
    [[nodiscard]] QString fileNameExtension(VendorDataFormat format) const override;
    [[nodiscard]] bool isFile(VendorDataFormat format) const override;
    [[nodiscard]] bool isFolder(VendorDataFormat format) const override;
    [[nodiscard]] QString formatDescription(VendorDataFormat format) const override;

protected:
    [[nodiscard]] bool hasName(const QString &path) const;
    /// The name fits, and a file or folder of the right kind is there.
    [[nodiscard]] bool isThere(const QString &path) const;
    [[nodiscard]] QSet<VendorDataFormat> formatIf(bool holds) const;

private:
    VendorDataFormat m_format;
    bool m_isFolder;
    QString m_extension;
    QString m_description;
};

} // namespace orv::msreader::internal
