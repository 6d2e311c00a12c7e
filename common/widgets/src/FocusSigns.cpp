#include "FocusSigns.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QTabBar>
#include <QToolButton>

namespace orv::FocusSigns {

namespace {

QRect frameOf(const QWidget &control)
{
    if (const auto *const tabs = qobject_cast<const QTabBar *>(&control))
        return tabs->tabRect(tabs->currentIndex());
    return qobject_cast<const QToolButton *>(&control) ? control.rect() : QRect();
}

/// Paints over what the control has painted itself.
class FramePainter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || watched != QApplication::focusWidget() || m_isPainting)
            return false;
        auto *const control = static_cast<QWidget *>(watched);
        const QRect frame = frameOf(*control);
        if (frame.isEmpty())
            return false;
        m_isPainting = true;
        watched->event(event);
        m_isPainting = false;
        constexpr int kPen = 2;
        QPainter painter(control);
        painter.setPen(QPen(control->palette().color(QPalette::Highlight), kPen, Qt::SolidLine, Qt::SquareCap,
                            Qt::MiterJoin));
        painter.drawRect(frame.adjusted(1, 1, -1, -1));
        return true;
    }

private:
    bool m_isPainting = false;
};

} // namespace

void install()
{
    const QString name = QStringLiteral("orvFocusSigns");
    if (!qApp || qApp->findChild<QObject *>(name, Qt::FindDirectChildrenOnly))
        return;
    auto *const painter = new FramePainter(qApp);
    painter->setObjectName(name);
    qApp->installEventFilter(painter);
}

} // namespace orv::FocusSigns
