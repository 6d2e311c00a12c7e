#include "HttpClient.h"

#include "EventWait.h"
#include "HttpErrors.h"
#include "HttpTransfer.h"

#include <orv/core/JsonUtils.h>

#include <QCoreApplication>

namespace orv::HttpClient {

Error check(const HttpRequest &request, const HttpAnswer &answer)
{
    constexpr int ok = 200;
    if (answer.status != ok)
        return HttpErrors::status(request.server, answer);
    if (answer.contentType != request.contentType)
        return HttpErrors::wrongType(request.server, answer, request.contentType);
    return Error::NoError;
}

Result<QJsonObject> json(const HttpRequest &request, const HttpAnswer &answer)
{
    ORV_RETURN_IF_ERROR(check(request, answer));
    Result<QJsonObject> object = JsonUtils::objectFromJson(answer.body);
    if (object.hasError())
        return HttpErrors::unreadable(request.server, object.ecatch());
    return object;
}

Result<HttpAnswer> ask(const HttpRequest &request)
{
    ORV_RETURN_IF_ERROR(request.server.check());
    if (!QCoreApplication::instance())
        return Error(ErrorCode::InvalidContent,
                     QCoreApplication::translate(
                         "Servers", "A server can't be asked in a program without a QCoreApplication."));
    std::optional<Result<HttpAnswer>> answer;
    const HttpTransfer transfer(request, [&answer](const Result<HttpAnswer> &result) { answer = result; });
    handleEventsUntil([&answer] { return answer.has_value(); });
    if (answer->hasError())
        return answer->ecatch();
    return *answer;
}

} // namespace orv::HttpClient
