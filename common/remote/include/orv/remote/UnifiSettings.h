#pragma once

#include <orv/remote/ServerSettings.h>

namespace orv {

/// Whether UNIFI is used, and where it is. "UNIFI/Enabled" (ORV_UNIFI_ENABLED) switches it; where that isn't
/// set, an address does. A plain value.
class ORV_WORKFLOW_EXPORT UnifiSettings
{
public:
    /// As they stand now. Any thread.
    [[nodiscard]] static UnifiSettings load();

    /// An address is needed, too; whether it is a good one, server().check() tells.
    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    [[nodiscard]] const ServerSettings &server() const { return m_server; }

private:
    UnifiSettings(bool isEnabled, ServerSettings server);

    bool m_isEnabled;
    ServerSettings m_server;
};

} // namespace orv
