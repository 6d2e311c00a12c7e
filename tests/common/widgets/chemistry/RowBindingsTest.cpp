#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/chemistry/DeltaMass.h>
#include <orv/table_model/RecordSheet.h>
#include <orv/table_model/RowNodeSheet.h>

using namespace orv;
using namespace ChemistryFixture;

namespace {

QList<TableColumn> bindingColumns()
{
    TableColumn mass{.name = text("Mass"), .title = text("Mass"), .kind = TableColumnKind::Number};
    TableColumn twice{.name = text("twice"), .title = text("Twice"), .kind = TableColumnKind::Number};
    twice.derive = [](const QStringList &texts) {
        return texts[1].isEmpty() ? QString() : QString::number(2 * texts[1].toDouble());
    };
    return {{.name = text("Name"), .title = text("Name")},
            mass,
            {.name = text("Ids"), .title = text("Ids")},
            twice};
}

} // namespace

class RowBindingsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatNobodyEditedComesBackAsItWas();
    void editedCellsHaveTheirColumnsType();
    void newRowsAndColumnsAreAdded();
    void removedRowsComeBackWhole();
    void tablesOfTheirOwnColumnsComeBackAsTheyWere();
    void cellsBeyondTheHeaderStayThere();
    void columnsOfOneNameAreToldApart();
    void numbersStayNumbers();
    void whatIsntShownIsTold();
    void derivedCellsFollowTheirRow();
    void derivedCellsAreNotEdited();
    void derivedCellsSortAndFilter();
    void refusedTextsLeaveARecord();
};

void RowBindingsTest::whatNobodyEditedComesBackAsItWas()
{
    QRandomGenerator random(20240511);
    for (int i = 0; i < 300; ++i) {
        const RowNode table = randomTable(random, {text("Name"), text("Mass"), text("Ids")});
        TableSheet sheet(bindingColumns());
        RowNodeBinding rows(&sheet, {text("Ids")});
        QVERIFY(!rows.load(table).hasError());
        QVERIFY2(rows.table() == table, qPrintable(text("table %1").arg(i)));
    }
}

void RowBindingsTest::tablesOfTheirOwnColumnsComeBackAsTheyWere()
{
    QRandomGenerator random(20240512);
    for (int i = 0; i < 300; ++i) {
        const RowNode table = randomTable(random, {text("Name"), text("Mass"), text("Mass")});
        RowNodeSheet rows(bindingColumns());
        QVERIFY(!rows.load(table).hasError());
        QVERIFY2(rows.table() == table, qPrintable(text("table %1").arg(i)));
        if (rows.sheet()->rowCount() == 0 || rows.sheet()->columnCount() == 0)
            continue;
        QVERIFY(!rows.sheet()->setText(0, 0, u"new").hasError());
        QVERIFY(!(rows.table() == table));
        rows.sheet()->history()->undo();
        QVERIFY2(rows.table() == table, qPrintable(text("table %1").arg(i)));
    }
}

void RowBindingsTest::cellsBeyondTheHeaderStayThere()
{
    TableSheet sheet(bindingColumns());
    RowNodeBinding rows(&sheet);
    QVERIFY(!rows.load(nodeOf(R"({"data":["Name"],"children":[
        {"data":["a",7,[8]],"children":[]},{"data":["b"],"children":[]}]})"))
                 .hasError());
    QCOMPARE(sheet.texts(0), QStringList({text("a"), QString(), QString(), QString()}));
    QVERIFY(!sheet.setText(1, 1, u"2.5").hasError());
    QCOMPARE(objectOf(rows.table()), objectOf(nodeOf(R"({"data":["Name","Mass"],"children":[
        {"data":["a",null,7,[8]],"children":[]},{"data":["b",2.5],"children":[]}]})")));
}

void RowBindingsTest::columnsOfOneNameAreToldApart()
{
    RowNodeSheet rows(bindingColumns());
    QVERIFY(!rows.load(nodeOf(R"({"data":["Mass","Mass"],"children":[{"data":[1,2],"children":[]}]})"))
                 .hasError());
    QVERIFY(!rows.sheet()->setText(0, 1, u"x").hasError());
    QCOMPARE(objectOf(rows.table()),
             objectOf(nodeOf(R"({"data":["Mass","Mass"],"children":[{"data":[1,"x"],"children":[]}]})")));
    QVERIFY(rows.sheet()->columns()[0].isNumeric());
    QVERIFY(!rows.sheet()->columns()[1].isNumeric());
}

void RowBindingsTest::numbersStayNumbers()
{
    RowNodeSheet rows;
    QVERIFY(!rows.load(nodeOf(R"({"data":["Plate","Ids"],"children":[
        {"data":[1500000,[1,2]],"children":[]}]})"))
                 .hasError());
    QCOMPARE(rows.sheet()->texts(0), QStringList({text("1500000"), text("1, 2")}));
    QVERIFY(!rows.sheet()->setText(0, 0, u"96").hasError());
    QVERIFY(!rows.sheet()->setText(0, 1, u"3").hasError());
    QCOMPARE(objectOf(rows.table()), objectOf(nodeOf(R"({"data":["Plate","Ids"],"children":[
        {"data":[96,[3]],"children":[]}]})")));
}

void RowBindingsTest::editedCellsHaveTheirColumnsType()
{
    TableSheet sheet(bindingColumns());
    RowNodeBinding rows(&sheet, {text("Ids")});
    QVERIFY(!rows.load(nodeOf(R"({"data":["Name","Other","Mass","Ids"],"children":[
        {"data":["a",true,1.5,[1]],"children":[]},{"data":["b"],"children":[]}]})"))
                 .hasError());
    QCOMPARE(sheet.texts(0), QStringList({text("a"), text("1.5"), text("1"), text("3")}));
    QVERIFY(!sheet.setText(0, 1, u"2.50").hasError());
    QVERIFY(!sheet.setText(0, 2, u"1, 7").hasError());
    QVERIFY(!sheet.setText(1, 1, u"none").hasError());
    QCOMPARE(objectOf(rows.table()), objectOf(nodeOf(R"({"data":["Name","Other","Mass","Ids"],"children":[
        {"data":["a",true,2.5,[1,7]],"children":[]},{"data":["b",null,"none"],"children":[]}]})")));
}

void RowBindingsTest::newRowsAndColumnsAreAdded()
{
    TableSheet sheet(bindingColumns());
    RowNodeBinding rows(&sheet, {text("Ids")});
    QVERIFY(!rows.load(RowNode()).hasError());
    QVERIFY(rows.table() == RowNode());
    sheet.insertRows(0, 1);
    QVERIFY(!sheet.setText(0, 0, u"a").hasError());
    QCOMPARE(objectOf(rows.table()), objectOf(nodeOf(R"({"data":["Name","Mass","Ids"],"children":[
        {"data":["a",null,[]],"children":[]}]})")));
}

void RowBindingsTest::removedRowsComeBackWhole()
{
    const RowNode table = nodeOf(R"({"data":["Name","Other"],"children":[
        {"data":["a",1],"children":[{"data":["x"],"children":[]}]},{"data":["b",2],"children":[]}]})");
    TableSheet sheet(bindingColumns());
    RowNodeBinding rows(&sheet);
    QVERIFY(!rows.load(table).hasError());
    sheet.removeRows({0});
    QCOMPARE(rows.table().getChildListSize(), 1);
    sheet.history()->undo();
    QVERIFY(rows.table() == table);
}

void RowBindingsTest::whatIsntShownIsTold()
{
    TableSheet sheet(bindingColumns());
    RowNodeBinding rows(&sheet);
    QVERIFY(!rows.load(nodeOf(R"({"data":["Name","Other","Empty"],"children":[
        {"data":["a",1,"","beyond",null],"children":[{"data":["x"],"children":[]}]}]})"))
                 .hasError());
    QCOMPARE(rows.columnsNotShown(), QStringList({text("Other")}));
    QCOMPARE(rows.rowsNotShown(), 1);
    QCOMPARE(rows.cellsBeyondHeader(), 1);
    QCOMPARE(
        rows.noteOnUnshown(),
        text("These columns are kept but not shown: Other. Rows below other rows are kept but not shown: 1. "
             "Cells without a column are kept but not shown: 1."));
    QVERIFY(!rows.noteOnUnshown({text("Other")}).contains(text("columns")));
}

void RowBindingsTest::derivedCellsFollowTheirRow()
{
    TableSheet sheet(bindingColumns());
    QVERIFY(!sheet.load({{text("a"), text("2")}}).hasError());
    TableModel model(&sheet);
    QStringList seen;
    connect(&model, &QAbstractItemModel::dataChanged, this,
            [&](const QModelIndex &first, const QModelIndex &last) {
                if (first.column() <= 3 && last.column() >= 3)
                    seen.append(model.index(0, 3).data().toString());
            });
    QCOMPARE(model.index(0, 3).data().toString(), text("4"));
    QVERIFY(!sheet.setText(0, 1, u"5").hasError());
    sheet.history()->undo();
    QCOMPARE(seen, QStringList({text("10"), text("4")}));
}

void RowBindingsTest::derivedCellsAreNotEdited()
{
    TableSheet sheet(bindingColumns());
    QVERIFY(!sheet.load({{text("a"), text("2")}}).hasError());
    TableModel model(&sheet);
    QVERIFY(!model.flags(model.index(0, 3)).testFlag(Qt::ItemIsEditable));
    QVERIFY(!model.setData(model.index(0, 3), text("9")));
    QCOMPARE(sheet.history()->count(), 0);
}

void RowBindingsTest::derivedCellsSortAndFilter()
{
    TableSheet sheet(bindingColumns());
    QVERIFY(!sheet.load({{text("a"), text("30")}, {text("b"), text("4")}, {text("c"), text("")}}).hasError());
    TableModel model(&sheet);
    model.sort(3);
    QCOMPARE(model.index(0, 0).data().toString(), text("b"));
    model.setFilter({text("60"), false});
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.index(0, 0).data().toString(), text("a"));
}

void RowBindingsTest::refusedTextsLeaveARecord()
{
    TableSheet sheet(bindingColumns());
    RecordSheet<DeltaMass> records(&sheet, {{text("Name"), [](const DeltaMass &mass) { return mass.name; },
                                             [](DeltaMass *mass, QStringView cell) {
                                                 if (cell != u"refused")
                                                     mass->name = cell.toString();
                                             }}});
    DeltaMass mass;
    mass.name = text("kept");
    mass.otherCells = {{text("Other"), 7}};
    QVERIFY(!records.load({mass}).hasError());
    QVERIFY(!sheet.setText(0, 0, u"refused").hasError());
    QCOMPARE(records.records(), QList<DeltaMass>({mass}));
    QVERIFY(!sheet.setText(0, 0, u"new").hasError());
    mass.name = text("new");
    QCOMPARE(records.records(), QList<DeltaMass>({mass}));
}

WIDGET_REGISTER_TEST(RowBindingsTest)

#include "RowBindingsTest.moc"
