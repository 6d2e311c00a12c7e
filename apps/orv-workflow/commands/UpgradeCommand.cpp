#include "../Batch.h"
#include "../Console.h"
#include "../OrderedReports.h"
#include "../Progress.h"
#include "../UpgradeOutputs.h"
#include "../UpgradeReports.h"
#include "Command.h"

#include <orv/core/SysUtils.h>

#include <QJsonDocument>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <atomic>

namespace orv::cli {

namespace {

void raise(std::atomic<int> *exitCode, int code)
{
    int seen = exitCode->load();
    while (seen < code && !exitCode->compare_exchange_weak(seen, code)) {
    }
}

class UpgradeCommand : public Command
{
public:
    void declare(CLI::App &app) override
    {
        app.add_option("FILE", m_files,
                       "Workflow files, portable workflow folders, folders, or - for standard input")
            ->required();
        app.add_option("-o,--output", m_output,
                       "Where to write: a file, - for standard output, or a folder for several");
        app.add_flag("--in-place", m_inPlace, "Write each upgraded workflow over itself");
        app.add_flag("--dry-run", m_dryRun, "Tell what would be done, and write nothing");
        app.add_flag("--backup", m_backup, "With --in-place, keep each replaced workflow as FILE.bak");
        app.add_flag("--no-sample-data", m_noSampleData, "Leave out the steps that open the samples' files");
        app.add_option("--user", m_user, "The name to stamp with (default: the current user)");
        app.add_option("--jobs", m_jobs, "Threads (default: all cores)")->check(CLI::Range(1, 1024));
    }

    int run(const GlobalOptions &options) override
    {
        if (!isUsedWell())
            return WrongUsage;
        const QStringList arguments = decoded(m_files);
        const QList<BatchInput> inputs = batchInputs(arguments);
        const UpgradeOutputs outputs = upgradeOutputs(arguments, inputs, target());
        if (outputs.failure) {
            printFailure(outputs.failedFile, *outputs.failure);
            return outputs.failure->exitCode;
        }
        return runAll(inputs, outputs.outputs, options);
    }

private:
    [[nodiscard]] bool isUsedWell() const
    {
        const int targets = int(!m_output.empty()) + int(m_inPlace) + int(m_dryRun);
        if (targets != 1) {
            printRemark(QStringLiteral("upgrade"),
                        QStringLiteral("Say where to write: one of -o OUT, --in-place and --dry-run."));
            return false;
        }
        if (m_backup && !m_inPlace) {
            printRemark(QStringLiteral("--backup"), QStringLiteral("The option needs --in-place."));
            return false;
        }
        return true;
    }

    [[nodiscard]] UpgradeTarget target() const
    {
        UpgradeTarget target;
        if (m_inPlace)
            target.kind = UpgradeTarget::Kind::InPlace;
        else if (!m_dryRun)
            target.kind = UpgradeTarget::Kind::Output;
        target.output = decoded(m_output);
        target.keepsBackup = m_backup;
        return target;
    }

    int runAll(const QList<BatchInput> &inputs, const QStringList &outputs, const GlobalOptions &options)
    {
        // Standard output holds one document: the workflow or, where none was written, the report.
        const bool printsWorkflow = outputs.contains(QString(kStandardInput));
        OrderedReports reports(options.json && !printsWorkflow ? OrderedReports::Form::JsonArray
                                                               : OrderedReports::Form::Text);
        std::atomic<int> exitCode = Done;
        {
            Progress progress(options.progress || standardErrorIsTerminal(), inputs.size());
            runBatch(inputs.size(), m_jobs, progress, [&](qsizetype i) {
                FileReport report = upgradeOne(inputs.at(i), outputs.at(i), options.json);
                if (printsWorkflow)
                    report.text.clear();
                if (report.failure)
                    raise(&exitCode, report.failure->exitCode);
                reports.add(i, std::move(report));
            });
        }
        if (!reports.finish())
            raise(&exitCode, BadOutput);
        return exitCode;
    }

    [[nodiscard]] FileReport upgradeOne(const BatchInput &input, const QString &output, bool isJson) const
    {
        UpgradeAnswer answer =
            upgradeWorkflow(input, {.accessSampleData = !m_noSampleData, .user = decoded(m_user)});
        UpgradeWritten written;
        QString failedFile = input.file;
        if (!answer.failure && !output.isEmpty()) {
            answer.failure = write(answer, output, &written);
            if (answer.failure)
                failedFile = output;
        }
        const QByteArray text = isJson ? QJsonDocument(upgradeReportJson(answer, written)).toJson()
                                       : upgradeReportText(answer, written).toLocal8Bit();
        return {text, failedFile, answer.lost, answer.failure};
    }

    [[nodiscard]] std::optional<Failure> write(const UpgradeAnswer &answer, const QString &output,
                                               UpgradeWritten *written) const
    {
        if (m_inPlace && !answer.isChanged)
            return {};
        if (m_backup) {
            if (std::optional<Failure> failure = keepBackup(output, answer.original, &written->backup))
                return failure;
        }
        if (std::optional<Failure> failure = writeUpgraded(output, answer.upgraded))
            return failure;
        written->output = output;
        return {};
    }

    std::vector<std::string> m_files;
    std::string m_output;
    std::string m_user;
    bool m_inPlace = false;
    bool m_dryRun = false;
    bool m_backup = false;
    bool m_noSampleData = false;
    int m_jobs = SysUtils::cpuCoresNumber();
};

} // namespace

std::unique_ptr<Command> createUpgradeCommand()
{
    return std::make_unique<UpgradeCommand>();
}

} // namespace orv::cli
