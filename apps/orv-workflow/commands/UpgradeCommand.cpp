#include "../Batch.h"
#include "../CommonArguments.h"
#include "../Console.h"
#include "../OrderedReports.h"
#include "../Progress.h"
#include "../UpgradeOutputs.h"
#include "../UpgradeReports.h"
#include "Command.h"

#include <orv/core/SysUtils.h>

#include <QJsonDocument>

#include <algorithm>
#include <atomic>

namespace orv::cli {

namespace {

void raiseExitCode(std::atomic<int> *exitCode, int code)
{
    int seen = exitCode->load();
    while (seen < code && !exitCode->compare_exchange_weak(seen, code)) {
    }
}

class UpgradeCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflows(arguments, &m_files);
        arguments.option("-o,--output", &m_output,
                         "Where to write: a file, - for standard output, or a folder for several",
                         {.kind = ValueKind::File});
        arguments.flag("--in-place", &m_inPlace, "Write each upgraded workflow over itself");
        arguments.flag("--dry-run", &m_dryRun, "Tell what would be done, and write nothing");
        arguments.flag("--backup", &m_backup, "With --in-place, keep each replaced workflow as FILE.bak");
        arguments.flag("--no-sample-data", &m_noSampleData,
                       "Leave out the steps that open the samples' files");
        arguments.option("--user", &m_user, "The name to stamp with (default: the current user)");
        declareJobs(arguments, &m_jobs);
    }

    int run(const GlobalOptions &options) override
    {
        if (!isUsedWell())
            return WrongUsage;
        const QList<BatchInput> inputs = batchInputs(m_files);
        const UpgradeOutputs outputs = upgradeOutputs(m_files, inputs, target());
        if (outputs.failure) {
            printFailure(outputs.failedFile, *outputs.failure);
            return outputs.failure->exitCode;
        }
        return runAll(inputs, outputs.outputs, options);
    }

private:
    [[nodiscard]] bool isUsedWell() const
    {
        const int targets = int(!m_output.isEmpty()) + int(m_inPlace) + int(m_dryRun);
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
        target.output = m_output;
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
                    raiseExitCode(&exitCode, report.failure->exitCode);
                reports.add(i, std::move(report));
            });
        }
        if (!reports.finish())
            raiseExitCode(&exitCode, BadOutput);
        return exitCode;
    }

    [[nodiscard]] FileReport upgradeOne(const BatchInput &input, const QString &output, bool isJson) const
    {
        UpgradeAnswer answer = upgradeWorkflow(input, {.accessSampleData = !m_noSampleData, .user = m_user});
        UpgradeWritten written;
        QString failedFile = input.file;
        if (!answer.failure && !output.isEmpty()) {
            answer.failure = write(answer, output, &written).failureIfAny();
            if (answer.failure)
                failedFile = output;
        }
        const QByteArray text = isJson ? QJsonDocument(upgradeReportJson(answer, written)).toJson()
                                       : upgradeReportText(answer, written).toLocal8Bit();
        return {text, failedFile, answer.lost, answer.failure};
    }

    [[nodiscard]] Outcome<void> write(const UpgradeAnswer &answer, const QString &output,
                                      UpgradeWritten *written) const
    {
        if (m_inPlace && !answer.isChanged)
            return {};
        if (m_backup) {
            const Outcome<QString> backup = keepBackup(output, answer.original);
            if (backup.hasFailed())
                return backup.failure();
            written->backup = *backup;
        }
        if (const Outcome<void> done = writeUpgraded(output, answer.upgraded); done.hasFailed())
            return done.failure();
        written->output = output;
        return {};
    }

    QStringList m_files;
    QString m_output;
    QString m_user;
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
