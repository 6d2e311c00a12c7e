#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

namespace orv {

class TalvaneTask;

/// The way to the Talvane server that the settings name (ServerSettings). It keeps nothing, so that changed
/// settings count from the next request on. Any thread.
class ORV_WORKFLOW_EXPORT TalvaneConnection
{
public:
    [[nodiscard]] static TalvaneConnection *instance();

    /// Starts \a task, whose end is waited for by BaseTask::waitForAllFinished. Fails with the task when the
    /// settings name no server that can be asked, and for a task that was started before.
    [[nodiscard]] Result<void> sendRequest(TalvaneTask *task);

private:
    TalvaneConnection() = default;
};

} // namespace orv
