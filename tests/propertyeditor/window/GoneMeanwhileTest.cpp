#include "FakeJava.h"
#include "WidgetTest.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

/// Deletes a window while it shows how far some work is.
class Impatient : public QObject
{
public:
    Impatient(Window *window, const QString &progress)
        : m_window(window)
        , m_progress(progress)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        // Progress waits before it is shown, but has its title from the beginning.
        if (event->type() == QEvent::WindowTitleChange && qobject_cast<QDialog *>(object)) {
            QMetaObject::invokeMethod(
                this, [this, shown = QPointer<QObject>(object)] { lose(shown); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void lose(const QObject *progress)
    {
        if (!progress || progress->objectName() != u"ProgressOutput"_s)
            return;
        for (const QLabel *label : progress->findChildren<QLabel *>()) {
            if (label->text() == m_progress) {
                delete m_window;
                return;
            }
        }
    }

    QPointer<Window> m_window;
    QString m_progress;
};

} // namespace

/// Windows that an application deletes while they wait.
class GoneMeanwhileTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void duringWork_data();
    void duringWork();
    void inTheBoxAboutJava();
    void inTheBoxesOfChecks_data();
    void inTheBoxesOfChecks();
    void inTheBoxOfAFailedSave();
};

void GoneMeanwhileTest::duringWork_data()
{
    QTest::addColumn<QString>("progress");
    QTest::addColumn<QByteArray>("example");
    QTest::addColumn<WindowAct>("act");
    const auto project = [](Window &window) { QVERIFY(!window.createProjectClicked()); };
    QTest::newRow("opening") << u"Opening the workflow..."_s << QByteArray("workflows/intact_mass_check.wflw")
                             << WindowAct([](Window &window) {
                                    const QTemporaryDir folder;
                                    const QString old = write(folder, "old.wflw",
                                                              documentOf({karvonCell()}, metadata("5.46.0")));
                                    QVERIFY(window.openWorkflow(old) != kOpened);
                                });
    QTest::newRow("java") << u"Looking for the Java runtime..."_s
                          << QByteArray("workflows/antibody_peptide_map.wflw") << WindowAct(project);
    QTest::newRow("checks") << u"Checking workflow content..."_s
                            << QByteArray("workflows/intact_mass_check.wflw") << WindowAct(project);
    QTest::newRow("checks of a search")
        << u"Checking workflow content..."_s << QByteArray("workflows/antibody_peptide_map.wflw")
        << WindowAct(project);
    QTest::newRow("portable") << u"Saving the portable workflow..."_s
                              << QByteArray("workflows/intact_mass_check.wflw")
                              << WindowAct([](Window &window) {
                                     const QTemporaryDir folder;
                                     ScriptedAnswerer answers;
                                     answers.expectPath(u"Save As Portable Workflow"_s,
                                                        folder.filePath(u"b.wflwp"_s));
                                     window.toolButton("Save As Portable Workflow...")->click();
                                 });
}

void GoneMeanwhileTest::duringWork()
{
    QFETCH(const QString, progress);
    QFETCH(const QByteArray, example);
    QFETCH(const WindowAct, act);
    const FakeJava java;
    const LogCapture log;
    const ScriptedAnswerer answers;
    const QPointer<Window> window(new Window);
    QCOMPARE(window->openWorkflow(TestData::examplePath(text(example.constData()))), kOpened);
    const Impatient impatient(window, progress);
    act(*window);
    QVERIFY(!window);
    QVERIFY2(answers.transcript().isEmpty(), qPrintable(transcriptOf(answers).join(u'\n')));
}

void GoneMeanwhileTest::inTheBoxAboutJava()
{
    const FakeJava java("echo hello\n");
    const LogCapture log;
    const QPointer<Window> window(new Window);
    QCOMPARE(window->openWorkflow(TestData::examplePath(u"workflows/antibody_peptide_map.wflw"_s)), kOpened);
    const Destroyer destroyer(window, u"Error"_s, u"OK"_s);
    QVERIFY(!window->createProjectClicked());
    QVERIFY(!window);
}

void GoneMeanwhileTest::inTheBoxesOfChecks_data()
{
    QTest::addColumn<bool>("isProcessed");
    QTest::newRow("project creation") << false;
    QTest::newRow("processing") << true;
}

void GoneMeanwhileTest::inTheBoxesOfChecks()
{
    QFETCH(const bool, isProcessed);
    const LogCapture log;
    const QPointer<Window> window(new Window);
    QCOMPARE(window->openWorkflow(documentOf({previewCell()})), kOpened);
    const Destroyer destroyer(window, u"Project creation"_s, u"OK"_s);
    if (isProcessed)
        window->processWorkflowClicked();
    else
        QVERIFY(!window->createProjectClicked());
    QVERIFY(!window);
}

void GoneMeanwhileTest::inTheBoxOfAFailedSave()
{
    const LogCapture log;
    const QPointer<Window> window(new Window);
    QCOMPARE(window->openWorkflow(documentOf({previewCell()})), kOpened);
    const Destroyer destroyer(window, {}, u"OK"_s);
    QVERIFY(!window->saveWorkflowToJSON(u"/proc/none/a.wflw"_s));
    QVERIFY(!window);
}

WIDGET_REGISTER_TEST(GoneMeanwhileTest)
#include "GoneMeanwhileTest.moc"
