#include "orv/core_ms/internal/FormatDetectorRegistry.h"

#include <stdexcept>

namespace orv::msreader::internal {

FormatDetectorRegistry::FormatDetectorRegistry(FormatDetectors detectors)
    : m_detectors(std::move(detectors))
{
    for (const auto &detector : m_detectors) {
        const QSet<VendorDataFormat> formats = detector->formats();
        for (VendorDataFormat format : formats) {
            if (m_byFormat.contains(format))
                throw std::runtime_error("Developer's exception: format intersection detected.");
            m_byFormat.insert(format, detector.get());
        }
    }
}

FormatDetectorRegistry::~FormatDetectorRegistry() = default;

QSet<VendorDataFormat> FormatDetectorRegistry::formats() const
{
    return {m_byFormat.keyBegin(), m_byFormat.keyEnd()};
}

const FormatDetectorBase *FormatDetectorRegistry::detectorOf(VendorDataFormat format) const
{
    return m_byFormat.value(format, nullptr);
}

} // namespace orv::msreader::internal
