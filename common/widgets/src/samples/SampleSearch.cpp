#include "SampleSearch.h"

#include <orv/core/DetachedWork.h>

#include <QPointer>

#include <utility>

namespace orv {

SampleSearch::SampleSearch(QObject *parent)
    : QObject(parent)
    , m_search(new QFutureWatcher<Result<SampleFileFinder::Found>>(this))
{
    connect(m_search, &QFutureWatcher<Result<SampleFileFinder::Found>>::finished, this, &SampleSearch::tell);
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
    Result<SampleFileFinder::Found> result = m_search->result();
    if (result.hasError())
        Q_EMIT failed(result.ecatch());
    else
        Q_EMIT found(*result);
    if (self)
        next();
}

void SampleSearch::next()
{
    if (m_waiting.isEmpty() || m_search->isRunning())
        return;
    // Nobody waits for the thread, as a folder on a network drive may never be read.
    m_search->setFuture(DetachedWork::run<SampleFileFinder::Found>(
        [paths = std::exchange(m_waiting, {})] { return SampleFileFinder::find(paths); }));
    Q_EMIT started();
}

} // namespace orv
