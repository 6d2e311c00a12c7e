#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QMainWindow)
QT_FORWARD_DECLARE_CLASS(QStatusBar)

namespace orv {

/// What was told at the lower left of a window. It stays as long as it may be read, and goes when a person
/// has done something else; tips of menus pass over it. What finds no room ends in an ellipsis, and is whole
/// in the tool tip.
class StatusMessage : public QObject
{
    Q_OBJECT

public:
    StatusMessage(QMainWindow *window, QObject *parent);

    /// Something was done. What was told before the person's last key or click is history; what was told
    /// since then tells of this.
    void outlive();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(const QString &text);
    void setWaiting(bool isWaiting);
    bool showTip(const QString &tip);
    bool paintElided();
    bool explainElided(const QEvent *event);
    [[nodiscard]] QRect room() const;

    QMainWindow *m_window;
    QPointer<QStatusBar> m_bar;
    QString m_told;
    QString m_tip; ///< of the entry of a menu under the pointer
    bool m_isWaiting = false;
};

} // namespace orv
