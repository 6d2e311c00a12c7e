#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

namespace orv {

Error WflwUpgradeHelper::upgradeV_5_6_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

} // namespace orv
