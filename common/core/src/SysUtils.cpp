#include "orv/core/SysUtils.h"

#include <QThread>

#include <algorithm>

namespace orv::SysUtils {

int cpuCoresNumber()
{
    return std::max(1, QThread::idealThreadCount());
}

} // namespace orv::SysUtils
