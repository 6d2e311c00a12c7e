#include "PanelFocus.h"

#include <QApplication>
#include <QChildEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

namespace orv {

namespace {

bool takesKeys(const QWidget *widget)
{
    return widget && widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

/// Main windows move panels behind others, and bars of tabs without a tab, out of their own rectangle.
bool isInSight(const QWidget *part)
{
    return part->geometry().right() >= 0 && part->geometry().bottom() >= 0;
}

void passOverOutOfSight(QWidget *part)
{
    if (auto *panel = qobject_cast<QDockWidget *>(part); panel && panel->widget())
        panel->widget()->setVisible(panel->isFloating() || isInSight(panel));
    else if (qobject_cast<QTabBar *>(part))
        part->setFocusPolicy(isInSight(part) ? Qt::TabFocus : Qt::NoFocus);
}

} // namespace

PanelFocus::PanelFocus(QMainWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, &PanelFocus::follow);
    window->installEventFilter(this);
    follow(nullptr, QApplication::focusWidget());
}

void PanelFocus::watch(QDockWidget *panel)
{
    panel->installEventFilter(this);
    connect(panel, &QDockWidget::visibilityChanged, this, [panel] { passOverOutOfSight(panel); });
}

bool PanelFocus::eventFilter(QObject *watched, QEvent *event)
{
    auto *part = qobject_cast<QWidget *>(watched);
    if (watched == m_window && event->type() == QEvent::ChildPolished) {
        if (auto *bar = qobject_cast<QTabBar *>(static_cast<QChildEvent *>(event)->child()))
            bar->installEventFilter(this);
    } else if (part && part != m_window && (event->type() == QEvent::Move || event->type() == QEvent::Show)) {
        passOverOutOfSight(part);
    }
    return QObject::eventFilter(watched, event);
}

void PanelFocus::enter(QDockWidget *panel)
{
    // A panel without a proxy has nothing that keys could do.
    if (panel->widget() && panel->widget()->focusProxy())
        panel->widget()->setFocus(Qt::ShortcutFocusReason);
}

void PanelFocus::leave(const QDockWidget *panel) const
{
    for (const Place &place : m_places) {
        if (place.panel == panel)
            continue;
        // It may lie behind the one that is left.
        if (place.panel && !place.panel->isHidden()) {
            place.panel->raise();
            place.panel->widget()->show();
        }
        for (const QPointer<QWidget> &widget : place.widgets) {
            // Whoever hears of it may close the window.
            if (takesKeys(widget))
                return widget->setFocus(Qt::OtherFocusReason);
        }
    }
}

QDockWidget *PanelFocus::panelOf(QWidget *widget) const
{
    for (; widget && widget != m_window; widget = widget->parentWidget()) {
        if (auto *panel = qobject_cast<QDockWidget *>(widget))
            return panel;
    }
    return nullptr;
}

void PanelFocus::follow(QWidget *before, QWidget *now)
{
    const bool isPassing = !now || qobject_cast<QMenu *>(now) || qobject_cast<QMenuBar *>(now);
    if (isPassing || !m_window || !m_window->isAncestorOf(now))
        return;
    const QPointer<QDockWidget> closed = panelOf(before);
    // What falls behind another panel hands the keys on to whatever comes next, too.
    const bool fellBehind = closed && closed->isVisible() && !before->isVisible() && panelOf(now) != closed;
    if (fellBehind)
        return;
    if (!closed || closed->isVisible())
        return remember(now);
    // It hands the keys on to whatever comes next.
    const auto giveBack = [this, closed, now = QPointer(now)] {
        if (now && now == QApplication::focusWidget() && !panelOf(now))
            leave(closed);
    };
    QMetaObject::invokeMethod(this, giveBack, Qt::QueuedConnection);
}

void PanelFocus::remember(QWidget *now)
{
    Place place{panelOf(now), {}};
    m_places.removeIf([&place](const Place &each) { return each.panel == place.panel; });
    for (QWidget *widget = now; widget && widget != m_window; widget = widget->parentWidget())
        place.widgets.append(widget);
    m_places.prepend(place);
}

} // namespace orv
