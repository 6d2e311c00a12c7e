#include "UnifiHandler.h"

#include "HttpErrors.h"
#include "UnifiRequests.h"

#include <orv/remote/UnifiResourceMetadata.h>
#include <orv/remote/UnifiSettings.h>

namespace orv {

Result<HttpRequest> UnifiHandler::metadataRequest() const
{
    return UnifiRequests::item(reference()->parts().id);
}

Result<HttpRequest> UnifiHandler::contentRequest() const
{
    return UnifiRequests::itemContent(reference()->parts().id);
}

Result<QJsonObject> UnifiHandler::metadataOf(const QJsonObject &answer) const
{
    const QJsonObject json{{QStringLiteral("server"), reference()->parts().server},
                           {QStringLiteral("item"), answer}};
    Result<UnifiResourceMetadata> metadata = UnifiResourceMetadata::fromJson(json);
    if (metadata.hasError())
        return HttpErrors::unreadable(UnifiSettings::load().server(), metadata.ecatch());
    return json;
}

} // namespace orv
