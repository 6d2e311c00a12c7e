#include "orv/propertyeditor/workflow/WorkflowUpgrade.h"

#include "OldSampleLosses.h"

#include <orv/propertyeditor/content/CellStamps.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/DocumentStructure.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <QCoreApplication>

namespace orv::WorkflowUpgrade {

namespace {

using State = WflwMetaData::WflwState;
using PropertyEditorStringConstants::META_IN_JSON_KEY;

struct WorkflowUpgradeTr
{
    Q_DECLARE_TR_FUNCTIONS(WorkflowUpgrade)
};

/// What the value form drops of the document.
QList<Loss> lossesOfValueForm(const QJsonObject &document)
{
    LossCollector collector;
    DocumentStructure::reportLosses(document, &collector);
    CellStamps::reportLosses(document, &collector);
    return collector.losses();
}

/// Judges the document without a step.
Error begin(const PropertyEditorContent &content, WorkflowUpgradeReport *report)
{
    if (content.tabsAndContent().isEmpty()) {
        return Error(ErrorCode::MalformedStructure,
                     WorkflowUpgradeTr::tr("The document has no tabs, so it is no workflow."));
    }
    Result<QVersionNumber> version = WflwMetaData::exactVersion(content.metadata());
    if (version.hasError())
        return version.ecatch();
    report->from = *version;
    report->to = report->from;
    QStringList reasons;
    report->state = WflwMetaData::checkWorkflowVersion(report->from, &content, &reasons);
    return report->state == State::NotSupported ? Error(ErrorCode::InvalidContent, reasons) : Error();
}

/// Whether others can open what the upgrade has made, which itself passes over cells of unknown types.
Error checkUsable(const QJsonObject &document)
{
    PropertyEditor::Content content;
    Error error = content.assignFromJson(document);
    if (error)
        error.ecatch().addDetail(WorkflowUpgradeTr::tr("The upgraded document couldn't be opened."));
    return error;
}

Error takeSteps(PropertyEditorContent &content, const WorkflowUpgradeOptions &options,
                WorkflowUpgradeReport *report)
{
    WorkflowUpgradeReview review;
    QList<QString> notes;
    ORV_RETURN_IF_ERROR(WflwUpgrader::upgradeWorkflow(report->from, &content, &notes,
                                                      {.accessSampleData = options.accessSampleData,
                                                       .observer = &review,
                                                       .baseUrl = options.baseUrl,
                                                       .silentServers = options.silentServers}));
    report->notes = notes;
    report->steps = review.steps();
    report->to = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    report->isChanged = true;
    content.setCustomUser(options.user);
    report->upgraded = content.toJson();
    if (!report->malformed)
        report->malformed = checkUsable(content.document());
    return Error::NoError;
}

} // namespace

QList<Loss> lossesBefore(const PropertyEditorContent &content)
{
    const QVersionNumber firstWithoutRows(5, 6, 0);
    LossCollector collector;
    PropertyEditor::Content tree;
    tree.setLossObserver(&collector);
    // A document that can't be loaded fails in the upgrade, where the error belongs, unless a step mends it.
    const Error error =
        tree.assignFromJson(content.document(), PropertyEditor::ValidationOption::SkipTypeValidation);
    tree.setLossObserver(nullptr);
    Q_UNUSED(error)
    if (WflwMetaData::versionNumberFromMetaDataObject(content.metadata()) < firstWithoutRows)
        reportOldSampleLosses(content.document(), &collector);
    return collector.losses();
}

WorkflowUpgradeReport run(const QJsonObject &document, const WorkflowUpgradeOptions &options)
{
    WorkflowUpgradeReport report;
    PropertyEditorContent content(document);
    report.error = WflwMetaData::faultInText(document.value(META_IN_JSON_KEY).toString());
    if (!report.error)
        report.error = begin(content, &report);
    if (report.error || report.from == WflwMetaData::currentWorkflowVersion() ||
        WflwMetaData::isNewerThanCurrent(report.from))
        return report;
    report.malformed = DocumentStructure::check(document);
    const QList<Loss> lost = lossesOfValueForm(document) + lossesBefore(content);
    report.error = takeSteps(content, options, &report);
    if (report.isChanged)
        report.lost = lost;
    return report;
}

} // namespace orv::WorkflowUpgrade
