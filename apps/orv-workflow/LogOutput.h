#pragma once

#include <QString>

namespace orv::cli {

/// Sends the library's log lines of the wanted levels to standard error or to a file: warnings and above,
/// with \a verbosity 1 infos, with 2 debug lines. False when \a fileName is given and can't be opened. Call
/// once, before the library is used.
[[nodiscard]] bool installLogOutput(int verbosity, const QString &fileName);

} // namespace orv::cli
