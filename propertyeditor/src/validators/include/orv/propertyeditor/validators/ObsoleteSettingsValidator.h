#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

/// Whether the expert settings of a step hold names that no application reads any more. Tells the first step.
class ORV_WORKFLOW_EXPORT ObsoleteSettingsValidator : public FindingsValidator
{
public:
    void check(CheckRun &run) const override;
};

} // namespace orv::PropertyEditor
