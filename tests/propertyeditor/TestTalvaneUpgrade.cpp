#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleDocuments.h"
#include "ServerFixture.h"

#include <orv/propertyeditor/workflow/TalvaneWflwUpgradeHelper.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <QVersionNumber>

using namespace orv;
using namespace Qt::StringLiterals;
using namespace SampleDocuments;

namespace {

const QByteArray kTolqMetadata = "/api/1/files/tolq-metadata";
const QByteArray kMapping = R"({"version": "1.4.0", "sample": "run.ulvar2", "traceMappings": [
    {"from": {"channelName": "TIC MS1", "channelId": "TIC"}, "to": {"channelName": "TIC", "channelId": "tic=1"}},
    {"from": {"channelName": "UV 1", "channelId": "7"}, "to": {"channelName": "UV 214 nm", "channelId": "uv=1"}}]})";

QJsonObject trace(int type, const QString &name, const QString &id)
{
    return {{u"type"_s, type}, {u"channelName"_s, name}, {u"channelId"_s, id}, {u"imported"_s, false}};
}

PropertyEditorContent documentOf(const QJsonArray &samples, const QJsonArray &traces)
{
    return ofTable({{u"Samples"_s, samples},
                    {u"TraceImportAndProcessingOptions"_s, QJsonObject{{u"TracesImportList"_s, traces}}}});
}

Error run(PropertyEditorContent *content)
{
    TalvaneWflwUpgradeHelper helper;
    return helper.upgradeV_5_10_1(content);
}

QJsonArray tracesOf(const PropertyEditorContent &content)
{
    return tableOf(content)
        .value(u"TraceImportAndProcessingOptions"_s)
        .toObject()
        .value(u"TracesImportList"_s)
        .toArray();
}

ResourceReferenceSPtr read(const QString &text)
{
    return ResourceReference::fromString(text).valueOr({});
}

} // namespace

class TestTalvaneUpgrade : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void tracesGetTheNamesOfTodaysReader();
    void tracesMatchByNameAndId();
    void mappingsOfAllFilesAreJoined();
    void furtherReferencesAreAskedForToo();
    void theServerIsToldWhereTheFileLies_data();
    void theServerIsToldWhereTheFileLies();
    void withoutAcquiredSamplesNobodyIsAsked();
    void filesElsewhereAreRefused_data();
    void filesElsewhereAreRefused();
    void metadataBeforeTheMappingsAreRefused();
    void noMappingAtAllIsFine();
    void aDocumentWithoutSamplesIsRefused();
    void aServerThatFailsEndsTheStep_data();
    void aServerThatFailsEndsTheStep();
    void withoutAnAddressTheStepSaysWhatToSet();
    void compatibilityMetadataAreTold();
    void theChainTakesTheServersWay();
    void withoutAccessToSampleDataNobodyIsAsked();
};

void TestTalvaneUpgrade::tracesGetTheNamesOfTodaysReader()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    PropertyEditorContent content = documentOf(
        {sample(1, u"lot 1"_s, u"talvane:/projects/17/qc.tolq"_s)},
        {trace(1, u"TIC MS1"_s, u"TIC"_s), trace(3, u"UV 1"_s, u"7"_s), trace(0, u"pump"_s, u"9"_s)});
    ORV_VERIFY_OK(run(&content));
    QCOMPARE(tracesOf(content),
             (QJsonArray{trace(1, u"TIC"_s, u"tic=1"_s), trace(3, u"UV 214 nm"_s, u"uv=1"_s),
                         trace(0, u"pump"_s, u"9"_s)}));
}

void TestTalvaneUpgrade::tracesMatchByNameAndId()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    const QJsonArray traces{trace(1, u"TIC MS1"_s, u"other"_s), trace(1, u"other"_s, u"TIC"_s),
                            trace(1, u"TIC"_s, u"TIC MS1"_s)};
    PropertyEditorContent content =
        documentOf({sample(1, u"lot 1"_s, u"talvane:/projects/17/qc.tolq"_s)}, traces);
    ORV_VERIFY_OK(run(&content));
    QCOMPARE(tracesOf(content), traces);
}

void TestTalvaneUpgrade::mappingsOfAllFilesAreJoined()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    PropertyEditorContent content = documentOf({sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s),
                                                sample(2, u"lot 2"_s, u"talvane:/a/2.TOLQ"_s),
                                                sample(3, u"lot 2 again"_s, u"talvane:/a/2.TOLQ"_s)},
                                               {trace(3, u"UV 1"_s, u"7"_s)});
    ORV_VERIFY_OK(run(&content));
    QCOMPARE(tracesOf(content), QJsonArray{trace(3, u"UV 214 nm"_s, u"uv=1"_s)});
    QCOMPARE(fixture.server.requests().size(), 2);
    QCOMPARE(fixture.server.requests()[0].query.queryItemValue(u"name"_s), u"1.tolq"_s);
    QCOMPARE(fixture.server.requests()[1].query.queryItemValue(u"name"_s), u"2.TOLQ"_s);
}

void TestTalvaneUpgrade::furtherReferencesAreAskedForToo()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    const QJsonObject more{{u"Traces"_s, QJsonArray{u"talvane:/a/uv.tolq"_s}},
                           {u"ExtraReferences"_s, QJsonArray{u"talvane:/a/search.karvrslt"_s}}};
    PropertyEditorContent content =
        documentOf({sample(1, u"lot 1"_s, u"talvane:/a/1.raw"_s, more)}, {trace(3, u"UV 1"_s, u"7"_s)});
    ORV_VERIFY_OK(run(&content));
    QCOMPARE(tracesOf(content), QJsonArray{trace(3, u"UV 214 nm"_s, u"uv=1"_s)});
    QCOMPARE(fixture.server.requests().size(), 1);
    QCOMPARE(fixture.server.requests()[0].query.queryItemValue(u"name"_s), u"uv.tolq"_s);
}

void TestTalvaneUpgrade::theServerIsToldWhereTheFileLies_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("path");

    QTest::newRow("file") << u"talvane:/projects/17/qc.tolq"_s << u"/projects/17"_s;
    QTest::newRow("source") << u"eds:/archive/2024/qc.tolq"_s << u"eds:/archive/2024"_s;
    QTest::newRow("managed") << u"managed:/4711/qc.tolq"_s << u"managed:/4711"_s;
}

void TestTalvaneUpgrade::theServerIsToldWhereTheFileLies()
{
    QFETCH(QString, reference);
    QFETCH(QString, path);
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    PropertyEditorContent content = documentOf({sample(1, u"lot 1"_s, reference)}, {});
    ORV_VERIFY_OK(run(&content));
    const QUrlQuery query = fixture.server.requests().value(0).query;
    QCOMPARE(query.queryItemValue(u"path"_s, QUrl::FullyDecoded), path);
    QCOMPARE(query.queryItemValue(u"name"_s, QUrl::FullyDecoded), u"qc.tolq"_s);
}

void TestTalvaneUpgrade::withoutAcquiredSamplesNobodyIsAsked()
{
    ServerFixture fixture;
    const QJsonArray traces{trace(1, u"TIC MS1"_s, u"TIC"_s)};
    PropertyEditorContent content = documentOf(
        {sample(1, u"lot 1"_s, u"talvane:/a/1.raw"_s), sample(2, u"lot 2"_s, u"eds:/archive/2.raw"_s),
         sample(3, u"lot 3"_s, u"managed:/4711"_s), sample(4, u"none"_s, {})},
        traces);
    ORV_VERIFY_OK(run(&content));
    QCOMPARE(tracesOf(content), traces);
    QVERIFY(fixture.server.requests().isEmpty());
}

void TestTalvaneUpgrade::filesElsewhereAreRefused_data()
{
    QTest::addColumn<QJsonObject>("elsewhere");

    QTest::newRow("local file") << sample(2, u"lot 2"_s, u"/data/a.raw"_s);
    QTest::newRow("local acquired sample") << sample(2, u"lot 2"_s, u"/data/a.tolq"_s);
    QTest::newRow("UNIFI item") << sample(2, u"lot 2"_s, u"unifi:/lab/{1}/Runs/inj"_s);
    QTest::newRow("local trace") << sample(2, u"lot 2"_s, u"talvane:/a/2.raw"_s,
                                           {{u"Traces"_s, QJsonArray{u"a.csv"_s}}});
}

void TestTalvaneUpgrade::filesElsewhereAreRefused()
{
    QFETCH(QJsonObject, elsewhere);
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    const QJsonArray traces{trace(1, u"TIC MS1"_s, u"TIC"_s)};
    PropertyEditorContent content =
        documentOf({sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s), elsewhere}, traces);
    const Error error = run(&content);
    QCOMPARE(error.errorMessage(), u"Upgrade with sources different than Talvane server is not supported."_s);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QVERIFY(!error.details().isEmpty());
    QCOMPARE(tracesOf(content), traces);
    QVERIFY(content.metadata().isEmpty());
}

void TestTalvaneUpgrade::metadataBeforeTheMappingsAreRefused()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = QByteArray(kMapping).replace("1.4.0", "1.3.9")});
    PropertyEditorContent content =
        documentOf({sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s)}, {trace(1, u"TIC MS1"_s, u"TIC"_s)});
    const Error error = run(&content);
    QCOMPARE(error.errorMessage(),
             u"Upgrade not possible. A valid compatibility metadata not provided in the Tolq "
             "file: talvane:/a/1.tolq"_s);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QVERIFY(content.metadata().isEmpty());
}

void TestTalvaneUpgrade::noMappingAtAllIsFine()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = R"({"version": "1.4.0", "sample": "r"})"});
    const QJsonArray traces{trace(1, u"TIC MS1"_s, u"TIC"_s)};
    PropertyEditorContent content = documentOf({sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s)}, traces);
    ORV_VERIFY_OK(run(&content));
    QCOMPARE(tracesOf(content), traces);
}

void TestTalvaneUpgrade::aDocumentWithoutSamplesIsRefused()
{
    const LogCapture log;
    PropertyEditorContent content(
        Documents::document({Documents::tab(u"Steps"_s, {u"Intact"_s}, {Documents::cell(u"Intact"_s)})}));
    QCOMPARE(run(&content).errorMessage(), u"There are no samples in the workflow."_s);
}

void TestTalvaneUpgrade::aServerThatFailsEndsTheStep_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("manner");
    QTest::addColumn<QString>("message");

    using Manner = HttpTestServer::Manner;
    QTest::newRow("missing") << 404 << QByteArray("{}") << int(Manner::Proper) << u"has no such thing"_s;
    QTest::newRow("refused") << 401 << QByteArray("{}") << int(Manner::Proper) << u"refuses access"_s;
    QTest::newRow("silent") << 200 << QByteArray() << int(Manner::Silent) << u"in time"_s;
    QTest::newRow("no metadata") << 200 << QByteArray("{}") << int(Manner::Proper) << u"can't be read"_s;
}

void TestTalvaneUpgrade::aServerThatFailsEndsTheStep()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(int, manner);
    QFETCH(QString, message);
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata,
                             {.status = status, .body = body, .manner = HttpTestServer::Manner(manner)});
    PropertyEditorContent content = documentOf({sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s)}, {});
    const Error error = run(&content);
    QVERIFY2(error.errorMessage().contains(message), qPrintable(error.errorMessage()));
    QVERIFY(content.metadata().isEmpty());
}

void TestTalvaneUpgrade::withoutAnAddressTheStepSaysWhatToSet()
{
    const LogCapture log;
    PropertyEditorContent content = documentOf({sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s)}, {});
    const Error error = run(&content);
    QVERIFY(error.details().join(u' ').contains(u"Talvane/Address"_s));
}

void TestTalvaneUpgrade::compatibilityMetadataAreTold()
{
    ServerFixture fixture;
    const TalvaneWflwUpgradeHelper helper;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    const auto found = helper.getCompatibilityMetadata(read(u"talvane:/a/1.tolq"_s), u"1.tolq"_s);
    ORV_VERIFY_OK(found);
    QVERIFY(found->has_value());
    QCOMPARE((*found)->size(), 2);
    QCOMPARE((*found)->value({u"TIC MS1"_s, u"TIC"_s}), (TraceInfo{u"TIC"_s, u"tic=1"_s}));

    fixture.server.setAnswer(kTolqMetadata, {.body = R"({"version": "1.3", "sample": "r"})"});
    const auto none = helper.getCompatibilityMetadata(read(u"talvane:/a/1.tolq"_s), u"1.tolq"_s);
    ORV_VERIFY_OK(none);
    QVERIFY(!none->has_value());
}

void TestTalvaneUpgrade::theChainTakesTheServersWay()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kTolqMetadata, {.body = kMapping});
    PropertyEditorContent content =
        ofTable({{u"Samples"_s, QJsonArray{sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s)}},
                 {u"TraceImportAndProcessingOptions"_s,
                  QJsonObject{{u"TracesImportList"_s, QJsonArray{trace(1, u"TIC MS1"_s, u"TIC"_s)}}}}},
                {{u"version"_s, u"5.10.0"_s}, {u"contentMode"_s, 1}});
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 10, 0), &content, nullptr, true));
    QCOMPARE(tracesOf(content), QJsonArray{trace(1, u"TIC"_s, u"tic=1"_s)});
    QCOMPARE(WflwMetaData::versionNumberFromMetaDataObject(content.metadata()),
             WflwMetaData::currentWorkflowVersion());
}

void TestTalvaneUpgrade::withoutAccessToSampleDataNobodyIsAsked()
{
    const LogCapture log;
    ServerFixture fixture;
    PropertyEditorContent content = ofSamples({sample(1, u"lot 1"_s, u"talvane:/a/1.tolq"_s)},
                                              {{u"version"_s, u"5.10.0"_s}, {u"contentMode"_s, 1}});
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 10, 0), &content, nullptr, false));
    QVERIFY(fixture.server.requests().isEmpty());
}

ORV_REGISTER_TEST(TestTalvaneUpgrade)

#include "TestTalvaneUpgrade.moc"
