#include "LoadedWorkflow.h"

#include "Inputs.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/workflow/WorkflowPaths.h>

namespace orv::cli {

using PropertyEditor::Content;

Outcome<LoadedWorkflow> loadWorkflow(const QString &argument)
{
    const Outcome<QJsonObject> document = readDocument(argument);
    if (document.hasFailed())
        return document.failure();
    return loadWorkflow(*document);
}

Outcome<LoadedWorkflow> loadWorkflow(const QJsonObject &document)
{
    LoadedWorkflow workflow{document, std::make_unique<Content>(), {}};
    LossCollector losses;
    workflow.content->setLossObserver(&losses);
    const Error error =
        workflow.content->assignFromJson(document, PropertyEditor::ValidationOption::SkipTypeValidation);
    workflow.content->setLossObserver(nullptr);
    if (error.hasError())
        return failureFrom(error, BadInput);
    workflow.lost = losses.losses();
    return workflow;
}

Outcome<LoadedWorkflow> loadResolvedWorkflow(const QString &argument)
{
    Outcome<LoadedWorkflow> workflow = loadWorkflow(argument);
    if (workflow.hasFailed())
        return workflow;
    const QUrl folder = folderUrlOf(argument);
    workflow->content->setBaseUrl(folder);
    WorkflowPaths::resolveSamples(workflow->content.get(), folder);
    PropertyEditorUtils::updateGlycanDatabasesToAbsolute(workflow->content.get(), folder);
    return workflow;
}

} // namespace orv::cli
