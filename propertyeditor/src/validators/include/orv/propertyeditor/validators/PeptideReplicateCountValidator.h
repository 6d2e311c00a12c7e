#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

/// Whether the replicates that quantification asks for exist in every condition of the samples.
class ORV_WORKFLOW_EXPORT PeptideReplicateCountValidator : public FindingsValidator
{
public:
    void check(CheckRun &run) const override;
};

} // namespace orv::PropertyEditor
