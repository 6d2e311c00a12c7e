#pragma once

#include <orv/widgets/Export.h>

#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

class ProgressState;
class ProgressWindow;

/// What a work tells about itself while it runs, and hears. Any thread.
class ORV_PROPERTY_EDITOR_EXPORT ProgressReporter
{
public:
    explicit ProgressReporter(std::shared_ptr<ProgressState> state);

    void setText(const QString &text);
    /// How many steps there are; 0 for a work of unknown size.
    void setCount(int count);
    /// So many steps are done. Called as often as one likes.
    void setDone(int done);
    /// Whether somebody wants it to stop at the next good place.
    [[nodiscard]] bool isCancelled() const;

private:
    std::shared_ptr<ProgressState> m_state;
};

/// A window that shows how far some work is. From its construction on nothing else of the application can be
/// used; it appears when 300 ms have passed, never for shorter work, and goes with this object. Events are
/// handled while run() or runInSlices() waits, or another loop that waits for a server.
///
/// \code
///     const auto progress = ProgressOutputUtils::createAndShowProgress(tr("Checking..."), this, false);
///     progress->run([&](ProgressReporter &) { findings = validate(copy); });
/// \endcode
/// GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ProgressOutput
{
public:
    static constexpr int kDelayMs = 300;

    enum class Outcome
    {
        Done,
        Cancelled, ///< somebody wanted it to stop; what was done is the work's to say
    };

    /// Milliseconds from any beginning.
    using Clock = std::function<qint64()>;
    using Work = std::function<void(ProgressReporter &reporter)>;
    /// Does a few milliseconds of a work; false when nothing is left to do.
    using Slice = std::function<bool(ProgressReporter &reporter)>;

    /// When \a parent goes before this, the work is told to stop. A null \a clock is that of the system.
    ProgressOutput(const QString &text, QWidget *parent, bool isCancellable, Clock clock = {});
    ~ProgressOutput();
    Q_DISABLE_COPY_MOVE(ProgressOutput)

    /// Does \a work on a thread of its own, and waits for it in the modal loop. Waits for its end in any
    /// case, also when the application is told to quit.
    Outcome run(const Work &work);

    /// Does a work that has to stay on this thread, slice by slice between events, until the last one or
    /// until somebody wants it to stop.
    Outcome runInSlices(const Slice &slice);

    /// For a work that is done while another loop waits.
    [[nodiscard]] ProgressReporter reporter() const;

private:
    std::shared_ptr<ProgressState> m_state;
    QPointer<ProgressWindow> m_window;
};

namespace ProgressOutputUtils {

/// The window goes when the pointer does.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT std::unique_ptr<ProgressOutput>
createAndShowProgress(const QString &text, QWidget *parent, bool isCancellable);

} // namespace ProgressOutputUtils

} // namespace orv
