#include "TalvaneHandler.h"

namespace orv {

HttpRequest TalvaneHandler::request(const QString &what) const
{
    const ResourceReference::Parts &parts = reference()->parts();
    const ServerSettings server = ServerSettings::talvane();
    if (reference()->isScheme(ResourceReference::Scheme::ManagedResource))
        return {.server = server,
                .path = QLatin1String("api/1/resources/") + what,
                .query = {{QStringLiteral("id"), parts.id}}};
    return {.server = server,
            .path = QLatin1String("api/1/files/") + what,
            .query = {{QStringLiteral("path"), parts.folder}, {QStringLiteral("name"), parts.name}}};
}

Result<HttpRequest> TalvaneHandler::metadataRequest() const
{
    return request(QStringLiteral("metadata"));
}

Result<HttpRequest> TalvaneHandler::contentRequest() const
{
    return request(QStringLiteral("content"));
}

Result<QJsonObject> TalvaneHandler::metadataOf(const QJsonObject &answer) const
{
    return answer;
}

} // namespace orv
