// What a file can't hold is refused where it is set, and what this version can't read is written back.
#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"

#include <KProperty>
#include <orv/propertyeditor/content/IntactOptionsTableItem.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/MassesTableItem.h>
#include <orv/table/rn.h>

#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using namespace TableCells;

namespace {

QVariant unstorable()
{
    return QVariant::fromValue(QList<int>{1, 2});
}

QJsonObject settings()
{
    return cell(u"Karvon"_s, {entry(u"KarvonCentroidWidthVal"_s, u"0.01"_s),
                              entry(u"KarvonModText"_s, QJsonObject{{u"modifications"_s, u"x"_s}}),
                              entry(u"KarvonLayout"_s, u"a.fasta"_s)});
}

} // namespace

class TestUnstorableValues : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCellRefusesWhatAFileCannotHold();
    void aRowRefusesWhatAFileCannotHold();
    void aNewRowStaysBlank();
    void aPropertyRefusesWhatAFileCannotHold_data();
    void aPropertyRefusesWhatAFileCannotHold();
    void aPropertyTakesWhatAFileCanHold();
    void oneUnreadableCellCostsNothing();
    void aTableThatCannotBeWrittenIsNamed();
};

void TestUnstorableValues::aCellRefusesWhatAFileCannotHold()
{
    const LogCapture log;
    TableItem item;
    item.node() = RowNode();
    item.addColumn(u"Name"_s);
    item.addRow({u"a"_s});
    const QSignalSpy changed(&item, &BaseItem::changed);
    QVERIFY(!item.setValue(0, 0, unstorable()));
    QCOMPARE(item.value(0, 0), QVariant(u"a"_s));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith(u"A file can't hold the value"_s));
    QVERIFY(log.warnings().first().endsWith(u"in \"Isotope\""_s));
    QVERIFY(item.setValue(0, 0, QVariantList{1, 2}));
}

void TestUnstorableValues::aRowRefusesWhatAFileCannotHold()
{
    const LogCapture log;
    TableItem item;
    item.addColumn(u"Name"_s);
    item.addColumn(u"Mass"_s);
    item.addRow({u"a"_s, 1.5});
    QVERIFY(!item.setRowValues(0, {u"b"_s, unstorable()}));
    QCOMPARE(item.value(0, 0), QVariant(u"a"_s));
    QCOMPARE(log.warnings().size(), 1);
}

void TestUnstorableValues::aNewRowStaysBlank()
{
    const LogCapture log;
    TableItem item;
    item.addColumn(u"Name"_s);
    QVERIFY(item.addRow({unstorable()}));
    QCOMPARE(item.rowCount(), 1);
    QCOMPARE(item.value(0, 0), QVariant());
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings().last().startsWith(u"Failed to set row values in"_s));
}

void TestUnstorableValues::aPropertyRefusesWhatAFileCannotHold_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("a number") << u"KarvonCentroidWidthVal"_s << unstorable();
    QTest::newRow("a number gets a list") << u"KarvonCentroidWidthVal"_s << QVariant(QVariantList{1});
    QTest::newRow("an object gets a list") << u"KarvonModText"_s << unstorable();
    QTest::newRow("an object gets a number") << u"KarvonModText"_s << QVariant(5);
    QTest::newRow("an object gets text that is none") << u"KarvonModText"_s << QVariant(u"x"_s);
    QTest::newRow("a member of the cell") << u":type"_s << unstorable();
}

void TestUnstorableValues::aPropertyRefusesWhatAFileCannotHold()
{
    const LogCapture log;
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    KeyValueItem item(BaseItemType::Karvon);
    ORV_VERIFY_OK(item.assignFromJson(settings(), ValidationOption::SkipTypeValidation));
    const QVariant before = item.value(key);
    const int type = item.type(key);
    const QSignalSpy changed(&item, &BaseItem::changed);
    QVERIFY(!item.setValue(key, value));
    QVERIFY(!item.replace(key, key, value, type));
    QVERIFY(!item.insert(u"New"_s, {}, unstorable(), 4000, {}));
    QCOMPARE(item.value(key), before);
    QCOMPARE(item.type(key), type);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(log.warnings().size(), 3);
    QVERIFY(item.toJson(PropertyConversionFlag::KeepPaths)["properties"_L1].toArray().size() == 3);
}

void TestUnstorableValues::aPropertyTakesWhatAFileCanHold()
{
    KeyValueItem item(BaseItemType::Karvon);
    ORV_VERIFY_OK(item.assignFromJson(settings(), ValidationOption::SkipTypeValidation));
    QVERIFY(item.setValue(u"KarvonModText"_s, R"({"modifications": "y"})"_ba));
    QVERIFY(item.setValue(u"KarvonModText"_s, QVariant()));
    QVERIFY(item.setValue(u"KarvonCentroidWidthVal"_s, 5));
    QVERIFY(item.setValue(u"KarvonCentroidWidthVal"_s, u"wide"_s));
    ORV_VERIFY_OK(item.checkWritable());
}

void TestUnstorableValues::oneUnreadableCellCostsNothing()
{
    QList<QJsonArray> rows;
    for (int i = 0; i < 1000; ++i)
        rows.append({u"row %1"_s.arg(i), i + 0.5});
    rows[500][1] = QJsonObject{{u"$later"_s, 1}};
    const QJsonObject json =
        cell(u"IntactOptions"_s, {entry(u"IntactOptions"_s, node({u"Name"_s, u"Mass"_s}, rows))});
    IntactOptionsTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(json, {}));
    QCOMPARE(item.rowCount(), 1000);
    QCOMPARE(item.value(500, 1).toString(), uR"({"$later":1})"_s);
    ORV_VERIFY_OK(item.checkWritable());
    QVERIFY(item.setValue(3, 1, 4.5));
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths)["properties"_L1][0]["value"_L1]["children"_L1]
                                                           [500]["data"_L1][1],
             QJsonValue(QJsonObject{{u"$later"_s, 1}}));
}

void TestUnstorableValues::aTableThatCannotBeWrittenIsNamed()
{
    IntactOptionsTableItem item;
    RowNode root;
    root.addData(QStringList{u"Name"_s, u"Mass"_s});
    root.addNewChild(VariantItems(QVariantList{u"a"_s, 1.5}));
    root.addNewChild(VariantItems(QVariantList{u"b"_s, unstorable()}));
    item.setRoot(root);
    const Error error = item.checkWritable();
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), u"The table \"IntactOptions\" can't be written."_s);
    QVERIFY(error.details().first().startsWith(
        u"Row 2, column \"Mass\": a file can't hold a value of the type QList<int>."_s));
}

ORV_REGISTER_TEST(TestUnstorableValues)

#include "TestUnstorableValues.moc"
