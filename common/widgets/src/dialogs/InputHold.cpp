#include "InputHold.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <array>

namespace orv {

namespace {

/// What arrives at windows.
constexpr std::array kInputOfWindows = {
    QEvent::MouseButtonPress,
    QEvent::MouseButtonRelease,
    QEvent::MouseButtonDblClick,
    QEvent::MouseMove,
    QEvent::Wheel,
    QEvent::KeyPress,
    QEvent::KeyRelease,
    QEvent::ContextMenu,
    QEvent::TouchBegin,
    QEvent::TouchUpdate,
    QEvent::TouchEnd,
    QEvent::TabletPress,
    QEvent::TabletMove,
    QEvent::TabletRelease,
    QEvent::NativeGesture,
    QEvent::DragEnter,
    QEvent::DragMove,
    QEvent::Drop,
    QEvent::Close,
};

/// What passes windows by: it arrives at what has the focus, or at what a key stands for.
constexpr std::array kInputOfObjects = {QEvent::Shortcut, QEvent::ShortcutOverride, QEvent::InputMethod};

bool isInput(const QObject &watched, QEvent::Type type)
{
    return std::ranges::find(kInputOfObjects, type) != kInputOfObjects.end() ||
           (watched.isWindowType() && std::ranges::find(kInputOfWindows, type) != kInputOfWindows.end());
}

} // namespace

InputHold::InputHold()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isModal() && window->isVisible())
            m_modalBefore.append(window);
    }
    qApp->installEventFilter(this);
}

bool InputHold::isAnsweredElsewhere() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal && !m_modalBefore.contains(modal);
}

bool InputHold::eventFilter(QObject *watched, QEvent *event)
{
    if (!isInput(*watched, event->type()) || isAnsweredElsewhere())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace orv
