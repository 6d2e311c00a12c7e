#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

/// Whether the digestion in silico of a step is complete, its file of peptides is readable, and the range of
/// peptide masses is in order. Fetches and reads that file, and may block.
class ORV_WORKFLOW_EXPORT InsilicoValidator : public FindingsValidator
{
public:
    void check(CheckRun &run) const override;
};

} // namespace orv::PropertyEditor
