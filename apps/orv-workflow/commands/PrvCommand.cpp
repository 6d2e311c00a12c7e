#include "../ColumnChoice.h"
#include "../CommonArguments.h"
#include "../Losses.h"
#include "../Output.h"
#include "Command.h"

#include <orv/propertyeditor/engine/PreviewPreset.h>

namespace orv::cli {

namespace {

class PrvCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflow(arguments, &m_file);
        arguments.option("--spectra", &m_spectra, "Spectra that the file names (default: none)",
                         {.kind = ValueKind::File});
        arguments.option("--database", &m_database, "Sequence database that the file names (default: none)",
                         {.kind = ValueKind::File});
        arguments.option("--output-folder", &m_folder, "Folder for the engine's results (default: none)",
                         {.kind = ValueKind::Folder});
        m_columns.declare(arguments);
        arguments.option("-o,--output", &m_output, "File to write (default: standard output)",
                         {.kind = ValueKind::File});
    }

    int run(const GlobalOptions &options) override
    {
        const auto workflow = loadResolvedWorkflow(m_file);
        if (const auto *failure = std::get_if<Failure>(&workflow))
            return fail(m_file, *failure, options);
        const auto &loaded = std::get<LoadedWorkflow>(workflow);
        printLosses(m_file, loaded.lost);
        const auto cells = m_columns.cells(loaded, {BaseItemType::Preview, BaseItemType::TrenqPreview});
        if (const auto *failure = std::get_if<Failure>(&cells))
            return fail(m_file, *failure, options);
        const auto &found = std::get<QList<ChosenCell>>(cells);
        if (found.size() > 1) {
            printRemark(m_file,
                        QStringLiteral("The workflow has %1 previews; this is the one of the column \"%2\". "
                                       "Choose another with --tab and --column.")
                            .arg(found.size())
                            .arg(found.first().column));
        }
        const QByteArray text = textOf(*found.first().item).toUtf8();
        if (m_output.isEmpty())
            return printBytes(text);
        const std::optional<Failure> failure = writeOutput(m_output, text);
        return failure ? fail(m_output, *failure, options) : Done;
    }

private:
    static int fail(const QString &file, const Failure &failure, const GlobalOptions &options)
    {
        printFailure(file, failure);
        const int printed =
            options.json ? printJson(QJsonObject{{QStringLiteral("error"), toJson(failure)}}) : Done;
        return std::max<int>(failure.exitCode, printed);
    }

    [[nodiscard]] QString textOf(const PropertyEditor::KeyValueItem &item) const
    {
        return PreviewPreset::createPresetContentFromWorkflow(
            m_spectra, m_database, m_folder,
            PreviewPreset::MirelProperties::fromPropertiesMap(item.propertiesMap()));
    }

    QString m_file;
    QString m_spectra;
    QString m_database;
    QString m_folder;
    QString m_output;
    ColumnChoice m_columns;
};

} // namespace

std::unique_ptr<Command> createPrvCommand()
{
    return std::make_unique<PrvCommand>();
}

} // namespace orv::cli
