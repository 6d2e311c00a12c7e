#include "Documents.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/CellPlace.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

/// Two tabs; the second has the columns "B" and "0" with the cells b0, z0, b1, z1.
QJsonObject document()
{
    const auto cell = [](const QString &name) { return Documents::cell(u"Karvon"_s, name); };
    return Documents::document(
        {Documents::tab(u"First"_s, {u"A"_s}, {cell(u"a0"_s)}),
         Documents::tab(u"Second"_s, {u"B"_s, u"0"_s},
                        {cell(u"b0"_s), cell(u"z0"_s), cell(u"b1"_s), cell(u"z1"_s)})});
}

} // namespace

class TestCellPlace : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreFoundByNamesAndNumbers_data();
    void cellsAreFoundByNamesAndNumbers();
    void whatIsNotThereIsToldWithWhatIs_data();
    void whatIsNotThereIsToldWithWhatIs();
    void aDocumentWithoutTabsIsBroken();
    void replacingTouchesOneCell();
};

void TestCellPlace::cellsAreFoundByNamesAndNumbers_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("column");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    QTest::newRow("names") << u"Second"_s << u"B"_s << 1 << u"b1"_s;
    QTest::newRow("number of the tab") << u"0"_s << u"A"_s << 0 << u"a0"_s;
    QTest::newRow("a name wins over a number") << u"1"_s << u"0"_s << 0 << u"z0"_s;
    QTest::newRow("number of the column") << u"1"_s << u"1"_s << 1 << u"z1"_s;
}

void TestCellPlace::cellsAreFoundByNamesAndNumbers()
{
    QFETCH(QString, tab);
    QFETCH(QString, column);
    QFETCH(int, row);
    QFETCH(QString, name);
    const auto place = CellPlace::find(document(), tab, column, row);
    ORV_VERIFY_OK(place);
    QCOMPARE(place->cellIn(document()).value(u"name"_s), QJsonValue(name));
}

void TestCellPlace::whatIsNotThereIsToldWithWhatIs_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("column");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detail");
    QTest::newRow("tab") << u"Third"_s << u"0"_s << 0 << u"There is no tab \"Third\"."_s
                         << u"There is: First, Second."_s;
    QTest::newRow("number of a tab") << u"2"_s << u"0"_s << 0 << u"There is no tab \"2\"."_s
                                     << u"There is: First, Second."_s;
    QTest::newRow("column") << u"First"_s << u"B"_s << 0
                            << u"There is no column \"B\" in the tab \"First\"."_s << u"There is: A."_s;
    QTest::newRow("row") << u"Second"_s << u"B"_s << 2 << u"There is no row 2 in the column \"B\"."_s
                         << u"Its rows: 2, counted from 0."_s;
    QTest::newRow("negative row") << u"Second"_s << u"B"_s << -1
                                  << u"There is no row -1 in the column \"B\"."_s
                                  << u"Its rows: 2, counted from 0."_s;
}

void TestCellPlace::whatIsNotThereIsToldWithWhatIs()
{
    QFETCH(QString, tab);
    QFETCH(QString, column);
    QFETCH(int, row);
    QFETCH(QString, message);
    QFETCH(QString, detail);
    const auto place = CellPlace::find(document(), tab, column, row);
    QVERIFY(place.hasError());
    QCOMPARE(int(place.error().code()), 2);
    QCOMPARE(place.error().errorMessages(), QStringList(message));
    QCOMPARE(place.error().details(), QStringList(detail));
}

void TestCellPlace::aDocumentWithoutTabsIsBroken()
{
    for (const char *json : {"{}", R"({"tabs":[]})", R"({"tabs":{}})"}) {
        const auto place = CellPlace::find(Documents::parse(json), u"0"_s, u"0"_s, 0);
        QVERIFY(place.hasError());
        QCOMPARE(int(place.error().code()), 1);
    }
    const auto noColumns =
        CellPlace::find(Documents::parse(R"({"tabs":[{"cells":[{}]}]})"), u"0"_s, u"0"_s, 0);
    QVERIFY(noColumns.hasError());
}

void TestCellPlace::replacingTouchesOneCell()
{
    const auto place = CellPlace::find(document(), u"Second"_s, u"B"_s, 1);
    ORV_VERIFY_OK(place);
    const QJsonObject replaced = place->replacedIn(document(), Documents::cell(u"Karvon"_s, u"new"_s));
    QCOMPARE(place->cellIn(replaced).value(u"name"_s), QJsonValue(u"new"_s));
    QCOMPARE(place->replacedIn(replaced, Documents::cell(u"Karvon"_s, u"b1"_s)), document());
}

ORV_REGISTER_TEST(TestCellPlace)
#include "TestCellPlace.moc"
