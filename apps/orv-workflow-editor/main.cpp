#include "EditorApplication.h"
#include "EditorArguments.h"
#include "EditorWindow.h"

#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/widgets/CoreMainWindow.h>

#include <QApplication>

#include <cstdio>

namespace {

/// Help and the version, which need no screen.
std::optional<orv::EditorArguments::Answer> answerWithoutScreen(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    orv::EditorApplication::installTranslations(QLocale());
    const orv::EditorArguments arguments = orv::readEditorArguments(QCoreApplication::arguments());
    // Qt takes options of its own, which look wrong here.
    const bool isRight = arguments.answer && arguments.answer->exitCode == 0;
    return isRight ? arguments.answer : std::nullopt;
}

int tell(const orv::EditorArguments::Answer &answer)
{
    FILE *stream = answer.exitCode == 0 ? stdout : stderr;
    (void)std::fputs(answer.text.toLocal8Bit().constData(), stream);
    return answer.exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    orv::EditorApplication::setNames();
    if (const auto answer = answerWithoutScreen(argc, argv))
        return tell(*answer);
    const QApplication application(argc, argv);
    orv::EditorApplication::installTranslations(QLocale());
    const orv::EditorArguments arguments = orv::readEditorArguments(QApplication::arguments());
    if (arguments.answer)
        return tell(*arguments.answer);
    orv::EditorApplication::setIcons();
    orv::EditorApplication::registerCreators();
    orv::CoreMainWindow mainWindow;
    const auto recovery = std::make_shared<orv::RecoveryStore>(orv::RecoveryStore::defaultFolder());
    auto *const window = new orv::EditorWindow(&mainWindow, recovery);
    window->show();
    window->offerRecovery();
    window->openFiles(arguments.files);
    return QApplication::exec();
}
