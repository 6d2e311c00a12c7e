#pragma once

#include "FormatDetectorSimple.h"

#include <QFileInfo>

namespace orv::msreader::internal {

/// A folder, by which it differs from the files of another vendor with the same extension.
class FormatDetectorWaters : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override
    {
        return formatIf(isThere(path) && QFileInfo::exists(path + QLatin1String("/_FUNC001.DAT")));
    }
};

} // namespace orv::msreader::internal
