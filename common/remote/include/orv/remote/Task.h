#pragma once

#include <orv/remote/BaseTask.h>

namespace orv {

/// A task that needs nobody to send it.
class ORV_WORKFLOW_EXPORT Task : public BaseTask
{
    Q_OBJECT

public:
    /// Starts \a task. A failure is the task's, too.
    static Error exec(Task *task);

protected:
    Task() = default;
};

} // namespace orv
