#include "WindowFixture.h"

#include <orv/propertyeditor/workbench/JournalKeeper.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>

#include <QApplication>
#include <QTimer>

#include <cstdio>

/// A program that edits until it is killed, for tests of what is left behind. Tells each edit by its number
/// and its time. "journal FOLDER" writes as fast as it can, "window FOLDER FILE" edits a window.

using namespace orv;

namespace {

void tellEdit(int number)
{
    std::printf("%d %lld\n", number, static_cast<long long>(QDateTime::currentMSecsSinceEpoch()));
    std::fflush(stdout);
}

QJsonObject numbered(int number)
{
    return WindowFixture::metadata("5.47.0", QByteArray::number(number).constData());
}

int writeForEver(const QString &folder)
{
    RecoveryStore store(folder);
    const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
    journal->begin({}, {});
    for (int number = 1;; ++number) {
        journal->write(PropertyEditorContent(
            WindowFixture::documentOf({WindowFixture::karvonCell()}, numbered(number))));
        tellEdit(number);
        QThread::msleep(3);
    }
}

int editForEver(const QString &folder, const QString &file)
{
    WindowFixture::Window window;
    new JournalKeeper(&window, std::make_shared<RecoveryStore>(folder),
                      {[&window] { return window.content(); },
                       [&window] { return window.state().getLastSavedWorkflow(); }});
    if (window.openWorkflow(file) != WindowFixture::kOpened)
        return 1;
    int number = 0;
    QTimer edits;
    QObject::connect(&edits, &QTimer::timeout, &window, [&window, &number] {
        window.state().setWorkflowMetadata(numbered(++number));
        Q_EMIT window.metadataEdited();
        tellEdit(number);
    });
    edits.start(15);
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("journal"))
        return writeForEver(arguments.at(2));
    if (arguments.size() == 4 && arguments.at(1) == QLatin1String("window"))
        return editForEver(arguments.at(2), arguments.at(3));
    return 2;
}
