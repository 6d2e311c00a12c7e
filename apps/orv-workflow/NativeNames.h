#pragma once

#include "Outcome.h"

#include <QString>

/// File names as the system gives them are bytes, and not all are UTF-8. What isn't is kept in texts by lone
/// surrogates, which no text of a name holds, so that such a file is told and never mistaken for another.
namespace orv::cli {

[[nodiscard]] QString nameFromBytes(const char *bytes);

/// Whether bytes of \a name aren't UTF-8, so that the file can't be opened.
[[nodiscard]] bool hasForeignBytes(const QString &name);

/// \a name with such bytes as "\xfc".
[[nodiscard]] QString withEscapedBytes(const QString &name);

/// Refuses a name that can't be opened.
[[nodiscard]] Outcome<void> checkName(const QString &name, ExitCode exitCode);

} // namespace orv::cli
