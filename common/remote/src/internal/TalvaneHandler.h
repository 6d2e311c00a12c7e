#pragma once

#include "ServerHandler.h"

namespace orv {

/// Files and managed resources of the Talvane server.
class TalvaneHandler final : public ServerHandler
{
public:
    using ServerHandler::ServerHandler;

protected:
    [[nodiscard]] Result<HttpRequest> metadataRequest() const override;
    [[nodiscard]] Result<HttpRequest> contentRequest() const override;
    [[nodiscard]] Result<QJsonObject> metadataOf(const QJsonObject &answer) const override;

private:
    /// \a what is the last part of the path of the question.
    [[nodiscard]] HttpRequest request(const QString &what) const;
};

} // namespace orv
