#include "ExitCode.h"
#include "Failure.h"
#include "LogOutput.h"
#include "ShellSupport.h"
#include "commands/Command.h"

#include <orv/propertyeditor/Version.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/remote/RemoteHandlers.h>

#include <QCoreApplication>

#include <CLI/CLI.hpp>

#include <csignal>
#include <string_view>

using namespace orv;

namespace {

/// The parsed command line: the options, and the commands that wait to be chosen.
struct Program
{
    CLI::App app{"Look at, convert, check and upgrade mass-spectrometry workflow documents", "orv-workflow"};
    cli::GlobalOptions options;
    std::vector<std::unique_ptr<cli::Command>> commands;
    int exitCode = cli::Done;
};

std::string versionText()
{
    return QStringLiteral("orv-workflow %1 (workflow format %2)")
        .arg(libraryVersion(), WflwMetaData::currentWorkflowVersion().toString())
        .toStdString();
}

void declareGlobalOptions(Program &program)
{
    cli::GlobalOptions &options = program.options;
    program.app.add_flag("--json", options.json, "Print one JSON document");
    program.app.add_flag("--progress", options.progress,
                         "Show progress though standard error is no terminal");
    program.app.add_flag("-v", options.verbosity, "Show info lines of the library; twice: debug lines too");
    program.app.add_option("--log", options.logFile, "Append the library's log lines to this file");
    program.app.set_version_flag("--version", versionText());
    program.app.require_subcommand(1);
    program.app.fallthrough();
}

void declareCommand(Program &program, const cli::CommandRow &row)
{
    CLI::App *subcommand = program.app.add_subcommand(row.name, row.description);
    subcommand->footer(std::string("\nExample:\n  ") + row.example);
    cli::Command *command = program.commands.emplace_back(row.create()).get();
    command->declare(*subcommand);
    subcommand->final_callback([&program, command] {
        const QString logFile = cli::decoded(program.options.logFile);
        if (cli::installLogOutput(program.options.verbosity, logFile)) {
            program.exitCode = command->run(program.options);
            return;
        }
        program.exitCode = cli::BadOutput;
        cli::printFailure(logFile, {cli::BadOutput, 0, QStringLiteral("The log file can't be opened.")});
    });
}

/// For packagers: `orv-workflow --generate bash` and so on.
bool generationIsAskedFor(int argc, char *argv[])
{
    return argc == 3 && std::string_view(argv[1]) == "--generate" &&
           cli::shellSupportKinds().contains(cli::decoded(argv[2]));
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
    QCoreApplication::setApplicationVersion(libraryVersion());

    RemoteHandlers::install();

    Program program;
    declareGlobalOptions(program);
    for (const cli::CommandRow &row : cli::commandRows())
        declareCommand(program, row);
    if (generationIsAskedFor(argc, argv))
        return cli::printText(cli::generateShellSupport(cli::decoded(argv[2]), program.app));
    try {
        // The parser takes them from the back.
        std::vector<std::string> arguments;
        for (int i = argc - 1; i > 0; --i)
            arguments.push_back(cli::shielded(argv[i]));
        program.app.parse(std::move(arguments));
    } catch (const CLI::ParseError &error) {
        return program.app.exit(error) == 0 ? cli::Done : cli::WrongUsage;
    }
    return program.exitCode;
}
