#include "../ColumnChoice.h"
#include "../CommonArguments.h"
#include "../Losses.h"
#include "../Output.h"
#include "../ReferredFiles.h"
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
                         {.kind = ValueKind::File, .use = FileUse::Written});
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<LoadedWorkflow> workflow = loadResolvedWorkflow(m_file);
        if (workflow.hasFailed())
            return printFailedCall(m_file, workflow.failure(), options);
        if (const Outcome<void> allowed = refuseReferred(workflow->document, m_file, {m_output});
            allowed.hasFailed())
            return printFailedCall(m_file, allowed.failure(), options);
        printLosses(m_file, workflow->lost);
        const Outcome<QList<ChosenCell>> cells =
            m_columns.cells(*workflow, {BaseItemType::Preview, BaseItemType::TrenqPreview});
        if (cells.hasFailed())
            return printFailedCall(m_file, cells.failure(), options);
        if (cells->size() > 1) {
            printRemark(m_file,
                        QStringLiteral("The workflow has %1 previews; this is the one of the column \"%2\". "
                                       "Choose another with --tab and --column.")
                            .arg(cells->size())
                            .arg(cells->first().column));
        }
        const QByteArray text = textOf(*cells->first().item).toUtf8();
        if (m_output.isEmpty())
            return printBytes(text);
        const Outcome<void> written = writeOutput(m_output, text);
        return written.hasFailed() ? printFailedCall(m_output, written.failure(), options) : Done;
    }

private:
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
