#include "ServerHandler.h"

#include "DownloadCache.h"
#include "HttpClient.h"
#include "HttpErrors.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace orv {

namespace {

constexpr qint64 kUnknownSize = -1;

struct ServerHandlerTr
{
    Q_DECLARE_TR_FUNCTIONS(Servers)
};

bool isMissing(const HttpAnswer &answer)
{
    constexpr int notFound = 404;
    constexpr int gone = 410;
    return answer.status == notFound || answer.status == gone;
}

/// The size in bytes that the metadata tell.
Result<qint64> sizeOf(const QJsonObject &metadata)
{
    const QJsonValue value = metadata.value(QLatin1String("size"));
    if (value.isUndefined())
        return kUnknownSize;
    constexpr double maxExact = 9007199254740992.0; // 2 to the power of 53
    const double size = value.toDouble(-1);
    if (size < 0 || size > maxExact || std::floor(size) != size)
        return Error(ErrorCode::InvalidContent, ServerHandlerTr::tr("\"size\" must be a count of bytes."));
    return qint64(size);
}

/// What tells one state of a resource from another; empty when the server doesn't tell.
QString versionOf(const QJsonObject &metadata)
{
    const QString version = metadata.value(QLatin1String("version")).toVariant().toString();
    return version.isEmpty() ? metadata.value(QLatin1String("modified")).toString() : version;
}

} // namespace

bool ServerHandler::isAvailableLocally() const
{
    return !m_path.isEmpty() && QFile::exists(m_path);
}

Result<std::optional<QJsonObject>> ServerHandler::findAnswer()
{
    if (m_answer)
        return m_answer;
    Result<HttpRequest> request = metadataRequest();
    if (request.hasError())
        return request.ecatch();
    Result<HttpAnswer> reply = HttpClient::ask(*request);
    if (reply.hasError())
        return reply.ecatch();
    if (isMissing(*reply))
        return std::optional<QJsonObject>();
    Result<QJsonObject> json = HttpClient::json(*request, *reply);
    if (json.hasError())
        return json.ecatch();
    m_answer = *json;
    return m_answer;
}

Result<QJsonObject> ServerHandler::answer()
{
    Result<std::optional<QJsonObject>> found = findAnswer();
    if (found.hasError())
        return found.ecatch();
    if (!*found)
        return Error(
                   ErrorCode::CannotOpenFile,
                   ServerHandlerTr::tr("There is no \"%1\" on its server.").arg(reference()->readableText()))
            .addDetail(ServerHandlerTr::tr("It was moved or deleted; refer to another one."));
    return **found;
}

Result<bool> ServerHandler::exists()
{
    Result<std::optional<QJsonObject>> found = findAnswer();
    if (found.hasError())
        return found.ecatch();
    return found->has_value();
}

Result<QJsonObject> ServerHandler::metadata()
{
    Result<QJsonObject> found = answer();
    if (found.hasError())
        return found.ecatch();
    Result<QJsonObject> metadata = metadataOf(*found);
    if (metadata.hasError())
        return metadata.ecatch();
    return metadata;
}

Result<QString> ServerHandler::grab()
{
    if (isAvailableLocally())
        return m_path;
    Result<QJsonObject> found = answer();
    if (found.hasError())
        return found.ecatch();
    Result<qint64> size = sizeOf(*found);
    if (size.hasError())
        return size.ecatch();
    Result<HttpRequest> request = contentRequest();
    if (request.hasError())
        return request.ecatch();
    Result<DownloadCache> cache = DownloadCache::open();
    if (cache.hasError())
        return cache.ecatch();
    const QString version = versionOf(*found);
    const QString path =
        cache->place({request->server.host(), reference()->key(), version}, reference()->name());
    if (version.isEmpty() || !cache->use(path))
        ORV_RETURN_IF_ERROR(download(*request, *size, &*cache, path));
    m_path = path;
    return m_path;
}

Error ServerHandler::download(HttpRequest request, qint64 size, DownloadCache *cache, const QString &path)
{
    ORV_RETURN_IF_ERROR(cache->makeRoom(std::max<qint64>(size, 0), path));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return HttpErrors::cannotStore(request.server, file.errorString()).ecatch();
    request.contentType = "application/octet-stream";
    request.maxSize = size == kUnknownSize ? cache->room() : size;
    request.sink = &file;
    Result<HttpAnswer> reply = HttpClient::ask(request);
    if (reply.hasError())
        return reply.ecatch();
    ORV_RETURN_IF_ERROR(HttpClient::check(request, *reply));
    if (size != kUnknownSize && file.pos() != size)
        return HttpErrors::cutShort(request.server).ecatch();
    if (!file.commit())
        return HttpErrors::cannotStore(request.server, file.errorString()).ecatch();
    return Error::NoError;
}

} // namespace orv
