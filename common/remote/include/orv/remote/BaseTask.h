#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QObject>

#include <atomic>

namespace orv {

/// A request to a server that goes on while its owner does something else:
/// \code
///     UnifiGetItemFolderTask task(id);
///     Task::exec(&task);
///     BaseTask::waitForAllFinished(&task);
///     if (task.error().hasError()) ...
/// \endcode
/// A task lives on the thread that made it; every function but state() and cancel() is called there. The
/// thread needs no running event loop, but the program a QCoreApplication. A task runs once. Each request
/// ends by itself when its server keeps silent for too long, so that waiting without a limit comes to an end.
/// Whoever destroys a running task cancels it.
class ORV_WORKFLOW_EXPORT BaseTask : public QObject
{
    Q_OBJECT

public:
    enum class State : int
    {
        NotStarted,
        Running,
        Succeeded,
        Failed,
        Cancelled,
    };
    Q_ENUM(State)

    ~BaseTask() override;

    /// Any thread.
    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool isFinished() const
    {
        return state() != State::NotStarted && state() != State::Running;
    }

    /// Why the task failed or was cancelled; a success before its end and after a good one.
    [[nodiscard]] const Error &error() const { return m_error; }
    [[nodiscard]] const Warnings &warnings() const { return m_warnings; }

    /// Ends the task as Cancelled, at once on its own thread, otherwise as soon as that handles events. A
    /// task that hasn't been started yet won't run; nothing happens to a finished one. Any thread.
    void cancel();

    /// Handles this thread's events, but for what the user does, until all \a tasks are finished, or until
    /// \a timeoutMs milliseconds have passed; -1 is no limit. Whether all are finished: they go on if not.
    /// Null ones don't count. Answers false at once, with a warning in the log, for a task that wasn't
    /// started, or that belongs to another thread. A task must not be destroyed meanwhile.
    static bool waitForAllFinished(const QList<BaseTask *> &tasks, int timeoutMs = -1);
    static bool waitForAllFinished(BaseTask *task, int timeoutMs = -1);

Q_SIGNALS:
    /// Once, whatever the end.
    void finished();

protected:
    BaseTask();

    /// Runs start(). Fails with the task when the program has no QCoreApplication, or the task was cancelled
    /// or started before.
    [[nodiscard]] Error begin();
    /// Ends a task that can't be started.
    void fail(const Error &error);

    /// Begins the work, whose end is told to end(), now or later.
    virtual void start() = 0;
    /// Drops the work: end() won't be called.
    virtual void abort() = 0;
    void end(const Error &error, const Warnings &warnings = {});

private:
    void finish(State state, const Error &error, const Warnings &warnings);

    std::atomic<State> m_state{State::NotStarted};
    Error m_error;
    Warnings m_warnings;
};

} // namespace orv
