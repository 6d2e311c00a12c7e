#include "LoadedWorkflow.h"

#include "Inputs.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/resources/ResourceReferenceUtils.h>

namespace orv::cli {

using PropertyEditor::Content;

namespace {

void resolveSamples(const QUrl &folder, Content *content)
{
    SamplesAndTracesContent samples = content->samplesAndTraces();
    for (SamplesInput::SampleWithCustomColumns &sample : samples.samples.samples)
        sample.msFile = ResourceReferenceUtils::resolved(sample.msFile, folder);
    content->setSamplesAndTraces(samples);
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

std::optional<QString> unevenTab(const Content &content)
{
    for (const PropertyEditor::ItemGroup *group : content.groups()) {
        const QList<PropertyEditor::ItemSubGroup *> columns = group->subGroups();
        for (const PropertyEditor::ItemSubGroup *column : columns) {
            if (column->count() < columns.first()->count())
                return group->name();
        }
    }
    return {};
}

Outcome<LoadedWorkflow> loadResolvedWorkflow(const QString &argument)
{
    Outcome<LoadedWorkflow> workflow = loadWorkflow(argument);
    if (workflow.hasFailed())
        return workflow;
    const QUrl folder = folderUrlOf(argument);
    workflow->content->setBaseUrl(folder);
    resolveSamples(folder, workflow->content.get());
    PropertyEditorUtils::updateGlycanDatabasesToAbsolute(workflow->content.get(), folder);
    return workflow;
}

} // namespace orv::cli
