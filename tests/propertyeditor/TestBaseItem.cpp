#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/UnsupportedItem.h>

#include <array>

using namespace orv;
using namespace orv::PropertyEditor;

namespace {

/// An item that shows what the base class reads and writes.
class PlainItem : public BaseItem
{
public:
    using BaseItem::BaseItem;
    QJsonObject toJson(PropertyConversionFlag flag) const override { return BaseItem::toJson(flag); }
    Error assignFromJson(const QJsonObject &json, ValidationOptions options) override
    {
        return BaseItem::assignFromJson(json, options);
    }
    void clear() override {}
};

} // namespace

class TestBaseItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void typesHaveTheirNumbersAndNames_data();
    void typesHaveTheirNumbersAndNames();
    void thereAreNoOtherTypes();
    void typeNamesAreInOrderOfNumbers();
    void anEmptyTypeTextIsUnknownWithoutAWord();
    void anUnknownTypeTextIsLogged();
    void typeTextsAreCaseSensitive();
    void otherFormsOfATypeTextAreNone_data();
    void otherFormsOfATypeTextAreNone();
    void commonFieldsAreReadAndWritten();
    void absentFieldsReadAsEmptyAndAreNotWritten();
    void loadingOverwritesTheTypeGivenAtConstruction();
    void theTypeIsAProperty();
    void anUnsupportedItemKeepsItsJson_data();
    void anUnsupportedItemKeepsItsJson();
    void clearingAnUnsupportedItemEmptiesIt();
};

// By their numbers. What stands here stands in files: add to the end, change nothing.
constexpr std::array kTypesInFiles = {
    "Unknown",        "Senthia",        "Dravik",  "Karvon",         "Database",        "DetachedGlycans",
    "Disulfide",      "GlycanOptions",  "Intact",  "IntactOptions",  "Oligo",           "OligoOptions",
    "OligoMasses",    "Isotope",        "Masses",  "MultiDocReport", "Proteins",        "Preview",
    "IntactProteins", "OligoMolecules", "Ostrale", "Samples",        "SamplesProteins", "Trenq",
    "TrenqPreview",   "CaldrinDIA"};

void TestBaseItem::typesHaveTheirNumbersAndNames_data()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const char *name : kTypesInFiles)
        QTest::newRow(name) << number++;
}

void TestBaseItem::typesHaveTheirNumbersAndNames()
{
    QFETCH(int, number);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(BaseItem::typeToString(BaseItemType(number)), name);
    QCOMPARE(int(BaseItem::typeFromString(name)), number);
    QCOMPARE(BaseItem::typeNameMap().value(BaseItemType(number)), name);
}

void TestBaseItem::thereAreNoOtherTypes()
{
    QCOMPARE(BaseItem::typeNameMap().size(), qsizetype(kTypesInFiles.size()));
}

void TestBaseItem::typeNamesAreInOrderOfNumbers()
{
    QStringList names;
    for (const char *name : kTypesInFiles)
        names.append(QString::fromLatin1(name));
    QCOMPARE(BaseItem::typeNames(), names);
}

void TestBaseItem::anEmptyTypeTextIsUnknownWithoutAWord()
{
    const LogCapture log;
    QCOMPARE(BaseItem::typeFromString({}), BaseItemType::Unknown);
    QVERIFY(log.lines().isEmpty());
}

void TestBaseItem::anUnknownTypeTextIsLogged()
{
    const LogCapture log;
    QCOMPARE(BaseItem::typeFromString(QStringLiteral("Nonsense")), BaseItemType::Unknown);
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("Can't find type \"Nonsense\"")));
    QCOMPARE(log.lines().first().category, QStringLiteral("orv.property_editor"));
}

void TestBaseItem::typeTextsAreCaseSensitive()
{
    const LogCapture log;
    QCOMPARE(BaseItem::typeFromString(QStringLiteral("samples")), BaseItemType::Unknown);
    QCOMPARE(log.warnings().size(), 1);
}

void TestBaseItem::otherFormsOfATypeTextAreNone_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("qualified") << QStringLiteral("orv::ORV_QEnumsBaseItemType::Isotope");
    QTest::newRow("qualified by its enumeration") << QStringLiteral("BaseItemType::Isotope");
    QTest::newRow("behind a zero byte") << QStringLiteral("Isotope") + QChar(u'\0') + QLatin1Char('x');
    QTest::newRow("with a blank") << QStringLiteral("Isotope ");
    QTest::newRow("two at once") << QStringLiteral("Isotope|Masses");
}

void TestBaseItem::otherFormsOfATypeTextAreNone()
{
    const LogCapture log;
    QFETCH(QString, text);
    QCOMPARE(BaseItem::typeFromString(text), BaseItemType::Unknown);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(!findBaseItemType(text));
}

void TestBaseItem::commonFieldsAreReadAndWritten()
{
    PlainItem item(BaseItemType::Samples);
    const QJsonObject json =
        Documents::parse(R"({"metadata":"{}","type":"Samples","name":"n","title":"t","other":1})");
    ORV_VERIFY_OK(item.assignFromJson(json, {}));
    QCOMPARE(item.name(), QStringLiteral("n"));
    QCOMPARE(item.title(), QStringLiteral("t"));
    QCOMPARE(item.metadata(), QStringLiteral("{}"));
    QCOMPARE(item.typeString(), QStringLiteral("Samples"));
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths),
             Documents::parse(R"({"metadata":"{}","type":"Samples","name":"n","title":"t"})"));
}

void TestBaseItem::absentFieldsReadAsEmptyAndAreNotWritten()
{
    PlainItem item(BaseItemType::Samples);
    ORV_VERIFY_OK(item.assignFromJson({}, {}));
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths), Documents::parse(R"({"type":"Unknown"})"));
}

void TestBaseItem::loadingOverwritesTheTypeGivenAtConstruction()
{
    PlainItem item(BaseItemType::Samples);
    ORV_VERIFY_OK(item.assignFromJson(Documents::cell(QStringLiteral("Masses")), {}));
    QCOMPARE(item.type(), BaseItemType::Masses);
}

void TestBaseItem::theTypeIsAProperty()
{
    const PlainItem item(BaseItemType::Karvon);
    QCOMPARE(item.property("type").toInt(), int(BaseItemType::Karvon));
}

void TestBaseItem::anUnsupportedItemKeepsItsJson_data()
{
    QTest::addColumn<int>("flag");
    QTest::newRow("paths as stored") << int(PropertyConversionFlag::KeepPaths);
    QTest::newRow("absolute paths") << int(PropertyConversionFlag::AbsolutePaths);
}

void TestBaseItem::anUnsupportedItemKeepsItsJson()
{
    QFETCH(int, flag);
    const QJsonObject json =
        Documents::parse(R"({"type":"Disulfide","properties":[{"name":"x","value":{"a":[1.5]}}],
        "metadata":"{\"user\":\"u\"}","strange":{"deep":[null,true]},"path":"../relative"})");
    UnsupportedItem item(BaseItemType::Disulfide);
    ORV_VERIFY_OK(item.assignFromJson(json, {}));
    item.setBaseUrl(QUrl(QStringLiteral("file:///somewhere/")));
    QCOMPARE(Documents::toBytes(item.toJson(PropertyConversionFlag(flag))), Documents::toBytes(json));
    QCOMPARE(item.type(), BaseItemType::Disulfide);
}

void TestBaseItem::clearingAnUnsupportedItemEmptiesIt()
{
    UnsupportedItem item(BaseItemType::Disulfide);
    ORV_VERIFY_OK(item.assignFromJson(Documents::cell(QStringLiteral("Disulfide")), {}));
    item.clear();
    QVERIFY(item.toJson(PropertyConversionFlag::KeepPaths).isEmpty());
}

ORV_REGISTER_TEST(TestBaseItem)

#include "TestBaseItem.moc"
