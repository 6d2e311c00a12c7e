#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/remote/ServerSettings.h>

#include <QElapsedTimer>
#include <QMutex>
#include <QSet>
#include <QString>

namespace orv {

/// The servers that have kept silent for their whole time limit in one run over several documents, so that
/// each limit is waited for once. Any thread. \code
///     SilentServers silent; // one for the run
///     const Error error = silent.ask(settings, [&] { return askForFolder(id, &folder); });
/// \endcode
class ORV_WORKFLOW_EXPORT SilentServers
{
public:
    SilentServers() = default;
    Q_DISABLE_COPY_MOVE(SilentServers)

    /// What \a ask, an `Error()`, says; CannotOpenFile at once for a server that was silent before. One that
    /// fails after its time limit is silent from then on.
    template<typename Ask>
    [[nodiscard]] Error ask(const ServerSettings &server, Ask ask)
    {
        if (Error refusal = refusalOf(server))
            return refusal;
        QElapsedTimer timer;
        timer.start();
        Error error = ask();
        if (error && timer.hasExpired(server.timeoutMs()))
            remember(server);
        return error;
    }

private:
    [[nodiscard]] Error refusalOf(const ServerSettings &server) const;
    void remember(const ServerSettings &server);

    mutable QMutex m_mutex;
    QSet<QString> m_addresses;
};

} // namespace orv
