#include "OrvTest.h"
#include "TolqFiles.h"

#include <orv/core_ms/TolqMetadata.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestTolqMetadata : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void mappingsAreRead();
    void mappingsExistFromOneVersionOn_data();
    void mappingsExistFromOneVersionOn();
    void otherMembersArePassedOver();
    void faultyMetadataAreRefused_data();
    void faultyMetadataAreRefused();
    void aFaultyMappingIsToldWithItsPlace();
};

void TestTolqMetadata::mappingsAreRead()
{
    const Result<TolqMetadata> metadata =
        TolqMetadata::fromJson(tolqMetadata("run 1.ulvar2", "1.4.0", R"(, "traceMappings": [
            {"from": {"channelName": "TIC MS1", "channelId": "TIC"}, "to": {"channelName": "TIC", "channelId": "tic=1"}},
            {"from": {"channelName": "UV", "channelId": ""}, "to": {"channelName": "DAD 280 nm", "channelId": "dad"}}])"));
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->version(), QVersionNumber(1, 4, 0));
    QCOMPARE(metadata->sample(), u"run 1.ulvar2"_s);
    QVERIFY(metadata->hasTraceMappings());
    QCOMPARE(metadata->traceMappings(),
             (QHash<TraceInfo, TraceInfo>{{{u"TIC MS1"_s, u"TIC"_s}, {u"TIC"_s, u"tic=1"_s}},
                                          {{u"UV"_s, QString()}, {u"DAD 280 nm"_s, u"dad"_s}}}));
}

void TestTolqMetadata::mappingsExistFromOneVersionOn_data()
{
    QTest::addColumn<bool>("has");
    for (const char *version : {"0.9", "1", "1.3", "1.3.99"})
        QTest::newRow(version) << false;
    for (const char *version : {"1.4.0", "1.4.1", "1.10", "2"})
        QTest::newRow(version) << true;
}

void TestTolqMetadata::mappingsExistFromOneVersionOn()
{
    QFETCH(bool, has);
    const QByteArray mapping = R"(, "traceMappings": [{"from": {"channelName": "a", "channelId": "b"},
                                                       "to": {"channelName": "c", "channelId": "d"}}])";
    const Result<TolqMetadata> metadata =
        TolqMetadata::fromJson(tolqMetadata("a.mgf", QTest::currentDataTag(), mapping));
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->hasTraceMappings(), has);
    QCOMPARE(metadata->traceMappings().size(), has ? 1 : 0);
}

void TestTolqMetadata::otherMembersArePassedOver()
{
    const Result<TolqMetadata> metadata =
        TolqMetadata::fromJson(tolqMetadata("a.mgf", "1.4.0", R"(, "instrument": {"name": "x"})"));
    ORV_VERIFY_OK(metadata);
    QVERIFY(metadata->hasTraceMappings());
    QVERIFY(metadata->traceMappings().isEmpty());
}

void TestTolqMetadata::faultyMetadataAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("no object") << "[]"_ba;
    QTest::newRow("no version") << R"({"sample": "a.mgf"})"_ba;
    QTest::newRow("version as number") << R"({"sample": "a.mgf", "version": 1.4})"_ba;
    QTest::newRow("version as word") << tolqMetadata("a.mgf", "new");
    QTest::newRow("version with more") << tolqMetadata("a.mgf", "1.4.0-beta");
    QTest::newRow("no sample") << R"({"version": "1.4.0"})"_ba;
    QTest::newRow("empty sample") << tolqMetadata("");
    QTest::newRow("sample elsewhere") << tolqMetadata("../a.mgf");
    QTest::newRow("sample above") << tolqMetadata("..");
    QTest::newRow("sample here") << tolqMetadata(".");
    QTest::newRow("sample in a folder") << tolqMetadata("a/b.mgf");
    QTest::newRow("sample on a drive") << tolqMetadata("C:a.mgf");
    QTest::newRow("sample behind a backslash") << tolqMetadata(R"(..\\a.mgf)");
    QTest::newRow("sample with a zero") << tolqMetadata(R"(a\u0000.mgf)");
    QTest::newRow("mappings as object") << tolqMetadata("a.mgf", "1.4.0", R"(, "traceMappings": {})");
    QTest::newRow("key twice") << tolqMetadata("a.mgf", "1.4.0", R"(, "sample": "b.mgf")");
}

void TestTolqMetadata::faultyMetadataAreRefused()
{
    QFETCH(QByteArray, json);
    const Result<TolqMetadata> metadata = TolqMetadata::fromJson(json);
    QVERIFY(metadata.hasError());
    QVERIFY(metadata.error().code() != ErrorCode::NoError);
    QVERIFY(!metadata.error().errorMessage().isEmpty());
}

void TestTolqMetadata::aFaultyMappingIsToldWithItsPlace()
{
    const QByteArray good = R"({"from": {"channelName": "a", "channelId": "b"},
                                "to": {"channelName": "c", "channelId": "d"}})";
    for (const QByteArray &second :
         {good, "3"_ba, R"({"from": {"channelName": "x", "channelId": "y"}})"_ba}) {
        const Result<TolqMetadata> metadata = TolqMetadata::fromJson(
            tolqMetadata("a.mgf", "1.4.0", R"(, "traceMappings": [)" + good + ", " + second + "]"));
        QVERIFY(metadata.hasError());
        QVERIFY(metadata.error().details().contains(u"Place: /traceMappings/1"_s));
    }
}

ORV_REGISTER_TEST(TestTolqMetadata)

#include "TestTolqMetadata.moc"
