#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QProgressBar)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace orv {

/// A window that shows how far some work is, which its caller does in steps. It appears when the work has
/// taken 300 ms, and never for shorter work; while it shows, each step lets the application draw and hear the
/// Cancel button, and nothing else of it can be used. It goes with its owner. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ProgressOutput : public QDialog
{
    Q_OBJECT

public:
    static constexpr int kDelayMs = 300;

    /// Milliseconds from any beginning.
    using Clock = std::function<qint64()>;

    /// A null \a clock is that of the system.
    ProgressOutput(const QString &text, QWidget *parent, bool isCancellable, Clock clock = {});

    void setText(const QString &text);
    /// How many steps there are; 0 for a work of unknown size.
    void setCount(int count);
    /// So many steps are done. Called as often as one likes.
    void setDone(int done);
    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }

    void reject() override;

private:
    void build(const QString &text, bool isCancellable);
    [[nodiscard]] QString detailText(qint64 elapsedMs) const;

    Clock m_clock;
    QLabel *m_text = nullptr;
    QLabel *m_detail = nullptr;
    QProgressBar *m_bar = nullptr;
    QPushButton *m_cancel = nullptr;
    qint64 m_beginMs = 0;
    qint64 m_drawnMs = -1;
    int m_count = 0;
    int m_done = 0;
    bool m_isCancelled = false;
};

namespace ProgressOutputUtils {

/// The window goes when the pointer does.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT std::unique_ptr<ProgressOutput>
createAndShowProgress(const QString &text, QWidget *parent, bool isCancellable);

} // namespace ProgressOutputUtils

} // namespace orv
