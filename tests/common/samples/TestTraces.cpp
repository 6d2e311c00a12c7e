#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/samples/TraceImportAndProcessingOptions.h>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;

namespace {

TracesImportList::Entry entry(int type, const QString &name, const QString &id = {})
{
    return TracesImportList::Entry(TraceItem(TraceType(type), {name, id}));
}

TraceImportAndProcessingOptions readTraces(const QByteArray &json)
{
    const auto options = TraceImportAndProcessingOptions::fromJson(parsed(json));
    if (options.hasError())
        qFatal("The test's options are broken: %s", json.constData());
    return *options;
}

} // namespace

class TestTraces : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void typesHaveTheirNumbers();
    void tracesAreFoundByTheirNames();
    void absentMembersMeanAllSamples();
    void whatIsReadIsWritten_data();
    void whatIsReadIsWritten();
    void malformedTracesAreRefused_data();
    void malformedTracesAreRefused();
    void samplesAreAllOrNamed();
    void tracesOfOneKindAreSortedTogether();
    void faultsAreTold_data();
    void faultsAreTold();
    void soundOptionsAreValid();
};

void TestTraces::typesHaveTheirNumbers()
{
    QCOMPARE(int(TraceType::Other), 0);
    QCOMPARE(int(TraceType::Tic), 1);
    QCOMPARE(int(TraceType::Bpi), 2);
    QCOMPARE(int(TraceType::Uv), 3);
    QCOMPARE(int(TraceType::IntaBio), 8);
}

void TestTraces::tracesAreFoundByTheirNames()
{
    const TraceInfo old{u"TIC MS1"_s, u"TIC"_s};
    const TraceInfo now{u"TIC 1"_s, u"tic=1"_s};
    const QHash<TraceInfo, TraceInfo> mapping{{old, now}};
    const TraceItem item(TraceType::Tic, {u"TIC MS1"_s, u"TIC"_s});
    QVERIFY(mapping.contains(item.info()));
    QVERIFY(!mapping.contains({u"TIC MS1"_s, u"tic"_s}));
    QVERIFY(!mapping.contains({u"TIC"_s, u"TIC MS1"_s}));
    const TraceItem renamed(item.type(), mapping.value(item.info()));
    QCOMPARE(renamed.channelName(), u"TIC 1"_s);
    QCOMPARE(renamed.channelId(), u"tic=1"_s);
    QCOMPARE(renamed.type(), TraceType::Tic);
}

void TestTraces::absentMembersMeanAllSamples()
{
    const TraceImportAndProcessingOptions options = readTraces(R"({"TracesImportList":[{}]})");
    QCOMPARE(options.traces.list().size(), 1);
    const TracesImportList::Entry &trace = options.traces.list().first();
    QVERIFY(trace.isImported());
    QVERIFY(trace.samplesIds().isAll());
    QCOMPARE(trace.traceItem().type(), TraceType::Other);
    QVERIFY(trace.peaksOptionsName().isEmpty());
}

void TestTraces::whatIsReadIsWritten_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("empty") << "{}"_ba;
    QTest::newRow("unknown members") << R"({"x":[1],"TracesImportList":[]})"_ba;
    QTest::newRow("null lists") << R"({"ElutionPeaksOptions":null,"TracesImportList":null})"_ba;
    QTest::newRow("trace of all samples")
        << R"({"TracesImportList":[{"type":1,"channelName":"TIC","channelId":"1","imported":true}]})"_ba;
    QTest::newRow("trace of some")
        << R"({"TracesImportList":[{"type":3,"channelName":"UV","channelId":"","imported":false,"samplesIds":[2,1],
              "peaksOptions":"usual","colour":"red"}]})"_ba;
    QTest::newRow("trace of none")
        << R"({"TracesImportList":[{"type":99,"channelName":"","channelId":"","imported":true,"samplesIds":[]}]})"_ba;
    QTest::newRow("preset")
        << R"({"ElutionPeaksOptions":[{"name":"usual","timeRange":{"start":"1.00","end":"20.50"},
        "creationOptions":{"findsPeaks":false,"smoothSigma":0.05,"intervalTimeMinutes":0.25,"correctsBaseline":true,
        "smoothSigmaBaseline":2,"autoCompute":1,"peakWidthFactor":"1.00","x":1},"y":null}]})"_ba;
    QTest::newRow("preset of a newer version")
        << R"({"ElutionPeaksOptions":[{"name":"","creationOptions":{"findsPeaks":true,"smoothSigma":0.1,
        "intervalTimeMinutes":0.5,"correctsBaseline":true,"smoothSigmaBaseline":1.5,"autoCompute":7}}]})"_ba;
}

void TestTraces::whatIsReadIsWritten()
{
    QFETCH(QByteArray, json);
    QCOMPARE(readTraces(json).toJson(), parsed(json));
    QVERIFY(readTraces(json) == readTraces(json));
}

void TestTraces::malformedTracesAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");

    const auto trace = [](const char *name, const QByteArray &member, const QString &message) {
        QTest::newRow(name) << R"({"TracesImportList":[{)" + member + "}]}" << message;
    };
    const auto preset = [](const char *name, const QByteArray &member, const QString &message) {
        QTest::newRow(name) << R"({"ElutionPeaksOptions":[{)" + member + "}]}" << message;
    };
    trace("type is a text", R"("type":"TIC")", u"\"type\""_s);
    trace("name is a number", R"("channelName":1)", u"\"channelName\""_s);
    trace("imported is a number", R"("imported":1)", u"\"imported\""_s);
    trace("samples are a text", R"("samplesIds":"all")", u"\"samplesIds\" must be an array"_s);
    trace("sample is a text", R"("samplesIds":["1"])", u"\"samplesIds\" must hold whole numbers"_s);
    trace("sample is a fraction", R"("samplesIds":[1.5])", u"\"samplesIds\" must hold whole numbers"_s);
    preset("name is a number", R"("name":1)", u"\"name\""_s);
    preset("range without an end", R"("timeRange":{"start":"1"})", u"\"end\" is no number"_s);
    preset("start is no number", R"("timeRange":{"start":"one","end":"2"})",
           u"\"start\" is no number: \"one\""_s);
    preset("range is a list", R"("timeRange":[])", u"\"timeRange\" must be an object"_s);
    preset("sigma is a text", R"("creationOptions":{"smoothSigma":"1"})", u"\"smoothSigma\""_s);
    preset("factor is a number", R"("creationOptions":{"peakWidthFactor":1})", u"\"peakWidthFactor\""_s);
    preset("options are a list", R"("creationOptions":[])", u"\"creationOptions\""_s);
}

void TestTraces::malformedTracesAreRefused()
{
    const LogCapture log;
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    const auto options = TraceImportAndProcessingOptions::fromJson(parsed(json));
    QVERIFY(options.hasError());
    QCOMPARE(options.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(options.error().errorMessage().contains(message), qPrintable(options.error().errorMessage()));
    QVERIFY(options.error().details().join(u' ').contains(u"element 0 of"_s));
}

void TestTraces::samplesAreAllOrNamed()
{
    QVERIFY(TraceSampleIds().contains(5));
    QVERIFY(TraceSampleIds().ids().isEmpty());
    const TraceSampleIds some({1, 3});
    QVERIFY(!some.isAll());
    QVERIFY(some.contains(3) && !some.contains(2));
    const TraceSampleIds none((QList<int>()));
    QVERIFY(!none.isAll() && !none.contains(1));
    QVERIFY(!(none == TraceSampleIds()));
}

void TestTraces::tracesOfOneKindAreSortedTogether()
{
    QList<TracesImportList::Entry> list = {entry(99, u"unknown"_s), entry(8, u"i"_s),  entry(3, u"UV 2"_s),
                                           entry(0, u"other"_s),    entry(2, u"b"_s),  entry(3, u"UV 1"_s),
                                           entry(5, u"csv"_s),      entry(4, u"x"_s),  entry(1, u"t"_s),
                                           entry(7, u"icIEF"_s),    entry(6, u"pI"_s), entry(-1, u"minus"_s)};
    TracesImportList::sortTracesByGroup(&list);
    QStringList names;
    for (const TracesImportList::Entry &e : std::as_const(list))
        names.append(e.traceItem().channelName());
    QCOMPARE(names, QStringList({u"t"_s, u"b"_s, u"x"_s, u"UV 2"_s, u"UV 1"_s, u"other"_s, u"csv"_s, u"pI"_s,
                                 u"icIEF"_s, u"i"_s, u"unknown"_s, u"minus"_s}));
}

void TestTraces::faultsAreTold_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<QStringList>("errors");

    const auto warning = [](const char *name, const QByteArray &json, const QString &text) {
        QTest::newRow(name) << json << QStringList(text) << QStringList();
    };
    const auto error = [](const char *name, const QByteArray &json, const QString &text) {
        QTest::newRow(name) << json << QStringList() << QStringList(text);
    };
    warning("trace twice",
            R"({"TracesImportList":[{"channelName":"a"},{"channelName":"a","imported":false}]})",
            u"The trace \"a\" is listed more than once."_s);
    warning("trace of no sample", R"({"TracesImportList":[{"channelName":"a","samplesIds":[]}]})",
            u"The trace \"a\" is imported for no sample."_s);
    error("no such preset", R"({"TracesImportList":[{"channelName":"a","peaksOptions":"p"}]})",
          u"The trace \"a\" uses the peak options preset \"p\", which does not exist."_s);
    error("preset without a name", R"({"ElutionPeaksOptions":[{}]})",
          u"A peak options preset has no name."_s);
    error("three presets of one name", R"({"ElutionPeaksOptions":[{"name":"p"},{"name":"p"},{"name":"p"}]})",
          u"There are several peak options presets with the name \"p\"."_s);
    error("range out of order",
          R"({"ElutionPeaksOptions":[{"name":"p","timeRange":{"start":"2.00","end":"1.5"}}]})",
          u"The time range of the peak options preset \"p\" is out of order (2.00 to 1.5 minutes)."_s);
    error("negative start", R"({"ElutionPeaksOptions":[{"name":"p","timeRange":{"start":"-1","end":"1"}}]})",
          u"The time range of the peak options preset \"p\" is out of order (-1 to 1 minutes)."_s);
    error("no smoothing", R"({"ElutionPeaksOptions":[{"name":"p","creationOptions":{"smoothSigma":0}}]})",
          u"The smoothing width of the peak options preset \"p\" must be greater than 0."_s);
    error("no interval",
          R"({"ElutionPeaksOptions":[{"name":"p","creationOptions":{"intervalTimeMinutes":-1}}]})",
          u"The interval time of the peak options preset \"p\" must be greater than 0."_s);
    error("no smoothing of the baseline",
          R"({"ElutionPeaksOptions":[{"name":"p","creationOptions":{"smoothSigmaBaseline":0}}]})",
          u"The smoothing width of the baseline of the peak options preset \"p\" must be greater than 0."_s);
    error("no width",
          R"({"ElutionPeaksOptions":[{"name":"p","creationOptions":{"peakWidthFactor":"0.00"}}]})",
          u"The peak width factor of the peak options preset \"p\" must be greater than 0."_s);
}

void TestTraces::faultsAreTold()
{
    QFETCH(QByteArray, json);
    QFETCH(QStringList, warnings);
    QFETCH(QStringList, errors);
    QStringList foundWarnings{u"before"_s};
    QStringList foundErrors{u"before"_s};
    QCOMPARE(readTraces(json).validate(&foundWarnings, &foundErrors), errors.isEmpty());
    QCOMPARE(foundWarnings, QStringList(u"before"_s) + warnings);
    QCOMPARE(foundErrors, QStringList(u"before"_s) + errors);
}

void TestTraces::soundOptionsAreValid()
{
    QStringList warnings;
    QStringList errors;
    QVERIFY(TraceImportAndProcessingOptions().validate(&warnings, &errors));
    QVERIFY(
        readTraces(
            R"({"TracesImportList":[{"channelName":"a","peaksOptions":"p"},{"channelName":"a","channelId":"2"},
                     {"channelName":"a","type":1},{"channelName":"b","imported":false,"peaksOptions":"gone",
                      "samplesIds":[]}],
                     "ElutionPeaksOptions":[{"name":"p","timeRange":{"start":"0","end":"0"}},{"name":"P"}]})")
            .validate(&warnings, &errors));
    QCOMPARE(warnings + errors, QStringList());
}

ORV_REGISTER_TEST(TestTraces)

#include "TestTraces.moc"
