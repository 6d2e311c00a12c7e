#pragma once

#include <QMutex>
#include <QString>

#include <atomic>

namespace orv {

/// How far a work is, shared by the thread that does it and the window that shows it.
class ProgressState
{
public:
    explicit ProgressState(const QString &text)
        : m_text(text)
    {}

    [[nodiscard]] QString text() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_text;
    }
    void setText(const QString &text)
    {
        const QMutexLocker lock(&m_mutex);
        m_text = text;
    }

    std::atomic<int> count = 0;
    std::atomic<int> done = 0;
    std::atomic<bool> isCancelled = false;

private:
    mutable QMutex m_mutex;
    QString m_text;
};

} // namespace orv
