#pragma once

#include <QWidget>

namespace orv {

/// The content of a panel that Escape leaves.
class LeavablePanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    /// Escape, which goes on to what stands around the panel.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace orv
