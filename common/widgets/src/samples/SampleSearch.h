#pragma once

#include <orv/core/Result.h>
#include <orv/core_ms/SampleFileFinder.h>

#include <QFutureWatcher>
#include <QObject>
#include <QStringList>

namespace orv {

/// Looks for samples among files and folders in the background, one request after the other, so that a drive
/// that never answers keeps one thread. It can go at any time. GUI thread.
class SampleSearch : public QObject
{
    Q_OBJECT

public:
    explicit SampleSearch(QObject *parent);
    ~SampleSearch() override;

    void add(const QStringList &paths);

Q_SIGNALS:
    void started();
    void found(const orv::SampleFileFinder::Found &found);
    void failed(const orv::Error &error);

private:
    void tell();
    void next();

    QFutureWatcher<Result<SampleFileFinder::Found>> *const m_search;
    QStringList m_waiting;
};

} // namespace orv
