#pragma once

#include "HttpRequest.h"

#include <orv/core/Result.h>

#include <QJsonObject>

/// What answers mean, and questions that are waited for.
namespace orv::HttpClient {

/// Fails unless \a answer has the status 200 and the type that was asked for.
[[nodiscard]] Error check(const HttpRequest &request, const HttpAnswer &answer);

/// The object in a good answer; fails as check does, and for anything else than one JSON object.
[[nodiscard]] Result<QJsonObject> json(const HttpRequest &request, const HttpAnswer &answer);

/// Asks and handles this thread's events until there is an answer of any status, or none to be had.
[[nodiscard]] Result<HttpAnswer> ask(const HttpRequest &request);

} // namespace orv::HttpClient
