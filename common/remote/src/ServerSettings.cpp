#include "orv/remote/ServerSettings.h"

#include <orv/core/Settings.h>

#include <QCoreApplication>
#include <QHostAddress>

#include <algorithm>

namespace orv {

namespace {

constexpr int kDefaultTimeoutMs = 30000;

struct ServerSettingsTr
{
    Q_DECLARE_TR_FUNCTIONS(ServerSettings)
};

/// What is sent to it doesn't leave the machine, so that nobody can listen.
bool isThisMachine(const QString &host)
{
    return host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0 ||
           QHostAddress(host).isLoopback();
}

bool isTextOfHeader(const QByteArray &text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < '\x7f'; });
}

QString addressFault(const QUrl &address)
{
    const bool isEncrypted = address.scheme() == QLatin1String("https");
    if (!address.isValid() || address.host().isEmpty() ||
        (!isEncrypted && address.scheme() != QLatin1String("http")))
        return ServerSettingsTr::tr("Write it as https://HOST:PORT.");
    if (!address.userInfo().isEmpty())
        return ServerSettingsTr::tr(
            "Take the user and the password out of it; who asks is shown by a token.");
    if (address.hasQuery() || address.hasFragment())
        return ServerSettingsTr::tr("Take out what stands behind \"?\" or \"#\".");
    if (!isEncrypted && !isThisMachine(address.host()))
        return ServerSettingsTr::tr("Servers other than this machine are asked over https:// only.");
    return {};
}

} // namespace

ServerSettings::ServerSettings(const QString &server)
    : m_addressKey(server + QLatin1String("/Address"))
    , m_tokenVariable(QLatin1String("ORV_") + server.toUpper() + QLatin1String("_TOKEN"))
    , m_addressText(as::value(m_addressKey).toString().trimmed())
    , m_address(m_addressText, QUrl::StrictMode)
    , m_token(qgetenv(m_tokenVariable.toLatin1().constData()).trimmed())
    , m_timeoutMs(std::max(1, as::value(QStringLiteral("Servers/TimeoutMs"), kDefaultTimeoutMs).toInt()))
{}

ServerSettings ServerSettings::talvane()
{
    return ServerSettings(QStringLiteral("Talvane"));
}

ServerSettings ServerSettings::unifi()
{
    return ServerSettings(QStringLiteral("UNIFI"));
}

Error ServerSettings::check() const
{
    if (!isSet())
        return Error(ErrorCode::InvalidContent, ServerSettingsTr::tr("The address of the server isn't set."))
            .addDetail(ServerSettingsTr::tr("Set \"%1\" to the address of the server.").arg(m_addressKey));
    if (const QString fault = addressFault(m_address); !fault.isEmpty())
        return Error(
                   ErrorCode::InvalidContent,
                   ServerSettingsTr::tr("The address in the setting \"%1\" can't be used.").arg(m_addressKey))
            .addDetail(fault);
    if (!isTextOfHeader(m_token))
        return Error(ErrorCode::InvalidContent,
                     ServerSettingsTr::tr("The token in the variable %1 can't be used.").arg(m_tokenVariable))
            .addDetail(
                ServerSettingsTr::tr("It holds blanks or characters that are no ASCII; copy it again."));
    return Error::NoError;
}

QString ServerSettings::host() const
{
    return m_address.authority().section(QLatin1Char('@'), -1);
}

QDebug operator<<(QDebug debug, const ServerSettings &settings)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "ServerSettings(" << settings.host() << ')';
    return debug;
}

} // namespace orv
