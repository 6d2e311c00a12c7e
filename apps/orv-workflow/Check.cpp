#include "Check.h"

#include <orv/propertyeditor/validators/WorkflowFile.h>

namespace orv::cli {

namespace {

using namespace PropertyEditor;

Outcome<WorkflowCheckReport> checkFile(const QString &file, const CheckOptions &options)
{
    const Outcome<FileText> text = readText(file);
    if (text.hasFailed())
        return text.failure();
    const QUrl baseUrl = options.baseUrl.value_or(folderUrlOf(file));
    const Result<WorkflowCheckReport> report =
        WorkflowFile({text->document, text->bytes}, baseUrl).check(options.validators);
    if (report.hasError())
        return failureFrom(report.error(), BadInput);
    return *report;
}

} // namespace

QStringList validatorsOf(const CheckOptions &options)
{
    return WorkflowCheck(options.validators).validators();
}

CheckAnswer checkWorkflow(const BatchInput &input, const CheckOptions &options)
{
    CheckAnswer answer{.file = input.file, .failure = input.failure};
    if (answer.failure)
        return answer;
    const Outcome<WorkflowCheckReport> checked = checkFile(input.file, options);
    if (checked.hasFailed())
        answer.failure = checked.failure();
    else
        answer.report = *checked;
    return answer;
}

} // namespace orv::cli
