#include "Batch.h"

#include "Progress.h"

#include <orv/core/Logging.h>

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace orv::cli {

void runBatch(qsizetype count, int jobs, Progress &progress, const std::function<void(qsizetype)> &work)
{
    std::atomic<qsizetype> next = 0;
    const auto worker = [&] {
        for (qsizetype i = next++; i < count; i = next++) {
            work(i);
            progress.advance();
        }
    };
    std::vector<std::jthread> threads;
    const auto threadCount = std::min<qsizetype>(std::max(1, jobs), count);
    try {
        for (qsizetype i = 1; i < threadCount; ++i)
            threads.emplace_back(worker);
    } catch (const std::system_error &error) {
        // The system allows no more threads; those that there are do the work.
        qCInfo(genericLog) << "Working on" << threads.size() + 1 << "threads:" << error.what();
    }
    worker();
}

} // namespace orv::cli
