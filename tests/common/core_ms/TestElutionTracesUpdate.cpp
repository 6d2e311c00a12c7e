#include "LogCapture.h"
#include "MzmlTexts.h"
#include "OrvTest.h"
#include "References.h"
#include "SampleTree.h"
#include "TestData.h"

#include <orv/core_ms/ElutionPeaksBackwardsCompatibility.h>
#include <orv/core_ms/MsDataAccessorsFactory.h>

using namespace orv;
using namespace Qt::StringLiterals;

using Compatibility = ElutionPeaksBackwardsCompatibility;
using Entry = TracesImportList::Entry;
using TraceEntries = QList<Entry>;

namespace {

ResourceReferenceSPtr dataFile(const char *name)
{
    return referenceOf(TestData::path(u"core_ms/"_s + QString::fromLatin1(name)));
}

Entry entry(TraceType type, const QString &name, const QString &id, bool isImported = true)
{
    Entry result(TraceItem(type, {name, id}));
    result.setImported(isImported);
    return result;
}

QStringList described(const TraceImportAndProcessingOptions &options)
{
    QStringList texts;
    for (const Entry &trace : options.traces.list()) {
        texts.append(u"%1 %2 %3%4"_s.arg(int(trace.traceItem().type()))
                         .arg(trace.traceItem().channelName(), trace.traceItem().channelId(),
                              trace.isImported() ? u"" : u" off"));
    }
    return texts;
}

TraceImportAndProcessingOptions optionsOf(const TraceEntries &entries)
{
    TraceImportAndProcessingOptions options;
    options.traces.setList(entries);
    return options;
}

/// A run with TIC, base peak, two of light and one of a pump.
void addRun(const SampleTree &tree, const QString &name)
{
    using MzmlTexts::chromatogram;
    tree.add(name, MzmlTexts::mzml({}, chromatogram("TIC", "MS:1000235") + chromatogram("BPC", "MS:1000628") +
                                           chromatogram("DAD 214", "MS:1000812") +
                                           chromatogram("DAD 280", "MS:1000812") +
                                           chromatogram("pressure", "MS:1003019")));
}

} // namespace

class TestElutionTracesUpdate : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void tracesGetTheirNewNames();
    void aTraceKeepsWhatIsKnownOfIt();
    void twoThatBecomeOneAreOne();
    void whatNoFileHasIsLeftOutWithAWarning();
    void whatComesFromOtherFilesStays();
    void newTracesAreNotImported();
    void noFilesChangeNothing();
    void aFormatWithoutAReaderLeavesTheListAsItWas();
    void aReaderOfAHostIsUsed();
    void failuresChangeNothing_data();
    void failuresChangeNothing();
};

void TestElutionTracesUpdate::tracesGetTheirNewNames()
{
    const SampleTree tree;
    addRun(tree, u"a.mzML"_s);
    TraceImportAndProcessingOptions options = optionsOf(
        {entry(TraceType::Uv, u"dad 280"_s, u"2"_s), entry(TraceType::Uv, u"Channel A"_s, u"DAD 214"_s),
         entry(TraceType::Tic, u"Total ions"_s, u"0"_s), entry(TraceType::Bpi, u"Base peak"_s, u"1"_s, false),
         entry(TraceType::Other, u"pressure"_s, u"pressure"_s)});
    ORV_VERIFY_OK(
        Compatibility::updateTracesAfterMsReaderApiChanged({referenceOf(tree.at(u"a.mzML"_s))}, &options));
    QCOMPARE(described(options), (QStringList{u"1 TIC TIC"_s, u"2 BPC BPC off"_s, u"3 DAD 280 DAD 280"_s,
                                              u"3 DAD 214 DAD 214"_s, u"0 pressure pressure"_s}));
}

void TestElutionTracesUpdate::aTraceKeepsWhatIsKnownOfIt()
{
    Entry tic = entry(TraceType::Tic, u"tic"_s, {});
    tic.setSamplesIds(TraceSampleIds({1, 4}));
    tic.setPeaksOptionsName(u"mine"_s);
    TraceImportAndProcessingOptions options = optionsOf({tic});
    ORV_VERIFY_OK(
        Compatibility::updateTracesAfterMsReaderApiChanged({dataFile("ms/three_test_scans.mzML")}, &options));
    QCOMPARE(described(options), (QStringList{u"1 TIC TIC"_s, u"2 BPC BPC off"_s}));
    QCOMPARE(options.traces.list().first().samplesIds(), TraceSampleIds({1, 4}));
    QCOMPARE(options.traces.list().first().peaksOptionsName(), u"mine"_s);
}

void TestElutionTracesUpdate::twoThatBecomeOneAreOne()
{
    TraceImportAndProcessingOptions options = optionsOf(
        {entry(TraceType::Tic, u"Total ions"_s, u"0"_s, false), entry(TraceType::Tic, u"TIC"_s, u"TIC"_s),
         entry(TraceType::Bpi, u"BPC"_s, u"BPC"_s, false)});
    ORV_VERIFY_OK(
        Compatibility::updateTracesAfterMsReaderApiChanged({dataFile("ms/three_test_scans.mzML")}, &options));
    QCOMPARE(described(options), (QStringList{u"1 TIC TIC"_s, u"2 BPC BPC off"_s}));
}

void TestElutionTracesUpdate::whatNoFileHasIsLeftOutWithAWarning()
{
    TraceImportAndProcessingOptions options =
        optionsOf({entry(TraceType::Tic, u"TIC"_s, u"TIC"_s), entry(TraceType::Uv, u"lamp"_s, u"7"_s)});
    const LogCapture log;
    ORV_VERIFY_OK(
        Compatibility::updateTracesAfterMsReaderApiChanged({dataFile("ms/three_test_scans.mzML")}, &options));
    QCOMPARE(described(options), (QStringList{u"1 TIC TIC"_s, u"2 BPC BPC off"_s}));
    QCOMPARE(log.warnings(), QStringList{u"No file has the trace \"lamp\" any more; it is left out."_s});
}

void TestElutionTracesUpdate::whatComesFromOtherFilesStays()
{
    TraceImportAndProcessingOptions options =
        optionsOf({entry(TraceType::Csv, u"uv.csv"_s, u"uv.csv"_s),
                   entry(TraceType::Xic, u"518.3"_s, {}, false), entry(TraceType::IcIef, u"icIEF"_s, {})});
    ORV_VERIFY_OK(
        Compatibility::updateTracesAfterMsReaderApiChanged({dataFile("ms/ten_ms2.mzML")}, &options));
    QCOMPARE(described(options), (QStringList{u"4 518.3  off"_s, u"5 uv.csv uv.csv"_s, u"7 icIEF "_s}));
}

void TestElutionTracesUpdate::newTracesAreNotImported()
{
    const SampleTree tree;
    addRun(tree, u"b.mzML"_s);
    TraceImportAndProcessingOptions options;
    ORV_VERIFY_OK(Compatibility::updateTracesAfterMsReaderApiChanged(
        {dataFile("ms/three_test_scans.mzML"), referenceOf(tree.at(u"b.mzML"_s))}, &options));
    QCOMPARE(described(options),
             (QStringList{u"1 TIC TIC off"_s, u"2 BPC BPC off"_s, u"3 DAD 214 DAD 214 off"_s,
                          u"3 DAD 280 DAD 280 off"_s, u"0 pressure pressure off"_s}));
}

void TestElutionTracesUpdate::noFilesChangeNothing()
{
    TraceImportAndProcessingOptions options =
        optionsOf({entry(TraceType::Uv, u"lamp"_s, u"7"_s), entry(TraceType::Tic, u"TIC"_s, u"TIC"_s)});
    const TraceImportAndProcessingOptions before = options;
    ORV_VERIFY_OK(Compatibility::updateTracesAfterMsReaderApiChanged({}, &options));
    QVERIFY(options == before);
}

void TestElutionTracesUpdate::aFormatWithoutAReaderLeavesTheListAsItWas()
{
    TraceImportAndProcessingOptions options =
        optionsOf({entry(TraceType::Tic, u"TIC MS"_s, u"0"_s), entry(TraceType::Uv, u"lamp"_s, u"7"_s)});
    const TraceImportAndProcessingOptions before = options;
    const LogCapture log;
    ORV_VERIFY_OK(
        Compatibility::updateTracesAfterMsReaderApiChanged({dataFile("vendor/thermo/small.RAW")}, &options));
    QVERIFY(options == before);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().contains(u"small.RAW stay as they were:"_s));
}

void TestElutionTracesUpdate::aReaderOfAHostIsUsed()
{
    using namespace msreader;
    MsDataAccessorsFactory::setReaderFactory(
        VendorDataFormat::Thermo, [](const MsReaderOptions & /*options*/) {
            return MsDataAccessorsFactory::createReader(
                MsReaderOptions(TestData::path(u"core_ms/ms/three_test_scans.mzML"_s)));
        });
    TraceImportAndProcessingOptions options;
    const Error error =
        Compatibility::updateTracesAfterMsReaderApiChanged({dataFile("vendor/thermo/small.RAW")}, &options);
    MsDataAccessorsFactory::setReaderFactory(VendorDataFormat::Thermo, {});
    ORV_VERIFY_OK(error);
    QCOMPARE(described(options), (QStringList{u"1 TIC TIC off"_s, u"2 BPC BPC off"_s}));
    const auto closed = MsDataAccessorsFactory::createReader(
        MsReaderOptions(TestData::path(u"core_ms/vendor/thermo/small.RAW"_s)));
    QVERIFY(!closed->isFormatRead());
    QVERIFY(closed->open().hasError());
}

void TestElutionTracesUpdate::failuresChangeNothing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<ErrorCode>("code");
    QTest::newRow("missing") << u"/nowhere/a.mzML"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("missing, of a closed format") << u"/nowhere/a.raw"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("damaged") << TestData::path(u"core_ms/ms/IndexedmzMLFile_2_broken.mzML"_s)
                             << ErrorCode::InvalidContent;
    QTest::newRow("no MS data") << TestData::path(u"chemistry/bsa.fasta"_s) << ErrorCode::InvalidContent;
    QTest::newRow("no reference") << QString() << ErrorCode::InvalidContent;
}

void TestElutionTracesUpdate::failuresChangeNothing()
{
    QFETCH(QString, file);
    QFETCH(ErrorCode, code);
    const SampleTree tree;
    if (file.contains(u"broken"_s)) {
        tree.add(u"broken.mzML"_s, TestData::read(file).left(1000));
        file = tree.at(u"broken.mzML"_s);
    }
    TraceImportAndProcessingOptions options = optionsOf({entry(TraceType::Tic, u"tic"_s, u"0"_s)});
    const TraceImportAndProcessingOptions before = options;
    const Error error = Compatibility::updateTracesAfterMsReaderApiChanged(
        {dataFile("ms/three_test_scans.mzML"), referenceOf(file)}, &options);
    QVERIFY(error.hasError());
    QCOMPARE(error.code(), code);
    QVERIFY(options == before);
}

ORV_REGISTER_TEST(TestElutionTracesUpdate)
#include "TestElutionTracesUpdate.moc"
