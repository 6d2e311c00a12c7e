#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

/// Whether a workflow has a document at all. Data-independent searches alone are none.
class ORV_WORKFLOW_EXPORT WorkflowValidator : public FindingsValidator
{
public:
    void check(CheckRun &run) const override;
};

} // namespace orv::PropertyEditor
