#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SamplesAndTracesContent.h>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;
using SampleJson::reference;

class TestSamplesContent : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void modesHaveTheirNumbers();
    void aDefaultOneHasNoSamples();
    void membersAreRead();
    void oldNamesOfMembersAreRead_data();
    void oldNamesOfMembersAreRead();
    void whatIsReadIsWritten_data();
    void whatIsReadIsWritten();
    void aNewSampleIsWrittenUnderThePresentNames();
    void changesReplaceOldNames();
    void aClearedFileIsWrittenAsEmpty();
    void aTextThatIsNoReferenceIsKeptUntilItIsReplaced();
    void samplesWithoutAnIdAreNumbered();
    void malformedMembersAreRefused_data();
    void malformedMembersAreRefused();
    void referencesAreThoseOfSamplesAndCompanions();
    void filesOnTheUnifiServerAreExternal_data();
    void filesOnTheUnifiServerAreExternal();
    void metadataOfAFileMovesWithIt();
    void samplesComeFromTheTablesObject();
    void equalContentsAreStoredAlike();
};

void TestSamplesContent::modesHaveTheirNumbers()
{
    using SamplesInput::Mode;
    QCOMPARE(int(Mode::Senthia), 0);
    QCOMPARE(int(Mode::Trenq), 1);
    QCOMPARE(int(Mode::Ostrale), 2);
    QCOMPARE(int(Mode::Intact), 3);
    QCOMPARE(int(Mode::Oligo), 4);
    QCOMPARE(int(Mode::Dravik), 5);
    QCOMPARE(int(Mode::Karvon), 6);
    QCOMPARE(int(Mode::MultiDocReport), 7);
    QCOMPARE(int(Mode::Preview), 8);
}

void TestSamplesContent::aDefaultOneHasNoSamples()
{
    const SamplesAndTracesContent content;
    QVERIFY(content.samples.samples.isEmpty());
    QVERIFY(content.references().isEmpty());
    QCOMPARE(content.toJson(), parsed(R"({"Samples":[]})"));
    for (const QByteArray &json :
         {"{}"_ba, R"({"Samples":null})"_ba, R"({"TraceImportAndProcessingOptions":null})"_ba})
        ORV_VERIFY_OK(SamplesAndTracesContent::fromJson(parsed(json)));
}

void TestSamplesContent::membersAreRead()
{
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(R"({
        "Samples": [{"SamplesId": 7, "SampleName": "A", "SamplePath": "/data/a.raw", "Traces": ["a.csv", "b.pI"],
                     "ExtraReferences": ["a.karvrslt"], "Reference": true, "SampleTimeUnit": "min",
                     "Digestion": "Trypsin", "SampleType": "control", "Metadata": {"type": 1, "server": "s"},
                     "FileMetadata": {"/data/a.raw": {"size": 5}}}],
        "TraceImportAndProcessingOptions": {"TracesImportList": [{"type": 1, "channelName": "TIC"}],
                                            "ElutionPeaksOptions": [{"name": "usual"}]}})"));
    ORV_VERIFY_OK(content);
    QCOMPARE(content->samples.samples.size(), 1);
    const SamplesInput::Entry &sample = content->samples.samples.first();
    QCOMPARE(sample.id, 7);
    QCOMPARE(sample.name, u"A"_s);
    QCOMPARE(ResourceReferenceUtils::toString(sample.msFile), u"/data/a.raw"_s);
    QCOMPARE(ResourceReferenceUtils::toStringList(sample.traces), QStringList({u"a.csv"_s, u"b.pI"_s}));
    QCOMPARE(ResourceReferenceUtils::toStringList(sample.extraReferences), QStringList(u"a.karvrslt"_s));
    QCOMPARE(ResourceReferenceUtils::toStringList(sample.companions()),
             QStringList({u"a.csv"_s, u"b.pI"_s, u"a.karvrslt"_s}));
    QVERIFY(sample.isReference);
    QCOMPARE(sample.timeUnit, u"min"_s);
    QCOMPARE(sample.digestion, u"Trypsin"_s);
    QCOMPARE(sample.sampleType, u"control"_s);
    QCOMPARE(sample.metadata.value(u"server"_s).toString(), u"s"_s);
    QCOMPARE(sample.fileMetadata.value(u"/data/a.raw"_s).value(u"size"_s).toInt(), 5);
    QCOMPARE(content->options.traces.list().size(), 1);
    QCOMPARE(content->options.peaksOptions.size(), 1);
    QCOMPARE(content->samples.names(), QStringList(u"A"_s));
}

void TestSamplesContent::oldNamesOfMembersAreRead_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("traces");
    QTest::addColumn<QStringList>("extra");

    const auto row = [](const char *name, const QByteArray &members, const QString &file,
                        const QStringList &traces = {}, const QStringList &extra = {}) {
        QTest::newRow(name) << members << file << traces << extra;
    };
    row("SamplePath", R"("SamplePath":"a")", u"a"_s);
    row("FilePath", R"("FilePath":"a")", u"a"_s);
    row("FileName", R"("FileName":"a")", u"a"_s);
    row("the present name wins", R"("FilePath":"a","SamplePath":"b")", u"b"_s);
    row("null is absent", R"("FilePath":"a","SamplePath":null)", u"a"_s);
    row("one trace of each kind", R"("TracesMs":"m","TracesCsv":"c")", {}, {u"c"_s, u"m"_s});
    row("an empty trace", R"("TracesMs":"m","TracesCsv":"")", {}, {u"m"_s});
    row("the present traces win", R"("TracesMs":"m","Traces":[])", {});
    row("a search", R"("Ms2Search":"s")", {}, {}, {u"s"_s});
}

void TestSamplesContent::oldNamesOfMembersAreRead()
{
    QFETCH(QByteArray, members);
    const QJsonObject json = parsed("{\"SamplesId\":1,\"SampleName\":\"A\"," + members + "}");
    const Result<SamplesInput::Entry> entry = SamplesInput::Entry::fromJson(json);
    ORV_VERIFY_OK(entry);
    QTEST(ResourceReferenceUtils::toString(entry->msFile), "file");
    QTEST(ResourceReferenceUtils::toStringList(entry->traces), "traces");
    QTEST(ResourceReferenceUtils::toStringList(entry->extraReferences), "extra");
    QCOMPARE(entry->toJson(), json);
}

void TestSamplesContent::whatIsReadIsWritten_data()
{
    QTest::addColumn<QByteArray>("json");

    const auto row = [](const char *name, const QByteArray &json) { QTest::newRow(name) << json; };
    const auto sampleRow = [](const char *name, const QByteArray &members) {
        QTest::newRow(name) << R"({"Samples":[{"SamplesId":1,"SampleName":"A")" + members + "}]}";
    };
    row("no samples", R"({"Samples":[]})");
    row("empty options", R"({"Samples":[],"TraceImportAndProcessingOptions":{}})");
    row("empty lists in the options",
        R"({"Samples":[],"TraceImportAndProcessingOptions":{"ElutionPeaksOptions":[],"TracesImportList":[]}})");
    row("null options", R"({"Samples":[],"TraceImportAndProcessingOptions":null})");
    row("no columns", R"({"Samples":[],"CustomColumns":[]})");
    row("null columns", R"({"Samples":[],"CustomColumns":null})");
    row("unknown members", R"({"Samples":[],"Plates":[1,{"x":null}],"version":2})");
    sampleRow("the least", "");
    sampleRow("a false flag", R"(,"Reference":false)");
    sampleRow("empty texts", R"(,"SamplePath":"","Digestion":"","Traces":[])");
    sampleRow("nulls", R"(,"SamplePath":null,"Traces":null,"Reference":null)");
    sampleRow("metadata that is a text", R"(,"Metadata":"")");
    sampleRow("metadata of a file that is no object", R"(,"FileMetadata":{"a":1,"b":{}})");
    sampleRow("a file URL", R"(,"SamplePath":"file:///data/a%20b.raw")");
    sampleRow("a text that is no reference in the traces",
              R"(,"Traces":["a.csv","https://example.org","b.csv"])");
    sampleRow("unknown lists and objects", R"(,"Well":{"row":1},"Tags":["x"],"Nothing":null)");
    sampleRow("values of custom columns", R"(,"Condition":"treated","Dose":1.5,"Pooled":true)");
    sampleRow("large numbers", R"(,"Run":9007199254740993)");
    row("custom columns", R"({"Samples":[{"SamplesId":1,"SampleName":"A","Dose":2,"Note":"x"}],
        "CustomColumns":[{"name":"Dose","type":"number","unit":"mg"},{"name":"Later","type":"text"}]})");
    row("a list below a custom column",
        R"({"Samples":[{"SamplesId":1,"SampleName":"A","Dose":[2]}],"CustomColumns":[{"name":"Dose","type":"number"}]})");
    row("ids twice", R"({"Samples":[{"SamplesId":1,"SampleName":"A"},{"SamplesId":1,"SampleName":"B"}]})");
}

void TestSamplesContent::whatIsReadIsWritten()
{
    const LogCapture log;
    QFETCH(QByteArray, json);
    const QJsonObject before = parsed(json);
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(before);
    ORV_VERIFY_OK(content);
    QCOMPARE(content->toJson(), before);
}

void TestSamplesContent::aNewSampleIsWrittenUnderThePresentNames()
{
    SamplesInput::Entry entry;
    entry.id = 3;
    QCOMPARE(entry.toJson(), parsed(R"({"SamplesId":3,"SampleName":""})"));
    entry.name = u"A"_s;
    entry.msFile = reference(u"/a.raw"_s);
    entry.traces = {reference(u"/a.csv"_s)};
    entry.extraReferences = {reference(u"/a.karvrslt"_s)};
    entry.isReference = true;
    entry.timeUnit = u"s"_s;
    entry.digestion = u"Trypsin"_s;
    entry.sampleType = u"blank"_s;
    entry.metadata = {{u"type"_s, 1}};
    entry.fileMetadata = {{u"/a.raw"_s, {{u"size"_s, 1}}}};
    QCOMPARE(entry.toJson(),
             parsed(R"({"SamplesId":3,"SampleName":"A","SamplePath":"/a.raw","Traces":["/a.csv"],
        "ExtraReferences":["/a.karvrslt"],"Reference":true,"SampleTimeUnit":"s","Digestion":"Trypsin",
        "SampleType":"blank","Metadata":{"type":1},"FileMetadata":{"/a.raw":{"size":1}}})"));
    const Result<SamplesInput::Entry> again = SamplesInput::Entry::fromJson(entry.toJson());
    ORV_VERIFY_OK(again);
    QVERIFY(*again == entry);
}

void TestSamplesContent::changesReplaceOldNames()
{
    Result<SamplesInput::Entry> entry = SamplesInput::Entry::fromJson(parsed(
        R"({"SamplesId":1,"SampleName":"A","FilePath":"a","TracesCsv":"c","TracesMs":"m","Ms2Search":"s",
                   "FileMetadata":{"x":1},"y":2})"));
    ORV_VERIFY_OK(entry);
    entry->msFile = reference(u"b"_s);
    entry->traces.removeFirst();
    entry->extraReferences.append(reference(u"t"_s));
    entry->fileMetadata.insert(u"b"_s, {});
    QCOMPARE(entry->toJson(), parsed(R"({"SamplesId":1,"SampleName":"A","FilePath":"b","Traces":["m"],
        "ExtraReferences":["s","t"],"FileMetadata":{"x":1,"b":{}},"y":2})"));
}

void TestSamplesContent::aClearedFileIsWrittenAsEmpty()
{
    Result<SamplesInput::Entry> entry = SamplesInput::Entry::fromJson(parsed(R"({"SamplePath":"a"})"));
    ORV_VERIFY_OK(entry);
    entry->msFile.clear();
    QCOMPARE(entry->toJson().value(u"SamplePath"_s), QJsonValue(u""_s));
}

void TestSamplesContent::aTextThatIsNoReferenceIsKeptUntilItIsReplaced()
{
    const LogCapture log;
    Result<SamplesInput::Entry> entry = SamplesInput::Entry::fromJson(
        parsed(R"({"SamplesId":1,"SampleName":"A","SamplePath":"https://example.org/a"})"));
    ORV_VERIFY_OK(entry);
    QVERIFY(!entry->msFile);
    QCOMPARE(log.warnings(), QStringList(u"The sample \"A\" refers to \"https://example.org/a\", which is no "
                                         "reference to a file."_s));
    entry->name = u"B"_s;
    QCOMPARE(entry->toJson().value(u"SamplePath"_s).toString(), u"https://example.org/a"_s);
    entry->msFile = reference(u"a"_s);
    QCOMPARE(entry->toJson().value(u"SamplePath"_s).toString(), u"a"_s);
    QCOMPARE(log.warnings().size(), 1);
}

void TestSamplesContent::samplesWithoutAnIdAreNumbered()
{
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(
        parsed(R"({"Samples":[{},{"SamplesId":2},{"SamplesId":null},{"SamplesId":0},{}]})"));
    ORV_VERIFY_OK(content);
    QList<int> ids;
    for (const SamplesInput::Entry &sample : content->samples.entries())
        ids.append(sample.id);
    QCOMPARE(ids, QList<int>({1, 2, 3, 0, 4}));
    QCOMPARE(content->toJson().value(u"Samples"_s).toArray().at(4).toObject().value(u"SamplesId"_s),
             QJsonValue(4));
}

void TestSamplesContent::malformedMembersAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detail");

    const auto row = [](const char *name, const QByteArray &json, const QString &message,
                        const QString &detail = {}) { QTest::newRow(name) << json << message << detail; };
    const auto sampleRow = [](const char *name, const QByteArray &member, const QString &message) {
        QTest::newRow(name) << R"({"Samples":[{},{)" + member + "}]}" << message
                            << u"element 1 of \"Samples\""_s;
    };
    row("samples are an object", R"({"Samples":{}})", u"\"Samples\" must be an array"_s);
    row("sample is no object", R"({"Samples":[1]})", u"array of objects"_s, u"element 0 of \"Samples\""_s);
    row("options are an array", R"({"TraceImportAndProcessingOptions":[]})",
        u"\"TraceImportAndProcessingOptions\" must be an object"_s);
    row("columns are a text", R"({"CustomColumns":"a"})", u"\"CustomColumns\" must be an array"_s);
    row("column without a name", R"({"CustomColumns":[{}]})", u"can't be the name"_s, u"element 0 of"_s);
    row("column twice", R"({"CustomColumns":[{"name":"a"},{"name":"a"}]})", u"\"a\" can't be"_s,
        u"element 1 of \"CustomColumns\""_s);
    row("column with a sample's own name", R"({"CustomColumns":[{"name":"SamplePath"}]})",
        u"\"SamplePath\" can't be"_s, u"another member"_s);
    row("traces are an object", R"({"TraceImportAndProcessingOptions":{"TracesImportList":{}}})",
        u"\"TracesImportList\" must be an array"_s);
    row("preset is a text", R"({"TraceImportAndProcessingOptions":{"ElutionPeaksOptions":["a"]}})",
        u"array of objects"_s, u"element 0 of \"ElutionPeaksOptions\""_s);
    row("rows are no table", R"({"data":5,"children":[]})", u"no table of rows"_s);
    sampleRow("id is a text", R"("SamplesId":"1")", u"\"SamplesId\" must be a number"_s);
    sampleRow("id is a fraction", R"("SamplesId":1.5)", u"\"SamplesId\" must be a whole number"_s);
    sampleRow("id is too large", R"("SamplesId":4294967297)", u"\"SamplesId\" must be a whole number"_s);
    sampleRow("name is a number", R"("SampleName":1)", u"\"SampleName\" must be a string"_s);
    sampleRow("path is a list", R"("SamplePath":[])", u"\"SamplePath\" must be a string"_s);
    sampleRow("old path is a number", R"("FilePath":1)", u"\"FilePath\" must be a string"_s);
    sampleRow("traces are a text", R"("Traces":"a")", u"\"Traces\" must be an array"_s);
    sampleRow("trace is a number", R"("Traces":["a",1])", u"\"Traces\" must be an array of texts"_s);
    sampleRow("flag is a number", R"("Reference":1)", u"\"Reference\" must be"_s);
    sampleRow("file metadata are a list", R"("FileMetadata":[])", u"\"FileMetadata\" must be an object"_s);
}

void TestSamplesContent::malformedMembersAreRefused()
{
    const LogCapture log;
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    QFETCH(QString, detail);
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(json));
    QVERIFY(content.hasError());
    QCOMPARE(content.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(content.error().errorMessage().contains(message), qPrintable(content.error().errorMessage()));
    const QString details = content.error().details().join(u' ');
    QVERIFY2(details.contains(detail), qPrintable(details));
}

void TestSamplesContent::referencesAreThoseOfSamplesAndCompanions()
{
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(R"({"Samples":[
        {"SamplePath":"b","Traces":["b.csv","a"],"ExtraReferences":["b.karvrslt"]},{"Traces":["c.csv"]},
        {"SamplePath":"a"},{"SamplePath":""}]})"));
    ORV_VERIFY_OK(content);
    QCOMPARE(ResourceReferenceUtils::toStringList(content->references()),
             QStringList({u"b"_s, u"b.csv"_s, u"a"_s, u"b.karvrslt"_s, u"c.csv"_s, u"a"_s}));
}

void TestSamplesContent::filesOnTheUnifiServerAreExternal_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isExternal");

    QTest::newRow("UNIFI") << u"unifi:/h/{1}/f/n"_s << true;
    QTest::newRow("local") << u"/a.raw"_s << false;
    QTest::newRow("share") << u"\\\\store\\a.raw"_s << false;
    QTest::newRow("server file") << u"talvane:/a.tolq"_s << false;
    QTest::newRow("none") << QString() << false;
}

void TestSamplesContent::filesOnTheUnifiServerAreExternal()
{
    QFETCH(QString, file);
    SamplesInput::Entry entry;
    entry.msFile = ResourceReferenceUtils::fromString(file);
    QTEST(entry.isMsFileExternal(), "isExternal");
}

void TestSamplesContent::metadataOfAFileMovesWithIt()
{
    SamplesInput::Entry entry;
    entry.fileMetadata = {{u"old"_s, {{u"a"_s, 1}}}, {u"other"_s, {}}};
    entry.moveFileMetadata(u"unknown"_s, u"x"_s);
    entry.moveFileMetadata(u"other"_s, u"other"_s);
    QCOMPARE(entry.fileMetadata.size(), 2);
    entry.moveFileMetadata(u"old"_s, u"new"_s);
    QCOMPARE(entry.fileMetadata.value(u"new"_s).value(u"a"_s).toInt(), 1);
    QVERIFY(!entry.fileMetadata.contains(u"old"_s));
    QVERIFY(entry.fileMetadata.contains(u"other"_s));
}

void TestSamplesContent::samplesComeFromTheTablesObject()
{
    const LogCapture log;
    const Result<QList<SamplesInput::Entry>> entries =
        SamplesInput::samplesFromJsonArray(parsed(R"({"Samples":[{"SampleName":"A","Dose":1}]})"));
    ORV_VERIFY_OK(entries);
    QCOMPARE(entries->size(), 1);
    QCOMPARE(entries->first().name, u"A"_s);
    QCOMPARE(entries->first().id, 1);
    QVERIFY(SamplesInput::samplesFromJsonArray({}).valueOr({}).isEmpty());
    QVERIFY(SamplesInput::samplesFromJsonArray(parsed(R"({"Samples":5})")).hasError());
}

void TestSamplesContent::equalContentsAreStoredAlike()
{
    const auto read = [](const QByteArray &json) {
        return SamplesAndTracesContent::fromJson(parsed(json)).valueOr({});
    };
    const QByteArray one = R"({"Samples":[{"SamplesId":1,"SampleName":"A","SamplePath":"/a"}]})";
    QVERIFY(read(one) == read(one));
    SamplesAndTracesContent changed = read(one);
    changed.samples.samples[0].name = u"B"_s;
    QVERIFY(!(changed == read(one)));
    changed.samples.samples[0].name = u"A"_s;
    QVERIFY(changed == read(one));
    changed.samples.samples[0].msFile = reference(u"/a"_s);
    QVERIFY(changed == read(one));
    changed.options.peaksOptions.append(ElutionPeaksOptions());
    QVERIFY(!(changed == read(one)));
}

ORV_REGISTER_TEST(TestSamplesContent)

#include "TestSamplesContent.moc"
