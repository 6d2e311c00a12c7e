#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

/// Whether every kind of document has samples to work on. A report over several documents has none of its
/// own.
class ORV_WORKFLOW_EXPORT SamplesPatternValidator : public FindingsValidator
{
public:
    void check(CheckRun &run) const override;
};

} // namespace orv::PropertyEditor
