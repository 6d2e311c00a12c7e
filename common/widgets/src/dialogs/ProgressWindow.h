#pragma once

#include "ProgressState.h"

#include <orv/widgets/ProgressOutputUtils.h>

#include <QDialog>
#include <QTimer>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QProgressBar)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace orv {

/// What people see of a work. It is modal before it can be seen.
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
    [[nodiscard]] QString detailText(qint64 elapsedMs) const;

    std::shared_ptr<ProgressState> m_state;
    ProgressOutput::Clock m_clock;
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
