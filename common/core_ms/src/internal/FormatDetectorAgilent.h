#pragma once

#include "FormatDetectorSimple.h"

namespace orv::msreader::internal {

/// A folder with the folder AcqData somewhere inside.
class FormatDetectorAgilent : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

} // namespace orv::msreader::internal
