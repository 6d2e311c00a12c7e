#pragma once

#include "HttpClient.h"
#include "HttpTransfer.h"

namespace orv {

/// The one request of a task: asks, and hands the good answer's bytes or the failure on.
class ServerTask
{
public:
    using Done = std::function<void(Result<QByteArray> body)>;

    /// Fails, and calls nothing, when the settings can't be used.
    [[nodiscard]] Error start(const HttpRequest &request, const Done &done);
    void abort() { m_transfer.reset(); }

private:
    std::unique_ptr<HttpTransfer> m_transfer;
};

} // namespace orv
