#include "orv/remote/BaseTask.h"

#include "internal/EventWait.h"

#include <orv/core/Logging.h>

#include <QCoreApplication>
#include <QThread>

namespace orv {

namespace {

bool canBeWaitedFor(const BaseTask *task)
{
    if (task->thread() != QThread::currentThread()) {
        qCWarning(genericLog()) << "A task is waited for on its own thread only.";
        return false;
    }
    if (task->state() == BaseTask::State::NotStarted) {
        qCWarning(genericLog()) << "A task that wasn't started can't be waited for.";
        return false;
    }
    return true;
}

} // namespace

BaseTask::BaseTask() = default;
// The work belongs to the derived classes, whose members end it.
BaseTask::~BaseTask() = default;

Error BaseTask::begin()
{
    if (m_state == State::Cancelled)
        return m_error;
    if (m_state != State::NotStarted)
        return Error(ErrorCode::InvalidContent, tr("A task runs once."))
            .addDetail(tr("Make another task for another request."));
    if (!QCoreApplication::instance()) {
        fail(Error(ErrorCode::InvalidContent, tr("A server can't be asked in a program without a "
                                                 "QCoreApplication.")));
        return m_error;
    }
    m_state = State::Running;
    start();
    return Error::NoError;
}

void BaseTask::fail(const Error &error)
{
    finish(State::Failed, error, {});
}

void BaseTask::end(const Error &error, const Warnings &warnings)
{
    finish(error.hasError() ? State::Failed : State::Succeeded, error, warnings);
}

void BaseTask::cancel()
{
    if (thread() != QThread::currentThread()) {
        QMetaObject::invokeMethod(this, &BaseTask::cancel, Qt::QueuedConnection);
        return;
    }
    if (isFinished())
        return;
    if (m_state == State::Running)
        abort();
    finish(State::Cancelled, Error(ErrorCode::InvalidContent, tr("The request was cancelled.")), {});
}

void BaseTask::finish(State state, const Error &error, const Warnings &warnings)
{
    if (isFinished())
        return;
    m_error = error;
    m_warnings = warnings;
    m_state = state;
    Q_EMIT finished();
}

bool BaseTask::waitForAllFinished(BaseTask *task, int timeoutMs)
{
    return waitForAllFinished(QList<BaseTask *>{task}, timeoutMs);
}

bool BaseTask::waitForAllFinished(const QList<BaseTask *> &tasks, int timeoutMs)
{
    QList<BaseTask *> waiting = tasks;
    waiting.removeAll(nullptr);
    if (!std::all_of(waiting.cbegin(), waiting.cend(), canBeWaitedFor))
        return false;
    const auto areAllFinished = [&waiting] {
        waiting.removeIf([](const BaseTask *task) { return task->isFinished(); });
        return waiting.isEmpty();
    };
    return handleEventsUntil(areAllFinished, timeoutMs);
}

} // namespace orv
