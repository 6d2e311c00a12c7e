#include <orv/core/Settings.h>
#include <orv/propertyeditor/WflwAdvancedSettings.h>

namespace orv {

bool WflwAdvancedSettings::isWorkflowVerificationEnabled()
{
    return as::value(as::kWorkflowVerificationEnabled, true).toBool();
}

} // namespace orv
