#include "../ColumnChoice.h"
#include "../Losses.h"
#include "../Output.h"
#include "Command.h"

#include <orv/propertyeditor/engine/PreviewPreset.h>

#include <CLI/CLI.hpp>

namespace orv::cli {

namespace {

class PrvCommand : public Command
{
public:
    void declare(CLI::App &app) override
    {
        app.add_option("FILE", m_file, "Workflow file, portable workflow folder, or - for standard input")
            ->required();
        app.add_option("--spectra", m_spectra, "Spectra that the file names (default: none)");
        app.add_option("--database", m_database, "Sequence database that the file names (default: none)");
        app.add_option("--output-folder", m_folder, "Folder for the engine's results (default: none)");
        m_columns.declare(app);
        app.add_option("-o,--output", m_output, "File to write (default: standard output)");
    }

    int run(const GlobalOptions &options) override
    {
        const QString file = decoded(m_file);
        const auto workflow = loadResolvedWorkflow(file);
        if (const auto *failure = std::get_if<Failure>(&workflow))
            return fail(file, *failure, options);
        const auto &loaded = std::get<LoadedWorkflow>(workflow);
        printLosses(file, loaded.lost);
        const auto cells = m_columns.cells(loaded, {BaseItemType::Preview, BaseItemType::TrenqPreview});
        if (const auto *failure = std::get_if<Failure>(&cells))
            return fail(file, *failure, options);
        const auto &found = std::get<QList<ChosenCell>>(cells);
        if (found.size() > 1) {
            printRemark(file,
                        QStringLiteral("The workflow has %1 previews; this is the one of the column \"%2\". "
                                       "Choose another with --tab and --column.")
                            .arg(found.size())
                            .arg(found.first().column));
        }
        const QByteArray text = textOf(*found.first().item).toUtf8();
        if (m_output.empty())
            return printBytes(text);
        const QString output = decoded(m_output);
        const std::optional<Failure> failure = writeOutput(output, text);
        return failure ? fail(output, *failure, options) : Done;
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
            decoded(m_spectra), decoded(m_database), decoded(m_folder),
            PreviewPreset::MirelProperties::fromPropertiesMap(item.propertiesMap()));
    }

    std::string m_file;
    std::string m_spectra;
    std::string m_database;
    std::string m_folder;
    std::string m_output;
    ColumnChoice m_columns;
};

} // namespace

std::unique_ptr<Command> createPrvCommand()
{
    return std::make_unique<PrvCommand>();
}

} // namespace orv::cli
