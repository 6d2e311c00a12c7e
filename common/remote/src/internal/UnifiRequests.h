#pragma once

#include "HttpRequest.h"

#include <orv/core/Result.h>

#include <QString>

/// The questions to a UNIFI server; docs/servers.md tells the answers. They fail when UNIFI is switched off
/// and for an item without an identifier, which old references lack.
namespace orv::UnifiRequests {

[[nodiscard]] Result<HttpRequest> item(const QString &id);
[[nodiscard]] Result<HttpRequest> itemFolder(const QString &id);
[[nodiscard]] Result<HttpRequest> itemContent(const QString &id);

} // namespace orv::UnifiRequests
