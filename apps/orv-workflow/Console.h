#pragma once

#include <QByteArray>
#include <QString>

namespace orv::cli {

/// Writes to standard output; false when that fails (a full disk). A reader that went away is none.
[[nodiscard]] bool writeStandardOutput(const QByteArray &bytes);

/// Whether a person reads: standard output or standard error is a terminal, and no dumb one.
[[nodiscard]] bool standardOutputIsTerminal();
[[nodiscard]] bool standardErrorIsTerminal();

/// \a text from a document or a path as a line for people may hold it: a control character could break the
/// line or steer the terminal, so each becomes a blank; bytes of a name that are no text are told as "\xfc".
[[nodiscard]] QString withoutControls(QString text);

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
