#include "../Batch.h"
#include "../CommonArguments.h"
#include "../Console.h"
#include "../Inputs.h"
#include "../Progress.h"
#include "Command.h"
#include "InfoText.h"

#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/workflow/WorkflowSummary.h>

namespace orv::cli {

namespace {

struct InfoAnswer
{
    QString file;
    std::optional<WorkflowSummary> summary;
    std::optional<Failure> failure;
};

InfoAnswer answerFor(const BatchInput &input)
{
    if (input.failure)
        return {input.file, {}, input.failure};
    const Outcome<QJsonObject> document = readDocument(input.file);
    if (document.hasFailed())
        return {input.file, {}, document.failure()};
    return {input.file, WorkflowSummary::of(PropertyEditorContent(*document)), {}};
}

QJsonObject toJson(const InfoAnswer &answer)
{
    QJsonObject json = answer.summary ? summaryToJson(*answer.summary) : emptySummaryJson();
    json.insert(QStringLiteral("file"), answer.file);
    json.insert(QStringLiteral("error"), errorJson(answer.failure));
    return json;
}

class InfoCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflows(arguments, &m_files);
        declareJobs(arguments, &m_jobs);
    }

    int run(const GlobalOptions &options) override
    {
        const QList<BatchInput> inputs = batchInputs(m_files);
        std::vector<InfoAnswer> answers(size_t(inputs.size()));
        {
            Progress progress(options.progress || standardErrorIsTerminal(), inputs.size());
            runBatch(inputs.size(), m_jobs, progress,
                     [&](qsizetype i) { answers[size_t(i)] = answerFor(inputs.at(i)); });
        }
        const int printed = options.json ? printAnswersAsJson(answers) : printAnswersAsText(answers);
        int exitCode = printed;
        for (const InfoAnswer &answer : answers) {
            if (!answer.failure)
                continue;
            printFailure(answer.file, *answer.failure);
            exitCode = std::max<int>(exitCode, answer.failure->exitCode);
        }
        return exitCode;
    }

private:
    static int printAnswersAsJson(const std::vector<InfoAnswer> &answers)
    {
        QJsonArray array;
        for (const InfoAnswer &answer : answers)
            array.append(toJson(answer));
        return printJson(array);
    }

    static int printAnswersAsText(const std::vector<InfoAnswer> &answers)
    {
        QStringList texts;
        for (const InfoAnswer &answer : answers) {
            if (answer.summary)
                texts.append(summaryToText(answer.file, *answer.summary));
        }
        return printText(texts.join(QLatin1Char('\n')));
    }

    QStringList m_files;
    int m_jobs = SysUtils::cpuCoresNumber();
};

} // namespace

std::unique_ptr<Command> createInfoCommand()
{
    return std::make_unique<InfoCommand>();
}

} // namespace orv::cli
