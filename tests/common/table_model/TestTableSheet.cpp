#include "OrvTest.h"
#include "TableFixture.h"

#include <orv/table_model/TableClipboard.h>
#include <orv/table_model/TableFind.h>

#include <QPointer>
#include <QRandomGenerator>
#include <QSignalMapper>
#include <QSignalSpy>

#include <functional>

using namespace orv;
using namespace Qt::StringLiterals;
using TableFixture::names;
using TableFixture::rows;

namespace {

struct PeptideSheet : TableSheet
{
    PeptideSheet()
        : TableSheet(TableFixture::columns())
    {
        if (load(TableFixture::peptides()).hasError())
            qFatal("The fixture doesn't load");
    }
};

/// One random edit; rows are few at times, so that all of them go.
void editAtRandom(TableSheet &sheet, QRandomGenerator &random)
{
    const auto someRow = [&] { return int(random.bounded(std::max(1, sheet.rowCount()))); };
    const auto someRows = [&] { return QList<int>{someRow(), someRow(), someRow()}; };
    const auto someText = [&] {
        return u"abcdefghij 0123456789,;"_s.mid(int(random.bounded(20)), int(random.bounded(9)));
    };
    const auto mustWork = [](const Error &error) {
        if (error.hasError())
            qFatal("An edit failed");
    };
    switch (random.bounded(7)) {
    case 0: {
        const QString text = someText();
        mustWork(sheet.setText(someRow(), int(random.bounded(4)), text));
        break;
    }
    case 1: {
        const QString first = someText();
        const QString second = someText();
        const int row = someRow();
        mustWork(sheet.setCells({{row, 0, first}, {row + 3, 2, second}, {row, 0, second}}, u"several"_s));
        break;
    }
    case 2:
        sheet.insertRows(someRow(), int(random.bounded(4)));
        break;
    case 3:
        sheet.duplicateRows(someRows());
        break;
    case 4:
        sheet.removeRows(someRows());
        break;
    case 5:
        sheet.moveRows(someRows(), someRow());
        break;
    default: {
        QList<quint32> ids = sheet.rowIds();
        std::shuffle(ids.begin(), ids.end(), random);
        sheet.setOrder(ids);
    }
    }
}

} // namespace

class TestTableSheet : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void memoryGrowsByWhatWasEditedWhateverTheRows();
    void undoAndRedoHoldNothingMore();
    void oldStepsAreForgotten();
    void loadsRowByRow();
    void raggedRowsAreFilledAndCut();
    void cellsAreChangedInOneStep();
    void whatChangesNothingIsNoStep();
    void cellsBelowTheEndMakeRows();
    void textsOfTheTableItselfMayBeGiven();
    void newRowsHaveDefaults();
    void copiesStandBelow();
    void removedRowsComeBackWhereTheyWere();
    void rowsMoveTogether_data();
    void rowsMoveTogether();
    void rowsKeepTheirIds();
    void loadingForgetsTheHistory();
    void problemsAreCounted();
    void listenersMayEditInBetween();
    void listenersMayDeleteTheSheet_data();
    void listenersMayDeleteTheSheet();
    void tooMuchTextChangesNothing();
    void randomEditsAreUndoneAndRedone_data();
    void randomEditsAreUndoneAndRedone();
};

namespace {

QList<QStringList> manyPeptides(int count)
{
    QList<QStringList> many;
    for (int row = 0; row < count; ++row)
        many.append({u"p%1"_s.arg(row), u"500.25"_s, u"2"_s, u"Positive"_s});
    return many;
}

/// Edits of a few rows, each kind of step once.
void editFewRows(TableSheet *sheet)
{
    QVERIFY(!sheet->setText(7, 0, u"a name of twenty un.").hasError());
    sheet->moveRows({5}, 4);
    sheet->removeRows({3});
    QVERIFY(!sheet->insertRows(9, {{u"new"_s, u"1"_s}}, u"add"_s).hasError());
    sheet->duplicateRows({2});
    sheet->moveRows({1, 2}, 6);
}

} // namespace

void TestTableSheet::memoryGrowsByWhatWasEditedWhateverTheRows()
{
    QList<qsizetype> growths;
    for (const int count : {20, 20'000}) {
        TableSheet sheet(TableFixture::columns());
        QVERIFY(!sheet.load(manyPeptides(count)).hasError());
        const qsizetype before = sheet.heldBytes();
        editFewRows(&sheet);
        growths.append(sheet.heldBytes() - before);
    }
    QCOMPARE(growths[0], growths[1]);
    QVERIFY2(growths[0] > 40 && growths[0] < 2000, qPrintable(QString::number(growths[0])));
}

void TestTableSheet::undoAndRedoHoldNothingMore()
{
    TableSheet sheet(TableFixture::columns());
    QVERIFY(!sheet.load(manyPeptides(100)).hasError());
    editFewRows(&sheet);
    const qsizetype before = sheet.heldBytes();
    const QList<QStringList> edited = sheet.allTexts();
    for (int round = 0; round < 50; ++round) {
        while (sheet.history()->canUndo())
            sheet.history()->undo();
        QCOMPARE(sheet.allTexts(), manyPeptides(100));
        while (sheet.history()->canRedo())
            sheet.history()->redo();
    }
    QCOMPARE(sheet.allTexts(), edited);
    QCOMPARE(sheet.heldBytes(), before);
}

void TestTableSheet::oldStepsAreForgotten()
{
    TableSheet sheet(TableFixture::columns());
    QVERIFY(!sheet.load(manyPeptides(10)).hasError());
    for (const QString &text : {u"A"_s, u"B"_s, u"C"_s, u"D"_s})
        QVERIFY(!sheet.setText(0, 0, text).hasError());
    TableHistory *history = sheet.history();
    history->undo();
    const qsizetype held = history->heldBytes();
    QCOMPARE(history->forget(2), held / 2);
    QCOMPARE(history->heldBytes(), held / 2);
    QCOMPARE(history->forgotten(), 2);
    QCOMPARE(history->index(), 1);
    QCOMPARE(sheet.text(0, 0), u"C"_s);
    // Steps that were undone aren't old.
    QCOMPARE(history->forget(7), held / 4);
    QCOMPARE(history->forget(-1), 0);
    QVERIFY(!history->canUndo());
    history->redo();
    QCOMPARE(sheet.text(0, 0), u"D"_s);
    history->undo();
    QCOMPARE(sheet.text(0, 0), u"C"_s);
    history->clear();
    QCOMPARE(history->heldBytes(), 0);
}

void TestTableSheet::loadsRowByRow()
{
    PeptideSheet sheet;
    QVERIFY(!sheet.setText(0, 0, u"edited").hasError());
    QSignalSpy loads(&sheet, &TableSheet::loaded);
    // The rows that are there may be asked for meanwhile.
    QVERIFY(!sheet
                 .load(3,
                       [&](int row, QStringList *texts) {
                           QCOMPARE(texts->size(), 4);
                           (*texts)[0] = sheet.text(row, 0).toString();
                       })
                 .hasError());
    QCOMPARE(sheet.allTexts(), (QList<QStringList>{{u"edited"_s, QString(), QString(), QString()},
                                                   {u"beta"_s, QString(), QString(), QString()},
                                                   {u"gamma"_s, QString(), QString(), QString()}}));
    QCOMPARE(loads.size(), 1);
    QCOMPARE(sheet.history()->count(), 0);
}

void TestTableSheet::raggedRowsAreFilledAndCut()
{
    TableSheet sheet(TableFixture::columns());
    ORV_VERIFY_OK(sheet.load({{u"a"_s}, {u"b"_s, u"1"_s, u"2"_s, u"Positive"_s, u"too much"_s}}));
    QCOMPARE(sheet.allTexts(), rows({"a - - -", "b 1 2 Positive"}));
    QCOMPARE(sheet.columnOf(u"mass"_s), 1);
    QCOMPARE(sheet.columnOf(u"Mass"_s), -1);
}

void TestTableSheet::cellsAreChangedInOneStep()
{
    PeptideSheet sheet;
    const QSignalSpy changes(&sheet, &TableSheet::cellsChanged);
    ORV_VERIFY_OK(sheet.setCells({{0, 1, u"1"}, {2, 3, u"Negative"}}, u"two cells"_s));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(sheet.history()->undoText(), u"two cells"_s);
    QCOMPARE(sheet.texts(0), TableFixture::row("alpha 1 2 Positive"));
    QCOMPARE(sheet.texts(2), TableFixture::row("gamma 99 1 Negative"));
    sheet.history()->undo();
    QCOMPARE(sheet.allTexts(), TableFixture::peptides());
    sheet.history()->redo();
    QCOMPARE(sheet.text(0, 1), u"1");
}

void TestTableSheet::whatChangesNothingIsNoStep()
{
    PeptideSheet sheet;
    ORV_VERIFY_OK(sheet.setText(0, 0, u"alpha"));
    ORV_VERIFY_OK(sheet.insertRows(0, {}, u"nothing"_s));
    sheet.insertRows(0, 0);
    sheet.removeRows({-1, 99});
    sheet.moveRows({1}, 1);
    sheet.moveRows({1}, 2);
    sheet.duplicateRows({});
    sheet.setOrder(sheet.rowIds());
    QCOMPARE(sheet.history()->count(), 0);
}

void TestTableSheet::cellsBelowTheEndMakeRows()
{
    PeptideSheet sheet;
    ORV_VERIFY_OK(sheet.setCells({{6, 0, u"new"}}, u"below"_s));
    QCOMPARE(sheet.rowCount(), 7);
    QCOMPARE(sheet.texts(5), rows({"- - 2 -"})[0]);
    QCOMPARE(sheet.texts(6), rows({"new - 2 -"})[0]);
    sheet.history()->undo();
    QCOMPARE(sheet.rowCount(), 5);
}

void TestTableSheet::textsOfTheTableItselfMayBeGiven()
{
    PeptideSheet sheet;
    QList<TableCellText> cells;
    const QString other(5000, u'x');
    for (int row = 0; row < 5; ++row)
        cells.append({row, 3, sheet.text(4 - row, 0)});
    cells.append({0, 0, other});
    ORV_VERIFY_OK(sheet.setCells(cells, u"turn"_s));
    QCOMPARE(sheet.text(0, 3), u"S2");
    QCOMPARE(sheet.text(4, 3), u"alpha");
    QCOMPARE(sheet.text(0, 0), other);
}

void TestTableSheet::newRowsHaveDefaults()
{
    PeptideSheet sheet;
    sheet.insertRows(1, 2);
    QCOMPARE(names(sheet), TableFixture::rows({"alpha - - beta gamma S10 S2"})[0]);
    QCOMPARE(sheet.texts(1), rows({"- - 2 -"})[0]);
    QCOMPARE(sheet.history()->undoText(), u"add rows"_s);
}

void TestTableSheet::copiesStandBelow()
{
    PeptideSheet sheet;
    sheet.duplicateRows({2, 0});
    QCOMPARE(names(sheet), TableFixture::row("alpha beta gamma alpha gamma S10 S2"));
    ORV_VERIFY_OK(sheet.setText(3, 0, u"copy"));
    QCOMPARE(sheet.text(0, 0), u"alpha");
}

void TestTableSheet::removedRowsComeBackWhereTheyWere()
{
    PeptideSheet sheet;
    sheet.removeRows({4, 0, 2, 2});
    QCOMPARE(names(sheet), TableFixture::row("beta S10"));
    sheet.history()->undo();
    QCOMPARE(sheet.allTexts(), TableFixture::peptides());
    sheet.removeRows({0, 1, 2, 3, 4});
    QCOMPARE(sheet.rowCount(), 0);
}

void TestTableSheet::rowsMoveTogether_data()
{
    QTest::addColumn<QList<int>>("moved");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("order");
    QTest::newRow("up") << QList<int>{2, 3} << 1 << u"alpha gamma S10 beta S2"_s;
    QTest::newRow("down") << QList<int>{0} << 2 << u"beta alpha gamma S10 S2"_s;
    QTest::newRow("to the end") << QList<int>{0, 2} << 5 << u"beta S10 S2 alpha gamma"_s;
    QTest::newRow("apart") << QList<int>{0, 4} << 2 << u"beta alpha S2 gamma S10"_s;
}

void TestTableSheet::rowsMoveTogether()
{
    QFETCH(QList<int>, moved);
    QFETCH(int, before);
    QFETCH(QString, order);
    PeptideSheet sheet;
    sheet.moveRows(moved, before);
    QCOMPARE(names(sheet), order.split(u' '));
    sheet.history()->undo();
    QCOMPARE(sheet.allTexts(), TableFixture::peptides());
}

void TestTableSheet::rowsKeepTheirIds()
{
    PeptideSheet sheet;
    const quint32 gamma = sheet.rowId(2);
    sheet.removeRows({0});
    QCOMPARE(sheet.rowOf(gamma), 1);
    sheet.moveRows({1}, 0);
    QCOMPARE(sheet.rowOf(gamma), 0);
    sheet.removeRows({0});
    QCOMPARE(sheet.rowOf(gamma), -1);
    QCOMPARE(sheet.textOf(gamma, 0), u"gamma");
    sheet.history()->undo();
    QCOMPARE(sheet.rowOf(gamma), 0);
}

void TestTableSheet::loadingForgetsTheHistory()
{
    PeptideSheet sheet;
    sheet.removeRows({0});
    ORV_VERIFY_OK(sheet.load(rows({"x 1 2 -"})));
    QVERIFY(!sheet.history()->canUndo());
    QCOMPARE(sheet.allTexts(), rows({"x 1 2 -"}));
}

void TestTableSheet::problemsAreCounted()
{
    PeptideSheet sheet;
    const QSignalSpy counted(&sheet, &TableSheet::problemsCounted);
    ORV_VERIFY_OK(sheet.setCells({{0, 0, u""}, {0, 1, u"9000"}, {1, 2, u"0"}}, u"wrong"_s));
    QVERIFY(!sheet.areProblemsCounted());
    sheet.countProblems(3);
    QVERIFY(!sheet.areProblemsCounted());
    sheet.countProblems(3);
    QVERIFY(sheet.areProblemsCounted());
    QCOMPARE(counted.size(), 1);
    QCOMPARE(sheet.problemCount(), 3);
    QCOMPARE(sheet.problem(0, 1), u"Must lie between 0 and 5000 Da."_s);
    sheet.removeRows({0});
    QCOMPARE(sheet.problemCount(), 1);
    sheet.history()->undo();
    QCOMPARE(sheet.problemCount(), 3);
    sheet.history()->undo();
    sheet.countProblems(100);
    QCOMPARE(sheet.problemCount(), 0);
}

void TestTableSheet::listenersMayEditInBetween()
{
    PeptideSheet sheet;
    const QList<QStringList> before = sheet.allTexts();
    connect(&sheet, &TableSheet::cellsChanged, &sheet, [&sheet](const QList<quint32> &, int first) {
        if (first == 1)
            ORV_VERIFY_OK(sheet.setText(0, 3, sheet.text(0, 1)));
    });
    ORV_VERIFY_OK(sheet.setCells({{0, 1, u"7"}, {6, 0, u"new"}}, u"two steps"_s));
    QCOMPARE(sheet.texts(0), TableFixture::row("alpha 7 2 7"));
    QCOMPARE(sheet.rowCount(), 7);
    QCOMPARE(sheet.history()->count(), 2);
    sheet.history()->undo();
    QCOMPARE(sheet.text(0, 3), u"Positive");
    // The listener answers this step, too, and the undone one is gone.
    sheet.history()->undo();
    QCOMPARE(sheet.texts(0), TableFixture::row("alpha 500.25 2 500.25"));
    QCOMPARE(sheet.history()->count(), 1);
    sheet.history()->undo();
    QCOMPARE(sheet.allTexts(), before);
}

void TestTableSheet::listenersMayDeleteTheSheet_data()
{
    QTest::addColumn<QByteArray>("signal");
    for (const char *signal :
         {SIGNAL(cellsChanged(QList<quint32>, int, int)), SIGNAL(rowsInserted(QList<int>)),
          SIGNAL(rowsRemoved(QList<quint32>)), SIGNAL(rowsReordered()), SIGNAL(loaded()),
          SIGNAL(problemsChanged(QList<quint32>)), SIGNAL(problemsCounted())})
        QTest::newRow(signal) << QByteArray(signal);
    QTest::newRow("indexChanged") << QByteArray();
}

void TestTableSheet::listenersMayDeleteTheSheet()
{
    QFETCH(QByteArray, signal);
    using Edit = std::function<void(TableSheet &)>;
    const auto mustBeFine = [](const Error &error) { QVERIFY(!error.hasError()); };
    const QList<Edit> edits = {[&](TableSheet &s) {
                                   mustBeFine(s.setCells({{0, 0, u"x"}, {9, 1, u"3"}}, u"s"_s));
                               },
                               [&](TableSheet &s) { s.history()->undo(); },
                               [&](TableSheet &s) { s.history()->redo(); },
                               [&](TableSheet &s) {
                                   s.removeRows({0, 2});
                               },
                               [&](TableSheet &s) { s.duplicateRows({0}); },
                               [&](TableSheet &s) { s.moveRows({0}, 3); },
                               [&](TableSheet &s) { s.countProblems(100); },
                               [&](TableSheet &s) { s.checkAnew(); },
                               [&](TableSheet &s) { mustBeFine(s.load(TableFixture::peptides())); }};
    for (const Edit &edit : edits) {
        QPointer<TableSheet> sheet = new PeptideSheet;
        sheet->insertRows(0, 1);
        sheet->history()->undo();
        const auto die = [&sheet] { delete sheet; };
        QSignalMapper mapper;
        mapper.setMapping(sheet, 1);
        mapper.setMapping(sheet->history(), 1);
        if (signal.isEmpty())
            connect(sheet->history(), SIGNAL(indexChanged()), &mapper, SLOT(map()));
        else
            connect(sheet, signal.constData(), &mapper, SLOT(map()));
        connect(&mapper, &QSignalMapper::mappedInt, &mapper, die);
        edit(*sheet);
        delete sheet;
    }
}

void TestTableSheet::tooMuchTextChangesNothing()
{
    TableSheet sheet(TableFixture::columns());
    ORV_VERIFY_OK(sheet.load(QList<QStringList>(2000, {u"a"_s})));
    const TableModel model(&sheet);
    const QString much = QString(1 << 20, u'b');
    const Result<int> replaced = TableFind::replaceAll(model, {.text = u"a"_s, .columns = {0}}, much);
    QCOMPARE(replaced.error().errorMessage(), u"The table can't hold that much text."_s);
    const auto pasted = TableClipboard::paste(model, {0, {3}, {1, 2000}}, much);
    QCOMPARE(pasted.error().errorMessage(), u"The table can't hold that much text."_s);
    QCOMPARE(sheet.text(1999, 0), u"a");
    QCOMPARE(sheet.history()->count(), 0);
}

void TestTableSheet::randomEditsAreUndoneAndRedone_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestTableSheet::randomEditsAreUndoneAndRedone()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    PeptideSheet sheet;
    QList<QList<QStringList>> states = {sheet.allTexts()};
    for (int edit = 0; edit < 60; ++edit) {
        const int steps = sheet.history()->count();
        editAtRandom(sheet, random);
        if (sheet.history()->count() > steps)
            states.append(sheet.allTexts());
    }
    for (int step = sheet.history()->count(); step-- > 0;) {
        sheet.history()->undo();
        QCOMPARE(sheet.allTexts(), states[step]);
    }
    for (int step = 1; step < states.size(); ++step) {
        sheet.history()->redo();
        QCOMPARE(sheet.allTexts(), states[step]);
    }
    int problems = 0;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        for (int column = 0; column < 4; ++column)
            problems += sheet.problem(row, column).isEmpty() ? 0 : 1;
    }
    while (!sheet.areProblemsCounted())
        sheet.countProblems(7);
    QCOMPARE(sheet.problemCount(), problems);
}

ORV_REGISTER_TEST(TestTableSheet)

#include "TestTableSheet.moc"
