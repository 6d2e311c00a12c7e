#include "WidgetTest.h"
#include "WindowFixture.h"

#include <KProperty.h>
#include <KPropertySet.h>

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QJsonObject twoTabs()
{
    QJsonObject document = documentOf({karvonCell()});
    QJsonArray tabs = document[u"tabs"_s].toArray();
    tabs.append(Documents::tab(u"Views"_s, {u"Preview"_s}, {previewCell()}));
    document[u"tabs"_s] = tabs;
    return document;
}

} // namespace

class SavingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void nameFollowsTheFile();
    void theWindowGoesOnWithWhatWasWritten();
    void relativePathsBecomeAbsolute();
    void nothingChosenSavesNothing();
    void failedWritesLeaveTheWindow();
    void tabsThatWouldBeWrittenEmptyAreNot();
    void newerFilesAreNotReplaced();
    void unknownEntriesAreAskedFor();
    void foreignMembersAreAskedFor_data();
    void foreignMembersAreAskedFor();
    void namesWithDotsAskBeforeTheyReplace();
    void portableFoldersAreWritten();
    void filesThatAPortableFolderLeavesBehindAreTold();
    void portableFailuresAreTold();
    void portableSavesOverTheirOwnFolder();
};

void SavingTest::nameFollowsTheFile()
{
    const QTemporaryDir folder;
    Window window;
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", twoTabs())), kOpened);
    const QString path = folder.filePath(u"b.c.wflw"_s);
    QVERIFY(window.saveWorkflowToJSON(path));
    const PropertyEditorContent written(TestData::read(path));
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(written.metadata()), u"b.c"_s);
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(window.state().workflowMetadata()), u"b.c"_s);
    QCOMPARE(WflwMetaData::versionFromMetaDataObject(written.metadata()), u"5.47.0"_s);
}

void SavingTest::theWindowGoesOnWithWhatWasWritten()
{
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", twoTabs())), kOpened);
    window.tabs().setCurrentIndex(1);
    const QPointer<PropertyGridWidget> before = window.grid(1);
    const QString path = folder.filePath(u"b.wflw"_s);
    answers.expectPath(u"Save Workflow"_s, path);
    window.click("Save Workflow...");
    QVERIFY(answers.transcript().last().startPath.endsWith(u"/Mixture"_s));
    QCOMPARE(answers.transcript().last().text, u"Workflow (*.wflw)"_s);
    QCOMPARE(window.tabs().currentIndex(), 1);
    QCOMPARE(window.windowTitle(), QDir::toNativeSeparators(path) + u" - Project Creation"_s);
    QVERIFY(window.grid(1) != before);
    QVERIFY(window.close());
    QVERIFY(answers.isDone());
}

void SavingTest::relativePathsBecomeAbsolute()
{
    const QTemporaryDir folder;
    write(folder, "layout.ini", QByteArray("[View]"));
    Window window;
    const QJsonObject document = documentOf({karvonCell({setting("KarvonLayout", u"layout.ini"_s)})});
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", document)), kOpened);
    QVERIFY(QDir(folder.path()).mkdir(u"other"_s));
    const QString path = folder.filePath(u"other/b.wflw"_s);
    QVERIFY(window.saveWorkflowToJSON(path));
    QVERIFY2(TestData::read(path).contains((folder.path() + u"/layout.ini"_s).toUtf8()),
             TestData::read(path).constData());
}

void SavingTest::nothingChosenSavesNothing()
{
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", twoTabs())), kOpened);
    answers.expectPath(u"Save Workflow"_s, {});
    QVERIFY(!window.saveWorkflowAs());
    QVERIFY(window.windowTitle().contains(u"a.wflw"_s));
}

void SavingTest::failedWritesLeaveTheWindow()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", twoTabs())), kOpened);
    const QPointer<PropertyGridWidget> before = window.grid(0);
    const QString title = window.windowTitle();
    answers.expectBox({}, u"OK"_s);
    QVERIFY(!window.saveWorkflowToJSON(folder.filePath(u"no/such/b.wflw"_s)));
    QCOMPARE(answers.transcript().first().kind, DialogRequest::Kind::Critical);
    QCOMPARE(answers.transcript().first().text, u"Failed to save the workflow"_s);
    QVERIFY(answers.transcript().first().details.contains(u"no/such/b.wflw"_s));
    QCOMPARE(window.windowTitle(), title);
    QCOMPARE(window.grid(0), before);
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(window.state().workflowMetadata()), u"Mixture"_s);
}

void SavingTest::tabsThatWouldBeWrittenEmptyAreNot()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    const QJsonObject uneven =
        Documents::tab(u"Uneven"_s, {u"A"_s, u"B"_s, u"C"_s}, {karvonCell(), karvonCell()});
    const QString path = write(folder, "a.wflw", Documents::document({uneven}, metadata()));
    const QByteArray before = TestData::read(path);
    QCOMPARE(window.openWorkflow(path), kOpened);
    answers.expectBox({}, u"OK"_s);
    QVERIFY(!window.saveWorkflowToJSON(path));
    QCOMPARE(answers.transcript().first().text, u"Failed to save the workflow"_s);
    QCOMPARE(answers.transcript().first().details,
             u"The columns of the tab \"Uneven\" differ in height, and a tab is a rectangle. Add the missing "
             "cells or remove the others."_s);
    QCOMPARE(TestData::read(path), before);
    window.show();
    answers.expectPath(u"Save As Portable Workflow"_s, folder.filePath(u"b.wflwp"_s));
    answers.expectBox({}, u"OK"_s);
    window.click("Save As Portable Workflow...");
    QVERIFY(answers.transcript().last().text.startsWith(
        u"Cannot handle the specified workflow: The columns of the tab \"Uneven\" differ in height"_s));
    QVERIFY(!QFileInfo::exists(folder.filePath(u"b.wflwp"_s)));
}

void SavingTest::newerFilesAreNotReplaced()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", twoTabs())), kOpened);
    const QString newer = write(folder, "b.wflw", documentOf({karvonCell()}, metadata("5.48.0")));
    const QByteArray before = TestData::read(newer);
    answers.expectBox({}, u"OK"_s);
    QVERIFY(!window.saveWorkflowToJSON(newer));
    QCOMPARE(TestData::read(newer), before);
    QVERIFY(answers.transcript().first().details.contains(u"5.48.0"_s));
}

void SavingTest::unknownEntriesAreAskedFor()
{
    const as::ScopedOverride tolerant(as::kWorkflowVerificationEnabled, false);
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    const QJsonObject document =
        documentOf({karvonCell({setting("OfAnotherApplication", u"worth keeping"_s)})});
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", document)), kOpened);
    const QString path = folder.filePath(u"b.wflw"_s);
    answers.expectBox(u"Save Workflow"_s, u"Cancel"_s);
    QVERIFY(!window.saveWorkflowToJSON(path));
    QVERIFY(!QFileInfo::exists(path));
    QVERIFY(answers.transcript().first().details.contains(u"OfAnotherApplication"_s));
    answers.expectBox(u"Save Workflow"_s, u"Save"_s);
    QVERIFY(window.saveWorkflowToJSON(path));
    QVERIFY(QFileInfo::exists(path));
}

void SavingTest::foreignMembersAreAskedFor_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::newRow("current") << QByteArray("5.47.0");
    QTest::newRow("outdated") << QByteArray("5.46.0");
}

void SavingTest::foreignMembersAreAskedFor()
{
    QFETCH(const QByteArray, version);
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    QJsonObject document = documentOf({karvonCell()}, metadata(version.constData()));
    document[u"ofAnotherApplication"_s] = 1;
    if (version == "5.46.0")
        answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", document)), kOpened);
    answers.expectBox(u"Save Workflow"_s, u"Cancel"_s);
    QVERIFY(!window.saveWorkflowToJSON(folder.filePath(u"b.wflw"_s)));
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().last().details.contains(u"ofAnotherApplication"_s));
    QCOMPARE(window.openWorkflow(write(folder, "c.wflw", documentOf({karvonCell()}))), kOpened);
    QVERIFY(window.saveWorkflowToJSON(folder.filePath(u"d.wflw"_s)));
    QVERIFY(answers.isDone());
}

void SavingTest::namesWithDotsAskBeforeTheyReplace()
{
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", twoTabs())), kOpened);
    const QString there = write(folder, "lot 4.2.wflw", QByteArray("precious"));
    answers.expectPath(u"Save Workflow"_s, folder.filePath(u"lot 4.2"_s));
    answers.expectBox(u"Save Workflow"_s, u"No"_s);
    QVERIFY(!window.saveWorkflowAs());
    QVERIFY(answers.isDone());
    QCOMPARE(TestData::read(there), QByteArray("precious"));
}

void SavingTest::portableFoldersAreWritten()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"data"_s));
    write(folder, "data/layout.ini", QByteArray("[View]"));
    ScriptedAnswerer answers;
    Window window;
    window.show();
    const QJsonObject document = documentOf({karvonCell({setting("KarvonLayout", u"data/layout.ini"_s)})});
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", document)), kOpened);
    const QString target = folder.filePath(u"b.wflwp"_s);
    const QSignalSpy saved(&window, &PropertyEditorWindow::documentSaved);
    const QSignalSpy shown(&window, &PropertyEditorWindow::documentShown);
    answers.expectPath(u"Save As Portable Workflow"_s, target);
    window.click("Save As Portable Workflow...");
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().first().startPath.endsWith(u"/Mixture"_s));
    QCOMPARE(window.state().workflowFilePath(), target + u"/b.wflw"_s);
    QVERIFY(window.windowTitle().endsWith(QDir::toNativeSeparators(u"b.wflwp/b.wflw - Project Creation"_s)));
    QVERIFY(QFileInfo::exists(target + u"/layout.ini"_s));
    QVERIFY(window.content().toJson().contains("\"layout.ini\""));
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(window.state().workflowMetadata()), u"b"_s);
    QCOMPARE(window.tabs().count(), 1);
    QCOMPARE(saved.size(), 1);
    QCOMPARE(shown.size(), 0);
}

void SavingTest::filesThatAPortableFolderLeavesBehindAreTold()
{
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    window.show();
    QJsonObject samples = Documents::cell(u"Samples"_s);
    QStringList names;
    QJsonArray rows;
    for (int i = 1; i <= 6; ++i) {
        names.append(u"data/%1.mzML"_s.arg(i));
        rows.append(QJsonObject{{u"SampleName"_s, QString::number(i)}, {u"SamplePath"_s, names.last()}});
    }
    samples[u"properties"_s] = QJsonArray{
        QJsonObject{{u"name"_s, u"SamplesTable"_s}, {u"value"_s, QJsonObject{{u"Samples"_s, rows}}}}};
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({samples}))), kOpened);
    const QString target = folder.filePath(u"there/b.wflwp"_s);
    QVERIFY(QDir(folder.path()).mkdir(u"there"_s));
    answers.expectPath(u"Save As Portable Workflow"_s, target);
    answers.expectBox(u"Save As Portable Workflow"_s, u"OK"_s);
    window.click("Save As Portable Workflow...");
    QVERIFY(answers.isDone());
    const DialogRequest told = answers.transcript().last();
    QCOMPARE(told.kind, DialogRequest::Kind::Warning);
    QCOMPARE(
        told.text,
        u"The workflow was saved, but some files that it names weren't copied, and aren't found from its "
        "folder. Copy them to where they are "
        "named:\ndata/1.mzML\ndata/2.mzML\ndata/3.mzML\ndata/4.mzML\ndata/5.mzML\n..."_s);
    QCOMPARE(told.details, names.join(u'\n'));
}

void SavingTest::portableFailuresAreTold()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    window.show();
    const QJsonObject document = documentOf({karvonCell({setting("KarvonLayout", u"missing.ini"_s)})});
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", document)), kOpened);
    answers.expectPath(u"Save As Portable Workflow"_s, folder.filePath(u"b.wflwp"_s));
    answers.expectBox({}, u"OK"_s);
    window.click("Save As Portable Workflow...");
    QVERIFY(answers.isDone());
    QVERIFY2(answers.transcript().last().text.contains(u"missing.ini"_s),
             qPrintable(answers.transcript().last().text));
    QVERIFY(window.windowTitle().contains(u"a.wflw"_s));
    QVERIFY(!QFileInfo::exists(folder.filePath(u"b.wflwp"_s)));
}

void SavingTest::portableSavesOverTheirOwnFolder()
{
    const QTemporaryDir folder;
    write(folder, "layout.ini", QByteArray("[View]"));
    ScriptedAnswerer answers;
    Window window;
    window.show();
    const QJsonObject document = documentOf({karvonCell({setting("KarvonLayout", u"layout.ini"_s)})});
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", document)), kOpened);
    const QString target = folder.filePath(u"b.wflwp"_s);
    for (int i = 0; i < 2; ++i) {
        answers.expectPath(u"Save As Portable Workflow"_s, target);
        window.click("Save As Portable Workflow...");
    }
    QVERIFY(answers.isDone());
    QCOMPARE(TestData::read(target + u"/layout.ini"_s), QByteArray("[View]"));
}

WIDGET_REGISTER_TEST(SavingTest)
#include "SavingTest.moc"
