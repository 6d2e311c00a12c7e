#include "orv/core/DetachedWork.h"

#include "orv/core/Logging.h"

#include <QCoreApplication>

#include <exception>
#include <new>
#include <thread>

namespace orv {

namespace {

struct DetachedWorkTr
{
    Q_DECLARE_TR_FUNCTIONS(DetachedWork)
};

Error failure(const QString &reason)
{
    return Error(ErrorCode::MalformedStructure, DetachedWorkTr::tr("Something went wrong: %1").arg(reason))
        .addDetail(DetachedWorkTr::tr("Close what isn't needed and try again."));
}

} // namespace

Error DetachedWork::guarded(const std::function<void()> &act)
{
    try {
        act();
    } catch (const std::bad_alloc &) {
        return failure(DetachedWorkTr::tr("there isn't enough memory."));
    } catch (const std::exception &exception) {
        return failure(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        return failure(DetachedWorkTr::tr("the reason isn't known."));
    }
    return Error::NoError;
}

Error DetachedWork::start(std::function<void()> act)
{
    return guarded([&act] {
        std::thread([act = std::move(act)] {
            if (const Error error = guarded(act); error.hasError())
                qCWarning(genericLog).noquote() << error.errorMessage();
        }).detach();
    });
}

} // namespace orv
