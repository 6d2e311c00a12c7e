#pragma once

#include "HttpTestServer.h"

#include <orv/core/Settings.h>

#include <QTemporaryDir>

/// A server of the test under both addresses, with tokens, a cache, and little patience.
struct ServerFixture
{
    static constexpr const char *kTalvaneToken = "talvane-secret";
    static constexpr const char *kUnifiToken = "unifi-secret";
    static constexpr int kPatienceMs = 400;

    ServerFixture()
    {
        qputenv("ORV_TALVANE_TOKEN", kTalvaneToken);
        qputenv("ORV_UNIFI_TOKEN", kUnifiToken);
    }
    ~ServerFixture()
    {
        qunsetenv("ORV_TALVANE_TOKEN");
        qunsetenv("ORV_UNIFI_TOKEN");
    }
    Q_DISABLE_COPY_MOVE(ServerFixture)

    [[nodiscard]] QString host() const { return server.address().authority(); }

    HttpTestServer server;
    QTemporaryDir cache;
    orv::as::ScopedOverride talvane{QStringLiteral("Talvane/Address"), server.address().toString()};
    orv::as::ScopedOverride unifi{QStringLiteral("UNIFI/Address"),
                                  server.address().toString() + QLatin1String("/lab/")};
    orv::as::ScopedOverride patience{QStringLiteral("Servers/TimeoutMs"), kPatienceMs};
    orv::as::ScopedOverride cacheFolder{QStringLiteral("Servers/CacheFolder"),
                                        cache.filePath(QStringLiteral("files"))};
};
