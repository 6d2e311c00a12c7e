#include "MessageBox.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>

namespace orv {

void MessageBox::setBelow(QWidget *below)
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    if (!grid || !below)
        return;
    m_below = below;
    const int row = grid->rowCount();
    grid->addWidget(below, row, 0, 1, grid->columnCount());
    // The room that is left is for what one looks through, not for the text.
    for (int above = 0; above < row; ++above)
        grid->setRowStretch(above, 0);
    grid->setRowStretch(row, 1);
    setSizeGripEnabled(true);
}

/// What the screen has for a window with its frame.
QSize MessageBox::room() const
{
    constexpr int kInTenths = 9;
    return screen()->availableSize() * kInTenths / 10;
}

void MessageBox::makeTextScroll()
{
    auto *label = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (m_text || !label)
        return;
    m_text = new QScrollArea;
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setWidgetResizable(true);
    m_text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_text->setFocusPolicy(Qt::NoFocus);
    delete layout()->replaceWidget(label, m_text);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_text->setWidget(label);
    label->show();
}

/// Undoes that the box fixed its size by all of its text, which no screen may have.
void MessageBox::openUp()
{
    const QSize most = room();
    const QSize wanted = size().expandedTo(layout()->totalSizeHint()).boundedTo(most);
    makeTextScroll();
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    setMinimumSize(0, 0);
    setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    if (m_text) {
        // What stands beside the text is about as wide as the icon and two margins.
        const int beside = wanted.width() / 8;
        const int lines = m_text->widget()->heightForWidth(wanted.width() - beside);
        m_text->setMinimumHeight(std::min(lines, m_below ? most.height() / 4 : most.height() / 2));
        m_text->setSizePolicy(QSizePolicy::Expanding,
                              m_below ? QSizePolicy::Maximum : QSizePolicy::Expanding);
    }
    layout()->activate();
    setMinimumSize(layout()->totalMinimumSize().boundedTo(most));
    resize(wanted);
}

bool MessageBox::event(QEvent *event)
{
    // The box would fix its size again; its layout has been told already.
    if (m_text && event->type() == QEvent::LayoutRequest)
        return true;
    return QMessageBox::event(event);
}

void MessageBox::showEvent(QShowEvent *event)
{
    QMessageBox::showEvent(event);
    if (m_below || height() > room().height())
        openUp();
}

} // namespace orv
