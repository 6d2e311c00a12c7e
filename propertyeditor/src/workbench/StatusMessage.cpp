#include "StatusMessage.h"

#include <orv/core/PlainTip.h>

#include <QApplication>
#include <QHelpEvent>
#include <QMainWindow>
#include <QPainter>
#include <QSizeGrip>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QStyleOption>
#include <QToolTip>

namespace orv {

namespace {

bool isInput(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: // keys of commands are no presses
    case QEvent::MouseButtonPress:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isCut(const QStatusBar &bar, const QRect &room)
{
    return bar.fontMetrics().horizontalAdvance(bar.currentMessage()) > room.width();
}

} // namespace

StatusMessage::StatusMessage(QMainWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_bar(window->statusBar())
{
    window->installEventFilter(this);
    m_bar->installEventFilter(this);
    connect(m_bar, &QStatusBar::messageChanged, this, &StatusMessage::follow);
    follow(m_bar->currentMessage());
}

void StatusMessage::follow(const QString &text)
{
    if (text == m_told || (!text.isEmpty() && text == m_tip))
        return;
    m_told = text;
    m_bar->setToolTip({});
    setWaiting(!text.isEmpty());
}

/// For the next key or click; the whole application is watched only then.
void StatusMessage::setWaiting(bool isWaiting)
{
    if (isWaiting == m_isWaiting)
        return;
    m_isWaiting = isWaiting;
    if (isWaiting)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

void StatusMessage::outlive()
{
    if (m_isWaiting || m_told.isEmpty() || !m_bar)
        return;
    const bool isShown = m_bar->currentMessage() == m_told;
    m_told.clear();
    m_bar->setToolTip({});
    if (isShown)
        m_bar->clearMessage();
}

bool StatusMessage::eventFilter(QObject *watched, QEvent *event)
{
    if (m_isWaiting && isInput(event))
        setWaiting(false);
    if (watched == m_window && event->type() == QEvent::StatusTip)
        return showTip(static_cast<const QStatusTipEvent *>(event)->tip());
    if (watched == m_bar && event->type() == QEvent::Paint)
        return paintElided();
    if (watched == m_bar && event->type() == QEvent::ToolTip)
        return explainElided(event);
    return QObject::eventFilter(watched, event);
}

/// A pointer that passes over entries of menus doesn't wipe out what was told, and leaves no tip behind.
bool StatusMessage::showTip(const QString &tip)
{
    const bool isTipShown = m_bar && !m_tip.isEmpty() && m_bar->currentMessage() == m_tip;
    m_tip = tip;
    if (tip.isEmpty() && isTipShown)
        m_bar->showMessage(m_told);
    return tip.isEmpty();
}

/// Between the edge and the first part that stands beside the message.
QRect StatusMessage::room() const
{
    constexpr int kMargin = 6;
    QRect room = m_bar->rect().adjusted(kMargin, 0, -kMargin, 0);
    const bool isMirrored = m_bar->isRightToLeft();
    for (const QWidget *part : m_bar->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (!part->isVisible())
            continue;
        if (isMirrored)
            room.setLeft(std::max(room.left(), part->geometry().right() + kMargin));
        else
            room.setRight(std::min(room.right(), part->x() - kMargin));
    }
    return room;
}

bool StatusMessage::paintElided()
{
    const QRect place = room();
    if (!isCut(*m_bar, place))
        return false;
    QStyleOption option;
    option.initFrom(m_bar);
    QPainter painter(m_bar);
    m_bar->style()->drawPrimitive(QStyle::PE_PanelStatusBar, &option, &painter, m_bar);
    const QString text =
        m_bar->fontMetrics().elidedText(m_bar->currentMessage(), Qt::ElideRight, place.width());
    painter.setPen(m_bar->palette().color(QPalette::WindowText));
    painter.drawText(place, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine, text);
    return true;
}

bool StatusMessage::explainElided(const QEvent *event)
{
    // A tip of its own has more to tell.
    if (!m_bar->toolTip().isEmpty() || !isCut(*m_bar, room()))
        return false;
    QToolTip::showText(static_cast<const QHelpEvent *>(event)->globalPos(),
                       PlainTip::of(m_bar->currentMessage()), m_bar);
    return true;
}

} // namespace orv
