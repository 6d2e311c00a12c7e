#include "GridHands.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/core/FileUtils.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QTemporaryDir>

using namespace orv;
using namespace GridFixture;
using namespace GridHands;

using EditorMode = GridPropertyEditorView::EditorMode;

/// What people are told where a column of settings can't do what they asked for.
class GridFailuresTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesThatCantBeAdded_data();
    void propertiesThatCantBeAdded();
    void propertiesThatCantBeMadeAnother();
    void aViewWithoutASetCantBeSaved();
    void aValueThatNoFileHoldsCantBeSaved();
    void aPresetBeyondTheLimitCantBeRead();
};

void GridFailuresTest::propertiesThatCantBeAdded_data()
{
    QTest::addColumn<int>("property");
    QTest::newRow("none") << -1;
    QTest::newRow("one that came while the dialog was open") << int(PropertyId::KarvonCentroidTopk);
}

void GridFailuresTest::propertiesThatCantBeAdded()
{
    QFETCH(int, property);
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    QByteArray before;
    ScriptedAnswerer answers;
    answers.expectDialog(text("Add a property"), [&](QDialog &dialog) {
        choose(dialog, "comboProperty", property);
        if (property > 0)
            column.set().addProperty(new KProperty("KarvonCentroidTopk", 7), "Search");
        before = bytes(column.item.content());
        return true;
    });
    answers.expectBox({}, text("OK"));
    int edits = 0;
    connect(column.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    const LogCapture log;
    click(*column.view, "Add new property");
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().kind, DialogRequest::Kind::Critical);
    QCOMPARE(answers.transcript().constLast().text, text("Failed to add a new property."));
    QCOMPARE(answers.transcript().constLast().buttons, QStringList(text("OK")));
    QCOMPARE(bytes(column.item.content()), before);
    QCOMPARE(edits, 0);
}

void GridFailuresTest::propertiesThatCantBeMadeAnother()
{
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    column.select("KarvonLayout");
    const QByteArray before = bytes(column.item.content());
    ScriptedAnswerer answers;
    answers.expectDialog(text("Modify property"), [](QDialog &dialog) {
        choose(dialog, "comboProperty", -1);
        return true;
    });
    answers.expectBox({}, text("OK"));
    const LogCapture log;
    click(*column.view, "Modify property");
    QVERIFY(answers.isDone());
    const DialogRequest &box = answers.transcript().constLast();
    QCOMPARE(box.kind, DialogRequest::Kind::Critical);
    // A list behind the sentence tells why.
    QVERIFY2(box.text.startsWith(text("Failed to modify the property:\n")), qPrintable(box.text));
    QVERIFY2(box.text.size() > text("Failed to modify the property:\n").size(), qPrintable(box.text));
    QCOMPARE(bytes(column.item.content()), before);
}

void GridFailuresTest::aViewWithoutASetCantBeSaved()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("search.ptcell"));
    GridPropertyEditorView view;
    view.setEditorMode(EditorMode::Designer);
    view.show();
    ScriptedAnswerer answers;
    answers.expectPath(text("Save preset to file"), path);
    answers.expectBox(text("Saving file"), text("OK"));
    click(view, "Save preset to file");
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().kind, DialogRequest::Kind::Warning);
    QCOMPARE(answers.transcript().constLast().text, text("Can't convert content to json."));
    QVERIFY(!QFile::exists(path));
}

void GridFailuresTest::aValueThatNoFileHoldsCantBeSaved()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("search.ptcell"));
    write(path, "kept");
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    const LogCapture log;
    column.property("Samples").setValue(QVariant::fromValue(QList<int>{1, 2}));
    ScriptedAnswerer answers;
    answers.expectPath(text("Save preset to file"), path);
    answers.expectBox(text("Saving file"), text("OK"));
    click(*column.view, "Save preset to file");
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().text, text("Can't convert content to json."));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("kept"));
}

void GridFailuresTest::aPresetBeyondTheLimitCantBeRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("huge.ptcell"));
    write(path, "{}");
    QVERIFY(QFile::resize(path, FileUtils::kMaxFileSize + 1));
    Column column;
    column.view->setEditorMode(EditorMode::Designer);
    const QByteArray before = bytes(column.item.content());
    ScriptedAnswerer answers;
    answers.expectPath(text("Open a preset file"), path);
    answers.expectBox(text("Loading file"), text("OK"));
    const LogCapture log;
    click(*column.view, "Open a preset file");
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constLast().kind, DialogRequest::Kind::Warning);
    QCOMPARE(answers.transcript().constLast().text, text("Could not read preset file \"%1\".").arg(path));
    QCOMPARE(bytes(column.item.content()), before);
}

WIDGET_REGISTER_TEST(GridFailuresTest)
#include "GridFailuresTest.moc"
