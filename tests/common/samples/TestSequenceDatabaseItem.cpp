#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SequenceDatabaseItem.h>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;
using SampleJson::reference;

class TestSequenceDatabaseItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstRowHasTheIdOne();
    void membersAreRead();
    void whatIsReadIsWritten_data();
    void whatIsReadIsWritten();
    void aNewItemIsWritten();
    void malformedMembersAreRefused_data();
    void malformedMembersAreRefused();
    void aTextThatIsNoReferenceIsKeptUntilItIsReplaced();
    void aFileCanBeTakenAway();
    void fastaReferencesAreThoseOfRowsWithAFile();
};

void TestSequenceDatabaseItem::theFirstRowHasTheIdOne()
{
    QCOMPARE(SequenceDatabaseItem::START_ID, 1);
    QCOMPARE(SequenceDatabaseItem().id(), 1);
    QVERIFY(!SequenceDatabaseItem().fastaReference());
}

void TestSequenceDatabaseItem::membersAreRead()
{
    const auto item =
        SequenceDatabaseItem::fromJson(parsed(R"({"id":4,"fasta":"/a.fasta","species":"human"})"));
    ORV_VERIFY_OK(item);
    QCOMPARE(item->id(), 4);
    QCOMPARE(ResourceReferenceUtils::toString(item->fastaReference()), u"/a.fasta"_s);
    QCOMPARE(item->species(), u"human"_s);
    const auto empty = SequenceDatabaseItem::fromJson({});
    ORV_VERIFY_OK(empty);
    QVERIFY(*empty == SequenceDatabaseItem());
}

void TestSequenceDatabaseItem::whatIsReadIsWritten_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("full") << R"({"id":4,"fasta":"/a.fasta","species":"human"})"_ba;
    QTest::newRow("empty") << R"({"id":1,"fasta":"","species":""})"_ba;
    QTest::newRow("server") << R"({"id":2,"fasta":"talvane:/db/a.fasta","species":"*"})"_ba;
    QTest::newRow("unknown members")
        << R"({"id":1,"fasta":"a.fasta","species":"","taxa":[9606],"x":null})"_ba;
}

void TestSequenceDatabaseItem::whatIsReadIsWritten()
{
    QFETCH(QByteArray, json);
    const auto item = SequenceDatabaseItem::fromJson(parsed(json));
    ORV_VERIFY_OK(item);
    QCOMPARE(item->toJson(), parsed(json));
}

void TestSequenceDatabaseItem::aNewItemIsWritten()
{
    const SequenceDatabaseItem item(reference(u"a.fasta"_s), SequenceDatabaseItem::START_ID, QString());
    QCOMPARE(item.toJson(), parsed(R"({"id":1,"fasta":"a.fasta","species":""})"));
    const auto again = SequenceDatabaseItem::fromJson(item.toJson());
    ORV_VERIFY_OK(again);
    QVERIFY(*again == item);
    SequenceDatabaseItem other = item;
    other.setSpecies(u"yeast"_s);
    other.setId(2);
    QVERIFY(!(other == item));
    QCOMPARE(other.toJson(), parsed(R"({"id":2,"fasta":"a.fasta","species":"yeast"})"));
}

void TestSequenceDatabaseItem::malformedMembersAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");

    QTest::newRow("id") << R"({"id":"1"})"_ba << u"\"id\""_s;
    QTest::newRow("fasta") << R"({"fasta":1})"_ba << u"\"fasta\""_s;
    QTest::newRow("species") << R"({"species":[]})"_ba << u"\"species\""_s;
}

void TestSequenceDatabaseItem::malformedMembersAreRefused()
{
    const LogCapture log;
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    const auto item = SequenceDatabaseItem::fromJson(parsed(json));
    QVERIFY(item.hasError());
    QCOMPARE(item.error().code(), ErrorCode::InvalidContent);
    QVERIFY(item.error().errorMessage().contains(message));
}

void TestSequenceDatabaseItem::aTextThatIsNoReferenceIsKeptUntilItIsReplaced()
{
    const LogCapture log;
    const QJsonObject json = parsed(R"({"id":1,"fasta":"https://example.org/a.fasta","species":""})");
    auto item = SequenceDatabaseItem::fromJson(json);
    ORV_VERIFY_OK(item);
    QVERIFY(!item->fastaReference());
    QCOMPARE(item->toJson(), json);
    QCOMPARE(log.warnings().size(), 1);
    item->setFastaReference(reference(u"/a.fasta"_s));
    QCOMPARE(item->toJson().value(u"fasta"_s).toString(), u"/a.fasta"_s);
}

void TestSequenceDatabaseItem::aFileCanBeTakenAway()
{
    auto item = SequenceDatabaseItem::fromJson(parsed(R"({"id":1,"fasta":"a.fasta","species":""})"));
    ORV_VERIFY_OK(item);
    item->setFastaReference({});
    QCOMPARE(item->toJson(), parsed(R"({"id":1,"fasta":"","species":""})"));
}

void TestSequenceDatabaseItem::fastaReferencesAreThoseOfRowsWithAFile()
{
    const QList<SequenceDatabaseItem> items = {
        SequenceDatabaseItem(reference(u"b"_s), 1, {}), SequenceDatabaseItem(),
        SequenceDatabaseItem(reference(u"a"_s), 2, {}), SequenceDatabaseItem(reference(u"b"_s), 3, {})};
    QCOMPARE(ResourceReferenceUtils::toStringList(getFastaReferences(items)),
             QStringList({u"b"_s, u"a"_s, u"b"_s}));
    QVERIFY(getFastaReferences({}).isEmpty());
}

ORV_REGISTER_TEST(TestSequenceDatabaseItem)

#include "TestSequenceDatabaseItem.moc"
