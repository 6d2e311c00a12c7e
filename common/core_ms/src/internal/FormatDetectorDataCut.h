#pragma once

#include "FormatDetectorSimple.h"

namespace orv::msreader::internal {

class FormatDetectorDataCut : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;
};

/// Data inside a project database: no path leads to them.
class FormatDetectorDataCutEmbedded : public FormatDetectorSimple
{
public:
    using FormatDetectorSimple::FormatDetectorSimple;

    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString & /*path*/) const override
    {
        return {};
    }
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString & /*path*/) const override { return {}; }
};

} // namespace orv::msreader::internal
