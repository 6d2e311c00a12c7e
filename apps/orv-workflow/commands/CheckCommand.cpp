#include "../Batch.h"
#include "../CheckReports.h"
#include "../CommonArguments.h"
#include "../Console.h"
#include "../Losses.h"
#include "../Progress.h"
#include "Command.h"

#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/Validators.h>

#include <QDir>

namespace orv::cli {

namespace {

constexpr QLatin1String kText("text");
constexpr QLatin1String kJson("json");
constexpr QLatin1String kSarif("sarif");
constexpr QLatin1String kJunit("junit");

class CheckCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflows(arguments, &m_files);
        arguments.option("--base", &m_base,
                         "Folder that relative paths count from (default: the workflow's own)",
                         {.kind = ValueKind::Folder});
        arguments.options("--validator", &m_validators, "Check in this respect alone; may be repeated",
                          {.kind = ValueKind::Validator, .takesFollowing = true});
        arguments.option("--format", &m_format, "How to print: text, json, sarif or junit (default: text)",
                         {.choices = {kText, kJson, kSarif, kJunit}});
        declareJobs(arguments, &m_jobs);
    }

    int run(const GlobalOptions &options) override
    {
        CheckOptions check;
        if (!readOptions(options, &check))
            return WrongUsage;
        const QList<BatchInput> inputs = batchInputs(m_files);
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
    [[nodiscard]] bool isJson() const { return m_format == kJson; }

    bool readOptions(const GlobalOptions &options, CheckOptions *check)
    {
        if (m_format.isEmpty())
            m_format = options.json ? kJson : kText;
        if (options.json && !isJson()) {
            printRemark(QStringLiteral("--format"), QStringLiteral("The option contradicts --json."));
            return false;
        }
        return readBase(check) && readValidators(check);
    }

    bool readBase(CheckOptions *check) const
    {
        if (m_base.isEmpty())
            return true;
        const QDir folder(m_base);
        if (!folder.exists()) {
            printRemark(m_base, QStringLiteral("There is no such folder; name one with --base."));
            return false;
        }
        const QString path = folder.absolutePath();
        check->baseUrl =
            QUrl::fromLocalFile(path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/'));
        return true;
    }

    bool readValidators(CheckOptions *check) const
    {
        for (const QString &name : m_validators) {
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
        if (m_format == kSarif)
            return printJson(checkReportSarif(answers));
        if (m_format == kJunit)
            return printBytes(checkReportJunit(answers, validatorsOf(check)));
        return printText(checkReportText(answers));
    }

    QStringList m_files;
    QString m_base;
    QStringList m_validators;
    QString m_format;
    int m_jobs = SysUtils::cpuCoresNumber();
};

} // namespace

std::unique_ptr<Command> createCheckCommand()
{
    return std::make_unique<CheckCommand>();
}

} // namespace orv::cli
