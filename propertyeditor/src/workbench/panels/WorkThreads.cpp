#include "WorkThreads.h"

#include <orv/core/DetachedWork.h>
#include <orv/core/Logging.h>

#include <QCoreApplication>

#include <exception>
#include <new>
#include <utility>

namespace orv {

namespace {

void leaveOrJoin(WorkJob &job, std::chrono::steady_clock::time_point deadline)
{
    std::unique_lock lock(job.mutex);
    job.home = nullptr;
    const bool hasEnded = job.ended.wait_until(lock, deadline, [&job] { return job.hasEnded; });
    lock.unlock();
    if (!job.thread.joinable())
        return;
    if (hasEnded) {
        job.thread.join();
        return;
    }
    qCWarning(propertyEditorLog) << "Work in the background doesn't end, and is left to itself.";
    job.thread.detach();
}

} // namespace

WorkThreads::WorkThreads()
    : QObject(qApp)
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, &WorkThreads::end);
    // Work uses what the application's destructor takes away.
    qAddPostRoutine([] { ofProgram()->end(); });
}

WorkThreads::~WorkThreads()
{
    end();
}

WorkThreads *WorkThreads::ofProgram()
{
    auto *threads = qApp->findChild<WorkThreads *>(QString(), Qt::FindDirectChildrenOnly);
    return threads ? threads : new WorkThreads;
}

void WorkThreads::start(const std::shared_ptr<WorkJob> &job)
{
    m_jobs.append(job);
    job->home = this;
    const Error error =
        DetachedWork::guarded([&job] { job->thread = std::thread([job] { carryOut(job); }); });
    if (error.hasError())
        tellEnd(job, error);
}

void WorkThreads::carryOut(const std::shared_ptr<WorkJob> &job)
{
    const Error error = DetachedWork::guarded([&job] { job->work(job->isCancelled); });
    // What it holds may be large.
    job->work = nullptr;
    tellEnd(job, error);
}

void WorkThreads::tellEnd(const std::shared_ptr<WorkJob> &job, const Error &error)
{
    const std::scoped_lock lock(job->mutex);
    job->hasEnded = true;
    job->error = error;
    job->ended.notify_all();
    if (job->home) {
        QMetaObject::invokeMethod(
            job->home, [home = job->home, job] { home->take(job); }, Qt::QueuedConnection);
    }
}

void WorkThreads::take(const std::shared_ptr<WorkJob> &job)
{
    // The end of the program may have come first.
    if (!m_jobs.removeOne(job))
        return;
    if (job->thread.joinable())
        job->thread.join();
    if (job->owner)
        job->owner->finish(job);
}

void WorkThreads::end()
{
    for (const std::shared_ptr<WorkJob> &job : std::as_const(m_jobs)) {
        job->done = nullptr;
        job->isCancelled = true;
    }
    const auto deadline = std::chrono::steady_clock::now() + BackgroundWork::kMostWaiting;
    const QList<std::shared_ptr<WorkJob>> jobs = std::exchange(m_jobs, {});
    for (const std::shared_ptr<WorkJob> &job : jobs)
        leaveOrJoin(*job, deadline);
}

} // namespace orv
