#pragma once

#include <orv/propertyeditor/validators/SampleDataValidator.h>

namespace orv::PropertyEditor {

/// Refuses lists of peaks (.mgf) without spectra of level 1. The file is read on a thread of its own,
/// until whose end the caller's thread handles events other than the user's, even when the application is
/// told to quit meanwhile.
class ORV_WORKFLOW_EXPORT MGFValidator : public SampleDataValidator
{
public:
    using SampleDataValidator::validateSample;

    [[nodiscard]] msreader::VendorDataFormat vendorFormat() const override;
    [[nodiscard]] QSet<BaseItemType> documentsToCheck() const override;
    [[nodiscard]] Error validateSample(const QString &path) const override;
};

} // namespace orv::PropertyEditor
