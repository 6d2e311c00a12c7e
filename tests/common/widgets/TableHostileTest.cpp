#include "EditorFixture.h"
#include "WidgetTest.h"

#include <QClipboard>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QPointer>

using namespace orv;
using namespace Qt::StringLiterals;
using EditorFixture::Editor;
using EditorFixture::text;

namespace {

int keyOf(QKeyCombination key)
{
    return key.toCombined();
}

/// A table that goes together with its rows as soon as anything is edited.
struct ShortLived
{
    ShortLived()
    {
        host = new QWidget;
        auto *const sheet = new TableSheet(EditorFixture::columns(), host);
        if (sheet->load(EditorFixture::rows()).hasError())
            qFatal("The fixture doesn't load");
        sheet->duplicateRows({0});
        sheet->duplicateRows({1});
        sheet->history()->undo();
        editor = new TableEditor(sheet, host);
        host->resize(900, 500);
        editor->resize(900, 500);
        host->show();
        (void)QTest::qWaitForWindowActive(host);
        editor->view()->setFocus();
        editor->view()->goTo(editor->view()->tableModel()->index(2, 0));
        const auto die = [this] { delete host; };
        QObject::connect(sheet, &TableSheet::cellsChanged, host, die);
        QObject::connect(sheet, &TableSheet::rowsInserted, host, die);
        QObject::connect(sheet, &TableSheet::rowsRemoved, host, die);
        QObject::connect(sheet, &TableSheet::rowsReordered, host, die);
    }
    ~ShortLived() { delete host; }
    Q_DISABLE_COPY_MOVE(ShortLived)

    QPointer<QWidget> host;
    QPointer<TableEditor> editor;
};

} // namespace

class TableHostileTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCommandMayTakeTheTableAway_data();
    void aCommandMayTakeTheTableAway();
    void aTypedCellMayTakeTheTableAway_data();
    void aTypedCellMayTakeTheTableAway();
    void whoHearsAMessageMayTakeTheTableAway();
    void composedLettersAreTyped();
    void aComposedLetterReplacesACell();
    void scatteredCellsAreCopiedInTheirPlaces();
    void hugeAndOddTextsAreShown();
    void lookingIntoHugeAndOddTextsChangesNothing();
    void rowsVanishUnderAnOpenEditor();
};

void TableHostileTest::aCommandMayTakeTheTableAway_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("undo") << keyOf(Qt::CTRL | Qt::Key_Z);
    QTest::newRow("redo") << keyOf(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    QTest::newRow("cut") << keyOf(Qt::CTRL | Qt::Key_X);
    QTest::newRow("paste") << keyOf(Qt::CTRL | Qt::Key_V);
    QTest::newRow("clear") << keyOf(Qt::Key_Delete);
    QTest::newRow("fill down") << keyOf(Qt::CTRL | Qt::Key_D);
    QTest::newRow("add") << keyOf(Qt::Key_Insert);
    QTest::newRow("duplicate") << keyOf(Qt::CTRL | Qt::SHIFT | Qt::Key_D);
    QTest::newRow("remove") << keyOf(Qt::CTRL | Qt::Key_Delete);
    QTest::newRow("move up") << keyOf(Qt::ALT | Qt::Key_Up);
    QTest::newRow("move down") << keyOf(Qt::ALT | Qt::Key_Down);
}

void TableHostileTest::aCommandMayTakeTheTableAway()
{
    QFETCH(int, key);
    ShortLived s;
    QGuiApplication::clipboard()->setText(text("pasted"));
    const auto combination = QKeyCombination::fromCombined(key);
    QTest::keyClick(s.editor->view(), combination.key(), combination.keyboardModifiers());
    QVERIFY(!s.host);
}

void TableHostileTest::aTypedCellMayTakeTheTableAway_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("enter") << keyOf(Qt::Key_Return);
    QTest::newRow("tab") << keyOf(Qt::Key_Tab);
    QTest::newRow("back") << keyOf(Qt::Key_Backtab);
}

void TableHostileTest::aTypedCellMayTakeTheTableAway()
{
    QFETCH(int, key);
    ShortLived s;
    QTest::keyClick(s.editor->view(), Qt::Key_X);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    QVERIFY(!s.host);
}

void TableHostileTest::whoHearsAMessageMayTakeTheTableAway()
{
    for (const QKeyCombination key : {Qt::CTRL | Qt::Key_X, Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_Z}) {
        ShortLived s;
        QObject::connect(s.editor->view(), &TableView::said, s.host, [&s] { delete s.host; });
        QTest::keyClick(s.editor->view(), key.key(), key.keyboardModifiers());
        QVERIFY(!s.host);
    }
}

void TableHostileTest::composedLettersAreTyped()
{
    Editor e;
    e.click(0, 0);
    e.key(Qt::Key_F2);
    e.key(Qt::Key_End);
    QInputMethodEvent composing(text("\xc2\xb4"), {});
    QApplication::sendEvent(QApplication::focusWidget(), &composing);
    QCOMPARE(e.cell(0, 0), text("alpha"));
    QInputMethodEvent composed;
    composed.setCommitString(text("\xc3\xa9"));
    QApplication::sendEvent(QApplication::focusWidget(), &composed);
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 0), text("alpha\xc3\xa9"));
}

void TableHostileTest::aComposedLetterReplacesACell()
{
    Editor e;
    e.click(0, 0);
    QInputMethodEvent atOnce;
    atOnce.setCommitString(text("\xe8\x9b\x8b"));
    QApplication::sendEvent(QApplication::focusWidget(), &atOnce);
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(0, 0), text("\xe8\x9b\x8b"));
    QInputMethodEvent composing(text("\xc2\xb4"), {});
    QApplication::sendEvent(QApplication::focusWidget(), &composing);
    QInputMethodEvent composed;
    composed.setCommitString(text("\xc3\xa9"));
    QApplication::sendEvent(QApplication::focusWidget(), &composed);
    e.key(Qt::Key_Return);
    QCOMPARE(e.cell(1, 0), text("\xc3\xa9"));
}

void TableHostileTest::scatteredCellsAreCopiedInTheirPlaces()
{
    Editor e;
    e.click(0, 0);
    e.click(2, 1, Qt::ControlModifier);
    e.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), text("alpha\t\n\t99"));
    e.click(0, 0);
    e.key(Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(e.view()->horizontalHeader()->viewport(), Qt::LeftButton, {},
                      QPoint(e.view()->columnViewportPosition(1) + 10, 5));
    e.key(Qt::Key_A, Qt::ControlModifier);
    e.key(Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(text("gamma\t99\t1\tPositive\tYLYEIAR\t")));
}

void TableHostileTest::hugeAndOddTextsAreShown()
{
    Editor e;
    const QString huge = text("A(x)").repeated(200000);
    for (int column = 0; column < e.sheet.columnCount(); ++column) {
        QVERIFY(!e.sheet.setText(0, column, huge).hasError());
        QVERIFY(!e.sheet.setText(1, column, QString(3, QChar::Null)).hasError());
        QVERIFY(!e.sheet.setText(2, column, QString(u"\u202e\n\t<b>x</b>"_s + QChar(0xD800))).hasError());
    }
    e.view()->fitColumns();
    QVERIFY(!e.view()->viewport()->grab().isNull());
    for (int column = 0; column < e.sheet.columnCount(); ++column) {
        QVERIFY(e.at(0, column).data(Qt::ToolTipRole).toString().size() < 20000);
        e.click(1, column);
        e.key(Qt::Key_F2);
        e.key(Qt::Key_Escape);
    }
    QCOMPARE(e.sheet.text(0, 0), huge);
    QCOMPARE(e.sheet.text(1, 0), QString(3, QChar::Null));
}

void TableHostileTest::lookingIntoHugeAndOddTextsChangesNothing()
{
    Editor e;
    const QStringList texts = {text("A(x)").repeated(20000),
                               QString(3, QChar::Null),
                               text("two\nlines\r\nand\ttab"),
                               text("  blanks  "),
                               QString(QChar(0xD800)),
                               text("1,234"),
                               text("peptide")};
    for (int column = 0; column < e.sheet.columnCount(); ++column) {
        for (const QString &odd : texts) {
            QVERIFY(!e.sheet.setText(0, column, odd).hasError());
            const int steps = e.sheet.history()->count();
            e.click(0, column);
            e.key(Qt::Key_F2);
            QVERIFY(QApplication::focusWidget() != e.view());
            e.key(Qt::Key_Return);
            QCOMPARE(e.sheet.text(0, column), odd);
            QCOMPARE(e.sheet.history()->count(), steps);
        }
    }
    e.click(1, 0);
    QVERIFY(!e.sheet.setText(1, 0, texts[0]).hasError());
    e.key(Qt::Key_F2);
    e.key(Qt::Key_End);
    e.type("y");
    e.key(Qt::Key_Return);
    QCOMPARE(e.sheet.text(1, 0), texts[0] + u'y');
    QVERIFY(!e.sheet.setText(0, 4, QString(3000000, u'(')).hasError());
    QVERIFY(e.at(0, 4).data(Qt::ToolTipRole).toString().size() < 20000);
}

void TableHostileTest::rowsVanishUnderAnOpenEditor()
{
    Editor e;
    e.click(2, 0);
    e.type("typed");
    e.sheet.removeRows({2});
    QCOMPARE(e.sheet.rowCount(), 2);
    e.click(0, 0);
    e.type("x");
    QVERIFY(!e.sheet.load({}).hasError());
    e.key(Qt::Key_Return);
    QCOMPARE(e.sheet.rowCount(), 0);
}

WIDGET_REGISTER_TEST(TableHostileTest)

#include "TableHostileTest.moc"
