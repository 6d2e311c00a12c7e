#include "EditorWindow.h"
#include "EditorWindows.h"
#include "LogCapture.h"
#include "TestData.h"
#include "TestFiles.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMimeData>
#include <QPointer>
#include <QTemporaryDir>
#include <QUrl>

using namespace orv;
using namespace EditorWindows;
using namespace Qt::StringLiterals;

namespace {

constexpr int kSeconds = 1000;

QByteArray nested(int levels)
{
    return "{\"metadata\": \"{}\", \"tabs\": " + QByteArray(levels, '[') + QByteArray(levels, ']') + "}";
}

} // namespace

/// Files that nobody meant to open: whoever tries hears at once why not.
class WorstFilesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatCantBeOpenedIsTold_data();
    void whatCantBeOpenedIsTold();
    void droppedOnesAreToldAsWell();
    void aRecentOneThatIsAPipeNowIsTold();
    void theLongestNameIsOpenedAndSaved();
    void namesThatLookLikeMarkupAreToldAsTheyAre();

private:
    /// By what a test row calls it.
    QString made(const QString &kind);
    void open(const QString &path) { m_window->openFiles({path}); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CoreMainWindow> m_main;
    std::unique_ptr<LogCapture> m_log;
    QPointer<EditorWindow> m_window;
};

void WorstFilesTest::init()
{
    // What can't be read is told there, too.
    m_log = std::make_unique<LogCapture>();
    GridItemManager::instance()->registerCreators();
    m_folder = std::make_unique<QTemporaryDir>();
    m_main = std::make_unique<CoreMainWindow>();
    m_window = new EditorWindow(m_main.get());
    m_window->show();
    (void)QTest::qWaitForWindowActive(m_window);
}

void WorstFilesTest::cleanup()
{
    delete m_window;
    m_log.reset();
}

QString WorstFilesTest::made(const QString &kind)
{
    const QString path = m_folder->filePath(u"worst.wflw"_s);
    if (kind == u"large"_s)
        TestFiles::makeFile(path, "{\"metadata\": \"" + QByteArray(100'000'000, 'x') + "\", \"tabs\": []}");
    else if (kind == u"too large"_s)
        TestFiles::makeFile(path, QByteArray(135'000'000, ' ') + "{}");
    else if (kind == u"deep"_s)
        TestFiles::makeFile(path, nested(100'000));
    else if (kind == u"deep and open"_s)
        TestFiles::makeFile(path, QByteArray(100'000, '['));
    else if (kind == u"folder"_s)
        QDir().mkpath(path);
    else if (kind == u"link to itself"_s)
        QFile::link(path, path);
    else if (kind == u"empty"_s)
        TestFiles::makeFile(path, {});
    else if (kind == u"zeros"_s)
        TestFiles::makeFile(path, QByteArray(1'000'000, '\0'));
#ifdef Q_OS_UNIX
    else if (kind == u"pipe"_s && !TestFiles::makeFifo(path))
        qFatal("There is no pipe");
#endif
    return path;
}

void WorstFilesTest::whatCantBeOpenedIsTold_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *kind, const QString &title, const QString &reason) {
        QTest::newRow(kind) << QString::fromUtf8(kind) << title << reason;
    };
    row("large", u"Workflow is invalid"_s, u"This workflow is invalid"_s);
    row("too large", u"Open"_s, u"The file is too large"_s);
    row("deep", u"Open"_s, u"nested too deeply"_s);
    row("deep and open", u"Open"_s, u"nested too deeply"_s);
    row("folder", u"Open"_s, u"It is a folder"_s);
    row("link to itself", u"Open"_s, u"Could not open the file"_s);
    row("empty", u"Open"_s, u"The text is empty"_s);
    row("zeros", u"Open"_s, u"The file is binary"_s);
#ifdef Q_OS_UNIX
    row("pipe", u"Open"_s, u"It is a pipe or a device"_s);
#endif
}

void WorstFilesTest::whatCantBeOpenedIsTold()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, title);
    QFETCH(const QString, reason);
    const QString path = made(kind);
    ScriptedAnswerer answers;
    answers.expectBox(title, u"OK"_s);
    QElapsedTimer clock;
    clock.start();
    open(path);
    QVERIFY2(clock.elapsed() < 15 * kSeconds, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(answers.isDone());
    const QString told = answers.transcript().constFirst().text;
    QVERIFY2(told.contains(reason), qPrintable(told));
    QVERIFY2(told.size() < 2000, qPrintable(QString::number(told.size())));
    QCOMPARE(m_window->workflowTabs()->count(), 0);
    QVERIFY(m_window->workflowFilePath().isEmpty());
}

void WorstFilesTest::droppedOnesAreToldAsWell()
{
    const QString path = made(u"deep"_s);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(m_window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    ScriptedAnswerer answers;
    answers.expectBox(u"Open"_s, u"OK"_s);
    QCoreApplication::sendEvent(m_window, &drop);
    QTRY_VERIFY(answers.isDone());
    QVERIFY(answers.transcript().constFirst().text.contains(u"nested too deeply"_s));
}

void WorstFilesTest::aRecentOneThatIsAPipeNowIsTold()
{
#ifdef Q_OS_UNIX
    const QString path = made(u"pipe"_s);
    ScriptedAnswerer answers;
    answers.expectPath(u"Launch Workflow"_s, path);
    answers.expectBox(u"Open"_s, u"OK"_s);
    QTest::keyClick(m_window, Qt::Key_O, Qt::ControlModifier);
    QTRY_VERIFY(answers.isDone());
    QVERIFY(answers.transcript().constLast().text.contains(u"It is a pipe or a device"_s));
#endif
}

void WorstFilesTest::theLongestNameIsOpenedAndSaved()
{
    const QString path = m_folder->filePath(QString(250, u'n') + u".wflw"_s);
    QVERIFY(QFile::copy(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s), path));
    ScriptedAnswerer answers;
    open(path);
    QCOMPARE(m_window->workflowFilePath(), path);
    typeNameOfFirstTab(*m_window, u"Typed"_s);
    QTest::keyClick(m_window->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(answers.transcript().isEmpty(), qPrintable(answers.transcript().value(0).details));
    QVERIFY(TestData::read(path).contains("\"Typed\""));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
}

void WorstFilesTest::namesThatLookLikeMarkupAreToldAsTheyAre()
{
    const QString path = m_folder->filePath(u"<b>x<img src=q>&amp;.wflw"_s);
    TestFiles::makeFile(path, "{");
    ScriptedAnswerer answers;
    answers.expectBox(u"Open"_s, u"OK"_s);
    open(path);
    QVERIFY(answers.isDone());
    QVERIFY2(answers.transcript().constFirst().text.contains(path),
             qPrintable(answers.transcript().constFirst().text));
}

WIDGET_REGISTER_TEST(WorstFilesTest)
#include "WorstFilesTest.moc"
