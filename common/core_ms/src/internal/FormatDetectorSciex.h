#pragma once

#include "FormatDetectorSimple.h"

namespace orv::msreader::internal {

/// a.wiff holds the description of what lies in a.wiff.scan.
class FormatDetectorSciexWiff : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

/// a.wiff2 describes the same a.wiff.scan.
class FormatDetectorSciexWiff2 : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

} // namespace orv::msreader::internal
