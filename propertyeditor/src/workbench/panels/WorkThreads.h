#pragma once

#include "orv/propertyeditor/workbench/BackgroundWork.h"

#include <QPointer>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace orv {

class WorkThreads;

/// Work and who waits for it. The thread keeps it until it ends.
struct WorkJob
{
    // Of the GUI thread alone.
    QPointer<BackgroundWork> owner;
    std::function<void(const Error &)> done; ///< null once it is cancelled
    std::thread thread;

    std::function<void(const std::atomic_bool &)> work; ///< of the thread alone, once it runs
    std::atomic_bool isCancelled = false;

    std::mutex mutex; ///< of what follows
    std::condition_variable ended;
    bool hasEnded = false;
    Error error;
    WorkThreads *home = nullptr; ///< null once nobody waits for the end
};

/// All threads of BackgroundWork in a program. They belong to the application, which waits for them at its
/// end.
class WorkThreads : public QObject
{
    Q_OBJECT

public:
    static WorkThreads *ofProgram();
    ~WorkThreads() override;

    void start(const std::shared_ptr<WorkJob> &job);

private:
    WorkThreads();

    static void carryOut(const std::shared_ptr<WorkJob> &job);
    static void tellEnd(const std::shared_ptr<WorkJob> &job, const Error &error);
    void take(const std::shared_ptr<WorkJob> &job);
    void end();

    QList<std::shared_ptr<WorkJob>> m_jobs;
};

} // namespace orv
