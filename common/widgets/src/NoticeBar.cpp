#include "NoticeBar.h"

#include "LongText.h"

#include <orv/widgets/Icons.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QStyle>

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
    hide();
}

void NoticeBar::setText(const QString &text, Kind kind)
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    const QIcon sign = Icons::icon(kind == Kind::Error ? IconName::Error : IconName::Warning);
    m_sign->setPixmap(sign.pixmap(QSize(side, side), devicePixelRatioF()));
    m_text->setText(beginningOf(text));
    m_text->setAccessibleName(m_text->text());
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

} // namespace orv
