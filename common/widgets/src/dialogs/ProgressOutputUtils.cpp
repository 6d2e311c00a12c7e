#include "orv/widgets/ProgressOutputUtils.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace orv {

namespace {

/// Drawing more often than people see would only slow the work.
constexpr qint64 kRedrawMs = 50;

ProgressOutput::Clock systemClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

QString timeLeft(qint64 seconds)
{
    return seconds < 90 ? ProgressOutput::tr("about %1 s left").arg(seconds)
                        : ProgressOutput::tr("about %1 min left").arg((seconds + 30) / 60);
}

} // namespace

ProgressOutput::ProgressOutput(const QString &text, QWidget *parent, bool isCancellable, Clock clock)
    : QDialog(parent)
    , m_clock(clock ? std::move(clock) : systemClock())
{
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(parent ? parent->window()->windowTitle() : QCoreApplication::applicationName());
    setObjectName(QStringLiteral("ProgressOutput"));
    build(text, isCancellable);
    m_beginMs = m_clock();
}

void ProgressOutput::build(const QString &text, bool isCancellable)
{
    auto *const layout = new QVBoxLayout(this);
    m_text = new QLabel(text);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_bar = new QProgressBar;
    m_bar->setRange(0, 0);
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(text);
    m_bar->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    m_detail = new QLabel;
    m_detail->setObjectName(QStringLiteral("detail"));
    auto *const row = new QHBoxLayout;
    row->addWidget(m_detail, 1);
    m_cancel = new QPushButton(tr("Cancel"));
    m_cancel->setVisible(isCancellable);
    row->addWidget(m_cancel);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addLayout(row);
    connect(m_cancel, &QPushButton::clicked, this, &ProgressOutput::reject);
}

void ProgressOutput::setText(const QString &text)
{
    m_text->setText(text);
    m_bar->setAccessibleName(text);
}

void ProgressOutput::setCount(int count)
{
    m_count = std::max(0, count);
    m_bar->setRange(0, m_count);
}

QString ProgressOutput::detailText(qint64 elapsedMs) const
{
    if (m_count == 0)
        return {};
    QString count = tr("%1 of %2").arg(locale().toString(m_done), locale().toString(m_count));
    if (m_done == 0 || m_done >= m_count)
        return count;
    const qint64 leftMs = elapsedMs * (m_count - m_done) / m_done;
    return tr("%1, %2").arg(count, timeLeft((leftMs + 999) / 1000));
}

void ProgressOutput::setDone(int done)
{
    m_done = std::clamp(done, 0, m_count);
    const qint64 elapsed = m_clock() - m_beginMs;
    if (elapsed < kDelayMs || (m_drawnMs >= 0 && elapsed - m_drawnMs < kRedrawMs))
        return;
    m_drawnMs = elapsed;
    m_bar->setValue(m_done);
    m_detail->setText(m_isCancelled ? tr("Stopping...") : detailText(elapsed));
    if (!isVisible())
        show();
    // The caller keeps the thread, so only here can the window draw and hear its button; being modal, it
    // alone is heard.
    QCoreApplication::processEvents(QEventLoop::AllEvents, int(kRedrawMs));
}

/// Closing the window stops the work only where that is allowed, and then the work goes on to a good place.
void ProgressOutput::reject()
{
    if (m_cancel->isHidden())
        return;
    m_isCancelled = true;
    m_cancel->setEnabled(false);
    m_detail->setText(tr("Stopping..."));
}

namespace ProgressOutputUtils {

std::unique_ptr<ProgressOutput> createAndShowProgress(const QString &text, QWidget *parent,
                                                      bool isCancellable)
{
    return std::make_unique<ProgressOutput>(text, parent, isCancellable);
}

} // namespace ProgressOutputUtils

} // namespace orv
