#include "ProgressWindow.h"

#include <QApplication>
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
    return seconds < 90 ? ProgressWindow::tr("about %n s left", nullptr, int(seconds))
                        : ProgressWindow::tr("about %n min left", nullptr, int((seconds + 30) / 60));
}

} // namespace

ProgressWindow::ProgressWindow(std::shared_ptr<ProgressState> state, QWidget *parent, bool isCancellable,
                               ProgressOutput::Clock clock)
    : QDialog(parent)
    , m_state(std::move(state))
    , m_clock(clock ? std::move(clock) : systemClock())
    , m_behind(parent ? parent->window() : QApplication::activeWindow())
    // Whoever waits must not be clicked away from meanwhile, and nothing may flash. A modal window that isn't
    // on the screen would catch the focus that comes back from a dialog, and lose it.
    , m_hold(std::make_unique<InputHold>())
    , m_isCancellable(isCancellable)
{
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(parent ? parent->window()->windowTitle() : QCoreApplication::applicationName());
    setObjectName(QStringLiteral("ProgressOutput"));
    build();
    m_beginMs = m_clock();
    m_timer.setInterval(int(kRedrawMs));
    connect(&m_timer, &QTimer::timeout, this, &ProgressWindow::refresh);
    m_timer.start();
}

/// Where the parent takes it along, nobody waits for the work any more.
ProgressWindow::~ProgressWindow()
{
    m_state->isCancelled = true;
    goBack();
}

/// Not every platform activates another window when the active one goes, and keys would reach nobody.
void ProgressWindow::goBack()
{
    const bool isActive = isActiveWindow();
    hide();
    if (isActive && m_behind && m_behind->isVisible())
        m_behind->activateWindow();
}

void ProgressWindow::build()
{
    auto *const layout = new QVBoxLayout(this);
    m_text = new QLabel(m_state->text());
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_bar = new QProgressBar;
    m_bar->setRange(0, 0);
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(m_state->text());
    m_bar->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    m_detail = new QLabel;
    m_detail->setObjectName(QStringLiteral("detail"));
    auto *const row = new QHBoxLayout;
    row->addWidget(m_detail, 1);
    m_cancel = new QPushButton(tr("Cancel"));
    m_cancel->setVisible(m_isCancellable);
    row->addWidget(m_cancel);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addLayout(row);
    connect(m_cancel, &QPushButton::clicked, this, &ProgressWindow::reject);
}

QString ProgressWindow::detailText(qint64 elapsedMs) const
{
    const int all = m_state->count;
    const int done = std::clamp(m_state->done.load(), 0, all);
    if (all == 0)
        return {};
    QString count = tr("%1 of %2").arg(locale().toString(done), locale().toString(all));
    if (done == 0 || done >= all)
        return count;
    const qint64 leftMs = elapsedMs * (all - done) / done;
    return tr("%1, %2").arg(count, timeLeft((leftMs + 999) / 1000));
}

void ProgressWindow::appear()
{
    show();
    m_hold.reset();
}

void ProgressWindow::refresh()
{
    const qint64 elapsed = m_clock() - m_beginMs;
    if (elapsed < ProgressOutput::kDelayMs || (m_drawnMs >= 0 && elapsed - m_drawnMs < kRedrawMs))
        return;
    m_drawnMs = elapsed;
    const QString text = m_state->text();
    m_text->setText(text);
    m_bar->setAccessibleName(text);
    m_bar->setRange(0, m_state->count);
    m_bar->setValue(std::clamp(m_state->done.load(), 0, m_state->count.load()));
    m_detail->setText(m_state->isCancelled ? tr("Stopping...") : detailText(elapsed));
    if (m_hold)
        appear();
}

/// Closing the window stops the work only where that is allowed, and then the work goes on to a good place.
void ProgressWindow::reject()
{
    if (!m_isCancellable)
        return;
    m_state->isCancelled = true;
    m_cancel->setEnabled(false);
    m_detail->setText(tr("Stopping..."));
}

} // namespace orv
