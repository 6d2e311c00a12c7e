#include "../Inputs.h"
#include "../Output.h"
#include "Command.h"

#include <orv/propertyeditor/workflow/NewWorkflow.h>

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
    void declare(Arguments &arguments) override
    {
        arguments.option("--name", &m_name, "The name of the workflow");
        arguments.options("--cell", &m_types, "The type of a cell; the option may be repeated",
                          {.kind = ValueKind::CellType});
        arguments.option("-o,--output", &m_output, "Where to write; - for standard output",
                         {.isRequired = true, .kind = ValueKind::File, .use = FileUse::Written});
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<void> made = make();
        const std::optional<Failure> &failure = made.failureIfAny();
        if (failure)
            printFailure(failure->exitCode == BadOutput ? m_output : QStringLiteral("--cell"), *failure);
        const int exitCode = failure ? failure->exitCode : Done;
        const bool workflowIsPrinted = !failure && m_output == kStandardInput;
        const int printed = options.json && !workflowIsPrinted ? printJson(report(failure)) : Done;
        return std::max(exitCode, printed);
    }

private:
    [[nodiscard]] Outcome<void> make() const
    {
        QList<BaseItemType> types;
        const QStringList names = typeNames();
        for (const QString &name : m_types) {
            const qsizetype index = names.indexOf(name);
            if (index < 0) {
                return Failure{WrongUsage, 0,
                               QStringLiteral("There is no cell type \"%1\". There is: %2.")
                                   .arg(name, names.join(QLatin1String(", ")))};
            }
            types.append(NewWorkflow::cellTypes().at(index));
        }
        return writeOutput(m_output, NewWorkflow::make(m_name, types).toJson());
    }

    [[nodiscard]] QJsonObject report(const std::optional<Failure> &failure) const
    {
        return {{QStringLiteral("output"), failure ? QJsonValue() : QJsonValue(m_output)},
                {QStringLiteral("error"), errorJson(failure)}};
    }

    QString m_name;
    QStringList m_types;
    QString m_output;
};

} // namespace

std::unique_ptr<Command> createNewCommand()
{
    return std::make_unique<NewCommand>();
}

} // namespace orv::cli
