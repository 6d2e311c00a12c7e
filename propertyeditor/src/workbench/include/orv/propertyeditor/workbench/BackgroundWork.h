#pragma once

#include <orv/core/Result.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QObject>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace orv {

struct WorkJob;

/// Work on threads that somebody owns: what this object began is cancelled when it goes, and the end of the
/// program waits for it, though no longer than kMostWaiting: what runs on then, such as a read from a disk
/// that never answers, is left to itself. Closing a window waits for nothing. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT BackgroundWork : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds kMostWaiting{3000};

    using IsCancelled = std::atomic_bool;

    explicit BackgroundWork(QObject *parent = nullptr);
    ~BackgroundWork() override;

    /// Runs \a work on a thread of its own. \a done hears of the result on this thread, never at once, unless
    /// it was cancelled before. \a work returns soon once it is cancelled; what it throws becomes an error.
    template<typename Value>
    void run(const std::function<Result<Value>(const IsCancelled &)> &work,
             const std::function<void(const Result<Value> &)> &done)
    {
        const auto result = std::make_shared<std::optional<Result<Value>>>();
        begin(
            [result, work](const IsCancelled &isCancelled) { result->emplace(work(isCancelled)); },
            [result, done](const Error &error) { done(error.hasError() ? Result<Value>(error) : **result); });
    }

    /// Nobody hears any more of what runs.
    void cancel();

private:
    friend class WorkThreads;
    void begin(const std::function<void(const IsCancelled &)> &work,
               const std::function<void(const Error &)> &done);
    void finish(const std::shared_ptr<WorkJob> &job);

    QList<std::shared_ptr<WorkJob>> m_jobs; ///< that are wanted
};

} // namespace orv
