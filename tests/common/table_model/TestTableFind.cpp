#include "OrvTest.h"
#include "TableFixture.h"

#include <orv/table_model/TableExport.h>
#include <orv/table_model/TableFind.h>

using namespace orv;
using namespace Qt::StringLiterals;
using TableFind::Direction;

namespace {

struct FindTable
{
    FindTable()
    {
        if (sheet.load(TableFixture::peptides()).hasError())
            qFatal("The fixture doesn't load");
        model.setLocale(QLocale(u"de_DE"_s));
    }

    TableSheet sheet{TableFixture::columns()};
    TableModel model{&sheet};
    TableSearch search{.text = u"a"_s, .columns = {0, 1, 2, 3}};
};

QPoint placeOf(const QModelIndex &index)
{
    return {index.column(), index.row()};
}

} // namespace

class TestTableFind : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreFoundRowByRowAndRoundTheEnd();
    void backwardsFromACell();
    void whatIsSeenIsFound();
    void caseAndWholeCellsCountOnRequest();
    void nothingIsFoundForNothing();
    void allAreReplacedInOneStep();
    void aReplacementIsReadAsTyped();
    void onlyShownRowsAreReplaced();
    void oneIsReplaced();
    void exportsAreForPrograms();
};

void TestTableFind::cellsAreFoundRowByRowAndRoundTheEnd()
{
    FindTable t;
    QModelIndex at;
    QList<QPoint> places;
    for (int i = 0; i < 5; ++i) {
        at = TableFind::next(t.model, t.search, at, Direction::Forward);
        places.append(placeOf(at));
    }
    QCOMPARE(places, QList<QPoint>({{0, 0}, {0, 1}, {3, 1}, {0, 2}, {0, 0}}));
    QCOMPARE(TableFind::count(t.model, t.search, 100), 4);
    QCOMPARE(TableFind::count(t.model, t.search, 2), 2);
}

void TestTableFind::backwardsFromACell()
{
    FindTable t;
    const auto back = [&](const QModelIndex &from) {
        return placeOf(TableFind::next(t.model, t.search, from, Direction::Backward));
    };
    QCOMPARE(back(t.model.index(2, 0)), QPoint(3, 1));
    QCOMPARE(back(t.model.index(0, 0)), QPoint(0, 2));
    QCOMPARE(back({}), QPoint(0, 2));
}

void TestTableFind::whatIsSeenIsFound()
{
    FindTable t;
    t.search.text = u"500,25"_s;
    QCOMPARE(placeOf(TableFind::next(t.model, t.search, {}, Direction::Forward)), QPoint(1, 0));
    t.search.columns = {0, 2};
    QVERIFY(!TableFind::next(t.model, t.search, {}, Direction::Forward).isValid());
}

void TestTableFind::caseAndWholeCellsCountOnRequest()
{
    FindTable t;
    t.search.text = u"s2"_s;
    QCOMPARE(TableFind::count(t.model, t.search, 9), 1);
    t.search.isCaseSensitive = true;
    QCOMPARE(TableFind::count(t.model, t.search, 9), 0);
    t.search = {.text = u"2"_s, .isWholeCell = true, .columns = {0, 1, 2, 3}};
    QCOMPARE(TableFind::count(t.model, t.search, 9), 3);
}

void TestTableFind::nothingIsFoundForNothing()
{
    FindTable t;
    t.search.text.clear();
    QVERIFY(!TableFind::next(t.model, t.search, {}, Direction::Forward).isValid());
    QCOMPARE(TableFind::count(t.model, t.search, 9), 0);
    QCOMPARE(TableFind::replaceAll(t.model, t.search, u"x"_s).value(), 0);
}

void TestTableFind::allAreReplacedInOneStep()
{
    FindTable t;
    t.search.text = u"Positive"_s;
    QCOMPARE(TableFind::replaceAll(t.model, t.search, u"negative"_s).value(), 3);
    QCOMPARE(t.sheet.text(0, 3), u"Negative");
    QCOMPARE(t.sheet.history()->count(), 1);
    t.sheet.history()->undo();
    QCOMPARE(t.sheet.allTexts(), TableFixture::peptides());
}

void TestTableFind::aReplacementIsReadAsTyped()
{
    FindTable t;
    t.search.text = u"0,25"_s;
    QCOMPARE(TableFind::replaceAll(t.model, t.search, u"1,75"_s).value(), 1);
    QCOMPARE(t.sheet.text(0, 1), u"501.75");
}

void TestTableFind::onlyShownRowsAreReplaced()
{
    FindTable t;
    t.model.setFilter({u"alpha"_s});
    QCOMPARE(TableFind::replaceAll(t.model, t.search, u"o"_s).value(), 1);
    QCOMPARE(t.sheet.text(0, 0), u"olpho");
    QCOMPARE(t.sheet.text(1, 0), u"beta");
}

void TestTableFind::oneIsReplaced()
{
    FindTable t;
    QCOMPARE(TableFind::replace(t.model, t.search, t.model.index(1, 0), u"oo"_s).value(), 1);
    QCOMPARE(t.sheet.text(1, 0), u"betoo");
    QCOMPARE(TableFind::replace(t.model, t.search, t.model.index(3, 0), u"oo"_s).value(), 0);
}

void TestTableFind::exportsAreForPrograms()
{
    FindTable t;
    t.model.setFilter({u"alpha"_s});
    QCOMPARE(TableExport::text(t.model, {0, 1, 3}, TableExport::Separator::Comma),
             "Name,Mass (Da),Mode\r\nalpha,500.25,Positive\r\n"_ba);
    QCOMPARE(TableExport::text(t.model, {1, 0}, TableExport::Separator::Tabulator),
             "Mass (Da)\tName\r\n500.25\talpha\r\n"_ba);
}

ORV_REGISTER_TEST(TestTableFind)

#include "TestTableFind.moc"
