#include "orv/remote/Task.h"

namespace orv {

Error Task::exec(Task *task)
{
    ORV_RETURN_IF_ERROR(task->begin());
    return task->error();
}

} // namespace orv
