#pragma once

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

namespace orv {

/// The steps for documents that are at home on a server.
class ORV_WORKFLOW_EXPORT TalvaneWflwUpgradeHelper : public WflwUpgradeHelper
{
public:
    /// As the step of the desktop, with what the server tells of the files.
    Error upgradeV_5_10_1(PropertyEditorContent *content) override;
};

} // namespace orv
