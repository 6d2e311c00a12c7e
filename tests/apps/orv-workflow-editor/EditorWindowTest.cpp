#include "EditorWindow.h"

#include "EditorWindows.h"
#include "LogCapture.h"
#include "Mnemonics.h"
#include "RecentFiles.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <orv/core/Settings.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QDesktopServices>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QJsonDocument>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>

using namespace orv;
using namespace EditorWindows;
using namespace Qt::StringLiterals;

namespace {

/// Catches what would be shown to a person by the desktop.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(u"file"_s, this, "show"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QStringList shown;

public Q_SLOTS:
    void show(const QUrl &url) { shown.append(url.toLocalFile()); }
};

/// A workflow that can't be read.
QString brokenFile(const QTemporaryDir &folder, const QByteArray &bytes)
{
    const QString path = folder.filePath(u"broken.wflw"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The test's file can't be written: %s", qPrintable(path));
    return path;
}

} // namespace

class EditorWindowTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void filesAreRemembered();
    void missingFilesAreForgotten();
    void missingFilesAreMarkedInTheMenu();
    void emptyWindowsAreUsed();
    void fullWindowsStay();
    void openingKeepsWhatIsThere();
    void windowsOfWhatCannotBeOpenedClose();
    void filesThatCannotBeOpenedAreToldBehindTheOthers();
    void chosenFilesThatCannotBeReadAreTold();
    void filesAreDropped();
    void otherDropsAreRefused();
    void projectsAreWrittenAndShown();
    void theFocusComesBackWhenProjectsWereMade();
    void existingRunsAreKept();
    void failedRunsAreTold();
    void aboutTellsVersions();
    void aFileIsOpenOnce();
    void filesOfEarlierDocumentsAreOpenedAgain();
    void messagesStayUnderThePointer();
    void mnemonicsDiffer();
    void geometryIsRemembered();

private:
    void open();

    std::unique_ptr<CoreMainWindow> m_main;
    QPointer<EditorWindow> m_window;
};

void EditorWindowTest::initTestCase()
{
    GridItemManager *manager = GridItemManager::instance();
    manager->registerCreators();
    manager->registerCreator(BaseItemType::IntactOptions, new IntactOptionsItemCreator);
}

void EditorWindowTest::open()
{
    RecentFiles::clear();
    as::setValue(u"Editor/WindowGeometry"_s, {});
    m_main = std::make_unique<CoreMainWindow>();
    m_window = new EditorWindow(m_main.get());
    m_window->show();
    (void)QTest::qWaitForWindowActive(m_window);
}

void EditorWindowTest::cleanup()
{
    for (EditorWindow *window : openWindows())
        delete window;
    delete m_window;
}

void EditorWindowTest::filesAreRemembered()
{
    open();
    QCOMPARE(m_window->openWorkflow(intactExample()), kOpened);
    QCOMPARE(RecentFiles::all(), QStringList{intactExample()});
    const QTemporaryDir folder;
    QList<QString> expected{intactExample()};
    for (int i = 0; i < 12; ++i) {
        const QString path = folder.filePath(u"%1.wflw"_s.arg(i));
        QVERIFY(QFile::copy(intactExample(), path));
        RecentFiles::add(path);
        expected.prepend(path);
    }
    QCOMPARE(RecentFiles::all(), expected.mid(0, 10));
    RecentFiles::add(expected.at(3));
    QCOMPARE(RecentFiles::all().first(), expected.at(3));
    QCOMPARE(RecentFiles::all().size(), 10);
}

void EditorWindowTest::missingFilesAreForgotten()
{
    open();
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.wflw"_s);
    QVERIFY(QFile::copy(intactExample(), path));
    const LogCapture log;
    RecentFiles::add(path);
    RecentFiles::add(folder.filePath(u"none.wflw"_s));
    QCOMPARE(RecentFiles::all(), QStringList{path});
    QVERIFY(QFile::remove(path));
    QMenu *recent = command(*m_window, u"Open &Recent"_s)->menu();
    Q_EMIT recent->aboutToShow();
    ScriptedAnswerer answers;
    answers.expectBox(u"Open Recent"_s, u"OK"_s);
    recent->actions().first()->trigger();
    QVERIFY(answers.isDone());
    QCOMPARE(RecentFiles::all(), QStringList());
}

void EditorWindowTest::missingFilesAreMarkedInTheMenu()
{
    open();
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a & b.wflw"_s);
    QVERIFY(QFile::copy(intactExample(), path));
    RecentFiles::add(intactExample());
    RecentFiles::add(path);
    QVERIFY(QFile::remove(path));
    QMenu *recent = command(*m_window, u"Open &Recent"_s)->menu();
    Q_EMIT recent->aboutToShow();
    QCOMPARE(recent->actions().size(), 3);
    QTRY_VERIFY(recent->actions().first()->text().endsWith(u"a && b.wflw (not found)"_s));
    QCOMPARE(recent->actions().at(1)->text(), intactExample());
    // The drive is asked anew each time.
    QVERIFY(QFile::copy(intactExample(), path));
    Q_EMIT recent->aboutToShow();
    QVERIFY(recent->actions().first()->text().endsWith(u"a && b.wflw"_s));
}

void EditorWindowTest::emptyWindowsAreUsed()
{
    open();
    m_window->openBesides(intactExample());
    QCOMPARE(openWindows().size(), 1);
    QVERIFY(m_window->windowTitle().contains(u"intact_mass_check.wflw"_s));
}

void EditorWindowTest::fullWindowsStay()
{
    open();
    m_window->openBesides(intactExample());
    m_window->openBesides(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s));
    QCOMPARE(openWindows().size(), 2);
    QVERIFY(m_window->windowTitle().contains(u"intact_mass_check.wflw"_s));
}

void EditorWindowTest::openingKeepsWhatIsThere()
{
    open();
    m_window->openBesides(intactExample());
    ScriptedAnswerer answers;
    answers.expectPath(u"Launch Workflow"_s, TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s));
    command(*m_window, u"&Open..."_s)->trigger();
    QVERIFY(answers.isDone());
    QCOMPARE(openWindows().size(), 2);
    QVERIFY(m_window->windowTitle().contains(u"intact_mass_check.wflw"_s));
}

void EditorWindowTest::aFileIsOpenOnce()
{
    open();
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"link.wflw"_s);
    QVERIFY(QFile::link(intactExample(), link));
    m_window->openFiles({intactExample(), TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s)});
    QCOMPARE(openWindows().size(), 2);
    m_window->showMinimized();
    for (const QString &path : {intactExample(), link}) {
        QCOMPARE(m_window->openBesides(path), kOpened);
        QCOMPARE(openWindows().size(), 2);
        QVERIFY(!m_window->isMinimized());
        QCOMPARE(m_window->statusBar()->currentMessage(), u"The workflow is open here already."_s);
    }
}

void EditorWindowTest::filesOfEarlierDocumentsAreOpenedAgain()
{
    open();
    QCOMPARE(m_window->openWorkflow(intactExample()), kOpened);
    const QByteArray other = TestData::read(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s));
    QCOMPARE(m_window->openWorkflow(QJsonDocument::fromJson(other).object()), kOpened);
    QCOMPARE(m_window->openBesides(intactExample()), kOpened);
    QCOMPARE(openWindows().size(), 2);
}

void EditorWindowTest::messagesStayUnderThePointer()
{
    open();
    QVERIFY(m_window->statusBar()->currentMessage().startsWith(u"Open a workflow with Ctrl+O"_s));
    QAction *menu = m_window->menuBar()->actions().constFirst();
    QTest::mouseClick(m_window->menuBar(), Qt::LeftButton, {},
                      m_window->menuBar()->actionGeometry(menu).center());
    for (QAction *entry : menu->menu()->actions())
        entry->hover();
    menu->menu()->close();
    QVERIFY(m_window->statusBar()->currentMessage().startsWith(u"Open a workflow with Ctrl+O"_s));
    // Commands of tables have tips, which go with the pointer.
    const QString told = m_window->statusBar()->currentMessage();
    QAction withTip;
    withTip.setStatusTip(u"Tip"_s);
    withTip.showStatusText(m_window);
    QCOMPARE(m_window->statusBar()->currentMessage(), u"Tip"_s);
    QAction().showStatusText(m_window);
    QCOMPARE(m_window->statusBar()->currentMessage(), told);
    QCOMPARE(m_window->openBesides(intactExample()), kOpened);
    QCOMPARE(m_window->statusBar()->currentMessage(), QString());
}

void EditorWindowTest::windowsOfWhatCannotBeOpenedClose()
{
    open();
    m_window->openBesides(intactExample());
    const LogCapture log;
    QCOMPARE(m_window->openBesides(u"/no/such.wflw"_s), PropertyEditorWindow::OpenStatus::NotOpened);
    QCOMPARE(openWindows().size(), 1);
}

void EditorWindowTest::filesThatCannotBeOpenedAreToldBehindTheOthers()
{
    open();
    const QTemporaryDir folder;
    const QString broken = brokenFile(folder, "{ \"tabs\": [ , ] }");
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectBox(u"Open"_s, u"OK"_s);
    m_window->openFiles({u"/no/such.wflw"_s, broken, intactExample()});
    QVERIFY(answers.isDone());
    const QString told = answers.transcript().first().text;
    QVERIFY2(told.contains(u"/no/such.wflw"_s) && told.contains(broken), qPrintable(told));
    QVERIFY2(told.contains(u"Line 1"_s), qPrintable(told));
    QCOMPARE(openWindows().size(), 1);
    QVERIFY(m_window->windowTitle().contains(u"intact_mass_check.wflw"_s));
}

void EditorWindowTest::chosenFilesThatCannotBeReadAreTold()
{
    open();
    const QTemporaryDir folder;
    const QString broken = brokenFile(folder, "{");
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectPath(u"Launch Workflow"_s, broken);
    answers.expectBox(u"Open"_s, u"OK"_s);
    command(*m_window, u"&Open..."_s)->trigger();
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().last().text.contains(broken));
}

void EditorWindowTest::filesAreDropped()
{
    open();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(intactExample()), QUrl::fromLocalFile(u"/tmp/other.txt"_s)});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(m_window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(m_window, &drop);
    // The program that the file comes from waits for the end of the drop, not for that of the opening.
    QVERIFY(drop.isAccepted());
    QVERIFY(!m_window->windowTitle().contains(u"intact_mass_check.wflw"_s));
    QTRY_VERIFY(m_window->windowTitle().contains(u"intact_mass_check.wflw"_s));
    QCOMPARE(openWindows().size(), 1);
}

void EditorWindowTest::otherDropsAreRefused()
{
    open();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(u"/tmp/other.txt"_s)});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(m_window, &enter);
    QVERIFY(!enter.isAccepted());
}

void EditorWindowTest::projectsAreWrittenAndShown()
{
    open();
    const Desktop desktop;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    QCOMPARE(m_window->openWorkflow(intactExample()), kOpened);
    const QSignalSpy finished(m_window, &PropertyEditorWindow::projectCreationFinished);
    answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    QTest::mouseClick(m_window->findChild<QPushButton *>(u"pushCreateProject"_s), Qt::LeftButton);
    QVERIFY(answers.isDone());
    const QString run = folder.filePath(u"mab.intact.run"_s);
    QCOMPARE(finished.size(), 1);
    QVERIFY(!finished.first().at(0).value<Error>().hasError());
    QCOMPARE(finished.first().at(1).toStringList(), QStringList{run});
    QCOMPARE(desktop.shown, QStringList{run});
    QCOMPARE(m_window->statusBar()->currentMessage(), u"The run was written to "_s + run);
    QVERIFY(TestData::read(run + u"/workflow.wflw"_s)
                .contains(TestData::examplePath(u"workflows/data/"_s).toUtf8()));
}

void EditorWindowTest::theFocusComesBackWhenProjectsWereMade()
{
    open();
    const Desktop desktop;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    QCOMPARE(m_window->openWorkflow(intactExample()), kOpened);
    auto *button = m_window->findChild<QPushButton *>(u"pushCreateProject"_s);
    button->setFocus();
    QTRY_VERIFY(button->hasFocus());
    answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(answers.isDone());
    QCOMPARE(m_window->focusWidget(), button);
}

void EditorWindowTest::existingRunsAreKept()
{
    open();
    const Desktop desktop;
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"mab.intact.run"_s));
    ScriptedAnswerer answers;
    QCOMPARE(m_window->openWorkflow(intactExample()), kOpened);
    answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    QVERIFY(m_window->createProjectClicked());
    QVERIFY(QDir(folder.filePath(u"mab.intact.run"_s)).isEmpty());
    QCOMPARE(desktop.shown, QStringList{folder.filePath(u"mab.intact (2).run"_s)});
}

void EditorWindowTest::failedRunsAreTold()
{
    open();
    const Desktop desktop;
    ScriptedAnswerer answers;
    QCOMPARE(m_window->openWorkflow(intactExample()), kOpened);
    const QSignalSpy finished(m_window, &PropertyEditorWindow::projectCreationFinished);
    answers.expectPath(u"Save project as"_s, u"/proc/none/mab.intact"_s);
    answers.expectBox(u"Project creation"_s, u"OK"_s);
    QVERIFY(m_window->createProjectClicked());
    QVERIFY(answers.isDone());
    QVERIFY(finished.first().at(0).value<Error>().hasError());
    QVERIFY(desktop.shown.isEmpty());
}

void EditorWindowTest::aboutTellsVersions()
{
    open();
    ScriptedAnswerer answers;
    answers.expectBox(u"About ORV Workflow Editor"_s, u"OK"_s);
    command(*m_window, u"&About ORV Workflow Editor"_s)->trigger();
    const QString told = answers.transcript().first().text;
    QVERIFY(told.contains(u"5.47.0"_s));
    QVERIFY(told.contains(u"Qt %1 (LGPL-3.0)"_s.arg(QLatin1String(qVersion()))));
    for (const QString &library : {u"QuaZip 1."_s, u"libcsv 3."_s, u"zlib 1."_s, u"SQLite 3."_s,
                                   u"OpenSSL "_s, u"ProteoWizard (tables) (Apache-2.0)"_s})
        QVERIFY2(told.contains(library), qPrintable(library + u" isn't in "_s + told));
}

void EditorWindowTest::mnemonicsDiffer()
{
    open();
    QCOMPARE(entriesWithTakenLetters(*m_window), QStringList());
    QCOMPARE(m_window->openWorkflow(intactExample()), kOpened);
    QCOMPARE(controlsWithTakenLetters(*m_window), QStringList());
}

void EditorWindowTest::geometryIsRemembered()
{
    open();
    m_window->resize(900, 555);
    m_window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!m_window);
    m_window = new EditorWindow(m_main.get());
    QCOMPARE(m_window->size(), QSize(900, 555));
}

WIDGET_REGISTER_TEST(EditorWindowTest)
#include "EditorWindowTest.moc"
