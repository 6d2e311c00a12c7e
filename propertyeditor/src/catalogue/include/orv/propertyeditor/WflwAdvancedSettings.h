#pragma once

#include <orv/core/Export.h>

namespace orv {

/// Settings of the application that change how strictly workflows are read. Safe on any thread.
class ORV_WORKFLOW_EXPORT WflwAdvancedSettings
{
public:
    /// Whether a property or a type of cell that a file may not hold is an error; otherwise it is dropped or
    /// kept as it is. The checks of a whole workflow run either way. True unless the setting says otherwise.
    [[nodiscard]] static bool isWorkflowVerificationEnabled();
};

} // namespace orv
