#include "orv/propertyeditor/workflow/WorkflowUpgrade.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <QCoreApplication>

namespace orv::WorkflowUpgrade {

namespace {

using State = WflwMetaData::WflwState;

struct WorkflowUpgradeTr
{
    Q_DECLARE_TR_FUNCTIONS(WorkflowUpgrade)
};

/// What the first step can't take over from the document. Fails where the document can't be loaded, though
/// its value form, which heals what it can't hold, may well be.
Result<QList<Loss>> lossesOfLoad(const QJsonObject &document)
{
    LossCollector collector;
    PropertyEditor::Content content;
    content.setLossObserver(&collector);
    const Error error =
        content.assignFromJson(document, PropertyEditor::ValidationOption::SkipTypeValidation);
    content.setLossObserver(nullptr);
    ORV_RETURN_IF_ERROR(error);
    return collector.losses();
}

/// Judges the document without a step.
Error begin(const PropertyEditorContent &content, WorkflowUpgradeReport *report)
{
    if (content.tabsAndContent().isEmpty()) {
        return Error(ErrorCode::MalformedStructure,
                     WorkflowUpgradeTr::tr("The document has no tabs, so it is no workflow."));
    }
    report->from = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    report->to = report->from;
    QStringList reasons;
    report->state = WflwMetaData::checkWorkflowVersion(report->from, &content, &reasons);
    return report->state == State::NotSupported ? Error(ErrorCode::InvalidContent, reasons) : Error();
}

Error takeSteps(PropertyEditorContent &content, const WorkflowUpgradeOptions &options,
                WorkflowUpgradeReport *report)
{
    WorkflowUpgradeReview review;
    QList<QString> notes;
    ORV_RETURN_IF_ERROR(WflwUpgrader::upgradeWorkflow(
        report->from, &content, &notes,
        {.accessSampleData = options.accessSampleData, .observer = &review, .baseUrl = options.baseUrl}));
    report->notes = notes;
    report->steps = review.steps();
    report->to = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    // A document of a later minor version comes back as it was.
    report->isChanged = report->to != report->from;
    if (!report->isChanged)
        return Error::NoError;
    content.setCustomUser(options.user);
    report->upgraded = content.toJson();
    return Error::NoError;
}

} // namespace

WorkflowUpgradeReport run(const QJsonObject &document, const WorkflowUpgradeOptions &options)
{
    WorkflowUpgradeReport report;
    PropertyEditorContent content(document);
    report.error = begin(content, &report);
    if (report.error || report.from == WflwMetaData::currentWorkflowVersion())
        return report;
    const Result<QList<Loss>> lost = lossesOfLoad(document);
    report.error = lost.hasError() ? lost.error() : takeSteps(content, options, &report);
    if (report.isChanged)
        report.lost = *lost;
    return report;
}

} // namespace orv::WorkflowUpgrade
