#include "ChangeCommand.h"

#include "../CommonArguments.h"
#include "../Console.h"

#include <orv/core/SysUtils.h>

#include <algorithm>
#include <utility>

namespace orv::cli {

ChangeCommand::ChangeCommand(QString name)
    : m_name(std::move(name))
    , m_jobs(SysUtils::cpuCoresNumber())
{}

void ChangeCommand::declare(Arguments &arguments)
{
    declareWorkflows(arguments, &m_files);
    m_target.declare(arguments);
    declareMore(arguments);
    declareJobs(arguments, &m_jobs);
}

Outcome<void> ChangeCommand::checkUsage() const
{
    return {};
}

int ChangeCommand::run(const GlobalOptions &options)
{
    if (const Outcome<void> checked = m_target.check(); checked.hasFailed())
        return printFailedCall(m_name, checked.failure(), options);
    if (const Outcome<void> checked = checkUsage(); checked.hasFailed())
        return printFailedCall(m_name, checked.failure(), options);
    const QList<BatchInput> inputs = batchInputs(m_files);
    const DocumentOutputs outputs = m_target.outputsOf(m_files, inputs);
    if (outputs.failure)
        return printFailedCall(outputs.failedFile, *outputs.failure, options);

    using Form = OrderedReports::Form;
    // Standard output holds one document: the workflow or, where none was written, the report.
    const bool printsWorkflow = outputs.outputs.contains(QString(kStandardInput));
    const Form form = printsWorkflow ? Form::Silent : options.json ? Form::JsonArray : Form::Text;
    QByteArray untold; // of the one document that should have been printed, and wasn't
    const int exitCode =
        reportAll(inputs, m_jobs, options.progress || standardErrorIsTerminal(), form, [&](qsizetype i) {
            FileReport answer = report(inputs.at(i), outputs.outputs.at(i), options.json);
            if (printsWorkflow && options.json && answer.failure)
                untold = answer.text;
            return answer;
        });
    return untold.isEmpty() ? exitCode : std::max(exitCode, printBytes("[\n" + untold + "]\n"));
}

WrittenDocument ChangeCommand::write(const ChangedDocument &document, const QString &output,
                                     FileReport *report) const
{
    const Outcome<WrittenDocument> written = m_target.write(document, output);
    if (!written.hasFailed())
        return *written;
    report->failure = written.failure();
    if (report->failure->exitCode == BadOutput)
        report->file = output;
    return {};
}

} // namespace orv::cli
