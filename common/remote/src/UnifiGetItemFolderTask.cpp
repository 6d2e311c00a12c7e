#include "orv/remote/UnifiGetItemFolderTask.h"

#include "internal/HttpErrors.h"
#include "internal/ServerTask.h"
#include "internal/UnifiRequests.h"

#include <orv/core/JsonUtils.h>

namespace orv {

namespace {

Result<UnifiResourceMetadata::Folder> folderOf(const QByteArray &json)
{
    Result<QJsonObject> object = JsonUtils::objectFromJson(json);
    if (object.hasError())
        return object.ecatch();
    Result<UnifiResourceMetadata::Folder> folder = UnifiResourceMetadata::Folder::fromJson(*object);
    if (folder.hasError())
        return folder.ecatch();
    return folder;
}

} // namespace

UnifiGetItemFolderTask::UnifiGetItemFolderTask(QString itemId)
    : m_itemId(std::move(itemId))
    , m_request(std::make_unique<ServerTask>())
{}

UnifiGetItemFolderTask::~UnifiGetItemFolderTask() = default;

void UnifiGetItemFolderTask::start()
{
    Result<HttpRequest> request = UnifiRequests::itemFolder(m_itemId);
    if (request.hasError()) {
        end(request.ecatch());
        return;
    }
    const ServerSettings server = request->server;
    const auto done = [this, server](Result<QByteArray> body) {
        if (body.hasError()) {
            end(body.ecatch());
            return;
        }
        Result<UnifiResourceMetadata::Folder> folder = folderOf(*body);
        if (folder.hasError()) {
            end(HttpErrors::unreadable(server, folder.ecatch()));
            return;
        }
        m_folder = *folder;
        end(Error::NoError);
    };
    if (Error error = m_request->start(*request, done))
        end(error.ecatch());
}

void UnifiGetItemFolderTask::abort()
{
    m_request->abort();
}

} // namespace orv
