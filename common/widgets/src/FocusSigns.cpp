#include "FocusSigns.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QScrollArea>
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

void drawFrame(QWidget *control, const QRect &frame)
{
    constexpr int kPen = 2;
    QPainter painter(control);
    painter.setPen(QPen(control->palette().color(QPalette::Highlight), kPen, Qt::SolidLine, Qt::SquareCap,
                        Qt::MiterJoin));
    painter.drawRect(frame.adjusted(1, 1, -1, -1));
}

/// What lies above all parts of a control, for those whose own painting is covered by their parts.
class FrameAbove : public QWidget
{
public:
    explicit FrameAbove(QWidget *control)
        : QWidget(control)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        control->installEventFilter(this);
        setGeometry(control->rect());
        raise();
        show();
    }

    static bool isFor(const QWidget *control)
    {
        if (const auto *const list = qobject_cast<const QAbstractItemView *>(control))
            return qobject_cast<const QHeaderView *>(list) || !list->currentIndex().isValid();
        return qobject_cast<const QScrollArea *>(control) || qobject_cast<const QLabel *>(control);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parent() && event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        return false;
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (isFor(parentWidget()))
            drawFrame(this, rect());
    }
};

void moveFrame(QPointer<FrameAbove> *frame, QWidget *now)
{
    delete *frame;
    if (FrameAbove::isFor(now))
        *frame = new FrameAbove(now);
}

/// Paints over what the control has painted itself.
class FramePainter : public QObject
{
public:
    explicit FramePainter(QApplication *application)
        : QObject(application)
    {
        connect(application, &QApplication::focusChanged, this,
                [this](QWidget *, QWidget *now) { moveFrame(&m_above, now); });
    }

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
        drawFrame(control, frame);
        return true;
    }

private:
    QPointer<FrameAbove> m_above;
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
