#include "ElidedLine.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace orv {

QRect ElidedLine::textRect() const
{
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    // As much as a line keeps free on both sides.
    constexpr int kBesideText = 2;
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &frame, this)
        .marginsRemoved(textMargins())
        .adjusted(kBesideText, 0, -kBesideText, 0);
}

bool ElidedLine::isCut() const
{
    return fontMetrics().horizontalAdvance(text()) > textRect().width();
}

bool ElidedLine::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QLineEdit::event(event);
    const QString about = toolTip().isEmpty() && parentWidget() ? parentWidget()->toolTip() : toolTip();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       QStringLiteral("<b>%1</b><br>%2").arg(text().toHtmlEscaped(), about.toHtmlEscaped()),
                       this);
    return true;
}

void ElidedLine::paintEvent(QPaintEvent *event)
{
    if (hasFocus() || !isCut()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    painter.setPen(palette().color(QPalette::Text));
    const QRect room = textRect();
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

} // namespace orv
