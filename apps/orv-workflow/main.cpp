#include "ExitCode.h"
#include "Failure.h"
#include "LogOutput.h"
#include "commands/Command.h"

#include <orv/propertyeditor/Version.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QCoreApplication>

#include <CLI/CLI.hpp>

#include <csignal>

using namespace orv;

namespace {

std::string versionText()
{
    return QStringLiteral("orv-workflow %1 (workflow format %2)")
        .arg(libraryVersion(), WflwMetaData::currentWorkflowVersion().toString())
        .toStdString();
}

void declareGlobalOptions(CLI::App &app, cli::GlobalOptions &options)
{
    app.add_flag("--json", options.json, "Print one JSON document");
    app.add_flag("--progress", options.progress, "Show progress though standard error is no terminal");
    app.add_flag("-v", options.verbosity, "Show info lines of the library; twice: debug lines too");
    app.add_option("--log", options.logFile, "Append the library's log lines to this file");
    app.set_version_flag("--version", versionText());
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef SIGPIPE
    // A reader that goes away is an output that can't be written, not a reason to die unheard.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    const QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("orv"));
    QCoreApplication::setApplicationName(QStringLiteral("orv-workflow"));

    CLI::App app("Look at, convert, check and upgrade mass-spectrometry workflow documents.", "orv-workflow");
    cli::GlobalOptions options;
    declareGlobalOptions(app, options);
    app.require_subcommand(1);
    app.fallthrough();

    int exitCode = cli::Done;
    std::vector<std::unique_ptr<cli::Command>> commands;
    for (const cli::CommandRow &row : cli::commandRows()) {
        CLI::App *subcommand = app.add_subcommand(row.name, row.description);
        subcommand->footer(std::string("\nExample:\n  ") + row.example);
        cli::Command *command = commands.emplace_back(row.create()).get();
        command->declare(*subcommand);
        subcommand->final_callback([&options, &exitCode, command] {
            if (cli::installLogOutput(options.verbosity, cli::decoded(options.logFile))) {
                exitCode = command->run(options);
                return;
            }
            exitCode = cli::BadOutput;
            cli::printFailure(cli::decoded(options.logFile),
                              {cli::BadOutput, 0, QStringLiteral("The log file can't be opened.")});
        });
    }

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? cli::Done : cli::WrongUsage;
    }
    return exitCode;
}
