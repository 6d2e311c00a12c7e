#pragma once

#include <QElapsedTimer>
#include <QString>

#include <mutex>

namespace orv::cli {

/// A bar on standard error with count, rate and time left. It shows itself only when the work takes longer
/// than half a second. Thread safe.
class Progress
{
public:
    Progress(bool enabled, qsizetype total);
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    /// One more is done.
    void advance();

private:
    void draw();

    std::mutex m_mutex;
    QElapsedTimer m_elapsed;
    qint64 m_lastDrawn = -1;
    qsizetype m_done = 0;
    const qsizetype m_total;
    const bool m_enabled;
};

} // namespace orv::cli
