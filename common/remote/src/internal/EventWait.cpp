#include "EventWait.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace orv {

bool handleEventsUntil(const std::function<bool()> &isDone, int timeoutMs)
{
    QEventLoop loop;
    QTimer wake; // its event ends the wait for others
    wake.setSingleShot(true);
    const QDeadlineTimer deadline(timeoutMs);
    while (!isDone() && !deadline.hasExpired()) {
        if (!deadline.isForever())
            wake.start(int(std::max<qint64>(1, deadline.remainingTime())));
        loop.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    return isDone();
}

} // namespace orv
