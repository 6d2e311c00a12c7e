#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QFuture>
#include <QPromise>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

/// Work on threads for which nobody waits, not even the end of the program, as a disk may never answer. It
/// must not use what others own.
/// \code
///     QFuture<Result<Found>> search = DetachedWork::run<Found>([paths] { return find(paths); });
/// \endcode
namespace orv::DetachedWork {

/// Calls \a act, and gives what it throws as an error, such as that there isn't enough memory.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error guarded(const std::function<void()> &act);

/// Calls \a act on a thread of its own; an error when there is none to be had. What \a act throws ends there.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error start(std::function<void()> act);

/// The result of \a work, or why there is none; finished in any case.
template<typename T>
[[nodiscard]] QFuture<Result<T>> run(std::function<T()> work)
{
    auto promise = std::make_shared<QPromise<Result<T>>>();
    QFuture<Result<T>> future = promise->future();
    promise->start();
    Error unstarted = start([promise, work = std::move(work)] {
        std::optional<T> value;
        Error error = guarded([&] { value = work(); });
        promise->addResult(error.hasError() ? Result<T>(error.ecatch()) : Result<T>(*std::move(value)));
        promise->finish();
    });
    if (unstarted.hasError()) {
        promise->addResult(Result<T>(unstarted.ecatch()));
        promise->finish();
    }
    return future;
}

} // namespace orv::DetachedWork
