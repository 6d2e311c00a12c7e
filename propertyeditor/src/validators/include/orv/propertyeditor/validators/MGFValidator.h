#pragma once

#include <orv/propertyeditor/validators/SampleDataValidator.h>

namespace orv::PropertyEditor {

/// Refuses lists of peaks (.mgf) without spectra of level 1. The file is read on a worker thread, for which
/// the check waits in a local event loop: the application object must be there.
class ORV_WORKFLOW_EXPORT MGFValidator : public SampleDataValidator
{
public:
    using SampleDataValidator::validateSample;

    [[nodiscard]] msreader::VendorDataFormat vendorFormat() const override;
    [[nodiscard]] QSet<BaseItemType> documentsToCheck() const override;
    [[nodiscard]] Error validateSample(const QString &path) const override;
};

} // namespace orv::PropertyEditor
