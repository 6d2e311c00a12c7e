#include "EditorApplication.h"
#include "EditorWindow.h"

#include <orv/widgets/CoreMainWindow.h>

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QPointer>

/// The application as it hands over the workflow of a file, for tests that kill it meanwhile: "DOCUMENT
/// PLACE" writes the run to PLACE.run and ends with 0 once it is there.
int main(int argc, char *argv[])
{
    using namespace orv;
    const QApplication application(argc, argv);
    EditorApplication::registerCreators();
    const QStringList arguments = QApplication::arguments();
    QFile file(arguments.value(1));
    PropertyEditor::Content content;
    if (!file.open(QIODevice::ReadOnly) ||
        content.assignFromJson(QJsonDocument::fromJson(file.readAll()).object()).hasError())
        return 2;
    CoreMainWindow mainWindow;
    const QPointer window = new EditorWindow(&mainWindow);
    // No file manager.
    QObject::disconnect(window, &PropertyEditorWindow::openProject, nullptr, nullptr);
    bool isWritten = false;
    QObject::connect(
        window, &PropertyEditorWindow::projectCreationFinished, window,
        [&isWritten](const Error &, const QStringList &runs, qint64) { isWritten = !runs.isEmpty(); });
    window->show();
    Q_EMIT window->sendToProcessing(content, Path(arguments.value(2), Path::Kind::File),
                                    DuplicateFilePolicy::Overwrite);
    delete window;
    return isWritten ? 0 : 1;
}
