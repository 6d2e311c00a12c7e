#include "../Inputs.h"
#include "../Output.h"
#include "Command.h"

#include <orv/propertyeditor/workflow/NewWorkflow.h>

#include <CLI/CLI.hpp>

namespace orv::cli {

namespace {

QStringList typeNames()
{
    QStringList names;
    for (const BaseItemType type : NewWorkflow::cellTypes())
        names.append(baseItemTypeToString(type));
    return names;
}

class NewCommand : public Command
{
public:
    void declare(CLI::App &app) override
    {
        app.add_option("--name", m_name, "The name of the workflow");
        app.add_option("--cell", m_types, "The type of a cell; the option may be repeated")
            ->allow_extra_args(false);
        app.add_option("-o,--output", m_output, "Where to write; - for standard output")->required();
    }

    int run(const GlobalOptions &options) override
    {
        const std::optional<Failure> failure = make();
        if (failure)
            printFailure(failure->exitCode == BadOutput ? decoded(m_output) : QStringLiteral("--cell"),
                         *failure);
        const int exitCode = failure ? failure->exitCode : Done;
        const bool workflowIsPrinted = !failure && decoded(m_output) == kStandardInput;
        const int printed = options.json && !workflowIsPrinted ? printJson(report(failure)) : Done;
        return std::max(exitCode, printed);
    }

private:
    [[nodiscard]] std::optional<Failure> make() const
    {
        QList<BaseItemType> types;
        const QStringList names = typeNames();
        for (const QString &name : decoded(m_types)) {
            const qsizetype index = names.indexOf(name);
            if (index < 0) {
                return Failure{WrongUsage, 0,
                               QStringLiteral("There is no cell type \"%1\". There is: %2.")
                                   .arg(name, names.join(QLatin1String(", ")))};
            }
            types.append(NewWorkflow::cellTypes().at(index));
        }
        return writeOutput(decoded(m_output), NewWorkflow::make(decoded(m_name), types).toJson());
    }

    [[nodiscard]] QJsonObject report(const std::optional<Failure> &failure) const
    {
        return {{QStringLiteral("output"), failure ? QJsonValue() : QJsonValue(decoded(m_output))},
                {QStringLiteral("error"), failure ? QJsonValue(orv::cli::toJson(*failure)) : QJsonValue()}};
    }

    std::string m_name;
    std::vector<std::string> m_types;
    std::string m_output;
};

} // namespace

std::unique_ptr<Command> createNewCommand()
{
    return std::make_unique<NewCommand>();
}

} // namespace orv::cli
