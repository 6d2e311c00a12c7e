#pragma once

#include "FormatDetectorSimple.h"

namespace orv::msreader::internal {

/// Names by which test programs ask for simulated data; nothing need lie there.
class FormatDetectorTesting : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;

    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString &path) const override
    {
        return formatIf(
            path.endsWith(QLatin1String("MAGIC_STRING_GOES_HERE_orv_testing"), Qt::CaseInsensitive));
    }
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override
    {
        return detectFormatByName(path);
    }
};

} // namespace orv::msreader::internal
