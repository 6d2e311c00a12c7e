#include "orv/propertyeditor/validators/WorkflowCheck.h"

#include <orv/core/JsonScanner.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/ContentValidator.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/validators/Validators.h>
#include <orv/propertyeditor/workflow/WorkflowPaths.h>

#include <QCoreApplication>
#include <QHash>

#include <memory>

namespace orv::PropertyEditor {

namespace {

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
                              const WorkflowSource &source)
{
    FindingPlaces places(content, source.document);
    QList<LocatedFinding> result;
    for (const Finding &finding : findings) {
        result.append(LocatedFinding{
            places.named(finding.place), finding.level, finding.rule, finding.message, {}, finding.hint});
    }
    addLines(source.text, &result);
    return result;
}

} // namespace

WorkflowCheck::WorkflowCheck(const QStringList &validators)
    : m_isDefault(validators.isEmpty())
    , m_validators(m_isDefault ? Validators::defaultNames() : validators)
{}

Result<WorkflowCheckReport> WorkflowCheck::run(const Content &content, const QUrl &baseUrl,
                                               const WorkflowSource &source) const
{
    Result<Content> copy = WorkflowPaths::absoluteCopy(content, baseUrl);
    if (copy.hasError())
        return copy.ecatch();
    ContentValidator validator;
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
    report.findings = located(findings, *copy, source);
    return report;
}

} // namespace orv::PropertyEditor
