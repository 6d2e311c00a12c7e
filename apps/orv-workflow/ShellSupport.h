#pragma once

#include <QString>
#include <QStringList>

namespace CLI {
class App;
}

namespace orv::cli {

/// What generateShellSupport can write: "bash", "zsh", "fish" and "man".
[[nodiscard]] QStringList shellSupportKinds();

/// The completion script of a shell, or the man page, made from the declared subcommands and options, so that
/// they never differ from the program. Empty for an unknown kind.
[[nodiscard]] QString generateShellSupport(const QString &kind, const CLI::App &app);

} // namespace orv::cli
