#pragma once

#include <orv/core/Export.h>

/// Handlers of what lies on the servers: files and managed resources of Talvane, external data sources that
/// are mounted here, and UNIFI items.
namespace orv::RemoteHandlers {

/// Registers them with ResourceManager, in place of earlier ones. Nothing is asked before a handler is. Hosts
/// call it once. What handlers fetch goes to the folder in the setting "Servers/CacheFolder"
/// (ORV_SERVERS_CACHEFOLDER), which holds at most "Servers/CacheSizeMiB" (20480); see docs/servers.md. Any
/// thread.
ORV_WORKFLOW_EXPORT void install();

} // namespace orv::RemoteHandlers
