#pragma once

#include "CommandLine.h"

#include <QString>

/// Completion scripts of the shells, made from the declared subcommands and options. They offer subcommands,
/// options, and values by their kind: workflows, files, folders, and the names that an argument may have.
namespace orv::cli {

[[nodiscard]] QString bashCompletion(const CommandLine &line);
[[nodiscard]] QString zshCompletion(const CommandLine &line);
[[nodiscard]] QString fishCompletion(const CommandLine &line);

} // namespace orv::cli
