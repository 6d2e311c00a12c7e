#pragma once

#include "CommandLine.h"

#include <QString>

/// Manual pages, made from the declared subcommands and options.
namespace orv::cli {

/// The page of the program, with its subcommands in a line each.
[[nodiscard]] QString manPage(const CommandLine &line);

/// The page of one subcommand.
[[nodiscard]] QString manPage(const CommandLine &line, const SubcommandLine &subcommand);

} // namespace orv::cli
