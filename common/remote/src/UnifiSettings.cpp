#include "orv/remote/UnifiSettings.h"

#include <orv/core/Settings.h>

namespace orv {

UnifiSettings::UnifiSettings(bool isEnabled, ServerSettings server)
    : m_isEnabled(isEnabled)
    , m_server(std::move(server))
{}

UnifiSettings UnifiSettings::load()
{
    const bool isSwitchedOn = as::value(QStringLiteral("UNIFI/Enabled"), true).toBool();
    ServerSettings server = ServerSettings::unifi();
    const bool isEnabled = isSwitchedOn && server.isSet();
    return {isEnabled, std::move(server)};
}

} // namespace orv
