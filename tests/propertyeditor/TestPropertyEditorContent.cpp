#include "CurrentVersion.h"
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/AppUtils.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/samples/ExtendedMetadataInfo.h>

using namespace orv;

class TestPropertyEditorContent : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyContent();
    void readsTabsColumnsAndCells();
    void cellsReadAsCompactBytes();
    void brokenTextIsLoggedAndStaysEmpty();
    void aLongBrokenTextIsLoggedInPart();
    void textThatIsNoObjectIsLoggedAndStaysEmpty();
    void malformedPartsReadAsEmpty();
    void theCellCountIsNotChecked();
    void metadataThatAreNoObjectReadAsEmpty_data();
    void metadataThatAreNoObjectReadAsEmpty();
    void absentAndEmptyExtendedMetadataBecomeTheDefault_data();
    void absentAndEmptyExtendedMetadataBecomeTheDefault();
    void extendedMetadataAreKeptAsTheyStand();
    void theLegacyModeMovesIntoTheMetadata_data();
    void theLegacyModeMovesIntoTheMetadata();
    void theLegacyModeIsNeverWritten();
    void writingStampsDocumentAndCells();
    void writingKeepsOtherMetadata();
    void anEmptyUserMeansTheSystemsUser();
    void writingIsIndentedWithSortedKeys();
    void aCopyForgetsTheCustomUser();
    void anAssignmentKeepsTheTargetsUser();
    void aCopyIsIndependent();
    void cellsGivenAsBytesAreWritten();
    void cellsThatAreNoJsonAreWrittenAsStampsAlone();
    void everyCellLeavesTheListFunctionsStamped();
    void stringListsGoBothWays();
    void roundTripKeepsAllButTheStamp();
};

namespace {

const QByteArray kDocument = R"({"tabs":[
    {"name":"First","columns":["A","B"],"cells":[{"type":"Karvon","b":1,"a":2},{"type":"Samples"}]},
    {"name":"Second","columns":[],"cells":[]}],
    "metadata":"{\"version\":\"5.5.0\",\"user\":\"ada\",\"name\":\"n\",\"colour\":\"red\"}"})";

QJsonObject metadataOf(const QJsonValue &holder)
{
    return Documents::parse(holder.toObject().value(QStringLiteral("metadata")).toString().toUtf8());
}

QJsonArray cellsOf(const QJsonObject &document, int tab)
{
    return document.value(QStringLiteral("tabs"))
        .toArray()
        .at(tab)
        .toObject()
        .value(QStringLiteral("cells"))
        .toArray();
}

} // namespace

void TestPropertyEditorContent::anEmptyContent()
{
    const PropertyEditorContent content;
    QVERIFY(content.tabsAndContent().isEmpty());
    QVERIFY(content.metadata().isEmpty());
    QVERIFY(content.extendedMetadataInfo().isEmpty());
    QVERIFY(content.customUser().isEmpty());
}

void TestPropertyEditorContent::readsTabsColumnsAndCells()
{
    const PropertyEditorContent content(kDocument);
    const PropertyEditorContent::Tabs tabs = content.tabsAndContent();
    QCOMPARE(tabs.size(), 2);
    QCOMPARE(tabs.first().first, QStringLiteral("First"));
    QCOMPARE(tabs.first().second.first, QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(tabs.first().second.second.size(), 2);
    QCOMPARE(content.metadata().value(QStringLiteral("name")).toString(), QStringLiteral("n"));
}

void TestPropertyEditorContent::cellsReadAsCompactBytes()
{
    const PropertyEditorContent content(kDocument);
    const QVariant cell = content.tabsAndContent().first().second.second.at(0);
    QCOMPARE(cell.toByteArray(), QByteArray(R"({"a":2,"b":1,"type":"Karvon"})"));
    QCOMPARE(PropertyEditorJsonUtils::variantToObject(cell), Documents::parse(cell.toByteArray()));
}

void TestPropertyEditorContent::brokenTextIsLoggedAndStaysEmpty()
{
    const LogCapture log;
    const PropertyEditorContent content(QByteArray("{\"tabs\":"));
    QVERIFY(content.tabsAndContent().isEmpty());
    QVERIFY(content.extendedMetadataInfo().isEmpty());
    const QString expected = QStringLiteral("Parse error in JSON \"{\\\"tabs\\\":\" at offset 8");
    QCOMPARE(log.warnings(), QStringList(expected));
}

void TestPropertyEditorContent::aLongBrokenTextIsLoggedInPart()
{
    const LogCapture log;
    const PropertyEditorContent content(QByteArray(1000000, 'x'));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().size() < 10000);
}

void TestPropertyEditorContent::textThatIsNoObjectIsLoggedAndStaysEmpty()
{
    const LogCapture log;
    const PropertyEditorContent content(QByteArray("[]"));
    QVERIFY(content.tabsAndContent().isEmpty());
    QVERIFY(content.extendedMetadataInfo().isEmpty());
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("JSON document is not an object")));
}

void TestPropertyEditorContent::malformedPartsReadAsEmpty()
{
    const PropertyEditorContent content(
        QByteArray(R"({"tabs":[1,{"name":2,"columns":[3,"B"],"cells":["x",null]}],"metadata":7})"));
    const PropertyEditorContent::Tabs tabs = content.tabsAndContent();
    QCOMPARE(tabs.size(), 2);
    QCOMPARE(tabs.at(0).first, QString());
    QVERIFY(tabs.at(0).second.second.isEmpty());
    QCOMPARE(tabs.at(1).second.first, QStringList({QString(), QStringLiteral("B")}));
    QCOMPARE(tabs.at(1).second.second.at(0).toByteArray(), QByteArray("{}"));
    QVERIFY(content.metadata().isEmpty());
    QVERIFY(PropertyEditorContent(QByteArray(R"({"tabs":{"a":1}})")).tabsAndContent().isEmpty());
}

void TestPropertyEditorContent::theCellCountIsNotChecked()
{
    const PropertyEditorContent content(
        QByteArray(R"({"tabs":[{"name":"n","columns":["A","B"],"cells":[{"type":"Karvon"}]}]})"));
    QCOMPARE(content.tabsAndContent().first().second.second.size(), 1);
}

void TestPropertyEditorContent::metadataThatAreNoObjectReadAsEmpty_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("absent") << QByteArray(R"({"tabs":[]})");
    QTest::newRow("no JSON") << QByteArray(R"({"tabs":[],"metadata":"not json"})");
    QTest::newRow("array") << QByteArray(R"({"tabs":[],"metadata":"[]"})");
    QTest::newRow("object instead of text") << QByteArray(R"({"tabs":[],"metadata":{"name":"n"}})");
}

void TestPropertyEditorContent::metadataThatAreNoObjectReadAsEmpty()
{
    QFETCH(QByteArray, json);
    QVERIFY(PropertyEditorContent(json).metadata().isEmpty());
}

void TestPropertyEditorContent::absentAndEmptyExtendedMetadataBecomeTheDefault_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("absent") << QByteArray(R"({"tabs":[]})");
    QTest::newRow("empty") << QByteArray(R"({"tabs":[],"extendedMetadata":{}})");
    QTest::newRow("no object") << QByteArray(R"({"tabs":[],"extendedMetadata":[1]})");
}

void TestPropertyEditorContent::absentAndEmptyExtendedMetadataBecomeTheDefault()
{
    QFETCH(QByteArray, json);
    QCOMPARE(PropertyEditorContent(json).extendedMetadataInfo(), ExtendedMetadataInfo().toJson());
}

void TestPropertyEditorContent::extendedMetadataAreKeptAsTheyStand()
{
    const PropertyEditorContent content(
        QByteArray(R"({"tabs":[],"extendedMetadata":{"odd":[1,{"x":null}]}})"));
    QCOMPARE(content.extendedMetadataInfo(), Documents::parse(R"({"odd":[1,{"x":null}]})"));
    QCOMPARE(Documents::parse(content.toJson()).value(QStringLiteral("extendedMetadata")).toObject(),
             content.extendedMetadataInfo());
}

void TestPropertyEditorContent::theLegacyModeMovesIntoTheMetadata_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QJsonValue>("mode");
    QTest::newRow("moves") << QByteArray(R"({"tabs":[],"projectCreationMode":1})") << QJsonValue(1);
    QTest::newRow("no integer reads as 0")
        << QByteArray(R"({"tabs":[],"projectCreationMode":"1"})") << QJsonValue(0);
    QTest::newRow("the metadata's own wins")
        << QByteArray(R"({"tabs":[],"projectCreationMode":1,"metadata":"{\"contentMode\":0}"})")
        << QJsonValue(0);
    QTest::newRow("absent") << QByteArray(R"({"tabs":[]})") << QJsonValue(QJsonValue::Undefined);
}

void TestPropertyEditorContent::theLegacyModeMovesIntoTheMetadata()
{
    QFETCH(QByteArray, json);
    QFETCH(QJsonValue, mode);
    QCOMPARE(PropertyEditorContent(json).metadata().value(QStringLiteral("contentMode")), mode);
}

void TestPropertyEditorContent::theLegacyModeIsNeverWritten()
{
    const PropertyEditorContent content(QByteArray(R"({"tabs":[],"projectCreationMode":1})"));
    const QJsonObject written = Documents::parse(content.toJson());
    QVERIFY(!written.contains(QStringLiteral("projectCreationMode")));
    QCOMPARE(metadataOf(written).value(QStringLiteral("contentMode")).toInt(), 1);
}

void TestPropertyEditorContent::writingStampsDocumentAndCells()
{
    PropertyEditorContent content(kDocument);
    content.setCustomUser(QStringLiteral("grace"));
    const QJsonObject written = Documents::parse(content.toJson());
    QList<QJsonObject> stamps = {metadataOf(written)};
    for (const QJsonValue &cell : cellsOf(written, 0))
        stamps.append(metadataOf(cell));
    QCOMPARE(stamps.size(), 3);
    for (const QJsonObject &stamp : stamps) {
        QCOMPARE(stamp.value(QStringLiteral("user")).toString(), QStringLiteral("grace"));
        QCOMPARE(stamp.value(QStringLiteral("version")).toString(), currentVersionText());
        const QDateTime created =
            QDateTime::fromString(stamp.value(QStringLiteral("created")).toString(), Qt::ISODate);
        QVERIFY(qAbs(created.secsTo(QDateTime::currentDateTime())) < 3600);
    }
    QCOMPARE(content.metadata().value(QStringLiteral("version")).toString(), QStringLiteral("5.5.0"));
}

void TestPropertyEditorContent::writingKeepsOtherMetadata()
{
    const QJsonObject metadata = metadataOf(Documents::parse(PropertyEditorContent(kDocument).toJson()));
    QCOMPARE(metadata.value(QStringLiteral("name")).toString(), QStringLiteral("n"));
    QCOMPARE(metadata.value(QStringLiteral("colour")).toString(), QStringLiteral("red"));
}

void TestPropertyEditorContent::anEmptyUserMeansTheSystemsUser()
{
    const QJsonObject written = Documents::parse(PropertyEditorContent(kDocument).toJson());
    QCOMPARE(metadataOf(written).value(QStringLiteral("user")).toString(), AppUtils::currentUserName());
}

void TestPropertyEditorContent::writingIsIndentedWithSortedKeys()
{
    const QByteArray text = PropertyEditorContent(kDocument).toJson();
    QVERIFY(text.startsWith("{\n    \"extendedMetadata\""));
    QVERIFY(text.indexOf("\"metadata\"") < text.indexOf("\"tabs\""));
}

void TestPropertyEditorContent::aCopyForgetsTheCustomUser()
{
    PropertyEditorContent content(kDocument);
    content.setCustomUser(QStringLiteral("grace"));
    const PropertyEditorContent copy(content);
    QCOMPARE(copy.customUser(), QString());
    QCOMPARE(copy.tabsAndContent(), content.tabsAndContent());
    QCOMPARE(copy.metadata(), content.metadata());
    QCOMPARE(copy.extendedMetadataInfo(), content.extendedMetadataInfo());
    QCOMPARE(metadataOf(Documents::parse(copy.toJson())).value(QStringLiteral("user")).toString(),
             AppUtils::currentUserName());
}

void TestPropertyEditorContent::anAssignmentKeepsTheTargetsUser()
{
    PropertyEditorContent content(kDocument);
    content.setCustomUser(QStringLiteral("grace"));
    PropertyEditorContent target;
    target.setCustomUser(QStringLiteral("alan"));
    target = content;
    QCOMPARE(target.customUser(), QStringLiteral("alan"));
    QCOMPARE(target.tabsAndContent(), content.tabsAndContent());
    const PropertyEditorContent &self = target;
    target = self;
    QCOMPARE(target.tabsAndContent(), content.tabsAndContent());
}

void TestPropertyEditorContent::aCopyIsIndependent()
{
    const PropertyEditorContent content(kDocument);
    PropertyEditorContent copy(content);
    copy = PropertyEditorContent();
    QCOMPARE(content.tabsAndContent().size(), 2);
}

void TestPropertyEditorContent::cellsGivenAsBytesAreWritten()
{
    const PropertyEditorContent content(
        {{QStringLiteral("Tab"), {{QStringLiteral("A")}, VariantItems{QByteArray(R"({"type":"Karvon"})")}}}},
        {{QStringLiteral("name"), QStringLiteral("n")}}, {{QStringLiteral("x"), 1}});
    const QJsonObject written = Documents::parse(content.toJson());
    QCOMPARE(cellsOf(written, 0).first().toObject().value(QStringLiteral("type")).toString(),
             QStringLiteral("Karvon"));
    QCOMPARE(written.value(QStringLiteral("extendedMetadata")).toObject(), Documents::parse(R"({"x":1})"));
    QCOMPARE(metadataOf(written).value(QStringLiteral("name")).toString(), QStringLiteral("n"));
}

void TestPropertyEditorContent::cellsThatAreNoJsonAreWrittenAsStampsAlone()
{
    const LogCapture log;
    const PropertyEditorContent content(
        {{QStringLiteral("Tab"), {{QStringLiteral("A")}, VariantItems{QByteArray("{broken"), QVariant()}}}});
    const QJsonArray cells = cellsOf(Documents::parse(content.toJson()), 0);
    QCOMPARE(cells.size(), 2);
    for (const QJsonValue &cell : cells)
        QCOMPARE(cell.toObject().keys(), QStringList(QStringLiteral("metadata")));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith(QStringLiteral("JSON parse error")));
}

void TestPropertyEditorContent::everyCellLeavesTheListFunctionsStamped()
{
    const QJsonArray cells =
        Documents::parse(R"({"c":[{"type":"Karvon","metadata":"old"},{"type":"Samples"},5]})")
            .value(QStringLiteral("c"))
            .toArray();
    const VariantItems items = PropertyEditorJsonUtils::jsonArrayToVariantItems(cells);
    QCOMPARE(items.size(), 3);
    const QJsonArray back = PropertyEditorJsonUtils::variantItemsToJsonArray(items);
    QCOMPARE(back.size(), 3);
    for (const QJsonValue &cell : back) {
        const QJsonObject stamp = metadataOf(cell);
        QCOMPARE(stamp.keys(),
                 QStringList({QStringLiteral("created"), QStringLiteral("user"), QStringLiteral("version")}));
        QCOMPARE(stamp.value(QStringLiteral("user")).toString(), AppUtils::currentUserName());
    }
    QCOMPARE(back.at(0).toObject().value(QStringLiteral("type")).toString(), QStringLiteral("Karvon"));
}

void TestPropertyEditorContent::stringListsGoBothWays()
{
    const QStringList list = {QStringLiteral("b"), QString(), QStringLiteral("a")};
    QCOMPARE(
        PropertyEditorJsonUtils::jsonArrayToStringList(PropertyEditorJsonUtils::stringListToJsonArray(list)),
        list);
    QCOMPARE(PropertyEditorJsonUtils::jsonArrayToStringList({1, QStringLiteral("x"), QJsonObject()}),
             QStringList({QString(), QStringLiteral("x"), QString()}));
}

void TestPropertyEditorContent::roundTripKeepsAllButTheStamp()
{
    const PropertyEditorContent first(kDocument);
    const PropertyEditorContent second(first.toJson());
    const PropertyEditorContent third(second.toJson());
    const auto withoutStamps = [](const PropertyEditorContent &content) {
        QJsonArray all;
        for (const PropertyEditorContent::Tab &tab : content.tabsAndContent()) {
            all.append(tab.first);
            all.append(QJsonArray::fromStringList(tab.second.first));
            for (const QVariant &cell : tab.second.second) {
                QJsonObject object = RawCell::objectOf(cell);
                object.remove(QStringLiteral("metadata"));
                all.append(object);
            }
        }
        return all;
    };
    QCOMPARE(withoutStamps(second), withoutStamps(first));
    QCOMPARE(withoutStamps(third), withoutStamps(first));
}

ORV_REGISTER_TEST(TestPropertyEditorContent)

#include "TestPropertyEditorContent.moc"
