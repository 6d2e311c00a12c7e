#include "EditorFixture.h"
#include "WidgetTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QUuid>

using namespace orv;
using EditorFixture::Editor;
using EditorFixture::text;

namespace {

void setClipboard(const char *words)
{
    QGuiApplication::clipboard()->setText(text(words));
}

QStringList firstColumn(const TableSheet &sheet)
{
    QStringList names;
    for (int row = 0; row < sheet.rowCount(); ++row)
        names.append(sheet.text(row, 0).toString());
    return names;
}

} // namespace

class TableEditorTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void typingReplacesACellAndEnterGoesDown();
    void tabGoesOnAndLeavesAtTheEnd();
    void escapeKeepsTheOldText();
    void lettersAreNoNumbers();
    void numbersAreTypedInTheLocale();
    void aWrongNumberIsMarkedWhileItIsTyped();
    void choicesAreChosenByKeyboard();
    void theWheelChangesNoChoice();
    void blocksAreCopiedAndPasted();
    void headersAreCopiedOnRequest();
    void aPasteIsUndoneAndRedone();
    void pastingIntoAnEmptyTableMakesRows();
    void cellsAreClearedAndFilledDown();
    void rowsAreAddedDuplicatedMovedAndRemoved();
    void movingWaitsForTheOwnOrder();
    void columnsSortByAClick();
    void columnsSortByKeyboard();
    void columnsHideAndComeBack();
    void layoutsAreRememberedByKind();
    void aTableThatWasOnlySeenIsNoLayout();
    void hiddenColumnsAloneAreALayout();
    void rowsAreFiltered();
    void problemsAreCountedAndVisited();
    void remarksOfRemovedRowsAreNoProblems();
    void wordsAreFoundAndReplaced();
    void undoShowsWhatItDid();
    void rightToLeftTurnsTheTable();
    void screenReadersHearTheTable();
    void everyCommandHasATextAndAName();
};

void TableEditorTest::typingReplacesACellAndEnterGoesDown()
{
    Editor e;
    e.click(0, 1);
    e.type("7.50");
    QVERIFY(e.view()->indexWidget(e.at(0, 1)));
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 1), text("7.50"));
    QCOMPARE(e.current(), QPoint(1, 1));
    e.key(Qt::Key_Return);
    QCOMPARE(e.current(), QPoint(1, 2));
    e.key(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(e.current(), QPoint(1, 1));
    e.key(Qt::Key_F2);
    e.key(Qt::Key_End);
    e.type("5");
    e.key(Qt::Key_Enter);
    QCOMPARE(e.cell(1, 1), text("1200.55"));
}

void TableEditorTest::tabGoesOnAndLeavesAtTheEnd()
{
    Editor e;
    e.click(0, 0);
    e.type("x");
    e.key(Qt::Key_Tab);
    QCOMPARE(e.cell(0, 0), text("x"));
    QCOMPARE(e.current(), QPoint(1, 0));
    e.key(Qt::Key_Tab);
    QCOMPARE(e.current(), QPoint(2, 0));
    e.key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(e.current(), QPoint(1, 0));
    e.click(0, 6);
    e.key(Qt::Key_Tab);
    QCOMPARE(e.current(), QPoint(0, 1));
    e.click(2, 6);
    e.key(Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() != e.view());
    e.view()->setFocus();
    e.click(1, 1);
    e.key(Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(QApplication::focusWidget() != e.view());
}

void TableEditorTest::escapeKeepsTheOldText()
{
    Editor e;
    e.click(0, 0);
    e.type("nonsense");
    e.key(Qt::Key_Escape);
    QCOMPARE(e.cell(0, 0), text("alpha"));
    QCOMPARE(e.sheet.history()->count(), 0);
    QCOMPARE(e.current(), QPoint(0, 0));
}

void TableEditorTest::lettersAreNoNumbers()
{
    Editor e;
    e.click(0, 1);
    e.key(Qt::Key_F2);
    e.type("1x2y.5");
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 1), text("12.5"));
}

void TableEditorTest::numbersAreTypedInTheLocale()
{
    Editor e(EditorFixture::rows(), QLocale(text("de_DE")));
    QCOMPARE(e.at(0, 1).data().toString(), text("500,25"));
    e.click(0, 1);
    e.type("0,435");
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 1), text("0.435"));
    e.type("1.5");
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(1, 1), text("1.5"));
    e.key(Qt::Key_F2);
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(2, 1), text("99"));
    QCOMPARE(e.sheet.history()->count(), 2);
}

void TableEditorTest::aWrongNumberIsMarkedWhileItIsTyped()
{
    Editor e;
    e.click(0, 1);
    e.type("-5");
    QWidget *const editor = QApplication::focusWidget();
    QVERIFY(editor != e.view());
    QCOMPARE(editor->toolTip(), text("Must lie between 0 and 10000 Da."));
    QCOMPARE(editor->accessibleDescription(), text("Must lie between 0 and 10000 Da."));
    e.key(Qt::Key_Home);
    e.key(Qt::Key_Delete);
    QCOMPARE(editor->toolTip(), QString());
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 1), text("5"));
}

void TableEditorTest::choicesAreChosenByKeyboard()
{
    Editor e;
    e.click(0, 3);
    e.key(Qt::Key_F2);
    e.key(Qt::Key_Down);
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 3), text("Negative"));
    QCOMPARE(e.current(), QPoint(3, 1));
}

void TableEditorTest::theWheelChangesNoChoice()
{
    Editor e;
    e.click(0, 3);
    e.key(Qt::Key_F2);
    auto *const box = qobject_cast<QComboBox *>(QApplication::focusWidget());
    QVERIFY(box);
    const QPoint at = box->rect().center();
    QWheelEvent wheel(at, box->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    QCOMPARE(box->currentText(), text("Positive"));
}

void TableEditorTest::blocksAreCopiedAndPasted()
{
    Editor e;
    e.click(0, 0);
    e.click(1, 1, Qt::ShiftModifier);
    e.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), text("alpha\t500.25\nbeta\t1200.5"));
    QCOMPARE(e.message(), text("Rows copied: 2"));
    e.click(2, 0);
    e.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(firstColumn(e.sheet), text("alpha beta alpha beta").split(u' '));
    QCOMPARE(e.cell(2, 2), text("1"));
    QCOMPARE(e.cell(3, 2), text("2"));
    QCOMPARE(e.message(), text("Rows pasted: 2."));
}

void TableEditorTest::headersAreCopiedOnRequest()
{
    Editor e(EditorFixture::rows(), QLocale(text("de_DE")));
    e.click(0, 1);
    e.click(0, 2, Qt::ControlModifier);
    e.key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), text("Mass (Da)\tCharge\n500,25\t2"));
}

void TableEditorTest::aPasteIsUndoneAndRedone()
{
    Editor e;
    setClipboard("x\t1\ny\t2\nz\t3\nw\t4\n");
    e.click(1, 0);
    e.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(firstColumn(e.sheet), text("alpha x y z w").split(u' '));
    e.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(e.sheet.allTexts(), EditorFixture::rows());
    QCOMPARE(e.message(), text("Undone: paste"));
    e.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(firstColumn(e.sheet), text("alpha x y z w").split(u' '));
}

void TableEditorTest::pastingIntoAnEmptyTableMakesRows()
{
    Editor e(QList<QStringList>{});
    setClipboard("Name\tMass (Da)\nx\t1\ny\t2\textra\n");
    e.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(firstColumn(e.sheet), text("x y").split(u' '));
    QCOMPARE(e.cell(1, 1), text("2"));
    QCOMPARE(e.cell(1, 2), text("2"));
    QCOMPARE(e.message(), text("Rows pasted: 2. Columns left out, as there is no room: 1."));
}

void TableEditorTest::cellsAreClearedAndFilledDown()
{
    Editor e;
    e.click(0, 1);
    e.click(2, 1, Qt::ShiftModifier);
    e.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(e.cell(2, 1), text("500.25"));
    e.click(1, 2);
    e.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(e.cell(1, 2), text("2"));
    e.click(0, 1);
    e.click(1, 2, Qt::ShiftModifier);
    e.key(Qt::Key_Delete);
    QCOMPARE(e.sheet.texts(1).mid(0, 4), QStringList({text("beta"), QString(), QString(), text("Negative")}));
    QCOMPARE(e.sheet.history()->count(), 3);
}

void TableEditorTest::rowsAreAddedDuplicatedMovedAndRemoved()
{
    Editor e;
    e.click(0, 1);
    e.key(Qt::Key_Insert);
    QCOMPARE(e.current(), QPoint(0, 1));
    e.type("new");
    e.key(Qt::Key_Return);
    QCOMPARE(firstColumn(e.sheet), text("alpha new beta gamma").split(u' '));
    QCOMPARE(e.cell(1, 2), text("2"));
    e.click(1, 0);
    e.key(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(firstColumn(e.sheet), text("alpha beta new gamma").split(u' '));
    QCOMPARE(e.current(), QPoint(0, 2));
    e.key(Qt::Key_Up, Qt::AltModifier);
    e.key(Qt::Key_Up, Qt::AltModifier);
    e.key(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(firstColumn(e.sheet), text("new alpha beta gamma").split(u' '));
    e.click(0, 0);
    e.key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(firstColumn(e.sheet), text("new new alpha beta gamma").split(u' '));
    e.click(1, 0);
    e.key(Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(firstColumn(e.sheet), text("new alpha beta gamma").split(u' '));
    QCOMPARE(e.current(), QPoint(0, 1));
    QCOMPARE(e.message(), text("Rows removed: 1. Undo brings them back."));
}

void TableEditorTest::movingWaitsForTheOwnOrder()
{
    Editor e;
    e.view()->sortByColumn(1, Qt::AscendingOrder);
    e.click(0, 0);
    e.key(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(firstColumn(e.sheet), text("alpha beta gamma").split(u' '));
    QVERIFY(e.message().startsWith(text("Rows can be moved when")));
}

void TableEditorTest::columnsSortByAClick()
{
    Editor e;
    QHeaderView *const header = e.view()->horizontalHeader();
    const QPoint mass(header->sectionViewportPosition(1) + header->sectionSize(1) / 2, header->height() / 2);
    const auto clickHeader = [&] { QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, mass); };
    const auto shown = [&] { return e.at(0, 0).data().toString(); };
    clickHeader();
    QCOMPARE(shown(), text("gamma"));
    clickHeader();
    QCOMPARE(shown(), text("beta"));
    e.view()->action(TableView::Command::KeepOrder)->trigger();
    QCOMPARE(firstColumn(e.sheet), text("beta alpha gamma").split(u' '));
    QCOMPARE(header->sortIndicatorSection(), -1);
    clickHeader();
    clickHeader();
    clickHeader();
    QCOMPARE(shown(), text("beta"));
    QVERIFY(e.view()->tableModel()->isInSheetOrder());
}

void TableEditorTest::columnsSortByKeyboard()
{
    Editor e;
    const auto shown = [&] {
        return e.at(0, 0).data().toString() + e.at(1, 0).data().toString() + e.at(2, 0).data().toString();
    };
    e.click(0, 1);
    e.key(Qt::Key_Up, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(shown(), text("gammaalphabeta"));
    QCOMPARE(e.message(), text("Sorted by \"Mass\", ascending."));
    QCOMPARE(e.current(), QPoint(1, 1));
    e.key(Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(shown(), text("betaalphagamma"));
    QVERIFY(e.view()->horizontalHeader()->sortIndicatorSection() == 1);
    e.key(Qt::Key_0, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(shown(), text("alphabetagamma"));
    QVERIFY(!e.view()->action(TableView::Command::OwnOrder)->isEnabled());
}

void TableEditorTest::columnsHideAndComeBack()
{
    Editor e;
    e.click(0, 1);
    e.view()->action(TableView::Command::HideColumns)->trigger();
    QCOMPARE(e.view()->shownColumns(), QList<int>({0, 2, 3, 4, 5, 6}));
    e.click(0, 0);
    e.click(0, 2, Qt::ShiftModifier);
    e.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), text("alpha\t2"));
    setClipboard("x\t9");
    e.click(0, 0);
    e.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(e.sheet.texts(0).mid(0, 3), text("x 500.25 9").split(u' '));
    e.view()->action(TableView::Command::ShowAllColumns)->trigger();
    QCOMPARE(e.view()->shownColumns().size(), 7);
}

void TableEditorTest::layoutsAreRememberedByKind()
{
    const QString kind = QUuid::createUuid().toString(QUuid::Id128); // settings outlive a run
    {
        Editor e;
        e.editor.setKind(kind);
        e.view()->setColumnWidth(1, 222);
        e.view()->setColumnShown(2, false);
        e.view()->horizontalHeader()->moveSection(0, 1);
        e.view()->sortByColumn(1, Qt::AscendingOrder);
    }
    Editor again;
    again.editor.setKind(kind);
    QCOMPARE(again.view()->columnWidth(1), 222);
    QCOMPARE(again.view()->shownColumns(), QList<int>({1, 0, 3, 4, 5, 6}));
    QVERIFY(again.view()->tableModel()->isInSheetOrder());
    QVERIFY(!again.sheet.load(EditorFixture::rows()).hasError());
    QCOMPARE(again.view()->columnWidth(1), 222);
    Editor other;
    other.editor.setKind(text("another"));
    QCOMPARE(other.view()->shownColumns().size(), 7);
}

void TableEditorTest::aTableThatWasOnlySeenIsNoLayout()
{
    const QString kind = QUuid::createUuid().toString(QUuid::Id128);
    {
        Editor e;
        e.editor.setKind(kind);
        QVERIFY(!e.sheet.load({}).hasError());
        // A program hides what nobody needs.
        e.view()->setColumnShown(2, false);
    }
    Editor again;
    again.editor.setKind(kind);
    QVERIFY(!again.sheet.load({{text("a name of some length")}}).hasError());
    const QFontMetrics font = again.view()->fontMetrics();
    QVERIFY(again.view()->columnWidth(0) > font.horizontalAdvance(text("a name of some length")));
    QCOMPARE(again.view()->shownColumns().size(), 7);
}

void TableEditorTest::hiddenColumnsAloneAreALayout()
{
    const QString kind = QUuid::createUuid().toString(QUuid::Id128);
    {
        Editor e;
        e.editor.setKind(kind);
        e.click(0, 2);
        e.view()->action(TableView::Command::HideColumns)->trigger();
    }
    Editor again;
    again.editor.setKind(kind);
    QCOMPARE(again.view()->shownColumns(), QList<int>({0, 1, 3, 4, 5, 6}));
}

void TableEditorTest::rowsAreFiltered()
{
    Editor e;
    e.click(2, 1);
    auto *const filter = e.editor.findChild<QLineEdit *>(text("filter"));
    filter->setFocus();
    e.type("positive");
    QCOMPARE(e.counts(), text("Rows: 2 of 3"));
    QCOMPARE(e.view()->tableModel()->rowCount(), 2);
    QCOMPARE(e.current(), QPoint(1, 1));
    e.type("x");
    QCOMPARE(e.counts(), text("Rows: 0 of 3"));
    filter->clear();
    QCOMPARE(e.counts(), text("Rows: 3"));
}

void TableEditorTest::remarksOfRemovedRowsAreNoProblems()
{
    Editor e;
    TableModel *model = e.view()->tableModel();
    model->setRowRemarks({{model->rowId(1), {text("The file is gone."), true}}});
    const auto *const only = e.editor.findChild<QToolButton *>(text("onlyProblems"));
    QTRY_COMPARE(only->text(), text("Problems: 1"));
    e.click(1, 0);
    e.view()->action(TableView::Command::RemoveRows)->trigger();
    QTRY_COMPARE(only->text(), text("No problems"));
    e.view()->action(TableView::Command::Undo)->trigger();
    QTRY_COMPARE(only->text(), text("Problems: 1"));
}

void TableEditorTest::problemsAreCountedAndVisited()
{
    Editor e;
    setClipboard("\t-1\ty");
    e.click(1, 0);
    e.key(Qt::Key_V, Qt::ControlModifier);
    auto *const only = e.editor.findChild<QToolButton *>(text("onlyProblems"));
    QTRY_COMPARE(only->text(), text("Problems: 3"));
    e.click(0, 0);
    e.key(Qt::Key_F8);
    QCOMPARE(e.current(), QPoint(0, 1));
    QCOMPARE(e.message(), text("Name, row 2: Must not be empty."));
    e.key(Qt::Key_F8);
    QCOMPARE(e.current(), QPoint(1, 1));
    e.key(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(e.current(), QPoint(0, 1));
    QTest::mouseClick(only, Qt::LeftButton);
    QCOMPARE(e.counts(), text("Rows: 1 of 3"));
    e.view()->setFocus();
    e.key(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(only->text(), text("No problems"));
    e.key(Qt::Key_F8);
    QCOMPARE(e.message(), text("All shown cells are in order."));
}

void TableEditorTest::wordsAreFoundAndReplaced()
{
    Editor e;
    e.click(0, 0);
    e.key(Qt::Key_H, Qt::ControlModifier);
    e.type("positive");
    QCOMPARE(e.editor.findChild<QLabel *>(text("findCount"))->text(), text("Cells: 2"));
    e.key(Qt::Key_Return);
    QCOMPARE(e.current(), QPoint(3, 0));
    e.key(Qt::Key_Return);
    QCOMPARE(e.current(), QPoint(3, 2));
    e.key(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(e.current(), QPoint(3, 0));
    e.editor.findChild<QLineEdit *>(text("replacement"))->setFocus();
    e.type("Negative");
    QTest::mouseClick(e.editor.findChild<QPushButton *>(text("replaceAll")), Qt::LeftButton);
    QCOMPARE(e.cell(2, 3), text("Negative"));
    QCOMPARE(e.message(), text("Cells changed: 2"));
    e.key(Qt::Key_Escape);
    QCOMPARE(QApplication::focusWidget(), e.view());
    e.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(e.sheet.allTexts(), EditorFixture::rows());
}

void TableEditorTest::undoShowsWhatItDid()
{
    Editor e;
    e.click(2, 1);
    e.type("3");
    e.key(Qt::Key_Return);
    e.click(0, 0);
    e.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(e.current(), QPoint(1, 2));
    QCOMPARE(e.view()->action(TableView::Command::Redo)->text(), text("Re&do: change Mass"));
}

void TableEditorTest::rightToLeftTurnsTheTable()
{
    Editor e;
    e.editor.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(e.centerOf(0, 0).x() > e.centerOf(0, 1).x());
    e.click(0, 0);
    e.key(Qt::Key_Tab);
    QCOMPARE(e.current(), QPoint(1, 0));
    e.type("12");
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 1), text("12"));
}

void TableEditorTest::screenReadersHearTheTable()
{
    Editor e;
    QAccessibleInterface *const table = QAccessible::queryAccessibleInterface(e.view());
    QVERIFY(table && table->tableInterface());
    QCOMPARE(table->text(QAccessible::Name), text("Samples"));
    QCOMPARE(table->tableInterface()->columnDescription(1), text("Mass (Da)"));
    QCOMPARE(table->tableInterface()->cellAt(1, 0)->text(QAccessible::Name), text("beta"));
}

void TableEditorTest::everyCommandHasATextAndAName()
{
    Editor e;
    QSet<QString> names;
    QSet<QKeySequence> keys;
    QSet<QChar> mnemonics;
    for (const QAction *action : e.view()->actions()) {
        QVERIFY(!action->text().isEmpty());
        QVERIFY2(!names.contains(action->objectName()), qPrintable(action->objectName()));
        names.insert(action->objectName());
        if (const qsizetype mark = action->text().indexOf(u'&'); mark >= 0) {
            const QChar letter = action->text().at(mark + 1).toLower();
            QVERIFY2(!mnemonics.contains(letter), qPrintable(action->text()));
            mnemonics.insert(letter);
        }
        for (const QKeySequence &key : action->shortcuts()) {
            QVERIFY2(!keys.contains(key), qPrintable(key.toString()));
            keys.insert(key);
        }
    }
    QCOMPARE(names.size(), 25);
}

WIDGET_REGISTER_TEST(TableEditorTest)

#include "TableEditorTest.moc"
