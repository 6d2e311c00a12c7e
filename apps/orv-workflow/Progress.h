#pragma once

#include <QElapsedTimer>
#include <QString>

#include <mutex>

namespace orv::cli {

/// A bar on standard error with count or size, rate and time left. It shows itself only when the work takes
/// longer than half a second. Thread safe.
class Progress
{
public:
    enum class Unit
    {
        Items,
        Bytes,
    };

    Progress(bool enabled, qint64 total, Unit unit = Unit::Items);
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    /// One more is done.
    void advance();
    /// So much is done.
    void setDone(qint64 done);

private:
    void drawWhenDue();
    void draw();
    [[nodiscard]] QString textOf(double amount, int decimals) const;

    std::mutex m_mutex;
    QElapsedTimer m_elapsed;
    qint64 m_lastDrawn = -1;
    qint64 m_done = 0;
    const qint64 m_total;
    const Unit m_unit;
    const bool m_enabled;
};

} // namespace orv::cli
