#include "Upgrade.h"

#include <orv/core/JsonNumbers.h>
#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <algorithm>

namespace orv::cli {

namespace {

/// Whether the step that failed is one that the upgrade may leave out.
bool stoppedAtSamples(const Error &error)
{
    const QString details = error.details().join(QLatin1Char(' '));
    const QList<WflwUpgradeStep> steps = WflwUpgrader::steps();
    return std::ranges::any_of(steps, [&details](const WflwUpgradeStep &step) {
        return step.needsSampleData &&
               details.contains(QStringLiteral(" the step to %1.").arg(step.version.toString()));
    });
}

bool hasSamples(const QJsonObject &document)
{
    return !PropertiesGetter(PropertyEditorContent(document)).samples().isEmpty();
}

Failure failureOf(const WorkflowUpgradeReport &report, const QJsonObject &document)
{
    if (report.state == WflwMetaData::WflwState::NotSupported)
        return {Negative, 0, report.error.errorMessages().join(QLatin1Char(' '))};
    Failure failure = failureFrom(report.error, report.state ? Negative : BadInput);
    if (stoppedAtSamples(report.error)) {
        failure.message +=
            hasSamples(document)
                ? QStringLiteral(" It opens the samples' files: --no-sample-data leaves it out, "
                                 "and orv-workflow relink finds files that have moved.")
                : QStringLiteral(" It is for the samples' files: --no-sample-data leaves it out.");
    }
    return failure;
}

} // namespace

UpgradeAnswer upgradeWorkflow(const BatchInput &input, const UpgradeOptions &options)
{
    UpgradeAnswer answer;
    answer.file = input.file;
    answer.failure = input.failure;
    if (answer.failure)
        return answer;
    const Outcome<FileText> read = readText(input.file);
    if (read.hasFailed()) {
        answer.failure = read.failure();
        return answer;
    }
    static_cast<WorkflowUpgradeReport &>(answer) =
        WorkflowUpgrade::run(read->document, {.accessSampleData = options.accessSampleData,
                                              .baseUrl = folderUrlOf(input.file),
                                              .user = options.user,
                                              .silentServers = options.silentServers});
    answer.original = read->bytes;
    if (!answer.isChanged)
        answer.upgraded = read->bytes;
    else
        answer.lost += lossesOfNumbers(read->bytes);
    if (answer.error)
        answer.failure = failureOf(answer, read->document);
    return answer;
}

} // namespace orv::cli
