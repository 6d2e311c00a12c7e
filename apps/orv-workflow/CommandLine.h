#pragma once

#include "Arguments.h"
#include "ExitCode.h"

#include <QString>

#include <optional>
#include <vector>

namespace orv::cli {

/// A subcommand as it is declared.
struct SubcommandLine
{
    QString name;
    QString description;
    QString example;
    Arguments arguments = {};
};

/// All that a caller may say to the program: the parser, the help, the completions and the manual are made
/// from it.
struct CommandLine
{
    QString program;
    QString description;
    QString version;
    Arguments arguments = {}; ///< of every subcommand; they may stand before and after its name
    std::vector<SubcommandLine> subcommands = {};
};

/// The subcommand that was asked for. None where there is nothing to run: the help or the version was asked
/// for, or the usage was wrong, and that is printed.
struct ParsedLine
{
    std::optional<size_t> subcommand;
    ExitCode exitCode = Done;
    QString problem = {}; ///< why the usage was wrong
};

/// Parses what the system gives to main(), and sets the declared variables.
[[nodiscard]] ParsedLine parse(const CommandLine &line, int argc, const char *const argv[]);

} // namespace orv::cli
