#include "../CheckReports.h"
#include "../CommonArguments.h"
#include "../Console.h"
#include "../OrderedReports.h"
#include "Command.h"

#include <orv/core/NearestNames.h>
#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/Validators.h>

#include <QDir>
#include <QJsonDocument>

namespace orv::cli {

namespace {

constexpr QLatin1String kText("text");
constexpr QLatin1String kJson("json");
constexpr QLatin1String kSarif("sarif");
constexpr QLatin1String kJunit("junit");

/// An option that can't be used as it was given.
struct RefusedOption
{
    QString argument;
    QString reason;
};

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
                          {.kind = ValueKind::Validator});
        arguments.option("--format", &m_format, "How to print: text, json, sarif or junit (default: text)",
                         {.choices = {kText, kJson, kSarif, kJunit}});
        declareJobs(arguments, &m_jobs);
    }

    int run(const GlobalOptions &options) override
    {
        CheckOptions check;
        if (const auto refused = refusedOption(options, &check))
            return printWrongUsage(refused->argument, refused->reason, options);
        const QList<BatchInput> inputs = batchInputs(m_files);
        const bool showsProgress = options.progress || standardErrorIsTerminal();
        if (m_format == kSarif || m_format == kJunit)
            return reportTogether(inputs, check, showsProgress);
        using Form = OrderedReports::Form;
        return reportAll(inputs, m_jobs, showsProgress, isJson() ? Form::JsonArray : Form::Text,
                         [&](qsizetype i) { return report(checkWorkflow(inputs.at(i), check)); });
    }

private:
    [[nodiscard]] bool isJson() const { return m_format == kJson; }

    std::optional<RefusedOption> refusedOption(const GlobalOptions &options, CheckOptions *check)
    {
        if (m_format.isEmpty())
            m_format = options.json ? kJson : kText;
        if (options.json && !isJson())
            return RefusedOption{QStringLiteral("--format"),
                                 QStringLiteral("The option contradicts --json.")};
        if (auto refused = refusedBase(check))
            return refused;
        return refusedValidator(check);
    }

    std::optional<RefusedOption> refusedBase(CheckOptions *check) const
    {
        if (m_base.isEmpty())
            return {};
        const QDir folder(m_base);
        if (!folder.exists())
            return RefusedOption{m_base, QStringLiteral("There is no such folder; name one with --base.")};
        const QString path = folder.absolutePath();
        check->baseUrl =
            QUrl::fromLocalFile(path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/'));
        return {};
    }

    std::optional<RefusedOption> refusedValidator(CheckOptions *check) const
    {
        for (const QString &name : m_validators) {
            const auto validator = PropertyEditor::Validators::create(name);
            if (!validator) {
                const QStringList names = PropertyEditor::Validators::names();
                return RefusedOption{
                    name, QStringLiteral("There is no such validator.%1 There are %2.")
                              .arg(NearestNames::question(name, names), names.join(QLatin1String(", ")))};
            }
            check->validators.append(PropertyEditor::Validators::nameOf(*validator));
        }
        check->validators.removeDuplicates();
        return {};
    }

    [[nodiscard]] FileReport report(const CheckAnswer &answer) const
    {
        FileReport report{.text = {}, .file = answer.file, .lost = {}, .failure = answer.failure};
        if (answer.report)
            report.lost = answer.report->lost;
        report.text = isJson() ? QJsonDocument(checkReportJson(answer)).toJson()
                               : checkReportText(answer).toLocal8Bit();
        report.verdict = !answer.report       ? QStringLiteral("not checked")
                         : answer.isRefused() ? QStringLiteral("not valid")
                                              : QStringLiteral("valid");
        report.exitCode = answer.isRefused() ? Negative : Done;
        return report;
    }

    /// In formats that are one document about all files.
    [[nodiscard]] int reportTogether(const QList<BatchInput> &inputs, const CheckOptions &check,
                                     bool showsProgress) const
    {
        CheckAnswers answers(size_t(inputs.size()));
        const auto checkOne = [&](qsizetype i) {
            CheckAnswer &answer = answers[size_t(i)];
            answer = checkWorkflow(inputs.at(i), check);
            return report(answer);
        };
        const int exitCode = reportAll(inputs, m_jobs, showsProgress, OrderedReports::Form::Silent, checkOne);
        const int printed = m_format == kSarif ? printJson(checkReportSarif(answers))
                                               : printBytes(checkReportJunit(answers, validatorsOf(check)));
        return std::max(exitCode, printed);
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
