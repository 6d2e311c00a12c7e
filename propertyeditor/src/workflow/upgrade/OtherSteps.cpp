#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

namespace orv {

Error WflwUpgradeHelper::upgradeV_5_9_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_12_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_12_2(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_19_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_22_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_23_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_24_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_26_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_27_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_28_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_31_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_33_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_35_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_43_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_44_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_46_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

Error WflwUpgradeHelper::upgradeV_5_47_0(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

} // namespace orv
