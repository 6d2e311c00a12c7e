#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/remote/UnifiResourceMetadata.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QJsonObject parsed(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

class TestUnifiResourceMetadata : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void allMembersAreRead();
    void whatIsReadIsWrittenAsItWas_data();
    void whatIsReadIsWrittenAsItWas();
    void aFolderComesIn();
    void membersOfTheWrongTypeAreRefused_data();
    void membersOfTheWrongTypeAreRefused();
};

void TestUnifiResourceMetadata::allMembersAreRead()
{
    const Result<UnifiResourceMetadata> metadata = UnifiResourceMetadata::fromJson(
        parsed(R"({"server": "lab", "item": {"id": "0b61", "name": "inj 1", "path": "Company/Runs",
                   "folder": {"name": "Runs", "path": "Company/Runs"}}})"));
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->server, u"lab"_s);
    QCOMPARE(metadata->item.id, u"0b61"_s);
    QCOMPARE(metadata->item.name, u"inj 1"_s);
    QCOMPARE(metadata->item.path, u"Company/Runs"_s);
    QCOMPARE(metadata->item.folder.name, u"Runs"_s);
    QCOMPARE(metadata->item.folder.path, u"Company/Runs"_s);
}

void TestUnifiResourceMetadata::whatIsReadIsWrittenAsItWas_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("little") << QByteArray(R"({"item": {"name": "inj 1"}})");
    QTest::newRow("empty texts") << QByteArray(
        R"({"server": "", "item": {"name": "", "id": "", "path": ""}})");
    QTest::newRow("more than is known") << QByteArray(
        R"({"a": 1, "item": {"name": "x", "size": 5, "folder": {"path": "p", "owner": "me"}}})");
}

void TestUnifiResourceMetadata::whatIsReadIsWrittenAsItWas()
{
    QFETCH(QByteArray, json);
    const Result<UnifiResourceMetadata> metadata = UnifiResourceMetadata::fromJson(parsed(json));
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->toJson(), parsed(json));
}

void TestUnifiResourceMetadata::aFolderComesIn()
{
    UnifiResourceMetadata metadata =
        UnifiResourceMetadata::fromJson(parsed(R"({"item": {"name": "x", "size": 5}})")).value();
    metadata.item.folder = {u"Runs"_s, u"Company/Runs"_s};
    metadata.item.path = u"Company/Runs"_s;
    QCOMPARE(metadata.toJson(), parsed(R"({"item": {"name": "x", "size": 5, "path": "Company/Runs",
                                           "folder": {"name": "Runs", "path": "Company/Runs"}}})"));
}

void TestUnifiResourceMetadata::membersOfTheWrongTypeAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("named");

    QTest::newRow("no item") << QByteArray("{}") << u"item"_s;
    QTest::newRow("item") << QByteArray(R"({"item": "x"})") << u"item"_s;
    QTest::newRow("no name") << QByteArray(R"({"item": {}})") << u"name"_s;
    QTest::newRow("server") << QByteArray(R"({"server": 1, "item": {"name": "x"}})") << u"server"_s;
    QTest::newRow("id") << QByteArray(R"({"item": {"name": "x", "id": 1}})") << u"id"_s;
    QTest::newRow("path") << QByteArray(R"({"item": {"name": "x", "path": null}})") << u"path"_s;
    QTest::newRow("folder") << QByteArray(R"({"item": {"name": "x", "folder": []}})") << u"folder"_s;
    QTest::newRow("folder without path")
        << QByteArray(R"({"item": {"name": "x", "folder": {"name": "y"}}})") << u"path"_s;
}

void TestUnifiResourceMetadata::membersOfTheWrongTypeAreRefused()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, named);
    const LogCapture log;
    const Result<UnifiResourceMetadata> metadata = UnifiResourceMetadata::fromJson(parsed(json));
    QVERIFY(metadata.hasError());
    QCOMPARE(metadata.error().code(), ErrorCode::InvalidContent);
    QVERIFY(metadata.error().errorMessage().contains(u'"' + named + u'"'));
}

ORV_REGISTER_TEST(TestUnifiResourceMetadata)

#include "TestUnifiResourceMetadata.moc"
