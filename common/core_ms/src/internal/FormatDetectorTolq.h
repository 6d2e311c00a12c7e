#pragma once

#include "FormatDetectorSimple.h"

#include <orv/core/PathUtils.h>

namespace orv::msreader::internal {

/// An acquired sample, packed into an archive or lying in a folder.
class FormatDetectorTolq : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override
    {
        return formatIf(hasName(path) && (PathUtils::isExistingDir(path) || PathUtils::isExistingFile(path)));
    }
    [[nodiscard]] bool isFile(VendorDataFormat /*format*/) const override { return true; }
    [[nodiscard]] bool isFolder(VendorDataFormat /*format*/) const override { return true; }
};

} // namespace orv::msreader::internal
