#pragma once

#include <orv/propertyeditor/validators/SampleDataValidator.h>

namespace orv::PropertyEditor {

/// Refuses .ulvar2 files that were merged from several: their intensities can't be compared.
class ORV_WORKFLOW_EXPORT Ulvar2Validator : public SampleDataValidator
{
public:
    using SampleDataValidator::validateSample;

    [[nodiscard]] msreader::VendorDataFormat vendorFormat() const override;
    [[nodiscard]] QSet<BaseItemType> documentsToCheck() const override;
    /// \a path may also be that of an acquired sample (.tolq), whose sample is looked at.
    [[nodiscard]] Error validateSample(const QString &path) const override;
};

} // namespace orv::PropertyEditor
