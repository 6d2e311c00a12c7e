#include "Check.h"

#include "LoadedWorkflow.h"

namespace orv::cli {

namespace {

using namespace PropertyEditor;

/// What there is to tell of a workflow that can be read.
struct CheckedFile
{
    WorkflowCheckReport report;
    QList<Loss> lost;
};

Outcome<CheckedFile> checkFile(const QString &file, const CheckOptions &options)
{
    const Outcome<FileText> text = readText(file);
    if (text.hasFailed())
        return text.failure();
    const Outcome<LoadedWorkflow> workflow = loadWorkflow(text->document);
    if (workflow.hasFailed())
        return workflow.failure();
    const QUrl baseUrl = options.baseUrl.value_or(folderUrlOf(file));
    const Result<WorkflowCheckReport> report =
        WorkflowCheck(options.validators).run(*workflow->content, baseUrl, {text->document, text->bytes});
    if (report.hasError())
        return failureFrom(report.error(), BadInput);
    return CheckedFile{*report, workflow->lost};
}

} // namespace

QStringList validatorsOf(const CheckOptions &options)
{
    return WorkflowCheck(options.validators).validators();
}

CheckAnswer checkWorkflow(const BatchInput &input, const CheckOptions &options)
{
    if (input.failure)
        return {.file = input.file, .failure = input.failure};
    const Outcome<CheckedFile> checked = checkFile(input.file, options);
    if (checked.hasFailed())
        return {.file = input.file, .failure = checked.failure()};
    const WorkflowCheckReport &report = checked->report;
    return {.file = input.file,
            .isValid = report.isValid,
            .errors = report.errors,
            .warnings = report.warnings,
            .findings = report.findings,
            .lost = checked->lost};
}

} // namespace orv::cli
