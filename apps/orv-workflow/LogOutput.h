#pragma once

#include <QString>

namespace orv::cli {

/// While it lives, the library's lines from this thread are told as lines about \a file: which document a
/// thread of a batch works on is known here alone.
class LogAbout
{
public:
    explicit LogAbout(const QString &file);
    ~LogAbout();
    Q_DISABLE_COPY_MOVE(LogAbout)
};

/// Sends the library's log lines of the wanted levels to standard error or to a file: warnings and above,
/// with \a verbosity 1 infos and the copies of what checks find, with 2 debug lines. False when \a fileName
/// is given and can't be opened. Call once, before the library is used.
[[nodiscard]] bool installLogOutput(int verbosity, const QString &fileName);

} // namespace orv::cli
