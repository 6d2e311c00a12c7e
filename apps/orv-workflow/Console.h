#pragma once

#include <QByteArray>
#include <QString>

namespace orv::cli {

/// Writes to standard output; false when that fails (a full disk, a closed pipe).
[[nodiscard]] bool writeStandardOutput(const QByteArray &bytes);

/// Whether a person reads: standard output or standard error is a terminal.
[[nodiscard]] bool standardOutputIsTerminal();
[[nodiscard]] bool standardErrorIsTerminal();

enum class Style
{
    Heading,
    Good,
    Caution,
    Bad,
    Faint,
};

/// \a text in the style's colour when standard output is a terminal and NO_COLOR isn't set.
[[nodiscard]] QString styled(const QString &text, Style style);

} // namespace orv::cli
