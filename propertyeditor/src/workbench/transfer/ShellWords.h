#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// Command lines as POSIX shells read them.
namespace orv::ShellWords {

/// One word, in quotes where the shell would see more in it. Nothing for a text with a zero character, which
/// no program can be given.
[[nodiscard]] std::optional<QString> quoted(const QString &word);

/// The words of the first command in \a line: to its end, or that of the line. Variables and patterns stay as
/// they are written. Nothing where a quote isn't closed.
[[nodiscard]] std::optional<QStringList> split(const QString &line);

} // namespace orv::ShellWords
