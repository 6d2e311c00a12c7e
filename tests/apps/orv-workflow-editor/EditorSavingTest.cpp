#include "EditorWindow.h"
#include "EditorWindows.h"
#include "TestData.h"
#include "TestFiles.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QDir>
#include <QJsonDocument>
#include <QPointer>
#include <QStatusBar>
#include <QTemporaryDir>

using namespace orv;
using namespace EditorWindows;
using namespace Qt::StringLiterals;

class EditorSavingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aSaveWritesTheFileWithWhatIsBeingTyped();
    void workflowsWithoutAFileAreNamedFirst();
    void upgradedFilesStayUnlessNamed();
    void nothingIsSavedOfAnEmptyWindow();
    void newerFilesStay();
    void portableFoldersAreSavedAsSuch();
    void filesOfOthersAreAskedAbout_data();
    void filesOfOthersAreAskedAbout();
    void filesChangedWhileTheyAreOpenedAreAskedAbout();
    void filesThatAreGoneAreWrittenAnew();

private:
    /// A copy of an example that the window shows.
    QString shown(const QString &example);
    void saveByKey() { QTest::keyClick(m_window->focusWidget(), Qt::Key_S, Qt::ControlModifier); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CoreMainWindow> m_main;
    QPointer<EditorWindow> m_window;
};

void EditorSavingTest::init()
{
    GridItemManager::instance()->registerCreators();
    m_folder = std::make_unique<QTemporaryDir>();
    m_main = std::make_unique<CoreMainWindow>();
    m_window = new EditorWindow(m_main.get());
    m_window->show();
    (void)QTest::qWaitForWindowActive(m_window);
}

void EditorSavingTest::cleanup()
{
    delete m_window;
}

QString EditorSavingTest::shown(const QString &example)
{
    QString path = m_folder->filePath(QFileInfo(example).fileName());
    QFile::copy(TestData::examplePath(example), path);
    if (m_window->openWorkflow(path) != kOpened)
        qFatal("The example isn't shown");
    return path;
}

void EditorSavingTest::aSaveWritesTheFileWithWhatIsBeingTyped()
{
    const QString path = shown(u"workflows/de_novo_antibody.wflw"_s);
    const ScriptedAnswerer nobodyIsAsked;
    typeNameOfFirstTab(*m_window, u"Typed"_s);
    QVERIFY(!TestData::read(path).contains("Typed"));
    saveByKey();
    QVERIFY(TestData::read(path).contains("\"Typed\""));
    QCOMPARE(m_window->workflowFilePath(), path);
    QVERIFY(!m_window->isWindowModified());
    // Its own writing isn't that of another program.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    typeNameOfFirstTab(*m_window, u"Again"_s);
    saveByKey();
    QVERIFY(TestData::read(path).contains("\"Again\""));
}

void EditorSavingTest::workflowsWithoutAFileAreNamedFirst()
{
    const QJsonDocument document =
        QJsonDocument::fromJson(TestData::read(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s)));
    QCOMPARE(m_window->openWorkflow(document.object()), kOpened);
    ScriptedAnswerer answers;
    const QString path = m_folder->filePath(u"named.wflw"_s);
    answers.expectPath(u"Save Workflow"_s, path);
    saveByKey();
    QVERIFY(answers.isDone());
    QVERIFY(QFileInfo::exists(path));
    saveByKey();
    QCOMPARE(m_window->workflowFilePath(), path);
}

void EditorSavingTest::upgradedFilesStayUnlessNamed()
{
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
    const QString path = shown(u"workflows/outdated/intact_mass_2022.wflw"_s);
    const QByteArray before = TestData::read(path);
    answers.expectPath(u"Save Workflow"_s, QString());
    saveByKey();
    QCOMPARE(TestData::read(path), before);
    answers.expectPath(u"Save Workflow"_s, path);
    saveByKey();
    QVERIFY(answers.isDone());
    QVERIFY(TestData::read(path) != before);
    // It is of today's form now.
    typeNameOfFirstTab(*m_window, u"Typed"_s);
    saveByKey();
    QVERIFY(TestData::read(path).contains("\"Typed\""));
}

void EditorSavingTest::nothingIsSavedOfAnEmptyWindow()
{
    const ScriptedAnswerer nobodyIsAsked;
    saveByKey();
    QCOMPARE(m_window->statusBar()->currentMessage(), u"There is no workflow to save yet."_s);
}

void EditorSavingTest::newerFilesStay()
{
    const QByteArray newer = TestData::read(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s))
                                 .replace("5.47.0", "5.99.0");
    const QString path = m_folder->filePath(u"newer.wflw"_s);
    TestFiles::makeFile(path, newer);
    ScriptedAnswerer answers;
    QCOMPARE(m_window->openWorkflow(path), kOpened);
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(answers.transcript().isEmpty());
    typeNameOfFirstTab(*m_window, u"Typed"_s);
    const QString other = m_folder->filePath(u"other.wflw"_s);
    answers.expectPath(u"Save Workflow"_s, other);
    saveByKey();
    QVERIFY(answers.isDone());
    QCOMPARE(TestData::read(path), newer);
    QVERIFY(TestData::read(other).contains("\"Typed\""));
}

void EditorSavingTest::portableFoldersAreSavedAsSuch()
{
    shown(u"workflows/de_novo_antibody.wflw"_s);
    const QString folder = m_folder->filePath(u"carried.wflwp"_s);
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(m_window->workflowFilePath(), folder + u"/carried.wflw"_s));
    QCOMPARE(m_window->openWorkflow(folder), kOpened);
    ScriptedAnswerer answers;
    answers.expectPath(u"Save As Portable Workflow"_s, QString());
    saveByKey();
    QVERIFY(answers.isDone());
}

void EditorSavingTest::filesOfOthersAreAskedAbout_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isReplaced");
    QTest::newRow("replaced") << u"Replace"_s << true;
    QTest::newRow("left") << u"Cancel"_s << false;
}

void EditorSavingTest::filesOfOthersAreAskedAbout()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, isReplaced);
    const QString path = shown(u"workflows/de_novo_antibody.wflw"_s);
    typeNameOfFirstTab(*m_window, u"Typed"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append));
    QCOMPARE(file.write("\n\n"), 2);
    file.close();
    const QByteArray ofTheOther = TestData::read(path);
    ScriptedAnswerer answers;
    answers.expectBox(u"Save"_s, answer);
    saveByKey();
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().constFirst().text.startsWith(path + u" was changed by another program"_s));
    QCOMPARE(TestData::read(path) != ofTheOther, isReplaced);
    QTRY_COMPARE(m_window->isWindowModified(), !isReplaced);
}

void EditorSavingTest::filesChangedWhileTheyAreOpenedAreAskedAbout()
{
    const QString path = m_folder->filePath(u"a.wflw"_s);
    QVERIFY(QFile::copy(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s), path));
    // As while a question waits for its answer.
    connect(m_window, &PropertyEditorWindow::documentShown, m_window, [path] {
        QFile file(path);
        QVERIFY(file.open(QIODevice::Append) && file.write("\n") == 1);
    });
    QCOMPARE(m_window->openWorkflow(path), kOpened);
    const QByteArray ofTheOther = TestData::read(path);
    ScriptedAnswerer answers;
    answers.expectBox(u"Save"_s, u"Cancel"_s);
    saveByKey();
    QVERIFY(answers.isDone());
    QCOMPARE(TestData::read(path), ofTheOther);
}

void EditorSavingTest::filesThatAreGoneAreWrittenAnew()
{
    const QString path = shown(u"workflows/de_novo_antibody.wflw"_s);
    QVERIFY(QFile::remove(path));
    const ScriptedAnswerer nobodyIsAsked;
    saveByKey();
    QVERIFY(QFileInfo::exists(path));
}

WIDGET_REGISTER_TEST(EditorSavingTest)
#include "EditorSavingTest.moc"
