#include "SampleSearch.h"

#include <QFuture>
#include <QPointer>
#include <QPromise>

#include <memory>
#include <thread>
#include <utility>

namespace orv {

namespace {

/// Nobody waits for the thread, as a folder on a network drive may never be read.
QFuture<SampleFileFinder::Found> findInBackground(const QStringList &paths)
{
    auto promise = std::make_shared<QPromise<SampleFileFinder::Found>>();
    QFuture<SampleFileFinder::Found> future = promise->future();
    promise->start();
    std::thread([promise, paths] {
        promise->addResult(SampleFileFinder::find(paths));
        promise->finish();
    }).detach();
    return future;
}

} // namespace

SampleSearch::SampleSearch(QObject *parent)
    : QObject(parent)
    , m_search(new QFutureWatcher<SampleFileFinder::Found>(this))
{
    connect(m_search, &QFutureWatcher<SampleFileFinder::Found>::finished, this, &SampleSearch::tell);
}

SampleSearch::~SampleSearch()
{
    m_search->disconnect(this);
}

void SampleSearch::add(const QStringList &paths)
{
    m_waiting += paths;
    next();
}

void SampleSearch::tell()
{
    const QPointer<SampleSearch> self(this);
    const SampleFileFinder::Found result = m_search->result();
    Q_EMIT found(result);
    if (self)
        next();
}

void SampleSearch::next()
{
    if (m_waiting.isEmpty() || m_search->isRunning())
        return;
    m_search->setFuture(findInBackground(std::exchange(m_waiting, {})));
    Q_EMIT started();
}

} // namespace orv
