#include "NoticeBar.h"

#include <orv/widgets/MeaningColors.h>

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace orv {

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent)
    , m_sign(new QLabel)
    , m_text(new QLabel)
{
    setFrameShape(StyledPanel);
    m_text->setObjectName(QStringLiteral("notice"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(m_sign);
    layout->addWidget(m_text, 1);
    paintSign();
    hide();
}

void NoticeBar::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setAccessibleName(text);
    setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    QAccessibleEvent event(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

QString NoticeBar::text() const
{
    return m_text->text();
}

void NoticeBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintSign();
}

void NoticeBar::paintSign()
{
    const int side = fontMetrics().height();
    QPixmap pixmap(QSize(side, side) * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    MeaningColors::paintErrorSign(painter, QRect(0, 0, side, side), MeaningColors::error(palette()));
    painter.end();
    m_sign->setPixmap(pixmap);
}

} // namespace orv
