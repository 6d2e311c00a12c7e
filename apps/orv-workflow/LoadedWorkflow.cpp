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

std::variant<LoadedWorkflow, Failure> loadWorkflow(const QString &argument)
{
    const DocumentOrFailure document = readDocument(argument);
    if (const auto *failure = std::get_if<Failure>(&document))
        return *failure;
    return loadWorkflow(std::get<QJsonObject>(document));
}

std::variant<LoadedWorkflow, Failure> loadWorkflow(const QJsonObject &document)
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

std::variant<LoadedWorkflow, Failure> loadResolvedWorkflow(const QString &argument)
{
    std::variant<LoadedWorkflow, Failure> loaded = loadWorkflow(argument);
    if (auto *workflow = std::get_if<LoadedWorkflow>(&loaded)) {
        const QUrl folder = folderUrlOf(argument);
        workflow->content->setBaseUrl(folder);
        resolveSamples(folder, workflow->content.get());
        PropertyEditorUtils::updateGlycanDatabasesToAbsolute(workflow->content.get(), folder);
    }
    return loaded;
}

} // namespace orv::cli
