#include "orv/widgets/ProgressOutputUtils.h"

#include "ProgressState.h"
#include "ProgressWindow.h"

#include <orv/widgets/DialogService.h>

#include <QEventLoop>
#include <QThread>
#include <QTimer>

namespace orv {

ProgressReporter::ProgressReporter(std::shared_ptr<ProgressState> state)
    : m_state(std::move(state))
{}

void ProgressReporter::setText(const QString &text)
{
    m_state->setText(text);
}

void ProgressReporter::setCount(int count)
{
    m_state->count = std::max(0, count);
}

void ProgressReporter::setDone(int done)
{
    m_state->done = done;
}

bool ProgressReporter::isCancelled() const
{
    return m_state->isCancelled;
}

ProgressOutput::ProgressOutput(const QString &text, QWidget *parent, bool isCancellable, Clock clock)
    : m_state(std::make_shared<ProgressState>(text))
    , m_window(new ProgressWindow(m_state, parent, isCancellable, std::move(clock)))
{}

ProgressOutput::~ProgressOutput()
{
    delete m_window;
}

ProgressReporter ProgressOutput::reporter() const
{
    return ProgressReporter(m_state);
}

ProgressOutput::Outcome ProgressOutput::run(const Work &work)
{
    // This object may go while the loop runs, the work's end may not be missed.
    const std::shared_ptr<ProgressState> state = m_state;
    const std::unique_ptr<QThread> thread(QThread::create([&work, state] {
        ProgressReporter reporter(state);
        work(reporter);
    }));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    DialogService::wait(loop);
    if (!thread->isFinished()) {
        state->isCancelled = true;
        thread->wait();
    }
    return state->isCancelled ? Outcome::Cancelled : Outcome::Done;
}

ProgressOutput::Outcome ProgressOutput::runInSlices(const Slice &slice)
{
    const std::shared_ptr<ProgressState> state = m_state;
    const QPointer<ProgressWindow> window = m_window;
    bool isDone = false;
    QEventLoop loop;
    QTimer next;
    QObject::connect(&next, &QTimer::timeout, &loop, [&] {
        ProgressReporter reporter(state);
        isDone = !state->isCancelled && !slice(reporter);
        if (isDone || state->isCancelled)
            loop.quit();
        else
            window->refresh();
    });
    next.start(0);
    if (window)
        DialogService::wait(loop);
    return isDone ? Outcome::Done : Outcome::Cancelled;
}

namespace ProgressOutputUtils {

std::unique_ptr<ProgressOutput> createAndShowProgress(const QString &text, QWidget *parent,
                                                      bool isCancellable)
{
    return std::make_unique<ProgressOutput>(text, parent, isCancellable);
}

} // namespace ProgressOutputUtils

} // namespace orv
