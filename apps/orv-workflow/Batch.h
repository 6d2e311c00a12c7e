#pragma once

#include <QtGlobal>

#include <functional>

namespace orv::cli {

class Progress;

/// Calls \a work for every index below \a count, each once, on up to \a jobs threads.
void runBatch(qsizetype count, int jobs, Progress &progress, const std::function<void(qsizetype)> &work);

} // namespace orv::cli
