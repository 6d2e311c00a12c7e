#include "../Batch.h"
#include "../CheckReports.h"
#include "../Console.h"
#include "../Losses.h"
#include "../Progress.h"
#include "Command.h"

#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/Validators.h>

#include <QDir>

#include <CLI/CLI.hpp>

namespace orv::cli {

namespace {

class CheckCommand : public Command
{
public:
    void declare(CLI::App &app) override
    {
        app.add_option("FILE", m_files,
                       "Workflow files, portable workflow folders, folders, or - for standard input")
            ->required();
        app.add_option("--base", m_base,
                       "Folder that relative paths count from (default: the workflow's own)");
        app.add_option("--validator", m_validators, "Check in this respect alone; may be repeated")
            ->take_all()
            ->expected(1);
        app.add_option("--format", m_format, "How to print: text, json, sarif or junit (default: text)")
            ->check(CLI::IsMember({"text", "json", "sarif", "junit"}));
        app.add_option("--jobs", m_jobs, "Threads (default: all cores)")->check(CLI::Range(1, 1024));
    }

    int run(const GlobalOptions &options) override
    {
        CheckOptions check;
        if (!readOptions(options, &check))
            return WrongUsage;
        const QList<BatchInput> inputs = batchInputs(decoded(m_files));
        CheckAnswers answers(size_t(inputs.size()));
        {
            Progress progress(options.progress || standardErrorIsTerminal(), inputs.size());
            runBatch(inputs.size(), m_jobs, progress,
                     [&](qsizetype i) { answers[size_t(i)] = checkWorkflow(inputs.at(i), check); });
        }
        int exitCode = print(answers, check);
        for (const CheckAnswer &answer : answers) {
            if (!isJson())
                printLosses(answer.file, answer.lost);
            if (answer.failure)
                printFailure(answer.file, *answer.failure);
            const bool isRefused = answer.isValid == false;
            exitCode = std::max<int>(exitCode, answer.failure ? answer.failure->exitCode
                                               : isRefused    ? Negative
                                                              : Done);
        }
        return exitCode;
    }

private:
    [[nodiscard]] bool isJson() const { return m_format == "json"; }

    bool readOptions(const GlobalOptions &options, CheckOptions *check)
    {
        if (m_format.empty())
            m_format = options.json ? "json" : "text";
        if (options.json && !isJson()) {
            printRemark(QStringLiteral("--format"), QStringLiteral("The option contradicts --json."));
            return false;
        }
        return readBase(check) && readValidators(check);
    }

    bool readBase(CheckOptions *check) const
    {
        if (m_base.empty())
            return true;
        const QDir folder(decoded(m_base));
        if (!folder.exists()) {
            printRemark(decoded(m_base), QStringLiteral("There is no such folder; name one with --base."));
            return false;
        }
        const QString path = folder.absolutePath();
        check->baseUrl =
            QUrl::fromLocalFile(path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/'));
        return true;
    }

    bool readValidators(CheckOptions *check) const
    {
        for (const QString &name : decoded(m_validators)) {
            const auto validator = PropertyEditor::Validators::create(name);
            if (!validator) {
                printRemark(name, QStringLiteral("There is no such validator. There are %1.")
                                      .arg(PropertyEditor::Validators::names().join(QLatin1String(", "))));
                return false;
            }
            check->validators.append(PropertyEditor::Validators::nameOf(*validator));
        }
        check->validators.removeDuplicates();
        return true;
    }

    [[nodiscard]] int print(const CheckAnswers &answers, const CheckOptions &check) const
    {
        if (isJson())
            return printJson(checkReportJson(answers));
        if (m_format == "sarif")
            return printJson(checkReportSarif(answers));
        if (m_format == "junit")
            return printBytes(checkReportJunit(answers, validatorsOf(check)));
        return printText(checkReportText(answers));
    }

    std::vector<std::string> m_files;
    std::string m_base;
    std::vector<std::string> m_validators;
    std::string m_format;
    int m_jobs = SysUtils::cpuCoresNumber();
};

} // namespace

std::unique_ptr<Command> createCheckCommand()
{
    return std::make_unique<CheckCommand>();
}

} // namespace orv::cli
