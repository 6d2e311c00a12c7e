#include "Upgrade.h"

namespace orv::cli {

namespace {

Failure failureOf(const WorkflowUpgradeReport &report)
{
    if (report.state == WflwMetaData::WflwState::NotSupported)
        return {Negative, 0, report.error.errorMessages().join(QLatin1Char(' '))};
    return failureFrom(report.error, report.state ? Negative : BadInput);
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
    if (answer.error)
        answer.failure = failureOf(answer);
    return answer;
}

} // namespace orv::cli
