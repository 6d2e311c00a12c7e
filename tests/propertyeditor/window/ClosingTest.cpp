#include "WidgetTest.h"
#include "WindowFixture.h"
#include "editors/LeavingWays.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>

#include <QFileInfo>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

void editSamples(Window &window, const QString &samples)
{
    auto *view = qobject_cast<GridPropertyEditorView *>(window.grid(0)->items().first()->widget());
    view->propertySet()->property("Samples").setValue(samples);
}

/// A window with a search that was read from a file.
struct Opened
{
    Opened()
    {
        window.show();
        if (window.openWorkflow(write(folder, "a.wflw", documentOf({karvonCell()}))) != kOpened)
            qFatal("The fixture doesn't open");
    }

    QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
};

} // namespace

class ClosingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void newWindowsCloseAtOnce();
    void unchangedDocumentsCloseAtOnce();
    void changesAreAskedFor();
    void savingWhileClosing();
    void cancelledSavesCloseAllTheSame();
    void tabsWithoutAFileAreChanges();
    void withoutASnapshotTheFileIsCompared();
    void withoutASnapshotAndItsFileThereAreChanges();
    void filesThatAreGoneDontMatterToASnapshot();
    void projectsWereHandedOver();
    void refusedUpgradesCountAsChanges();
    void typingIsTakenOver_data();
    void typingIsTakenOver();
};

void ClosingTest::newWindowsCloseAtOnce()
{
    const ScriptedAnswerer answers;
    Window window;
    window.show();
    QVERIFY(window.close());
    QVERIFY(answers.transcript().isEmpty());
}

void ClosingTest::unchangedDocumentsCloseAtOnce()
{
    Opened opened;
    QVERIFY(opened.window.close());
    QVERIFY(opened.answers.transcript().isEmpty());
}

void ClosingTest::changesAreAskedFor()
{
    Opened opened;
    editSamples(opened.window, u"one"_s);
    opened.answers.expectBox(u"Unsaved changes"_s, u"No"_s);
    QVERIFY(opened.window.close());
    QCOMPARE(transcriptOf(opened.answers),
             QStringList{u"question | Unsaved changes | There are some unsaved changes. Do you want to "
                         "save ? | [Yes] No"_s});
}

void ClosingTest::savingWhileClosing()
{
    Opened opened;
    const QString path = opened.folder.filePath(u"b.wflw"_s);
    editSamples(opened.window, u"one"_s);
    opened.answers.expectBox(u"Unsaved changes"_s, u"Yes"_s);
    opened.answers.expectPath(u"Save Workflow"_s, path);
    QVERIFY(opened.window.close());
    QVERIFY(!opened.window.isVisible());
    QVERIFY(TestData::read(path).contains("\"one\""));
}

void ClosingTest::cancelledSavesCloseAllTheSame()
{
    Opened opened;
    editSamples(opened.window, u"one"_s);
    opened.answers.expectBox(u"Unsaved changes"_s, u"Yes"_s);
    opened.answers.expectPath(u"Save Workflow"_s, {});
    QVERIFY(opened.window.close());
    QVERIFY(opened.answers.isDone());
}

void ClosingTest::tabsWithoutAFileAreChanges()
{
    ScriptedAnswerer answers;
    const LogCapture log;
    Window window;
    window.show();
    QVERIFY(!window.addTabWithColumns(u"Search"_s, {u"A"_s}, {Documents::toBytes(karvonCell())}).hasError());
    QVERIFY(window.state().workflowFilePath().isNull());
    answers.expectBox(u"Unsaved changes"_s, u"No"_s);
    QVERIFY(window.close());
    QVERIFY(answers.isDone());
}

/// A workflow that was put together from a file's tabs, and that no one has saved.
struct WithoutSnapshot
{
    WithoutSnapshot()
    {
        window.show();
        const LogCapture log;
        const QByteArray cell = Documents::toBytes(karvonCell());
        if (window.addTabWithColumns(u"Analysis"_s, {u"Karvon"_s}, {cell}).hasError())
            qFatal("The fixture doesn't load");
        window.state().setWorkflowMetadata(metadata());
        path = write(folder, "a.wflw", window.content().document());
        window.setWorkflowFilePath(path);
        if (!window.state().getLastSavedWorkflow().isEmpty())
            qFatal("There is a snapshot");
    }

    QTemporaryDir folder;
    QString path;
    ScriptedAnswerer answers;
    Window window;
};

void ClosingTest::withoutASnapshotTheFileIsCompared()
{
    {
        WithoutSnapshot same;
        QVERIFY(same.window.close());
        QVERIFY(same.answers.transcript().isEmpty());
    }
    WithoutSnapshot other;
    write(other.folder, "a.wflw", documentOf({karvonCell(), previewCell()}));
    other.answers.expectBox(u"Unsaved changes"_s, u"No"_s);
    QVERIFY(other.window.close());
    QVERIFY(other.answers.isDone());
}

void ClosingTest::withoutASnapshotAndItsFileThereAreChanges()
{
    WithoutSnapshot gone;
    const LogCapture log;
    QVERIFY(QFile::remove(gone.path));
    gone.answers.expectBox(u"Unsaved changes"_s, u"No"_s);
    QVERIFY(gone.window.close());
    QVERIFY(gone.answers.isDone());
    QVERIFY(!log.texts(QtCriticalMsg).isEmpty());
}

void ClosingTest::filesThatAreGoneDontMatterToASnapshot()
{
    Opened opened;
    QVERIFY(QFile::remove(opened.folder.filePath(u"a.wflw"_s)));
    QVERIFY(opened.window.close());
    QVERIFY(opened.answers.transcript().isEmpty());
}

void ClosingTest::projectsWereHandedOver()
{
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({previewCell()}))), kOpened);
    answers.expectBox(u"Project creation"_s, u"OK"_s);
    const LogCapture log;
    QTest::mouseClick(&window.button("pushCreateProject"), Qt::LeftButton);
    window.tabs().setTabText(0, u"Edited"_s);
    QVERIFY(window.close());
    QVERIFY(answers.isDone());
}

void ClosingTest::refusedUpgradesCountAsChanges()
{
    const QTemporaryDir folder;
    const LogCapture log;
    ScriptedAnswerer answers;
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({karvonCell()}))), kOpened);
    answers.expectBox(u"Workflow upgrade"_s, u"Cancel"_s);
    window.openWorkflow(write(folder, "old.wflw", documentOf({karvonCell()}, metadata("5.46.0"))));
    answers.expectBox(u"Unsaved changes"_s, u"No"_s);
    QVERIFY(window.close());
    QVERIFY(answers.isDone());
}

void ClosingTest::typingIsTakenOver_data()
{
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("closing") << false;
    QTest::newRow("saving") << true;
}

void ClosingTest::typingIsTakenOver()
{
    QFETCH(const bool, isSaved);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"b.wflw"_s);
    ScriptedAnswerer answers;
    Window window;
    window.show();
    const QJsonObject peaks = setting("KarvonCentroidTopk", 1000);
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({karvonCell({peaks})}))), kOpened);
    auto *view = qobject_cast<GridPropertyEditorView *>(window.grid(0)->items().first()->widget());
    view->expandAll();
    QVERIFY(LeavingWays::open(*view->editorView(), "KarvonCentroidTopk"));
    LeavingWays::type(u"500"_s);
    if (isSaved) {
        answers.expectPath(u"Save Workflow"_s, path);
        window.click("Save Workflow...");
    } else {
        answers.expectBox(u"Unsaved changes"_s, u"Yes"_s);
        answers.expectPath(u"Save Workflow"_s, path);
        window.close();
    }
    QVERIFY2(answers.isDone(), qPrintable(transcriptOf(answers).join(u'\n')));
    QVERIFY2(TestData::read(path).contains("\"value\": 500"), TestData::read(path).constData());
}

WIDGET_REGISTER_TEST(ClosingTest)
#include "ClosingTest.moc"
