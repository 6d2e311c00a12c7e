#include "YieldingShortcuts.h"

#include <QAction>
#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace orv {

namespace {

bool isTaken(const QKeySequence &shortcut, const QWidget *focus)
{
    for (const QWidget *widget = focus; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        const auto takes = [&shortcut](const QAction *own) {
            return own->shortcutContext() != Qt::WindowShortcut && own->shortcuts().contains(shortcut);
        };
        if (std::ranges::any_of(widget->actions(), takes))
            return true;
    }
    return false;
}

} // namespace

void YieldingShortcuts::set(QAction *action, const QList<QKeySequence> &shortcuts)
{
    const auto adapt = [action, shortcuts](const QWidget *, const QWidget *focus) {
        QList<QKeySequence> free;
        std::ranges::copy_if(shortcuts, std::back_inserter(free),
                             [focus](const QKeySequence &each) { return !isTaken(each, focus); });
        if (free != action->shortcuts())
            action->setShortcuts(free);
    };
    QObject::connect(qApp, &QApplication::focusChanged, action, adapt);
    adapt(nullptr, QApplication::focusWidget());
}

} // namespace orv
