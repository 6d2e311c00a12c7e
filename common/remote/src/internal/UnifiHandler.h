#pragma once

#include "ServerHandler.h"

namespace orv {

/// Items of the UNIFI server. Their metadata have the form of UnifiResourceMetadata.
class UnifiHandler final : public ServerHandler
{
public:
    using ServerHandler::ServerHandler;

protected:
    [[nodiscard]] Result<HttpRequest> metadataRequest() const override;
    [[nodiscard]] Result<HttpRequest> contentRequest() const override;
    [[nodiscard]] Result<QJsonObject> metadataOf(const QJsonObject &answer) const override;
};

} // namespace orv
