#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

namespace orv {

WflwUpgradeHelper::WflwUpgradeHelper() = default;
WflwUpgradeHelper::~WflwUpgradeHelper() = default;

QList<QString> WflwUpgradeHelper::notes() const
{
    return m_notes.values();
}

void WflwUpgradeHelper::addNote(int kind, const QString &text)
{
    if (!m_notes.contains(kind))
        m_notes.insert(kind, text);
}

Error WflwUpgradeHelper::upgradeToCurrentWorkflowVersion(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(content);
}

} // namespace orv
