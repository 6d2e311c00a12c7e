// The desktop application up to a painted window, in a folder of its own: what bench_window runs.
//   editor_program FOLDER FILE          starts, opens the file and ends once the window is painted
//   editor_program FOLDER FILE ROUNDS   opens and closes it so many times, and prints the memory in use, in
//   kB

#include "EditorApplication.h"
#include "EditorWindow.h"
#include "ProcessMemory.h"

#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/widgets/CoreMainWindow.h>

#include <QApplication>
#include <QLocale>
#include <QPointer>
#include <QStandardPaths>

#include <cstdio>

namespace {

bool showFile(orv::EditorWindow *window, const QString &file)
{
    window->show();
    window->offerRecovery();
    window->openFiles({file});
    QCoreApplication::processEvents();
    return window->workflowTabs()->count() > 0 && !window->grab().isNull();
}

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

int main(int argc, char *argv[])
{
    QStandardPaths::setTestModeEnabled(true);
    orv::EditorApplication::setNames();
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3)
        return 2;
    orv::EditorApplication::installTranslations(QLocale());
    orv::EditorApplication::setIcons();
    orv::EditorApplication::registerCreators();
    orv::CoreMainWindow mainWindow;
    const auto recovery = std::make_shared<orv::RecoveryStore>(arguments.at(1));
    const int rounds = arguments.value(3, QStringLiteral("0")).toInt();
    if (rounds == 0) {
        auto *const window = new orv::EditorWindow(&mainWindow, recovery);
        const bool isShown = showFile(window, arguments.at(2));
        delete window;
        return isShown ? 0 : 1;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    for (int round = 0; round < rounds; ++round) {
        const QPointer<orv::EditorWindow> window = new orv::EditorWindow(&mainWindow, recovery);
        if (!showFile(window, arguments.at(2)))
            return 1;
        window->close();
        settle();
        if (window)
            return 1;
    }
    std::printf("%ld\n", ProcessMemory::heldKilobytes());
    return 0;
}
