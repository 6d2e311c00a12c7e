#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/TalvaneWflwUpgradeHelper.h>

namespace orv {

Error TalvaneWflwUpgradeHelper::upgradeV_5_10_1(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

} // namespace orv
