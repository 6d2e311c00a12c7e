#include "orv/propertyeditor/validators/WorkflowCheck.h"

#include <orv/core/JsonScanner.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/ContentValidator.h>
#include <orv/propertyeditor/validators/DocumentFindings.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/validators/Validators.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowPaths.h>
#include <orv/propertyeditor/workflow/WorkflowUpgrade.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonDocument>

#include <memory>

namespace orv::PropertyEditor {

namespace {

using State = WflwMetaData::WflwState;

struct WorkflowCheckTr
{
    Q_DECLARE_TR_FUNCTIONS(WorkflowCheck)
};

void addLines(const QByteArray &text, QList<LocatedFinding> *findings)
{
    if (text.isEmpty())
        return;
    QStringList pointers;
    for (const LocatedFinding &finding : std::as_const(*findings))
        pointers.append(finding.pointer);
    const QHash<QString, qsizetype> lines = linesOfPointers(text, pointers);
    for (LocatedFinding &finding : *findings) {
        const auto line = lines.constFind(finding.pointer);
        if (!finding.pointer.isEmpty() && line != lines.cend())
            finding.line = *line;
    }
}

QList<LocatedFinding> located(const QList<Finding> &findings, const Content &content,
                              const WorkflowSource &source, const QList<LocatedFinding> &further)
{
    FindingPlaces places(content, source.document);
    QList<LocatedFinding> result;
    for (const Finding &finding : findings) {
        result.append(LocatedFinding{
            places.named(finding.place), finding.level, finding.rule, finding.message, {}, finding.hint});
    }
    result.append(further);
    addLines(source.text, &result);
    return result;
}

/// The document that is checked, and what becomes known of it on the way there.
Result<QJsonObject> upToDate(const QJsonObject &document, const QUrl &baseUrl, WorkflowCheckReport *report)
{
    const PropertyEditorContent content(document);
    Result<QVersionNumber> version = WflwMetaData::exactVersion(content.metadata());
    if (version.hasError())
        return version.ecatch();
    report->version = *version;
    report->checkedVersion = report->version;
    QStringList reasons;
    const State state = WflwMetaData::checkWorkflowVersion(report->version, &content, &reasons);
    const bool isNewer = report->version > WflwMetaData::currentWorkflowVersion();
    if (state == State::UpToDate || isNewer)
        return document;
    WorkflowUpgradeReport upgrade =
        WorkflowUpgrade::run(document, {.accessSampleData = false, .baseUrl = baseUrl});
    if (upgrade.error)
        return upgrade.error.ecatch();
    report->checkedVersion = upgrade.to;
    report->lost = upgrade.lost;
    return QJsonDocument::fromJson(upgrade.upgraded).object();
}

} // namespace

WorkflowCheck::WorkflowCheck(const QStringList &validators)
    : m_isDefault(validators.isEmpty())
    , m_validators(m_isDefault ? Validators::defaultNames() : validators)
{}

Result<WorkflowCheckReport> WorkflowCheck::run(const WorkflowSource &source, const QUrl &baseUrl) const
{
    WorkflowCheckReport known;
    Result<QJsonObject> document = upToDate(source.document, baseUrl, &known);
    if (document.hasError())
        return document.ecatch();
    LossCollector losses;
    Content content;
    content.setLossObserver(&losses);
    const Error error = content.assignFromJson(*document);
    content.setLossObserver(nullptr);
    ORV_RETURN_IF_ERROR(error);
    Result<WorkflowCheckReport> report = run(content, baseUrl, source);
    if (report.hasError())
        return report.ecatch();
    report->version = known.version;
    report->checkedVersion = known.checkedVersion;
    report->lost = known.lost + losses.losses();
    return report;
}

Result<WorkflowCheckReport> WorkflowCheck::run(const Content &content, const QUrl &baseUrl,
                                               const WorkflowSource &source) const
{
    Result<Content> copy = WorkflowPaths::absoluteCopy(content, baseUrl);
    if (copy.hasError())
        return copy.ecatch();
    ContentValidator validator;
    validator.setRepeatsInLog(m_repeatsInLog);
    for (const QString &name : m_validators) {
        std::unique_ptr<AbstractValidator> created = Validators::create(name);
        if (!created) {
            return Error(ErrorCode::InvalidContent,
                         WorkflowCheckTr::tr("There is no validator \"%1\".").arg(name))
                .addDetail(
                    WorkflowCheckTr::tr("There are: %1.").arg(Validators::names().join(QLatin1String(", "))));
        }
        validator.installValidator(created.release());
    }
    if (m_isDefault && PropertyEditorUtils::isKarvonOnly(copy->findAllDocuments()))
        validator.installValidator(new SampleTypesValidator);
    WorkflowCheckReport report;
    QList<Finding> findings;
    report.isValid = validator.validate(*copy, baseUrl, &report.warnings, &report.errors, &findings);
    report.findings =
        located(findings, *copy, source,
                m_isDefault ? DocumentFindings::of(content, source.document) : QList<LocatedFinding>());
    return report;
}

Result<QList<LocatedFinding>>
WorkflowCheck::findingsOf(std::vector<std::unique_ptr<AbstractValidator>> validators,
                          const WorkflowSource &source, const QUrl &baseUrl)
{
    Content content;
    ORV_RETURN_IF_ERROR(content.assignFromJson(source.document));
    Result<Content> copy = WorkflowPaths::absoluteCopy(content, baseUrl);
    if (copy.hasError())
        return copy.ecatch();
    ContentValidator validator;
    validator.setRepeatsInLog(false);
    for (std::unique_ptr<AbstractValidator> &each : validators) {
        if (validator.installValidator(each.get()))
            static_cast<void>(each.release());
    }
    QStringList warnings;
    QStringList errors;
    QList<Finding> findings;
    static_cast<void>(validator.validate(*copy, baseUrl, &warnings, &errors, &findings));
    return located(findings, *copy, source, {});
}

} // namespace orv::PropertyEditor
