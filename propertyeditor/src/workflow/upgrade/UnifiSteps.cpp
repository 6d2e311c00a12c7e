#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

namespace orv {

Error WflwUpgradeHelper::upgradeV_5_16_1(PropertyEditorContent *content,
                                         const PropertyEditorContent * /*initialContent*/,
                                         const QVersionNumber & /*initialVersion*/)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_18_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_25_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_32_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

} // namespace orv
