#include "Progress.h"

#include <QLocale>

#include <cmath>
#include <cstdio>

namespace orv::cli {

namespace {

constexpr qint64 kSilentMilliseconds = 500;
constexpr qint64 kRedrawMilliseconds = 100;
constexpr int kBarWidth = 30;

QString timeText(double seconds)
{
    const auto whole = std::llround(seconds);
    return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

Progress::Progress(bool enabled, qint64 total, Unit unit)
    : m_total(total)
    , m_unit(unit)
    , m_enabled(enabled && total > 1)
{
    m_elapsed.start();
}

Progress::~Progress()
{
    if (m_lastDrawn >= 0)
        std::fputs("\r\x1b[K", stderr);
}

void Progress::advance()
{
    if (!m_enabled)
        return;
    const std::lock_guard lock(m_mutex);
    ++m_done;
    drawWhenDue();
}

void Progress::setDone(qint64 done)
{
    if (!m_enabled)
        return;
    const std::lock_guard lock(m_mutex);
    m_done = done;
    drawWhenDue();
}

void Progress::drawWhenDue()
{
    const qint64 now = m_elapsed.elapsed();
    const bool due = m_lastDrawn < 0 ? now >= kSilentMilliseconds : now - m_lastDrawn >= kRedrawMilliseconds;
    if (!due)
        return;
    m_lastDrawn = now;
    draw();
}

QString Progress::textOf(double amount, int decimals) const
{
    return m_unit == Unit::Items ? QString::number(amount, 'f', decimals)
                                 : QLocale::c().formattedDataSize(qint64(amount), 1);
}

void Progress::draw()
{
    const double seconds = double(m_elapsed.elapsed()) / 1000.0;
    const double rate = double(m_done) / seconds;
    const int filled = int(kBarWidth * m_done / m_total);
    const QString bar = QString(filled, QLatin1Char('#')) + QString(kBarWidth - filled, QLatin1Char('.'));
    const QString line = QStringLiteral("\r[%1] %2/%3  %4/s  %5 left\x1b[K")
                             .arg(bar)
                             .arg(textOf(double(m_done), 0), textOf(double(m_total), 0), textOf(rate, 1))
                             .arg(timeText(double(m_total - m_done) / rate));
    std::fputs(line.toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
}

} // namespace orv::cli
