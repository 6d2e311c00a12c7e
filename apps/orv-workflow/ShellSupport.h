#pragma once

#include "CommandLine.h"
#include "Outcome.h"

#include <QString>
#include <QStringList>

namespace orv::cli {

/// What generateShellSupport can write: "bash", "zsh", "fish", "man" and, for each subcommand, "man-NAME".
[[nodiscard]] QStringList shellSupportKinds(const CommandLine &line);

/// The completion script of a shell, or a manual page, made from the declared subcommands and options, so
/// that they never differ from the program. Empty for an unknown kind.
[[nodiscard]] QString generateShellSupport(const QString &kind, const CommandLine &line);

/// Writes all of them below \a folder, each where it is installed below the folder of shared data.
[[nodiscard]] Outcome<void> writeShellSupport(const QString &folder, const CommandLine &line);

} // namespace orv::cli
