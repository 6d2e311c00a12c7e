#include "ServerTask.h"

namespace orv {

Error ServerTask::start(const HttpRequest &request, const Done &done)
{
    ORV_RETURN_IF_ERROR(request.server.check());
    m_transfer = std::make_unique<HttpTransfer>(request, [request, done](Result<HttpAnswer> answer) {
        if (answer.hasError())
            done(answer.ecatch());
        else if (Error error = HttpClient::check(request, *answer))
            done(error.ecatch());
        else
            done(answer->body);
    });
    return Error::NoError;
}

} // namespace orv
