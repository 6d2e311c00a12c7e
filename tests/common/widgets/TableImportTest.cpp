#include "EditorFixture.h"
#include "WidgetTest.h"

#include <orv/core/Settings.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/TableImportDialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>

using namespace orv;
using EditorFixture::Editor;
using EditorFixture::text;

namespace {

QString written(const QTemporaryDir &folder, const char *name, const QByteArray &bytes)
{
    QFile file(folder.filePath(text(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("Cannot write the file");
    return file.fileName();
}

TableImportDialog *dialogOf(Editor &e)
{
    return e.editor.findChild<TableImportDialog *>();
}

template<typename T>
T *in(QWidget *dialog, const char *name)
{
    return dialog->findChild<T *>(text(name));
}

/// What a drop at this place does; whether it would be taken is asked first, as a desktop does.
bool dropFiles(TableView *view, QPoint at, const QStringList &paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &move);
    if (!move.isAccepted())
        return false;
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &drop);
    return drop.isAccepted();
}

} // namespace

class TableImportTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsShownBeforeItIsTaken();
    void rowsWithProblemsAreLeftOutOrTaken();
    void fieldsAreSentElsewhere();
    void anotherSeparatorReadsAnew();
    void cancellingTakesNothing();
    void anUnreadableFileIsToldInABox();
    void filesAreDroppedOnCells();
    void aTextFileDroppedElsewhereIsImported();
    void whatIsNoFileIsRefused();
    void shownRowsAreExported();
};

void TableImportTest::aFileIsShownBeforeItIsTaken()
{
    const QTemporaryDir folder;
    const QString path = written(folder, "more.csv", "Name;Mass (Da)\nx;0,5\ny;7,25\n");
    Editor e;
    ScriptedAnswerer answers;
    answers.expectPath(text("Import a Text File"), path);
    e.view()->action(TableView::Command::Import)->trigger();
    TableImportDialog *const dialog = dialogOf(e);
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->windowTitle(), text("Import more.csv"));
    QCOMPARE(e.sheet.rowCount(), 3);
    auto *const accept = in<QPushButton>(dialog, "importButton");
    QCOMPARE(accept->text(), text("Import Rows (2)"));
    QTest::mouseClick(accept, Qt::LeftButton);
    QCOMPARE(e.sheet.texts(3).mid(0, 3), text("x 0.5 2").split(u' '));
    QCOMPARE(e.cell(4, 1), text("7.25"));
    QCOMPARE(e.message(), text("Rows imported: 2"));
    QCOMPARE(e.sheet.history()->undoText(), text("import"));
    e.sheet.history()->undo();
    QCOMPARE(e.sheet.allTexts(), EditorFixture::rows());
}

void TableImportTest::rowsWithProblemsAreLeftOutOrTaken()
{
    TableImportDialog dialog(text("a.csv"), "Name,Mass\na,1\nb,heavy\n", EditorFixture::columns());
    dialog.show();
    QCOMPARE(in<QLabel>(&dialog, "problemText")->text(), text("Rows with problems: 1."));
    QCOMPARE(in<QPushButton>(&dialog, "importButton")->text(), text("Import Rows (1)"));
    QCOMPARE(dialog.rows().size(), 1);
    const auto *const problems = in<QAbstractItemView>(&dialog, "importProblems");
    QCOMPARE(problems->model()->index(0, 0).data().toInt(), 3);
    QCOMPARE(problems->model()->index(0, 1).data().toString(), text("Mass"));
    QCOMPARE(problems->model()->index(0, 2).data().toString(), text("heavy"));
    QCOMPARE(problems->model()->index(0, 3).data().toString(), text("Is not a number."));
    QTest::mouseClick(in<QCheckBox>(&dialog, "takeFaulty"), Qt::LeftButton, {}, {5, 5});
    QCOMPARE(dialog.rows().size(), 2);
    QCOMPARE(in<QPushButton>(&dialog, "importButton")->text(), text("Import Rows (2)"));
}

void TableImportTest::fieldsAreSentElsewhere()
{
    TableImportDialog dialog(text("a.csv"), "Name,Value\na,1\n", EditorFixture::columns());
    dialog.show();
    auto *const preview = in<QAbstractItemView>(&dialog, "importPreview");
    auto *const target = qobject_cast<QComboBox *>(preview->indexWidget(preview->model()->index(0, 1)));
    QVERIFY(target);
    QCOMPARE(target->currentText(), text("(left out)"));
    QCOMPARE(target->accessibleName(), text("Value goes to"));
    target->setFocus();
    QTest::keyClicks(target, text("Charge"));
    QCOMPARE(target->currentText(), text("Charge"));
    QCOMPARE(dialog.rows().value(0).mid(0, 3), QStringList({text("a"), QString(), text("1")}));
    QTest::keyClick(target, Qt::Key_Home);
    QTest::keyClick(target, Qt::Key_Down);
    QCOMPARE(target->currentText(), text("Name"));
    QCOMPARE(dialog.import().mapping(), QList<int>({-1, 0}));
}

void TableImportTest::anotherSeparatorReadsAnew()
{
    TableImportDialog dialog(text("a.csv"), "Name,Mass\na,1\n", EditorFixture::columns());
    dialog.show();
    auto *const separator = in<QComboBox>(&dialog, "separator");
    separator->setFocus();
    QTest::keyClick(separator, Qt::Key_Down);
    QCOMPARE(separator->currentText(), text("Semicolon"));
    QCOMPARE(dialog.import().fieldNames(), QStringList(text("Name,Mass")));
    QTest::keyClick(separator, Qt::Key_Up);
    QCOMPARE(dialog.rows().value(0).mid(0, 2), text("a 1").split(u' '));
}

void TableImportTest::cancellingTakesNothing()
{
    const QTemporaryDir folder;
    Editor e;
    e.editor.importFile(written(folder, "a.csv", "Name\nx\n"));
    QTest::keyClick(dialogOf(e), Qt::Key_Escape);
    QCOMPARE(e.sheet.allTexts(), EditorFixture::rows());
    QTRY_VERIFY(!dialogOf(e));
}

void TableImportTest::anUnreadableFileIsToldInABox()
{
    Editor e;
    ScriptedAnswerer answers;
    answers.expectBox(text("Import"), text("OK"));
    e.editor.importFile(text("/nowhere/a.csv"));
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().value(0).text, text("Could not open the file: /nowhere/a.csv"));
    QVERIFY(!dialogOf(e));
}

void TableImportTest::filesAreDroppedOnCells()
{
    Editor e;
    QVERIFY(dropFiles(e.view(), e.centerOf(1, 5), {text("/d/a.mzML"), text("/d/b.csv"), text("/d/c.raw")}));
    QCOMPARE(e.cell(0, 5), text("/data/runs/alpha.mzML"));
    QCOMPARE(e.cell(1, 5), text("/d/a.mzML"));
    QCOMPARE(e.cell(2, 5), text("/d/b.csv"));
    QCOMPARE(e.cell(3, 5), text("/d/c.raw"));
    e.sheet.history()->undo();
    QCOMPARE(e.sheet.allTexts(), EditorFixture::rows());
    QVERIFY(dropFiles(e.view(), {10, e.view()->viewport()->height() - 10}, {text("/d/z.mzML")}));
    QCOMPARE(e.cell(3, 5), text("/d/z.mzML"));
}

void TableImportTest::aTextFileDroppedElsewhereIsImported()
{
    const QTemporaryDir folder;
    Editor e;
    QVERIFY(dropFiles(e.view(), e.centerOf(0, 0), {written(folder, "a.csv", "Name\nx\n")}));
    QVERIFY(dialogOf(e));
    QTest::keyClick(dialogOf(e), Qt::Key_Return);
    QCOMPARE(e.cell(3, 0), text("x"));
}

void TableImportTest::whatIsNoFileIsRefused()
{
    TableSheet sheet({{.name = text("n"), .title = text("N")}});
    TableView view(&sheet);
    view.show();
    QVERIFY(!dropFiles(&view, {5, 5}, {text("/d/a.mzML")}));
    QVERIFY(dropFiles(&view, {5, 5}, {text("/d/a.tsv")}));
    QVERIFY(!dropFiles(&view, {5, 5}, {}));
}

void TableImportTest::shownRowsAreExported()
{
    const QTemporaryDir folder;
    Editor e;
    e.view()->setColumnShown(5, false);
    e.view()->setColumnShown(6, false);
    ScriptedAnswerer answers;
    answers.expectPath(text("Export the Table"), folder.filePath(text("out")));
    answers.expectBox(text("Export"), text("OK"));
    e.view()->sortByColumn(1, Qt::AscendingOrder);
    e.view()->action(TableView::Command::Export)->trigger();
    QFile file(folder.filePath(text("out.csv")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readLine(), QByteArray("Name,Mass (Da),Charge,Mode,Sequence\r\n"));
    QCOMPARE(file.readLine(), QByteArray("gamma,99,1,Positive,YLYEIAR\r\n"));
    QCOMPARE(e.message(), text("Rows written to out.csv: 3"));
    e.editor.exportFile(folder.filePath(text("none/out.csv")));
    QVERIFY(answers.isDone());
}

WIDGET_REGISTER_TEST(TableImportTest)

#include "TableImportTest.moc"
