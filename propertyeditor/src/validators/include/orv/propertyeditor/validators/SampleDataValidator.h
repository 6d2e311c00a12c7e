#pragma once

#include <orv/core/Error.h>
#include <orv/core_ms/MsDataFormat.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/validators/FindingsValidator.h>
#include <orv/samples/SamplesInput.h>

#include <QSet>

namespace orv::PropertyEditor {

class SampleFiles;

/// Looks inside the sample files of one format, in workflows with documents of certain types. Samples that
/// aren't on this machine are passed over.
class ORV_WORKFLOW_EXPORT SampleDataValidator : public FindingsValidator
{
public:
    ~SampleDataValidator() override;

    void check(CheckRun &run) const override;

    [[nodiscard]] virtual msreader::VendorDataFormat vendorFormat() const = 0;
    /// The columns that make the samples be looked at.
    [[nodiscard]] virtual QSet<BaseItemType> documentsToCheck() const = 0;
    /// What is wrong with the file or folder at the local \a path, which has that format.
    [[nodiscard]] virtual Error validateSample(const QString &path) const = 0;

    using FindingsValidator::validate;
    /// One message for each sample that can't be used.
    [[nodiscard]] Error validate(const Content &content) const;
    [[nodiscard]] Error validateSample(const SamplesInput::Entry &sample) const;

private:
    [[nodiscard]] Error checkSample(const SamplesInput::Entry &sample, SampleFiles &files) const;
};

} // namespace orv::PropertyEditor
