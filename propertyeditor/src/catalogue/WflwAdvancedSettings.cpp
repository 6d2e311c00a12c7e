#include "orv/propertyeditor/WflwAdvancedSettings.h"

#include <orv/core/Settings.h>

namespace orv {

bool WflwAdvancedSettings::isWorkflowVerificationEnabled()
{
    return as::value(as::kWorkflowVerificationEnabled, true).toBool();
}

} // namespace orv
