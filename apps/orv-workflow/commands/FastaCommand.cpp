#include "../CommonArguments.h"
#include "../Inputs.h"
#include "../Output.h"
#include "../ReferredFiles.h"
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
                         {.kind = ValueKind::File, .use = FileUse::Written});
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<void> written = write();
        if (!written.hasFailed())
            return Done;
        const Failure &failure = written.failure();
        return printFailedCall(failure.exitCode == BadOutput ? m_output : m_file, failure, options);
    }

private:
    [[nodiscard]] Outcome<void> write() const
    {
        const Outcome<QJsonObject> document = readDocument(m_file);
        if (document.hasFailed())
            return document.failure();
        if (Outcome<void> allowed = refuseReferred(*document, m_file, {m_output}); allowed.hasFailed())
            return allowed;
        const PropertiesGetter getter{PropertyEditorContent(*document)};
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
