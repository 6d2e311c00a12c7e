#include "ProcessMemory.h"

#include <QByteArray>
#include <QFile>

namespace ProcessMemory {

namespace {

long statusKilobytes(const QByteArray &name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.mid(name.size()).chopped(2).trimmed().toLong();
    }
    return -1;
}

} // namespace

long heldKilobytes()
{
    return statusKilobytes("VmRSS:");
}

long peakKilobytes()
{
    return statusKilobytes("VmHWM:");
}

} // namespace ProcessMemory
