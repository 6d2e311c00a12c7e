#pragma once

#include "HttpRequest.h"

#include <orv/core/Error.h>

#include <QNetworkReply>

/// What can go wrong with a server, in words: the host, the reason, and what to do. No text holds the token.
namespace orv::HttpErrors {

[[nodiscard]] Error silent(const ServerSettings &server);
[[nodiscard]] Error cutShort(const ServerSettings &server);
[[nodiscard]] Error tooLarge(const ServerSettings &server, qint64 maxSize);
[[nodiscard]] Error cannotStore(const ServerSettings &server, const QString &reason);
/// A failure below HTTP: no connection, no TLS, a redirection that isn't followed.
[[nodiscard]] Error network(const ServerSettings &server, QNetworkReply::NetworkError error,
                            const QString &reason);
/// An answer whose status isn't 200.
[[nodiscard]] Error status(const ServerSettings &server, const HttpAnswer &answer);
[[nodiscard]] Error wrongType(const ServerSettings &server, const HttpAnswer &answer,
                              const QByteArray &wanted);
/// An answer that holds something else than it should.
[[nodiscard]] Error unreadable(const ServerSettings &server, const Error &reason);

} // namespace orv::HttpErrors
