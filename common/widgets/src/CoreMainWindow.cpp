#include "orv/widgets/CoreMainWindow.h"

#include "FocusSigns.h"

#include <orv/widgets/CheckBoxLook.h>
#include <orv/widgets/ControlHelp.h>

namespace orv {

namespace {

QList<CoreMainWindow *> &mainWindows()
{
    static QList<CoreMainWindow *> windows;
    return windows;
}

} // namespace

CoreMainWindow::CoreMainWindow(const ApplicationInfo &info, QWidget *parent)
    : QMainWindow(parent)
    , m_info(info)
{
    mainWindows().append(this);
    ControlHelp::install();
    FocusSigns::install();
    CheckBoxLook::install();
}

CoreMainWindow::~CoreMainWindow()
{
    mainWindows().removeOne(this);
}

CoreMainWindow *CoreMainWindow::getMainWindow()
{
    return mainWindows().isEmpty() ? nullptr : mainWindows().constLast();
}

QWidget *CoreMainWindow::windowFor(const QWidget *widget)
{
    if (CoreMainWindow *main = getMainWindow())
        return main;
    return widget ? widget->window() : nullptr;
}

} // namespace orv
