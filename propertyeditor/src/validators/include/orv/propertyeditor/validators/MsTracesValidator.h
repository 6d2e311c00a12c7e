#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

/// Whether each MS file of a workflow with whole or released molecules has a trace to import.
class ORV_WORKFLOW_EXPORT MsTracesValidator : public FindingsValidator
{
public:
    void check(CheckRun &run) const override;
};

} // namespace orv::PropertyEditor
