#pragma once

#include "InputHold.h"
#include "ProgressState.h"

#include <orv/widgets/ProgressOutputUtils.h>

#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QProgressBar)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace orv {

/// What people see of a work. Nothing else can be used from its construction on, also before it can be seen.
class ProgressWindow : public QDialog
{
    Q_OBJECT

public:
    ProgressWindow(std::shared_ptr<ProgressState> state, QWidget *parent, bool isCancellable,
                   ProgressOutput::Clock clock);
    ~ProgressWindow() override;

    /// Shows the state, if it is time for that.
    void refresh();

    void reject() override;

private:
    void build();
    void appear();
    void goBack();
    [[nodiscard]] QString detailText(qint64 elapsedMs) const;

    std::shared_ptr<ProgressState> m_state;
    ProgressOutput::Clock m_clock;
    QPointer<QWidget> m_behind;        ///< the window that waits
    std::unique_ptr<InputHold> m_hold; ///< until this window is shown
    QTimer m_timer;
    QLabel *m_text = nullptr;
    QLabel *m_detail = nullptr;
    QProgressBar *m_bar = nullptr;
    QPushButton *m_cancel = nullptr;
    qint64 m_beginMs = 0;
    qint64 m_drawnMs = -1;
    bool m_isCancellable;
};

} // namespace orv
