#include "OrvTest.h"
#include "TableFixture.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSet>
#include <QSignalSpy>

using namespace orv;
using namespace Qt::StringLiterals;
using TableFixture::names;
using TableFixture::row;

namespace {

struct Peptides
{
    Peptides()
    {
        if (sheet.load(TableFixture::peptides()).hasError())
            qFatal("The fixture doesn't load");
        model.setLocale(QLocale::c());
    }

    TableSheet sheet{TableFixture::columns()};
    TableModel model{&sheet};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

class TestTableModel : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreSeenInTheLocale();
    void bothDecimalSignsMayBeTyped();
    void lookingIntoACellChangesNothing();
    void wrongCellsSayWhy();
    void notesStandBesideCells();
    void remarksStayWithTheirRows();
    void headersHaveUnitsAndExplanations();
    void readOnlyColumnsTakeNoEdit();
    void columnsSortByWhatTheyHold_data();
    void columnsSortByWhatTheyHold();
    void sortingLeavesTheSheetAlone();
    void editedRowsStayWhereTheyAre();
    void filtersKeepRowsThatHoldAllWords_data();
    void filtersKeepRowsThatHoldAllWords();
    void wordsDontReachOverCells();
    void aShorterFilterBringsRowsBack();
    void filterAndOrderGoTogether();
    void onlyRowsWithProblemsCanBeShown();
    void hiddenColumnsAreNotSearched();
    void editsOfTheSheetAreFollowed();
    void rowsThatStayKeepTheirPersistentIndex();
    void manyRowsComeAndGoAtOnce();
    void aSheetThatGoesLeavesItsColumns();
    void anyOrderOfEditsFiltersAndSortsFits_data();
    void anyOrderOfEditsFiltersAndSortsFits();
};

void TestTableModel::cellsAreSeenInTheLocale()
{
    Peptides p;
    p.model.setLocale(QLocale(u"de_DE"_s));
    QCOMPARE(p.model.index(0, 1).data().toString(), u"500,25"_s);
    QCOMPARE(p.model.index(0, 1).data(TableModel::KeptRole).toString(), u"500.25"_s);
    QCOMPARE(p.model.index(0, 1).data(Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter));
    QCOMPARE(p.model.index(0, 0).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
}

void TestTableModel::bothDecimalSignsMayBeTyped()
{
    Peptides p;
    p.model.setLocale(QLocale(u"de_DE"_s));
    QVERIFY(p.model.setData(p.model.index(0, 1), u"1,50"_s));
    QCOMPARE(p.sheet.text(0, 1), u"1.50");
    QVERIFY(p.model.setData(p.model.index(0, 1), u"2.75"_s));
    QCOMPARE(p.sheet.text(0, 1), u"2.75");
    QCOMPARE(p.sheet.history()->undoText(), u"change Mass"_s);
}

void TestTableModel::lookingIntoACellChangesNothing()
{
    Peptides p;
    ORV_VERIFY_OK(p.sheet.setText(0, 3, u"positive "));
    const int steps = p.sheet.history()->count();
    for (int column = 0; column < 4; ++column) {
        const QModelIndex index = p.model.index(0, column);
        QVERIFY(p.model.setData(index, index.data(Qt::EditRole)));
    }
    QCOMPARE(p.sheet.history()->count(), steps);
}

void TestTableModel::wrongCellsSayWhy()
{
    Peptides p;
    const QModelIndex cell = p.model.index(0, 1);
    QVERIFY(p.model.setData(cell, u"heavy"_s));
    QCOMPARE(cell.data().toString(), u"heavy"_s);
    QCOMPARE(cell.data(TableModel::ProblemRole).toString(), u"Is not a number."_s);
    QCOMPARE(cell.data(Qt::ToolTipRole).toString(), u"Is not a number."_s);
    QCOMPARE(cell.data(Qt::AccessibleDescriptionRole).toString(), u"Is not a number."_s);
    QCOMPARE(p.model.index(1, 1).data(TableModel::ProblemRole).toString(), QString());
}

void TestTableModel::notesStandBesideCells()
{
    Peptides p;
    const QModelIndex cell = p.model.index(1, 0);
    const QString text = cell.data().toString();
    QSignalSpy changes(&p.model, &QAbstractItemModel::dataChanged);
    p.model.setNotes([&](quint32 row, int column) {
        return row == p.sheet.rowId(1) && column == 0 ? u"known"_s : QString();
    });
    QCOMPARE(changes.size(), 1);
    QCOMPARE(cell.data(TableModel::NoteRole).toString(), u"known"_s);
    QCOMPARE(cell.data(Qt::ToolTipRole).toString(), text + u"\nknown"_s);
    QCOMPARE(cell.data(Qt::AccessibleDescriptionRole).toString(), u"known"_s);
    QCOMPARE(cell.data().toString(), text);
    QCOMPARE(p.model.index(0, 0).data(TableModel::NoteRole).toString(), QString());
}

void TestTableModel::remarksStayWithTheirRows()
{
    Peptides p;
    const auto remarkAt = [&p](int row) {
        return p.model.headerData(row, Qt::Vertical, TableModel::RemarkRole).toString();
    };
    QSignalSpy changes(&p.model, &QAbstractItemModel::headerDataChanged);
    p.model.setRowRemarks({{p.sheet.rowId(2), {u"odd"_s, false}}});
    QCOMPARE(changes.size(), 1);
    QCOMPARE(remarkAt(2), u"odd"_s);
    QCOMPARE(remarkAt(1), QString());
    QCOMPARE(p.model.headerData(2, Qt::Vertical, TableModel::IsErrorRole), QVariant(false));
    QVERIFY(!p.model.headerData(1, Qt::Vertical, TableModel::IsErrorRole).isValid());
    QCOMPARE(p.model.headerData(2, Qt::Vertical, Qt::ToolTipRole).toString(), u"odd"_s);
    QCOMPARE(p.model.headerData(2, Qt::Vertical, Qt::DisplayRole).toInt(), 3);
    p.sheet.moveRows({2}, 0);
    QCOMPARE(remarkAt(0), u"odd"_s);
    QCOMPARE(remarkAt(2), QString());
    p.model.setRowRemarks({});
    QCOMPARE(remarkAt(0), QString());
}

void TestTableModel::headersHaveUnitsAndExplanations()
{
    Peptides p;
    QCOMPARE(p.model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"Mass (Da)"_s);
    QCOMPARE(p.model.headerData(2, Qt::Vertical, Qt::DisplayRole).toInt(), 3);
    p.model.sort(0);
    QCOMPARE(p.model.headerData(0, Qt::Vertical, Qt::DisplayRole).toInt(), 1);
    QCOMPARE(p.model.headerData(1, Qt::Vertical, Qt::DisplayRole).toInt(), 2);
    QCOMPARE(p.model.headerData(3, Qt::Vertical, Qt::DisplayRole).toInt(), 5);
}

void TestTableModel::readOnlyColumnsTakeNoEdit()
{
    QList<TableColumn> columns = TableFixture::columns();
    columns[1].isReadOnly = true;
    TableSheet sheet(columns);
    ORV_VERIFY_OK(sheet.load(TableFixture::peptides()));
    TableModel model(&sheet);
    QVERIFY(!model.setData(model.index(0, 1), u"1"_s));
    QVERIFY(!model.flags(model.index(0, 1)).testFlag(Qt::ItemIsEditable));
    QCOMPARE(sheet.text(0, 1), u"500.25");
}

void TestTableModel::columnsSortByWhatTheyHold_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QString>("sorted");
    QTest::newRow("names") << 0 << Qt::AscendingOrder << u"alpha beta gamma S2 S10"_s;
    QTest::newRow("names, falling") << 0 << Qt::DescendingOrder << u"S10 S2 gamma beta alpha"_s;
    QTest::newRow("numbers, empty last") << 1 << Qt::AscendingOrder << u"gamma alpha S10 beta S2"_s;
    QTest::newRow("numbers, falling, empty last") << 1 << Qt::DescendingOrder << u"beta S10 alpha gamma S2"_s;
    QTest::newRow("equal ones keep their order") << 2 << Qt::AscendingOrder << u"gamma alpha S10 S2 beta"_s;
    QTest::newRow("none") << -1 << Qt::AscendingOrder << u"alpha beta gamma S10 S2"_s;
}

void TestTableModel::columnsSortByWhatTheyHold()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    QFETCH(QString, sorted);
    Peptides p;
    p.model.sort(1);
    p.model.sort(column, order);
    QCOMPARE(names(p.model), sorted.split(u' '));
}

void TestTableModel::sortingLeavesTheSheetAlone()
{
    Peptides p;
    p.model.sort(0, Qt::DescendingOrder);
    QVERIFY(!p.model.isInSheetOrder());
    QCOMPARE(p.sheet.allTexts(), TableFixture::peptides());
    QCOMPARE(p.sheet.history()->count(), 0);
    p.model.sort(-1);
    QVERIFY(p.model.isInSheetOrder());
}

void TestTableModel::editedRowsStayWhereTheyAre()
{
    Peptides p;
    p.model.sort(1);
    p.model.setFilter({u"positive"_s});
    QCOMPARE(names(p.model), row("gamma alpha S2"));
    QVERIFY(p.model.setData(p.model.index(0, 1), u"4000"_s));
    QVERIFY(p.model.setData(p.model.index(0, 3), u"Negative"_s));
    QCOMPARE(names(p.model), row("gamma alpha S2"));
    p.model.setFilter({u"positive"_s});
    QCOMPARE(names(p.model), row("alpha S2"));
}

void TestTableModel::filtersKeepRowsThatHoldAllWords_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::newRow("part of a word") << u"C"_s << u"ALP"_s << u"alpha"_s;
    QTest::newRow("in any column") << u"C"_s << u"negative"_s << u"beta"_s;
    QTest::newRow("two words") << u"C"_s << u"a positive"_s << u"alpha gamma"_s;
    QTest::newRow("number") << u"C"_s << u"500.25"_s << u"alpha"_s;
    QTest::newRow("number as it is seen") << u"de_DE"_s << u"500,2"_s << u"alpha"_s;
    QTest::newRow("blanks") << u"C"_s << u"  "_s << u"alpha beta gamma S10 S2"_s;
}

void TestTableModel::filtersKeepRowsThatHoldAllWords()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    QFETCH(QString, found);
    Peptides p;
    p.model.setLocale(QLocale(locale));
    p.model.setFilter({text});
    QCOMPARE(names(p.model), found.split(u' '));
}

void TestTableModel::wordsDontReachOverCells()
{
    Peptides p;
    p.model.setFilter({u"a5"_s});
    QCOMPARE(p.model.rowCount(), 0);
    ORV_VERIFY_OK(p.sheet.setText(1, 0, u"xA5ng\u00C4"));
    p.model.setFilter({u"a5"_s});
    QCOMPARE(names(p.model), QStringList(u"xA5ng\u00C4"_s));
    p.model.setFilter({u"\u00E4"_s});
    QCOMPARE(p.model.rowCount(), 1);
    p.model.setFilter({u"gamma 99"_s});
    QCOMPARE(names(p.model), row("gamma"));
}

void TestTableModel::aShorterFilterBringsRowsBack()
{
    Peptides p;
    p.model.setFilter({u"s1"_s});
    QCOMPARE(names(p.model), row("S10"));
    p.model.setFilter({u"s"_s});
    QCOMPARE(names(p.model), row("alpha gamma S10 S2"));
    p.model.setFilter({u"s1"_s});
    ORV_VERIFY_OK(p.sheet.setText(0, 0, u"s10b"));
    p.model.setFilter({u"s10"_s});
    QCOMPARE(names(p.model), row("s10b S10"));
    p.model.setFilter({});
    QCOMPARE(p.model.rowCount(), 5);
}

void TestTableModel::filterAndOrderGoTogether()
{
    Peptides p;
    p.model.setFilter({u"positive"_s});
    p.model.sort(1, Qt::DescendingOrder);
    QCOMPARE(names(p.model), row("alpha gamma S2"));
    p.model.setFilter({});
    QCOMPARE(names(p.model), row("beta S10 alpha gamma S2"));
    p.sheet.insertRows(0, 1);
    p.sheet.removeRows({3});
    QCOMPARE(names(p.model), QStringList({u"beta"_s, u"S10"_s, u"alpha"_s, u"S2"_s, QString()}));
}

void TestTableModel::onlyRowsWithProblemsCanBeShown()
{
    Peptides p;
    ORV_VERIFY_OK(p.sheet.setText(1, 1, u"-5"));
    p.model.setFilter({QString(), true});
    QCOMPARE(names(p.model), row("beta"));
}

void TestTableModel::hiddenColumnsAreNotSearched()
{
    Peptides p;
    p.model.setHiddenColumns({3});
    p.model.setFilter({u"positive"_s});
    QCOMPARE(p.model.rowCount(), 0);
}

void TestTableModel::editsOfTheSheetAreFollowed()
{
    Peptides p;
    p.sheet.removeRows({0, 2});
    QCOMPARE(names(p.model), row("beta S10 S2"));
    p.sheet.history()->undo();
    p.sheet.moveRows({4}, 0);
    QCOMPARE(names(p.model), row("S2 alpha beta gamma S10"));
    p.model.setFilter({u"a"_s});
    p.sheet.moveRows({1}, 4);
    QCOMPARE(names(p.model), row("beta gamma alpha"));
    p.model.setFilter({});
    p.sheet.duplicateRows({0});
    QCOMPARE(names(p.model), row("S2 S2 beta gamma alpha S10"));
    QCOMPARE(p.model.rowOfSheetRow(2), 2);
}

void TestTableModel::rowsThatStayKeepTheirPersistentIndex()
{
    Peptides p;
    const QPersistentModelIndex gamma = p.model.index(2, 1);
    const QSignalSpy resets(&p.model, &QAbstractItemModel::modelReset);
    p.model.sort(1);
    QCOMPARE(gamma.row(), 0);
    p.model.sort(-1);
    p.model.setFilter({u"gamma"_s});
    QCOMPARE(gamma.row(), 0);
    p.model.setFilter({});
    p.sheet.removeRows({0});
    QCOMPARE(gamma.row(), 1);
    QCOMPARE(gamma.column(), 1);
    QCOMPARE(resets.size(), 0);
}

void TestTableModel::manyRowsComeAndGoAtOnce()
{
    Peptides p;
    QList<QStringList> many;
    for (int i = 0; i < 2000; ++i)
        many.append({i % 2 == 0 ? u"even"_s : u"odd"_s, QString::number(i)});
    ORV_VERIFY_OK(p.sheet.insertRows(5, many, u"many"_s));
    const QSignalSpy resets(&p.model, &QAbstractItemModel::modelReset);
    p.model.setFilter({u"even"_s});
    QCOMPARE(p.model.rowCount(), 1000);
    QCOMPARE(p.model.index(1, 1).data().toString(), u"2"_s);
    p.model.setFilter({u"even 199"_s});
    QCOMPARE(p.model.rowCount(), 5);
    QVERIFY(resets.size() > 0);
    p.sheet.history()->undo();
    QCOMPARE(p.model.rowCount(), 0);
}

void TestTableModel::aSheetThatGoesLeavesItsColumns()
{
    auto sheet = std::make_unique<TableSheet>(TableFixture::columns());
    ORV_VERIFY_OK(sheet->load(TableFixture::peptides()));
    TableModel model(sheet.get());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.sort(1);
    const QPersistentModelIndex cell = model.index(0, 0);
    sheet.reset();
    QVERIFY(!cell.isValid());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 4);
    model.setFilter({u"a"_s, true});
    model.sort(-1);
    model.sheet()->insertRows(0, 1);
    QCOMPARE(model.sheet()->rowCount(), 1);
}

void TestTableModel::anyOrderOfEditsFiltersAndSortsFits_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestTableModel::anyOrderOfEditsFiltersAndSortsFits()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    Peptides p;
    const auto some = [&](int below) { return int(random.bounded(std::max(1, below))); };
    for (int step = 0; step < 120; ++step) {
        const int rowsOfSheet = p.sheet.rowCount();
        const int rowsShown = p.model.rowCount();
        switch (some(9)) {
        case 0:
            p.model.sort(some(5) - 1, some(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 1:
            p.model.setFilter(
                {QStringList({u"a"_s, u"pos 2"_s, u"zz"_s, QString()}).at(some(4)), some(4) == 0});
            break;
        case 2:
            p.sheet.duplicateRows({some(rowsOfSheet), some(rowsOfSheet)});
            break;
        case 3:
            p.sheet.removeRows({some(rowsOfSheet), some(rowsOfSheet)});
            break;
        case 4:
            p.sheet.moveRows({some(rowsOfSheet)}, some(rowsOfSheet));
            break;
        case 5:
            p.sheet.history()->undo();
            break;
        case 6:
            p.sheet.history()->redo();
            break;
        case 7:
            p.model.keepOrder();
            break;
        default:
            if (rowsShown > 0)
                QVERIFY(p.model.setData(p.model.index(some(rowsShown), some(4)), QString::number(some(30))));
        }
        QSet<quint32> shown;
        for (int row = 0; row < p.model.rowCount(); ++row) {
            QVERIFY(p.model.sheetRow(row) >= 0);
            QCOMPARE(p.model.index(row, 0).data().toString(), p.sheet.text(p.model.sheetRow(row), 0));
            shown.insert(p.model.rowId(row));
        }
        QCOMPARE(shown.size(), p.model.rowCount());
    }
    p.model.setFilter({});
    QCOMPARE(p.model.rowCount(), p.sheet.rowCount());
    p.model.sort(-1);
    QCOMPARE(TableFixture::seen(p.model), p.sheet.allTexts());
}

ORV_REGISTER_TEST(TestTableModel)

#include "TestTableModel.moc"
