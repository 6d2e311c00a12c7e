#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

/// Whether every search that works on samples exports mzIdentML. Not in the default set: applications whose
/// later steps read that format install it.
class ORV_WORKFLOW_EXPORT MzIdentValidator : public FindingsValidator
{
public:
    void check(CheckRun &run) const override;
};

} // namespace orv::PropertyEditor
