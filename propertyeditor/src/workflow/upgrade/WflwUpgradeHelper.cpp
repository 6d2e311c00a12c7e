#include "StepHelpers.h"
#include "WflwUpgradeHelper_p.h"

namespace orv {

WflwUpgradeHelper::WflwUpgradeHelper()
    : d(std::make_unique<Private>())
{}

WflwUpgradeHelper::~WflwUpgradeHelper() = default;

QList<QString> WflwUpgradeHelper::notes() const
{
    return d->notes.values();
}

void WflwUpgradeHelper::addNote(int kind, const QString &text)
{
    if (!d->notes.contains(kind))
        d->notes.insert(kind, text);
}

Result<WorkingContent> WflwUpgradeHelper::createPecToUpgrade(PropertyEditorContent *content)
{
    return WorkingContent::of(d->run, content);
}

QUrl WflwUpgradeHelper::baseUrl() const
{
    return d->baseUrl;
}

SilentServers &WflwUpgradeHelper::silentServers() const
{
    return *d->silentServers;
}

Error WflwUpgradeHelper::upgradeToCurrentWorkflowVersion(PropertyEditorContent *content)
{
    return UpgradeSteps::readAndWrite(createPecToUpgrade(content));
}

} // namespace orv
