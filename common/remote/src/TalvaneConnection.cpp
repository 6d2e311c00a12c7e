#include "orv/remote/TalvaneConnection.h"

#include <orv/remote/ServerSettings.h>
#include <orv/remote/TalvaneTask.h>

namespace orv {

TalvaneConnection *TalvaneConnection::instance()
{
    static TalvaneConnection connection;
    return &connection;
}

Result<void> TalvaneConnection::sendRequest(TalvaneTask *task)
{
    ORV_RETURN_IF_ERROR(task->send(ServerSettings::talvane()));
    return {};
}

} // namespace orv
