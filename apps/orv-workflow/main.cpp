#include "CommandLine.h"
#include "ExitCode.h"
#include "Failure.h"
#include "LogChecks.h"
#include "LogOutput.h"
#include "PathChecks.h"
#include "ShellSupport.h"
#include "commands/Command.h"

#include <orv/propertyeditor/Version.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/remote/RemoteHandlers.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <csignal>
#include <string_view>

using namespace orv;

namespace {

/// What callers may say, and the commands that it means.
struct Program
{
    cli::GlobalOptions options;
    cli::CommandLine line;
    std::vector<std::unique_ptr<cli::Command>> commands;
};

QString versionText()
{
    return QStringLiteral("orv-workflow %1 (workflow format %2)")
        .arg(libraryVersion(), WflwMetaData::currentWorkflowVersion().toString());
}

void declare(Program &program)
{
    program.line = {
        QStringLiteral("orv-workflow"),
        QStringLiteral("Look at, convert, check and upgrade mass-spectrometry workflow documents"),
        versionText()};
    program.options.declare(program.line.arguments);
    for (const cli::CommandRow &row : cli::commandRows()) {
        cli::SubcommandLine subcommand{QString::fromUtf8(row.name), QString::fromUtf8(row.description),
                                       QString::fromUtf8(row.example)};
        cli::Command *command = program.commands.emplace_back(row.create()).get();
        command->declare(subcommand.arguments);
        program.line.subcommands.push_back(std::move(subcommand));
    }
}

int run(const Program &program, size_t subcommand)
{
    const cli::GlobalOptions &options = program.options;
    const QList<cli::Argument> arguments =
        program.line.arguments.list() + program.line.subcommands.at(subcommand).arguments.list();
    if (const auto refused = cli::refusedPath(arguments))
        return cli::printFailedCall(refused->path, refused->failure, options);
    if (const auto refused = cli::refusedLog(options.logFile, arguments))
        return cli::printFailedCall(refused->path, refused->failure, options);
    if (!cli::installLogOutput(options.verbosity, options.logFile)) {
        return cli::printFailedCall(
            options.logFile, {cli::BadOutput, 0, QStringLiteral("The log file can't be opened.")}, options);
    }
    const int exitCode = program.commands.at(subcommand)->run(options);
    if (cli::finishLog())
        return exitCode;
    cli::printFailure(options.logFile, {cli::BadOutput, 0,
                                        QStringLiteral("The log file can't be written; lines are missing.")});
    return std::max<int>(exitCode, cli::BadOutput);
}

/// When the line can't be parsed, too.
bool jsonIsAskedFor(int argc, char *argv[])
{
    constexpr std::array<std::string_view, 5> kOff = {"false", "off", "no", "disable", "0"};
    constexpr std::string_view kWithValue = "--json=";
    return std::any_of(argv + 1, argv + argc, [&](std::string_view argument) {
        const bool isOn = argument.starts_with(kWithValue) &&
                          std::ranges::find(kOff, argument.substr(kWithValue.size())) == kOff.end();
        return argument == "--json" || isOn;
    });
}

/// For packagers: `orv-workflow --generate bash` and so on, and `orv-workflow --generate all FOLDER`. Nothing
/// where something else is asked for.
std::optional<int> generate(const cli::CommandLine &line, int argc, char *argv[])
{
    if (argc < 3 || std::string_view(argv[1]) != "--generate")
        return {};
    const QString kind = QString::fromLocal8Bit(argv[2]);
    if (argc == 3 && cli::shellSupportKinds(line).contains(kind))
        return cli::printText(cli::generateShellSupport(kind, line));
    if (argc != 4 || kind != QLatin1String("all"))
        return {};
    const QString folder = QString::fromLocal8Bit(argv[3]);
    const cli::Outcome<void> written = cli::writeShellSupport(folder, line);
    return written.hasFailed() ? cli::printFailedCall(folder, written.failure(), {}) : cli::Done;
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
    declare(program);
    if (const std::optional<int> generated = generate(program.line, argc, argv))
        return *generated;
    const cli::ParsedLine parsed = cli::parse(program.line, argc, argv);
    if (parsed.subcommand)
        return run(program, *parsed.subcommand);
    if (!parsed.problem.isEmpty() && jsonIsAskedFor(argc, argv)) {
        const cli::Failure failure{parsed.exitCode, 0, parsed.problem};
        return std::max<int>(failure.exitCode,
                             cli::printJson(QJsonObject{{QStringLiteral("error"), cli::toJson(failure)}}));
    }
    return parsed.exitCode;
}
