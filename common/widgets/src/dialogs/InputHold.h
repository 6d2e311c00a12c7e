#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// While it lives, nothing that a person does reaches the windows of the application: pointer, keys, drops
/// and closing are dropped. A modal window that opens meanwhile can be used. GUI thread.
class InputHold : public QObject
{
    Q_OBJECT

public:
    InputHold();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isAnsweredElsewhere() const;

    QList<QPointer<QWidget>> m_modalBefore;
};

} // namespace orv
