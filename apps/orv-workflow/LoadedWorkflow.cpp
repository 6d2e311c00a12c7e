#include "LoadedWorkflow.h"

#include "Inputs.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/validators/WorkflowFile.h>
#include <orv/propertyeditor/workflow/WorkflowPaths.h>

namespace orv::cli {

namespace {

using namespace PropertyEditor;

Outcome<LoadedWorkflow> loadFrom(const QJsonObject &document, const QUrl &folder)
{
    Result<LoadedContent> loaded = WorkflowFile({document, {}}, folder).load();
    if (loaded.hasError())
        return failureFrom(loaded.error(), BadInput);
    return LoadedWorkflow{document, std::move(loaded->content), loaded->lost};
}

} // namespace

Outcome<LoadedWorkflow> loadWorkflow(const QString &argument)
{
    const Outcome<QJsonObject> document = readDocument(argument);
    if (document.hasFailed())
        return document.failure();
    return loadWorkflow(*document);
}

Outcome<LoadedWorkflow> loadWorkflow(const QJsonObject &document)
{
    return loadFrom(document, {});
}

Outcome<LoadedWorkflow> loadResolvedWorkflow(const QString &argument)
{
    const Outcome<QJsonObject> document = readDocument(argument);
    if (document.hasFailed())
        return document.failure();
    const QUrl folder = folderUrlOf(argument);
    Outcome<LoadedWorkflow> workflow = loadFrom(*document, folder);
    if (workflow.hasFailed())
        return workflow;
    WorkflowPaths::resolveSamples(workflow->content.get(), folder);
    PropertyEditorUtils::updateGlycanDatabasesToAbsolute(workflow->content.get(), folder);
    return workflow;
}

} // namespace orv::cli
