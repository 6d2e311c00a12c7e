#include "../CommonArguments.h"
#include "../Inputs.h"
#include "../Output.h"
#include "Command.h"

#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

namespace orv::cli {

namespace {

class FastaCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflow(arguments, &m_file);
        arguments.option("-o,--output", &m_output, "Where to write (default: standard output)",
                         {.kind = ValueKind::File});
    }

    int run(const GlobalOptions &options) override
    {
        const std::optional<Failure> failure = write();
        if (!failure)
            return Done;
        printFailure(failure->exitCode == BadOutput ? m_output : m_file, *failure);
        const int printed =
            options.json ? printJson(QJsonObject{{QStringLiteral("error"), orv::cli::toJson(*failure)}})
                         : Done;
        return std::max<int>(failure->exitCode, printed);
    }

private:
    [[nodiscard]] std::optional<Failure> write() const
    {
        const DocumentOrFailure document = readDocument(m_file);
        if (const auto *failure = std::get_if<Failure>(&document))
            return *failure;
        const PropertiesGetter getter{PropertyEditorContent(std::get<QJsonObject>(document))};
        const QByteArray text = getter.fastaContent();
        if (text.isEmpty())
            return Failure{Negative, 0, reason(getter.warnings())};
        return writeOutput(m_output, text);
    }

    static QString reason(const QStringList &warnings)
    {
        return warnings.isEmpty()
                   ? QStringLiteral(
                         "The workflow has no FASTA text: it holds no protein with a sequence, or one "
                         "that stands for combinations of chains.")
                   : warnings.join(QLatin1Char(' '));
    }

    QString m_file;
    QString m_output = kStandardInput;
};

} // namespace

std::unique_ptr<Command> createFastaCommand()
{
    return std::make_unique<FastaCommand>();
}

} // namespace orv::cli
