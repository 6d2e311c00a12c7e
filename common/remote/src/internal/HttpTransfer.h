#pragma once

#include "HttpRequest.h"

#include <orv/core/Result.h>

#include <QElapsedTimer>
#include <QNetworkReply>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace orv {

/// Asks a server one thing. Everything that is sent to a server goes through here: TLS with its usual checks,
/// redirections within the server's own origin alone, no cookies, and bounds of size and time.
///
/// Belongs to one thread, which handles its events while the transfer runs.
class HttpTransfer : public QObject
{
public:
    /// An answer of any status, or the failure to get one.
    using Done = std::function<void(Result<HttpAnswer> answer)>;

    /// \a done is called once, from the event loop, unless the transfer is destroyed before. It may destroy
    /// the transfer.
    HttpTransfer(HttpRequest request, Done done);
    ~HttpTransfer() override;
    Q_DISABLE_COPY_MOVE(HttpTransfer)

private:
    void watch();
    void read();
    void takeEnd();
    void checkTime();
    void end(const Result<HttpAnswer> &answer);

    const HttpRequest m_request;
    const Done m_done;
    std::unique_ptr<QNetworkReply> m_reply;
    HttpAnswer m_answer;
    qint64 m_received = 0;
    bool m_isEnding = false;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceNews;
    QTimer m_clock;
};

} // namespace orv
