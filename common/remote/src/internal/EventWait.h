#pragma once

#include <functional>

namespace orv {

/// Handles the events of this thread, but for what the user does, until \a isDone or until \a timeoutMs
/// milliseconds have passed; -1 is no limit. What isDone gave at last. Unlike QEventLoop::exec it goes on
/// after the application was told to quit, when the work in hand still has to come to its end.
bool handleEventsUntil(const std::function<bool()> &isDone, int timeoutMs = -1);

} // namespace orv
