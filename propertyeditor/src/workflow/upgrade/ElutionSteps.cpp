#include "StepHelpers.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/MirelElutionPeaksBackwardsCompatibility.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

using Compatibility = ElutionPeaksBackwardsCompatibility;

/// The rows of the first samples table in the form that such old documents have; nothing for another form.
std::optional<RowNode> oldSampleRows(const PropertyEditorContent &content)
{
    const PropertiesGetter getter(content);
    const QList<PropertiesGetter::CellData> samples = getter.samples();
    if (samples.isEmpty())
        return {};
    const QJsonObject table = PropertyEditorJsonUtils::variantToObject(
        samples.constFirst().properties.value(PropertyId::SamplesTable));
    const bool isPresentForm = table.contains(QLatin1String("Samples"));
    const bool isTree = table.contains(QLatin1String("data")) || table.contains(QLatin1String("children"));
    if (isPresentForm || !isTree)
        return {};
    return PropertyEditorJsonUtils::objectToRowNode(table);
}

/// The cell that set the peaks of traces; null if there is none.
KeyValueItem *oldSettings(const Content &content, bool *isIntact)
{
    *isIntact = firstItem(content, BaseItemType::Intact) != nullptr;
    return firstSettings(content, *isIntact ? BaseItemType::Intact : BaseItemType::Dravik);
}

void giveToSamples(const Compatibility::Output &output, SamplesTableItem *table)
{
    SamplesAndTracesContent content = table->content();
    content.samples = output.samples;
    content.options = output.options;
    table->setContent(content);
}

} // namespace

// The samples table tells of traces and their peaks, which settings told before.
Error WflwUpgradeHelper::upgradeV_5_6_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    bool isIntact = false;
    KeyValueItem empty(BaseItemType::Dravik);
    KeyValueItem *found = oldSettings(*working, &isIntact);
    KeyValueItem *settings = found ? found : &empty;
    SamplesTableItem *table = working->samplesTable();
    const std::optional<RowNode> rows = oldSampleRows(*content);
    const std::optional<RowNode> columns =
        rows && table ? std::optional(table->customColumnsMetaData()) : std::nullopt;

    const Compatibility::Input input = MirelElutionPeaksBackwardsCompatibility::inputFromWlfw(
        rows.value_or(RowNode()), columns, settings, isIntact, baseUrl());
    Result<Compatibility::Output> output = Compatibility::createOptionsFromOldPreset(input);
    if (!output)
        return output.ecatch();
    for (const QString &warning : output.warnings())
        qCWarning(propertyEditorLog).noquote() << warning;
    if (settings->contains(PropertyId::AdvancedConfiguration))
        ORV_RETURN_IF_ERROR(setValue(settings, PropertyId::AdvancedConfiguration, output->advancedText));
    if (rows && table)
        giveToSamples(*output, table);
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

} // namespace orv
