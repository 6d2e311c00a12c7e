#pragma once

#include <orv/remote/ServerSettings.h>

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QString>

#include <utility>

namespace orv {

/// One question to a server; see docs/servers.md.
struct HttpRequest
{
    ServerSettings server;
    QString path; ///< below the server's address, without a slash in front
    QList<std::pair<QString, QString>> query = {};
    QByteArray contentType = "application/json"; ///< that the answer must have
    qint64 maxSize = qint64(16) * 1024 * 1024;   ///< of the answer, in bytes
    QIODevice *sink = nullptr;                   ///< takes the answer, piece by piece; not owned, open
};

/// What the server said, good or bad.
struct HttpAnswer
{
    int status = 0;
    QByteArray contentType; ///< without parameters, in lower case
    QByteArray body;        ///< empty when a sink took it
};

} // namespace orv
