#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QDebug>
#include <QString>
#include <QUrl>

namespace orv {

/// Where a server is, and what shows it who asks. Addresses are settings (orv/core/Settings.h), with the name
/// of each in the environment beside it:
///     Talvane/Address      ORV_TALVANE_ADDRESS      https://HOST[:PORT][/PREFIX]
///     UNIFI/Address        ORV_UNIFI_ADDRESS        as above
///     Servers/TimeoutMs    ORV_SERVERS_TIMEOUTMS    how long a server may keep silent, in milliseconds;
///     30000
/// Tokens come from the environment alone, so that no file holds them: ORV_TALVANE_TOKEN, ORV_UNIFI_TOKEN.
/// Without a token nothing is sent in its place. A plain value; reading is safe on any thread.
class ORV_WORKFLOW_EXPORT ServerSettings
{
public:
    [[nodiscard]] static ServerSettings talvane();
    [[nodiscard]] static ServerSettings unifi();

    /// Whether there is an address, good or not.
    [[nodiscard]] bool isSet() const { return !m_addressText.isEmpty(); }

    /// Why no request can be sent: no address, one that is none of a server, one without TLS that isn't this
    /// machine's own, one with a user or password in it, or a token that no header can hold. The address and
    /// the token are in no text.
    [[nodiscard]] Error check() const;

    [[nodiscard]] const QUrl &address() const { return m_address; }
    /// The server as texts name it: host, and port where one is set. Holds no credentials.
    [[nodiscard]] QString host() const;
    /// For the request's header only, never for a text.
    [[nodiscard]] const QByteArray &token() const { return m_token; }
    [[nodiscard]] int timeoutMs() const { return m_timeoutMs; }

    /// The setting with the address, and the variable with the token, for texts that say what to do.
    [[nodiscard]] const QString &addressKey() const { return m_addressKey; }
    [[nodiscard]] const QString &tokenVariable() const { return m_tokenVariable; }

private:
    explicit ServerSettings(const QString &server);

    QString m_addressKey;
    QString m_tokenVariable;
    QString m_addressText;
    QUrl m_address;
    QByteArray m_token;
    int m_timeoutMs = 0;
};

/// Without the token.
ORV_WORKFLOW_EXPORT QDebug operator<<(QDebug debug, const ServerSettings &settings);

} // namespace orv
