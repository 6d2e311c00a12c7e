#include "orv/core/OrvApplication.h"

#include <QCoreApplication>

#include <atomic>

namespace orv::OrvApplication {

namespace {

enum class Told
{
    Nothing,
    Console,
    Windows,
};

std::atomic<Told> told = Told::Nothing;

} // namespace

bool isConsoleApplication()
{
    if (const Told now = told.load(); now != Told::Nothing)
        return now == Told::Console;
    const QCoreApplication *application = QCoreApplication::instance();
    // By name, since this library needs no Qt Gui.
    return !application || !application->inherits("QGuiApplication");
}

void setConsoleApplication(std::optional<bool> isConsole)
{
    if (isConsole)
        told = *isConsole ? Told::Console : Told::Windows;
    else
        told = Told::Nothing;
}

} // namespace orv::OrvApplication
