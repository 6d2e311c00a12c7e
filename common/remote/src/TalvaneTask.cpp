#include "orv/remote/TalvaneTask.h"

#include "internal/HttpErrors.h"
#include "internal/ServerTask.h"

namespace orv {

TalvaneTask::TalvaneTask()
    : m_request(std::make_unique<ServerTask>())
{}

TalvaneTask::~TalvaneTask() = default;

Error TalvaneTask::send(const ServerSettings &server)
{
    if (state() == State::NotStarted) {
        if (Error error = server.check()) {
            fail(error);
            return error.ecatch();
        }
    }
    m_server = std::make_unique<ServerSettings>(server);
    return begin();
}

void TalvaneTask::start()
{
    const ServerSettings server = *m_server;
    const auto done = [this, server](Result<QByteArray> body) {
        if (body.hasError()) {
            end(body.ecatch());
            return;
        }
        Error error = readAnswer(*body);
        end(error.hasError() ? HttpErrors::unreadable(server, error.ecatch()) : error);
    };
    if (Error error = m_request->start({.server = server, .path = path(), .query = query()}, done))
        end(error.ecatch());
}

void TalvaneTask::abort()
{
    m_request->abort();
}

} // namespace orv
