#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/samples/ExtendedMetadataInfo.h>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;
using SampleJson::reference;

class TestExtendedMetadataInfo : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultOneHasEmptyLists();
    void missingMembersReadAsEmpty_data();
    void missingMembersReadAsEmpty();
    void membersAreRead();
    void whatIsReadIsWritten_data();
    void whatIsReadIsWritten();
    void cacheEntriesAreWrittenInTheOrderOfTheirReferences();
    void entriesOfOneReferenceAreJoined();
    void referencesAreToldByWhatTheyName();
    void entriesWhoseTextIsNoReferenceAreKept();
    void everyAttributeHasOneName();
    void malformedMembersAreRefused_data();
    void malformedMembersAreRefused();
    void settersReplaceAndUnknownMembersStay();
    void membersOfARemovedReferenceDoNotComeBack();
};

void TestExtendedMetadataInfo::aDefaultOneHasEmptyLists()
{
    const QJsonObject json = ExtendedMetadataInfo().toJson();
    QCOMPARE(json, parsed(R"({"metadataCache":[],"metadataMappingConnections":[]})"));
    const Result<ExtendedMetadataInfo> read = ExtendedMetadataInfo::fromJson(json);
    ORV_VERIFY_OK(read);
    QVERIFY(*read == ExtendedMetadataInfo());
}

void TestExtendedMetadataInfo::missingMembersReadAsEmpty_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("empty object") << "{}"_ba;
    QTest::newRow("cache alone") << R"({"metadataCache":[]})"_ba;
    QTest::newRow("connections alone") << R"({"metadataMappingConnections":[]})"_ba;
}

void TestExtendedMetadataInfo::missingMembersReadAsEmpty()
{
    QFETCH(QByteArray, json);
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(parsed(json));
    ORV_VERIFY_OK(info);
    QVERIFY(*info == ExtendedMetadataInfo());
}

void TestExtendedMetadataInfo::membersAreRead()
{
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(parsed(R"({
        "metadataCache": [{"reference": "unifi:/h/1", "values": [{"attribute": "Column temperature", "value": 60},
                                                              {"attribute": "Operator", "value": "Ada"}]},
                          {"reference": "unifi:/h/2"}],
        "metadataMappingConnections": [{"attribute": "Operator", "target": 1}, {"attribute": "pI", "target": 2}]})"));
    ORV_VERIFY_OK(info);
    const ExtendedMetadataInfo::MetadataCache cache = info->metadataCache();
    QCOMPARE(cache.size(), 2);
    const QList<TalvaneExtendedMetaDataValue> values = cache.value(reference(u"unifi:/h/1"_s));
    QCOMPARE(values.size(), 2);
    QCOMPARE(values[0].attribute, u"Column temperature"_s);
    QCOMPARE(values[0].value, QJsonValue(60));
    QCOMPARE(values[1].value, QJsonValue(u"Ada"_s));
    QVERIFY(cache.value(reference(u"unifi:/h/2"_s)).isEmpty());
    const QList<TalvaneMetadataMappingConnection> connections = info->metadataMappingConnections();
    QCOMPARE(connections.size(), 2);
    QCOMPARE(connections[0].target, MappingTarget::Samples);
    QCOMPARE(connections[1].target, MappingTarget::IntactProteins);
}

void TestExtendedMetadataInfo::whatIsReadIsWritten_data()
{
    QTest::addColumn<QByteArray>("json");

    const auto row = [](const char *name, const QByteArray &cache, const QByteArray &connections,
                        const QByteArray &rest = {}) {
        QTest::newRow(name) << "{\"metadataCache\":" + cache +
                                   ",\"metadataMappingConnections\":" + connections + rest + "}";
    };
    row("empty", "[]", "[]");
    row("values of every type", R"([{"reference":"r","values":[{"attribute":"a","value":null},
        {"attribute":"b","value":true},{"attribute":"c","value":1.5},{"attribute":"d","value":"t"},
        {"attribute":"e","value":[1,{}]},{"attribute":"f","value":{"x":1}}]}])",
        "[]");
    row("value without a value", R"([{"reference":"r","values":[{"attribute":"a"}]}])", "[]");
    row("attribute twice", R"([{"reference":"r","values":[{"attribute":"a","value":1},
        {"attribute":"a","value":2}]}])",
        "[]");
    row("empty texts", R"([{"reference":"","values":[{"attribute":"","value":""}]}])",
        R"([{"attribute":"","target":0}])");
    row("aliases", "[]", R"([{"attribute":"a","target":1,"alias":"Temperature"}])");
    row("connections in their order", "[]", R"([{"attribute":"b","target":2},{"attribute":"a","target":1},
        {"attribute":"b","target":1}])");
    row("targets of a newer version", "[]",
        R"([{"attribute":"a","target":99},{"attribute":"b","target":-1}])");
    row("unknown members of the whole", "[]", "[]", R"(,"server":"https://example.org","z":{"y":[null]})");
    row("unknown members of an entry", R"([{"reference":"r","values":[],"fetched":"2024-01-01"}])", "[]");
    row("unknown members of a value",
        R"([{"reference":"r","values":[{"attribute":"a","value":1,"unit":"K"}]}])", "[]");
    row("unknown members of a connection", "[]", R"([{"attribute":"a","target":1,"column":{"name":"A"}}])");
}

void TestExtendedMetadataInfo::whatIsReadIsWritten()
{
    QFETCH(QByteArray, json);
    const QJsonObject before = parsed(json);
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(before);
    ORV_VERIFY_OK(info);
    QCOMPARE(info->toJson(), before);
    const Result<ExtendedMetadataInfo> again = ExtendedMetadataInfo::fromJson(info->toJson());
    ORV_VERIFY_OK(again);
    QVERIFY(*again == *info);
}

void TestExtendedMetadataInfo::cacheEntriesAreWrittenInTheOrderOfTheirReferences()
{
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(
        parsed(R"({"metadataCache":[{"reference":"b"},{"reference":"c"},{"reference":"a"}]})"));
    ORV_VERIFY_OK(info);
    QStringList references;
    for (const QJsonValue &entry : info->toJson().value(u"metadataCache"_s).toArray())
        references.append(entry.toObject().value(u"reference"_s).toString());
    QCOMPARE(references, QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

void TestExtendedMetadataInfo::entriesOfOneReferenceAreJoined()
{
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(parsed(R"({"metadataCache":[
        {"reference":"r","values":[{"attribute":"a","value":1}],"first":1,"both":3},
        {"reference":"r","values":[{"attribute":"b","value":2}],"second":2,"both":3}]})"));
    ORV_VERIFY_OK(info);
    QCOMPARE(info->toJson().value(u"metadataCache"_s).toArray(), QJsonArray({parsed(R"({"reference":"r",
        "values":[{"attribute":"a","value":1},{"attribute":"b","value":2}],"first":1,"second":2,"both":3})")}));
}

void TestExtendedMetadataInfo::referencesAreToldByWhatTheyName()
{
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(parsed(R"({"metadataCache":[
        {"reference":"C:\\data\\a.raw","values":[{"attribute":"a","value":1}]},
        {"reference":"c:/DATA/a.raw","values":[{"attribute":"b","value":2}]}]})"));
    ORV_VERIFY_OK(info);
    QCOMPARE(info->metadataCache().size(), 1);
    QCOMPARE(info->metadataCache().value(reference(u"C:/data/a.raw"_s)).size(), 2);
    QVERIFY(!info->metadataCache().contains(reference(u"C:/data/b.raw"_s)));
    const QJsonObject entry = info->toJson().value(u"metadataCache"_s).toArray().at(0).toObject();
    QCOMPARE(entry.value(u"reference"_s).toString(), u"C:\\data\\a.raw"_s);
}

void TestExtendedMetadataInfo::entriesWhoseTextIsNoReferenceAreKept()
{
    const LogCapture log;
    const QJsonObject json = parsed(R"({"metadataCache":[
        {"reference":"a.raw","values":[]},
        {"reference":"https://example.org/a","values":[{"attribute":"a","value":1,"x":2}],"y":3},
        {"reference":"unifi:broken","values":[]},{"reference":"z.raw","values":[]}],
        "metadataMappingConnections":[]})");
    Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(json);
    ORV_VERIFY_OK(info);
    QCOMPARE(info->metadataCache().size(), 2);
    QCOMPARE(info->toJson(), json);
    info->setMetadataCache({});
    QCOMPARE(info->toJson().value(u"metadataCache"_s).toArray().size(), 2);
}

void TestExtendedMetadataInfo::everyAttributeHasOneName()
{
    ExtendedMetadataInfo info;
    QVERIFY(info.columnNames().isEmpty());
    info.setMetadataMappingConnections({{u"a"_s, MappingTarget::Samples, {}, u"Alias"_s},
                                        {u"b"_s, MappingTarget::Samples, {}},
                                        {u"a"_s, MappingTarget::IntactProteins, {}},
                                        {u"c"_s, MappingTarget::Samples, {}, u"b"_s}});
    QCOMPARE(info.columnNames(), QStringList({u"Alias"_s, u"b"_s, u"b"_s}));
}

void TestExtendedMetadataInfo::malformedMembersAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detail");

    const auto row = [](const char *name, const QByteArray &json, const QString &message,
                        const QString &detail = {}) { QTest::newRow(name) << json << message << detail; };
    const QString first = u"element 0 of \"metadataCache\""_s;
    const QString connection = u"element 0 of \"metadataMappingConnections\""_s;
    row("cache is an object", R"({"metadataCache":{}})", u"\"metadataCache\" must be an array"_s);
    row("cache is null", R"({"metadataCache":null})", u"there is null"_s);
    row("connections are a text", R"({"metadataMappingConnections":"none"})",
        u"\"metadataMappingConnections\" must be an array"_s);
    row("entry is no object", R"({"metadataCache":[7]})", u"must be an object"_s, first);
    row("entry is null", R"({"metadataCache":[null]})", u"there is null"_s, first);
    row("entry has no reference", R"({"metadataCache":[{"values":[]}]})", u"\"reference\""_s, first);
    row("reference is a number", R"({"metadataCache":[{"reference":1}]})", u"there is a number"_s, first);
    row("values are an object", R"({"metadataCache":[{"reference":"r","values":{}}]})", u"\"values\""_s,
        first);
    row("a later entry", R"({"metadataCache":[{"reference":"r"},{}]})", u"\"reference\""_s,
        u"element 1 of"_s);
    row("value without an attribute", R"({"metadataCache":[{"reference":"r","values":[{"value":1}]}]})",
        u"\"attribute\""_s, u"element 0 of \"values\""_s);
    row("value is no object", R"({"metadataCache":[{"reference":"r","values":["a"]}]})",
        u"must be an object"_s, u"element 0 of \"values\""_s);
    row("two entries of one reference disagree",
        R"({"metadataCache":[{"reference":"r","x":1},{"reference":"r","x":2}]})", u"\"r\""_s);
    row("connection is no object", R"({"metadataMappingConnections":[[]]})", u"must be an object"_s,
        connection);
    row("connection without an attribute", R"({"metadataMappingConnections":[{"target":1}]})",
        u"\"attribute\""_s, connection);
    row("connection without a target", R"({"metadataMappingConnections":[{"attribute":"a"}]})",
        u"\"target\""_s, connection);
    row("alias is a number", R"({"metadataMappingConnections":[{"attribute":"a","target":1,"alias":2}]})",
        u"\"alias\""_s, connection);
    row("target is a text", R"({"metadataMappingConnections":[{"attribute":"a","target":"1"}]})",
        u"\"target\""_s, connection);
    row("target is a fraction", R"({"metadataMappingConnections":[{"attribute":"a","target":1.5}]})",
        u"\"target\""_s, connection);
    row("target is too large", R"({"metadataMappingConnections":[{"attribute":"a","target":1e300}]})",
        u"\"target\""_s, connection);
}

void TestExtendedMetadataInfo::malformedMembersAreRefused()
{
    const LogCapture log;
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    QFETCH(QString, detail);
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(parsed(json));
    QVERIFY(info.hasError());
    QCOMPARE(info.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(info.error().errorMessage().contains(message), qPrintable(info.error().errorMessage()));
    const QString details = info.error().details().join(u' ');
    QVERIFY2(details.contains(detail), qPrintable(details));
}

void TestExtendedMetadataInfo::settersReplaceAndUnknownMembersStay()
{
    Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(
        parsed(R"({"metadataCache":[{"reference":"r","values":[],"x":1}],"server":"s"})"));
    ORV_VERIFY_OK(info);
    info->setMetadataCache({{reference(u"r"_s), {{u"a"_s, 1, {}}}}});
    info->setMetadataMappingConnections({{u"a"_s, MappingTarget::Samples, {}}});
    QCOMPARE(info->toJson(),
             parsed(R"({"metadataCache":[{"reference":"r","values":[{"attribute":"a","value":1}],
        "x":1}],"metadataMappingConnections":[{"attribute":"a","target":1}],"server":"s"})"));
}

void TestExtendedMetadataInfo::membersOfARemovedReferenceDoNotComeBack()
{
    Result<ExtendedMetadataInfo> info =
        ExtendedMetadataInfo::fromJson(parsed(R"({"metadataCache":[{"reference":"r","x":1}]})"));
    ORV_VERIFY_OK(info);
    info->setMetadataCache({});
    QVERIFY(*info == ExtendedMetadataInfo());
    info->setMetadataCache({{reference(u"r"_s), {}}});
    QCOMPARE(info->toJson().value(u"metadataCache"_s).toArray(),
             QJsonArray({parsed(R"({"reference":"r","values":[]})")}));
}

ORV_REGISTER_TEST(TestExtendedMetadataInfo)

#include "TestExtendedMetadataInfo.moc"
