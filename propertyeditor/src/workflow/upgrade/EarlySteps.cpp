// Steps up to 5.19.0 that decide something about the settings of a workflow.
#include "StepHelpers.h"

#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QLatin1String>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

// What `kAutoFindMasses` held before 5.9.0, and the number that this search has since.
constexpr int kOldAutoFindMasses = 1;
constexpr int kNewAutoFindMasses = 2;

constexpr QLatin1String kOldIcIefName("IntaBio icIEF-MS");
constexpr QLatin1String kIcIefName("icIEF-MS");
constexpr QLatin1String kOldPeaksName("IntaBio_pI_slices");
constexpr QLatin1String kPeaksName("icIEF_pI_slices");
constexpr QLatin1String kOldIcIefReport("../../Intact/report_config/Intact_IntaBioReport.rptc");
constexpr QLatin1String kIcIefReport("../../Intact/report_config/Intact_icIEF_Report.rptc");

void renamePeaks(SamplesAndTracesContent *content)
{
    for (ElutionPeaksOptions &preset : content->options.peaksOptions) {
        if (preset.name() == kOldPeaksName)
            preset.setName(kPeaksName);
    }
    // Traces name the preset by which their peaks are found.
    QList<TracesImportList::Entry> traces = content->options.traces.list();
    for (TracesImportList::Entry &trace : traces) {
        if (trace.peaksOptionsName() == kOldPeaksName)
            trace.setPeaksOptionsName(kPeaksName);
    }
    content->options.traces.setList(traces);
}

Error renameReport(KeyValueItem *item)
{
    const ResourceReferenceSPtr reference =
        ResourceReferenceUtils::fromVariant(item->value(PropertyId::ReportConfiguration));
    const bool isOld = reference && reference->isScheme(ResourceReference::Scheme::LocalFile) &&
                       reference->text() == kOldIcIefReport;
    if (!isOld)
        return Error::NoError;
    return setValue(item, PropertyId::ReportConfiguration,
                    QVariant::fromValue(ResourceReferenceUtils::fromString(kIcIefReport)));
}

} // namespace

Error WflwUpgradeHelper::upgradeV_5_9_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    KeyValueItem *const item = firstSettings(*working, BaseItemType::Intact);
    const bool applies = item && item->contains(PropertyId::AutoFindMasses) &&
                         item->value(PropertyId::AutoFindMasses).toInt() == kOldAutoFindMasses;
    if (!applies)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(setValue(item, PropertyId::AutoFindMasses, kNewAutoFindMasses));
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_12_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    working->setWorkflowType(workflowTypeFromIconName(working->iconName()));
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_19_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() != WorkflowType::IcIefMs)
        return Error::NoError;
    working->setWorkflowType(WorkflowType::IcIefMs);
    if (working->name() == kOldIcIefName)
        working->setWorkflowName(kIcIefName);
    for (KeyValueItem *item : settingsItems(*working, {BaseItemType::Intact}))
        ORV_RETURN_IF_ERROR(renameReport(item));
    if (SamplesTableItem *const table = working->samplesTable()) {
        SamplesAndTracesContent samples = table->content();
        renamePeaks(&samples);
        table->setContent(samples);
    }
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

} // namespace orv
