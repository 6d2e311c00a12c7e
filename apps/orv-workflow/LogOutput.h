#pragma once

#include <QByteArray>
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

/// Whether \a line begins as the lines of a log do.
[[nodiscard]] bool isLogLine(const QByteArray &line);

/// Tells how many lines were left out. Call once, at the end; false if a line couldn't be written to the file
/// that was named.
[[nodiscard]] bool finishLog();

/// Sends the library's log lines of the wanted levels to standard error or to a file: warnings and above,
/// with \a verbosity 1 infos and the copies of what checks find, with 2 debug lines. Without it what is said
/// again of a document is left out, and of lines of one kind all but the first ones. False when \a fileName
/// is given and can't be opened. Call once, before the library is used.
[[nodiscard]] bool installLogOutput(int verbosity, const QString &fileName);

} // namespace orv::cli
