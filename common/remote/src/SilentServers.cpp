#include "orv/remote/SilentServers.h"

#include "internal/HttpErrors.h"

#include <QCoreApplication>

namespace orv {

Error SilentServers::refusalOf(const ServerSettings &server) const
{
    const QMutexLocker locker(&m_mutex);
    if (!m_addresses.contains(server.address().toString()))
        return Error::NoError;
    return HttpErrors::silent(server).addDetail(
        QCoreApplication::translate("Servers", "It kept silent before in this run, and wasn't asked again."));
}

void SilentServers::remember(const ServerSettings &server)
{
    const QMutexLocker locker(&m_mutex);
    m_addresses.insert(server.address().toString());
}

} // namespace orv
