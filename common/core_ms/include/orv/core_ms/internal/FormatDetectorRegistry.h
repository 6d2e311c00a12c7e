#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/internal/FormatDetectorBase.h>

#include <QHash>

#include <memory>
#include <vector>

namespace orv::msreader::internal {

using FormatDetectors = std::vector<std::unique_ptr<FormatDetectorBase>>;

/// Detectors in the order in which they are asked, and which of them knows a format. Read-only once built.
class ORV_WORKFLOW_EXPORT FormatDetectorRegistry
{
public:
    /// Throws std::runtime_error when two detectors report one format: the table of detectors is wrong, and
    /// no data can mend it.
    explicit FormatDetectorRegistry(FormatDetectors detectors);
    ~FormatDetectorRegistry();
    Q_DISABLE_COPY_MOVE(FormatDetectorRegistry)

    [[nodiscard]] const FormatDetectors &detectors() const { return m_detectors; }
    [[nodiscard]] QSet<VendorDataFormat> formats() const;
    /// Null for a format that none knows.
    [[nodiscard]] const FormatDetectorBase *detectorOf(VendorDataFormat format) const;

private:
    FormatDetectors m_detectors;
    QHash<VendorDataFormat, const FormatDetectorBase *> m_byFormat;
};

} // namespace orv::msreader::internal
