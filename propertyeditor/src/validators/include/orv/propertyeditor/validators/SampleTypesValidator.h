#pragma once

#include <orv/core_ms/MsDataFormat.h>
#include <orv/propertyeditor/validators/FindingsValidator.h>
#include <orv/samples/SamplesInput.h>

#include <QSet>

namespace orv::PropertyEditor {

class SamplesTableItem;

/// Whether all samples of a search may come from one vendor's instruments. Not in the default set: windows
/// install it for workflows that hold nothing but Karvon searches.
class ORV_WORKFLOW_EXPORT SampleTypesValidator : public FindingsValidator
{
public:
    ~SampleTypesValidator() override;

    void check(CheckRun &run) const override;
    /// Empty where nothing can be told. Applications that know more of their samples replace it.
    [[nodiscard]] virtual QSet<msreader::VendorDataFormat>
    detectPossibleSampleVendorFormats(const SamplesInput::Entry &sample) const;

    /// False, with one text, if two samples differ in their formats.
    bool validateSamples(const QList<SamplesInput::Entry> &samples, QList<QString> *warnings,
                         QList<QString> *errors) const;

private:
    /// Whether all are alike.
    bool checkSamples(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                      const SamplesTableItem *table) const;
};

} // namespace orv::PropertyEditor
