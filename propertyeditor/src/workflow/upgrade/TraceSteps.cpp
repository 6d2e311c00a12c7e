#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

namespace orv {

Error WflwUpgradeHelper::upgradeV_5_10_1(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_39_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

} // namespace orv
