#include "Batch.h"

#include "Progress.h"

#include <algorithm>
#include <atomic>
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
    for (qsizetype i = 1; i < threadCount; ++i)
        threads.emplace_back(worker);
    worker();
}

} // namespace orv::cli
