#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"

#include <orv/core/LossObserver.h>

#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

using TableCells::cell;
using TableCells::entry;
using TableCells::node;

/// Table cells in the document.
class TestTableItemForm : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCellIsReadAndWritten();
    void anEmptyTableIsWritten();
    void theFlagChangesNothing();
    void theOtherSamplesWriteTheirCustomColumns();
    void customColumnsAreRead();
    void aLoadReplacesTheTable();
    void aLoadIsAnnouncedOnce();
    void propertiesHaveToBeAnArray_data();
    void propertiesHaveToBeAnArray();
    void theTableHasToBeThere_data();
    void theTableHasToBeThere();
    void aFailedLoadLeavesAnEmptyTable_data();
    void aFailedLoadLeavesAnEmptyTable();
    void clearingAnnouncesNothing();
    void whatIsNotKeptIsReported_data();
    void whatIsNotKeptIsReported();
    void membersOfRowsAreReported();
    void aTableThatIsKeptReportsNothing();
};

namespace {

constexpr auto kKeepForm = PropertyConversionFlag::KeepPaths;

const QJsonObject &isotopeTable()
{
    static const QJsonObject object =
        node({u"Name"_s, u"Mass"_s}, {{u"C13"_s, 1.00335}, {u"N15"_s, 0.99703}});
    return object;
}

QJsonObject isotopes()
{
    QJsonObject json = cell(u"Isotope"_s, {entry(u"Isotope"_s, isotopeTable())});
    json.insert(u"name"_s, u"Isotopes"_s);
    json.insert(u"title"_s, u"Labels"_s);
    json.insert(u"metadata"_s, u"{\"user\":\"anna\"}"_s);
    return json;
}

QList<Loss> lossesOf(const QJsonObject &json, PropertyId id = PropertyId::Isotope)
{
    LossCollector losses;
    TableItem item(id);
    if (item.load(json, {}, LoadContext(&losses, u"/c"_s)).hasError())
        qFatal("The cell of this test has to load.");
    return losses.losses();
}

} // namespace

void TestTableItemForm::aCellIsReadAndWritten()
{
    TableItem item;
    ORV_VERIFY_OK(item.assignFromJson(isotopes(), {}));
    QCOMPARE(item.name(), u"Isotopes"_s);
    QCOMPARE(item.title(), u"Labels"_s);
    QCOMPARE(item.metadata(), u"{\"user\":\"anna\"}"_s);
    QCOMPARE(item.columnNames(), (QStringList{u"Name"_s, u"Mass"_s}));
    QCOMPARE(item.value(1, 1), QVariant(0.99703));
    QCOMPARE(item.toJson(kKeepForm), isotopes());
}

void TestTableItemForm::anEmptyTableIsWritten()
{
    QCOMPARE(TableItem().toJson(kKeepForm), cell(u"Isotope"_s, {entry(u"Isotope"_s, node({}))}));
}

void TestTableItemForm::theFlagChangesNothing()
{
    TableItem item;
    ORV_VERIFY_OK(item.assignFromJson(isotopes(), {}));
    QCOMPARE(item.toJson(PropertyConversionFlag::AbsolutePaths), isotopes());
}

void TestTableItemForm::theOtherSamplesWriteTheirCustomColumns()
{
    const QJsonObject definitions = node({QJsonObject{{u"name"_s, u"Age"_s}}});
    const QJsonObject json =
        cell(u"Karvon"_s, {entry(u"Samples"_s, isotopeTable()), entry(u"CustomColumns"_s, definitions)});
    TableItem item(PropertyId::Samples, BaseItemType::Karvon);
    QCOMPARE(item.toJson(kKeepForm),
             cell(u"Karvon"_s, {entry(u"Samples"_s, node({})), entry(u"CustomColumns"_s, node({}))}));
    ORV_VERIFY_OK(item.assignFromJson(json, {}));
    QCOMPARE(item.toJson(kKeepForm), json);
    QVERIFY(lossesOf(json, PropertyId::Samples).isEmpty());
}

void TestTableItemForm::customColumnsAreRead()
{
    const QJsonObject definitions = node({QJsonObject{{u"name"_s, u"Age"_s}}});
    TableItem item;
    ORV_VERIFY_OK(item.assignFromJson(
        cell(u"Isotope"_s, {entry(u"CustomColumns"_s, definitions), entry(u"Isotope"_s, isotopeTable())}),
        {}));
    QCOMPARE(item.customColumnsMetaData().data.at(0).toMap().value(u"name"_s), QVariant(u"Age"_s));
    QCOMPARE(item.toJson(kKeepForm), cell(u"Isotope"_s, {entry(u"Isotope"_s, isotopeTable())}));

    ORV_VERIFY_OK(item.assignFromJson(isotopes(), {}));
    QVERIFY(item.customColumnsMetaData().isEmpty());
}

void TestTableItemForm::aLoadReplacesTheTable()
{
    TableItem item;
    ORV_VERIFY_OK(item.assignFromJson(isotopes(), {}));
    const QJsonObject other = cell(u"Isotope"_s, {entry(u"Isotope"_s, node({u"X"_s}, {{1}}))});
    ORV_VERIFY_OK(item.assignFromJson(other, {}));
    QCOMPARE(item.toJson(kKeepForm), other);
}

void TestTableItemForm::aLoadIsAnnouncedOnce()
{
    TableItem item;
    const QSignalSpy reset(&item, &BaseItem::reset);
    const QSignalSpy rows(&item, &BaseTableItem::rowCountChanged);
    ORV_VERIFY_OK(item.assignFromJson(isotopes(), {}));
    QCOMPARE(reset.count(), 1);
    QCOMPARE(rows.count(), 0);
}

void TestTableItemForm::propertiesHaveToBeAnArray_data()
{
    QTest::addColumn<QJsonObject>("json");
    QTest::addColumn<QString>("detail");
    QJsonObject json = isotopes();
    json.insert(u"properties"_s, QJsonObject{{u"Isotope"_s, isotopeTable()}});
    QTest::newRow("an object") << json << u"It has to be an array, and is an object."_s;
    json.remove(u"properties"_s);
    QTest::newRow("nothing") << json << u"It has to be an array, and is nothing."_s;
}

void TestTableItemForm::propertiesHaveToBeAnArray()
{
    QFETCH(const QJsonObject, json);
    QFETCH(const QString, detail);
    TableItem item;
    const QSignalSpy reset(&item, &BaseItem::reset);
    const Error error = item.assignFromJson(json, {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(),
             u"Could not parse JSON. \"properties\" has unsupported format in \"Isotope\"."_s);
    QCOMPARE(error.details(), QStringList{detail});
    QCOMPARE(reset.count(), 0);
}

void TestTableItemForm::theTableHasToBeThere_data()
{
    QTest::addColumn<QJsonArray>("properties");
    QTest::addColumn<bool>("told");
    QTest::newRow("no properties") << QJsonArray() << true;
    QTest::newRow("other properties") << QJsonArray{entry(u"MassTable"_s, isotopeTable())} << false;
    QTest::newRow("entries that are no objects") << QJsonArray{5, u"Isotope"_s} << false;
}

void TestTableItemForm::theTableHasToBeThere()
{
    QFETCH(const QJsonArray, properties);
    QFETCH(const bool, told);
    QJsonObject json = isotopes();
    json.insert(u"properties"_s, properties);
    TableItem item;
    const QSignalSpy reset(&item, &BaseItem::reset);
    const LogCapture log;
    const Error error = item.assignFromJson(json, {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), u"Could not parse JSON. Subobject \"Isotope\" is empty."_s);
    QCOMPARE(error.details().size(), 1);
    QVERIFY(error.details().first().contains(u"\"Isotopes\""_s));
    QCOMPARE(reset.count(), 0);
    QCOMPARE(log.warnings().size(), told ? 1 : 0);
}

void TestTableItemForm::aFailedLoadLeavesAnEmptyTable_data()
{
    QTest::addColumn<QJsonObject>("json");
    QTest::newRow("no properties") << QJsonObject{{u"type"_s, u"Isotope"_s}};
    QTest::newRow("no table") << cell(u"Isotope"_s, {5});
}

void TestTableItemForm::aFailedLoadLeavesAnEmptyTable()
{
    QFETCH(const QJsonObject, json);
    TableItem item;
    ORV_VERIFY_OK(item.assignFromJson(isotopes(), {}));
    QVERIFY(item.assignFromJson(json, {}).hasError());
    QCOMPARE(item.rowCount(), 0);
    QCOMPARE(item.columnCount(), 0);
}

void TestTableItemForm::clearingAnnouncesNothing()
{
    TableItem item(PropertyId::Samples, BaseItemType::Karvon);
    const QJsonObject definitions = node({QJsonObject{{u"name"_s, u"Age"_s}}});
    ORV_VERIFY_OK(item.assignFromJson(
        cell(u"Karvon"_s, {entry(u"Samples"_s, isotopeTable()), entry(u"CustomColumns"_s, definitions)}),
        {}));
    const QSignalSpy reset(&item, &BaseItem::reset);
    const QSignalSpy rows(&item, &BaseTableItem::rowCountChanged);
    const QSignalSpy columns(&item, &BaseTableItem::columnCountChanged);
    item.clear();
    QCOMPARE(item.rowCount(), 0);
    QCOMPARE(item.columnCount(), 0);
    QVERIFY(item.customColumnsMetaData().isEmpty());
    QCOMPARE(reset.count() + rows.count() + columns.count(), 0);
}

void TestTableItemForm::whatIsNotKeptIsReported_data()
{
    QTest::addColumn<QJsonObject>("json");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("what");

    const QJsonObject main = entry(u"Isotope"_s, isotopeTable());
    QJsonObject json = isotopes();
    json.insert(u"a/b"_s, 1);
    QTest::newRow("member of the cell") << json << u"/c/a~1b"_s << u"member \"a/b\" of a table cell"_s;

    json = isotopes();
    json.insert(u"title"_s, QJsonArray{1});
    QTest::newRow("title that is no text") << json << u"/c/title"_s << u"member \"title\" of a table cell"_s;

    QTest::newRow("other property") << cell(u"Isotope"_s, {main, entry(u"MassTable"_s, isotopeTable())})
                                    << u"/c/properties/1"_s << u"property \"MassTable\""_s;
    QTest::newRow("unknown property")
        << cell(u"Isotope"_s, {entry(u"Odd"_s, 1), main}) << u"/c/properties/0"_s << u"property \"Odd\""_s;
    QTest::newRow("second table") << cell(u"Isotope"_s, {main, main}) << u"/c/properties/1"_s
                                  << u"property \"Isotope\""_s;
    QTest::newRow("custom columns, which are read but not written")
        << cell(u"Isotope"_s, {main, entry(u"CustomColumns"_s, node({}))}) << u"/c/properties/1"_s
        << u"property \"CustomColumns\""_s;

    QJsonObject grouped = main;
    grouped.insert(u"group"_s, u"g"_s);
    QTest::newRow("member of the entry") << cell(u"Isotope"_s, {grouped}) << u"/c/properties/0/group"_s
                                         << u"member \"group\" of a table cell"_s;

    QTest::newRow("text as table") << cell(u"Isotope"_s, {entry(u"Isotope"_s, u"text"_s)})
                                   << u"/c/properties/0/value"_s << u"value of the table"_s;
    QTest::newRow("object that is no table")
        << cell(u"Isotope"_s, {entry(u"Isotope"_s, QJsonObject{{u"data"_s, 5}})})
        << u"/c/properties/0/value"_s << u"value of the table"_s;
}

void TestTableItemForm::whatIsNotKeptIsReported()
{
    QFETCH(const QJsonObject, json);
    QFETCH(const QString, path);
    QFETCH(const QString, what);
    const QList<Loss> losses = lossesOf(json);
    QCOMPARE(losses.size(), 1);
    QCOMPARE(losses.first().path, path);
    QCOMPARE(losses.first().what, what);
    QVERIFY(!losses.first().why.isEmpty());
}

void TestTableItemForm::membersOfRowsAreReported()
{
    QJsonObject odd = isotopeTable();
    odd.insert(u"version"_s, 2);
    QJsonArray rows = odd.value(u"children"_s).toArray();
    QJsonObject second = rows.at(1).toObject();
    second.insert(u"colour"_s, u"red"_s);
    rows[1] = second;
    odd.insert(u"children"_s, rows);
    const QList<Loss> losses = lossesOf(cell(u"Isotope"_s, {entry(u"Isotope"_s, odd)}));
    QCOMPARE(losses.size(), 2);
    QCOMPARE(losses.at(0).path, u"/c/properties/0/value/version"_s);
    QCOMPARE(losses.at(1).path, u"/c/properties/0/value/children/1/colour"_s);
}

void TestTableItemForm::aTableThatIsKeptReportsNothing()
{
    QCOMPARE(lossesOf(isotopes()), QList<Loss>());
    QCOMPARE(lossesOf(cell(u"Isotope"_s, {QJsonObject{{u"name"_s, u"Isotope"_s}}})), QList<Loss>());
}

ORV_REGISTER_TEST(TestTableItemForm)
#include "TestTableItemForm.moc"
