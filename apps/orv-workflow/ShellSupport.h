#pragma once

#include "CommandLine.h"

#include <QString>
#include <QStringList>

namespace orv::cli {

/// What generateShellSupport can write: "bash", "zsh", "fish" and "man".
[[nodiscard]] QStringList shellSupportKinds();

/// The completion script of a shell, or the man page, made from the declared subcommands and options, so that
/// they never differ from the program. Empty for an unknown kind.
[[nodiscard]] QString generateShellSupport(const QString &kind, const CommandLine &line);

} // namespace orv::cli
