#include "orv/propertyeditor/workbench/BackgroundWork.h"

#include "WorkThreads.h"

#include <utility>

namespace orv {

BackgroundWork::BackgroundWork(QObject *parent)
    : QObject(parent)
{}

BackgroundWork::~BackgroundWork()
{
    cancel();
}

void BackgroundWork::cancel()
{
    for (const std::shared_ptr<WorkJob> &job : std::exchange(m_jobs, {})) {
        job->done = nullptr;
        job->isCancelled = true;
    }
}

void BackgroundWork::begin(const std::function<void(const IsCancelled &)> &work,
                           const std::function<void(const Error &)> &done)
{
    const auto job = std::make_shared<WorkJob>();
    job->owner = this;
    job->done = done;
    job->work = work;
    m_jobs.append(job);
    WorkThreads::ofProgram()->start(job);
}

void BackgroundWork::finish(const std::shared_ptr<WorkJob> &job)
{
    // Whoever hears of it may destroy this.
    const auto done = std::exchange(job->done, nullptr);
    m_jobs.removeOne(job);
    if (done)
        done(job->error);
}

} // namespace orv
