#pragma once

#include "HttpRequest.h"

#include <orv/resources/ResourceHandler.h>

#include <optional>

namespace orv {

class DownloadCache;

/// What lies on a server that is asked over HTTP. The server is asked once for the metadata; the content goes
/// to the cache, where a later handler finds it as long as the metadata tell the same version of it.
class ServerHandler : public ResourceHandler
{
public:
    using ResourceHandler::ResourceHandler;

    [[nodiscard]] bool isAvailableLocally() const final;
    [[nodiscard]] Result<bool> exists() final;
    [[nodiscard]] Result<QString> grab() final;
    [[nodiscard]] Result<QJsonObject> metadata() final;

protected:
    [[nodiscard]] virtual Result<HttpRequest> metadataRequest() const = 0;
    [[nodiscard]] virtual Result<HttpRequest> contentRequest() const = 0;
    /// What metadata() gives for the server's answer. Fails for an answer that lacks something.
    [[nodiscard]] virtual Result<QJsonObject> metadataOf(const QJsonObject &answer) const = 0;

private:
    /// Nothing when the server has no such resource.
    [[nodiscard]] Result<std::optional<QJsonObject>> findAnswer();
    [[nodiscard]] Result<QJsonObject> answer();
    [[nodiscard]] Error download(HttpRequest request, qint64 size, DownloadCache *cache, const QString &path);

    std::optional<QJsonObject> m_answer;
    QString m_path;
};

} // namespace orv
