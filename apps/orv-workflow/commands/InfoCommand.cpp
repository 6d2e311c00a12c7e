#include "../CommonArguments.h"
#include "../Console.h"
#include "../Inputs.h"
#include "../OrderedReports.h"
#include "Command.h"
#include "InfoText.h"

#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/workflow/WorkflowSummary.h>

#include <QJsonDocument>

namespace orv::cli {

namespace {

struct InfoAnswer
{
    QString file;
    std::optional<WorkflowSummary> summary;
    std::optional<Failure> failure;
    std::optional<Failure> fault = {}; ///< of a text that is shown all the same
};

InfoAnswer answerFor(const BatchInput &input)
{
    if (input.failure)
        return {input.file, {}, input.failure};
    const Outcome<DoubtfulText> text = readDoubtful(input.file);
    if (text.hasFailed())
        return {input.file, {}, text.failure()};
    std::optional<Failure> fault = text->fault;
    if (!fault && !text->document.value(QLatin1String("tabs")).isArray())
        fault = Failure{Done, 0, QStringLiteral("The document has no tabs, so it is no workflow.")};
    return {input.file, WorkflowSummary::of(PropertyEditorContent(text->document)), {}, fault};
}

QString faultText(const InfoAnswer &answer)
{
    return answer.fault ? answer.fault->message : QString();
}

QJsonObject toJson(const InfoAnswer &answer)
{
    QJsonObject json = answer.summary ? summaryToJson(*answer.summary) : emptySummaryJson();
    json.insert(QStringLiteral("file"), answer.file);
    json.insert(QStringLiteral("error"), errorJson(answer.failure));
    json.insert(QStringLiteral("fault"), errorJson(answer.fault));
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
        using Form = OrderedReports::Form;
        const QList<BatchInput> inputs = batchInputs(m_files);
        return reportAll(inputs, m_jobs, options.progress || standardErrorIsTerminal(),
                         options.json ? Form::JsonArray : Form::Paragraphs,
                         [&](qsizetype i) { return report(answerFor(inputs.at(i)), options.json); });
    }

private:
    static FileReport report(const InfoAnswer &answer, bool isJson)
    {
        FileReport report{.text = {}, .file = answer.file, .lost = {}, .failure = answer.failure};
        if (isJson)
            report.text = QJsonDocument(toJson(answer)).toJson();
        else if (answer.summary)
            report.text = summaryToText(answer.file, *answer.summary, faultText(answer)).toLocal8Bit();
        report.verdict = answer.summary ? stateInWords(*answer.summary) : QStringLiteral("not readable");
        return report;
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
