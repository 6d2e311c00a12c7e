#include "MzmlTexts.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "TestData.h"

#include <orv/core_ms/MsDataAccessorsFactory.h>
#include <orv/core_ms/MsUtils.h>

using namespace orv;
using namespace orv::msreader;
using namespace MzmlTexts;
using namespace Qt::StringLiterals;

namespace {

using Type = ChromatogramType;
using Infos = QList<ChromatogramInfo>;

QString dataPath(const char *name)
{
    return TestData::path(u"core_ms/ms/"_s + QString::fromLatin1(name));
}

Result<Infos> infosOf(const QString &path, const ChromatogramFilter &filter = ChromatogramFilters::all)
{
    const auto reader = MsDataAccessorsFactory::createReader(MsReaderOptions(path));
    if (Error error = reader->open())
        return error;
    return reader->chromatogramInfoList(filter);
}

} // namespace

class TestChromatograms : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void typesAreTold_data();
    void typesAreTold();
    void filesOfOthersAreRead();
    void filtersChoose();
    void groupsOfTermsCount();
    void theIndexSparesTheSpectra();
    void anIndexThatLiesIsNotFollowed_data();
    void anIndexThatLiesIsNotFollowed();
    void formatsWithoutChromatogramsHaveNone();
    void typesBecomeKindsOfTraces();
    void tracesAreExtracted_data();
    void tracesAreExtracted();
    void summariesComeFirst();
    void filesAreOpenedOneByOne();
    void thePrefixOfOldNamesStands();
};

void TestChromatograms::typesAreTold_data()
{
    QTest::addColumn<QByteArray>("accession");
    QTest::addColumn<Type>("type");
    QTest::newRow("TIC") << "MS:1000235"_ba << Type::Tic;
    QTest::newRow("base peak") << "MS:1000628"_ba << Type::BasePeak;
    QTest::newRow("SIC") << "MS:1000627"_ba << Type::SelectedIonCurrent;
    QTest::newRow("SIM") << "MS:1001472"_ba << Type::SelectedIonMonitoring;
    QTest::newRow("SRM") << "MS:1001473"_ba << Type::SelectedReactionMonitoring;
    QTest::newRow("ion current") << "MS:1000810"_ba << Type::IonCurrent;
    QTest::newRow("absorption") << "MS:1000812"_ba << Type::Light;
    QTest::newRow("emission") << "MS:1000813"_ba << Type::Light;
    QTest::newRow("light") << "MS:1000811"_ba << Type::Light;
    QTest::newRow("pressure, a newer term") << "MS:1003019"_ba << Type::Other;
    QTest::newRow("no term of chromatograms") << "MS:1000511"_ba << Type::Other;
    QTest::newRow("no term at all") << "nonsense"_ba << Type::Other;
    QTest::newRow("half a term") << "MS:"_ba << Type::Other;
    QTest::newRow("a huge number") << "MS:99999999999999999999"_ba << Type::Other;
    QTest::newRow("none") << ""_ba << Type::Other;
}

void TestChromatograms::typesAreTold()
{
    QFETCH(QByteArray, accession);
    QFETCH(Type, type);
    const SampleTree tree;
    tree.add(u"a.mzML"_s, mzml({}, chromatogram("x", accession)));
    const Result<Infos> infos = infosOf(tree.at(u"a.mzML"_s));
    ORV_VERIFY_OK(infos);
    QCOMPARE(*infos, (Infos{{0, u"x"_s, u"x"_s, type}}));
}

void TestChromatograms::filesOfOthersAreRead()
{
    const Result<Infos> scans = infosOf(dataPath("three_test_scans.mzML"));
    ORV_VERIFY_OK(scans);
    QCOMPARE(*scans, (Infos{{0, u"TIC"_s, u"TIC"_s, Type::Tic}, {1, u"BPC"_s, u"BPC"_s, Type::BasePeak}}));

    const Result<Infos> srm = infosOf(dataPath("OpenSwath_generic_input.mzML"));
    ORV_VERIFY_OK(srm);
    QStringList names;
    for (const ChromatogramInfo &info : *srm) {
        names.append(info.name);
        QCOMPARE(info.type, Type::SelectedReactionMonitoring);
    }
    QCOMPARE(names, (QStringList{u"tr1"_s, u"tr3"_s, u"tr2"_s, u"tr4"_s, u"tr5"_s}));

    // Its converter left the id empty, and called a trace of light an ion current.
    const Result<Infos> light = infosOf(dataPath("20171013_HMP_C61_ISO_P1_GA1_UV_VIS_2.mzML"));
    ORV_VERIFY_OK(light);
    QCOMPARE(*light, (Infos{{0, u"Chromatogram 1"_s, u"index=0"_s, Type::IonCurrent}}));
}

void TestChromatograms::filtersChoose()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s,
             mzml({}, chromatogram("tic", "MS:1000235") + chromatogram("uv", "MS:1000812") +
                          chromatogram("pressure", "MS:1003019") + chromatogram("srm", "MS:1001473")));
    const auto names = [&tree](const ChromatogramFilter &filter) {
        QStringList list;
        for (const ChromatogramInfo &info : infosOf(tree.at(u"a.mzML"_s), filter).valueOr({}))
            list.append(u"%1:%2"_s.arg(info.index).arg(info.name));
        return list;
    };
    QCOMPARE(names(ChromatogramFilters::all),
             (QStringList{u"0:tic"_s, u"1:uv"_s, u"2:pressure"_s, u"3:srm"_s}));
    QCOMPARE(names(ChromatogramFilters::nonMs), (QStringList{u"1:uv"_s, u"2:pressure"_s}));
    QCOMPARE(names(ChromatogramFilters::ms), (QStringList{u"0:tic"_s, u"3:srm"_s}));
    QCOMPARE(names([](const ChromatogramInfo &info) { return info.name == u"srm"_s; }),
             QStringList{u"3:srm"_s});
}

void TestChromatograms::groupsOfTermsCount()
{
    const SampleTree tree;
    const QByteArray list = "<chromatogram id=\"x\"><referenceableParamGroupRef ref=\"uv\"/></chromatogram>";
    tree.add(u"a.mzML"_s, mzml({}, list));
    tree.add(u"b.mzML"_s, indexed(mzml({}, list)));
    for (const QString &name : {u"a.mzML"_s, u"b.mzML"_s})
        QCOMPARE(infosOf(tree.at(name)).valueOr({}), (Infos{{0, u"x"_s, u"x"_s, Type::Light}}));
}

void TestChromatograms::theIndexSparesTheSpectra()
{
    // What nobody reads can't be found faulty.
    const SampleTree tree;
    const QByteArray faulty = "<spectrum id=\"s\">&faulty;<cvParam></spectrum>";
    const QByteArray list = chromatogram("a", "MS:1000235") + "\n" + chromatogram("b", "MS:1000812");
    tree.add(u"plain.mzML"_s, mzml(faulty, list));
    tree.add(u"indexed.mzML"_s, indexed(mzml(faulty, list)));
    tree.add(u"none.mzML"_s, indexed(mzml(faulty, {})));
    QVERIFY(infosOf(tree.at(u"plain.mzML"_s)).hasError());
    QCOMPARE(infosOf(tree.at(u"indexed.mzML"_s)).valueOr({}),
             (Infos{{0, u"a"_s, u"a"_s, Type::Tic}, {1, u"b"_s, u"b"_s, Type::Light}}));
    const Result<Infos> none = infosOf(tree.at(u"none.mzML"_s));
    ORV_VERIFY_OK(none);
    QVERIFY(none->isEmpty());
}

void TestChromatograms::anIndexThatLiesIsNotFollowed_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray document =
        mzml("<spectrum id=\"s\"/>", chromatogram("a", "MS:1000235") + chromatogram("b", "MS:1000812"));
    const QByteArray good = indexed(document);
    const qsizetype offset = good.indexOf("<indexListOffset>") + 17;
    QTest::newRow("offsets in front") << indexed(document, -1);
    QTest::newRow("offsets behind") << indexed(document, 7);
    QTest::newRow("offsets beyond the end") << indexed(document, 1'000'000);
    QTest::newRow("an entry too few") << QByteArray(good).replace(
        good.lastIndexOf("<offset"), good.lastIndexOf("</offset>") + 9 - good.lastIndexOf("<offset"), "");
    QTest::newRow("place of the list in front") << QByteArray(good).replace(offset, 1, "");
    QTest::newRow("place of the list beyond the end") << QByteArray(good).insert(offset, "99999");
    QTest::newRow("place of the list negative") << QByteArray(good).insert(offset, "-");
    QTest::newRow("place of the list empty")
        << QByteArray(good).replace(offset, good.indexOf('<', offset) - offset, "");
}

void TestChromatograms::anIndexThatLiesIsNotFollowed()
{
    QFETCH(QByteArray, text);
    const SampleTree tree;
    tree.add(u"a.mzML"_s, text);
    const Result<Infos> infos = infosOf(tree.at(u"a.mzML"_s));
    ORV_VERIFY_OK(infos);
    QCOMPARE(*infos, (Infos{{0, u"a"_s, u"a"_s, Type::Tic}, {1, u"b"_s, u"b"_s, Type::Light}}));
}

void TestChromatograms::formatsWithoutChromatogramsHaveNone()
{
    for (const char *name : {"pyteomics_test.mzXML", "pyteomics_test.mgf", "MzMLFile_2_minimal.mzML"}) {
        const Result<Infos> infos = infosOf(dataPath(name));
        ORV_VERIFY_OK(infos);
        QVERIFY(infos->isEmpty());
    }
}

void TestChromatograms::typesBecomeKindsOfTraces()
{
    QCOMPARE(MsUtils::traceTypeFromChromatogramType(Type::Tic), TraceType::Tic);
    QCOMPARE(MsUtils::traceTypeFromChromatogramType(Type::BasePeak), TraceType::Bpi);
    QCOMPARE(MsUtils::traceTypeFromChromatogramType(Type::Light), TraceType::Uv);
    for (Type type :
         {Type::SelectedIonCurrent, Type::SelectedIonMonitoring, Type::SelectedReactionMonitoring})
        QCOMPARE(MsUtils::traceTypeFromChromatogramType(type), TraceType::Xic);
    for (Type type : {Type::Other, Type::IonCurrent})
        QCOMPARE(MsUtils::traceTypeFromChromatogramType(type), TraceType::Other);
}

void TestChromatograms::tracesAreExtracted_data()
{
    QTest::addColumn<QList<TraceItem>>("traces");
    using Traces = QList<TraceItem>;
    const TraceItem tic(TraceType::Tic, {u"TIC"_s, u"TIC"_s});
    const TraceItem bpc(TraceType::Bpi, {u"BPC"_s, u"BPC"_s});
    QTest::newRow("three_test_scans.mzML") << Traces{tic, bpc};
    QTest::newRow("MzMLFile_6_uncompressed.mzML.gz") << Traces{tic, bpc}; // from its spectra
    QTest::newRow("ms1_no_pepmass.mgf") << Traces{tic, bpc};
    QTest::newRow("ten_ms2.mzML") << Traces();
    QTest::newRow("pyteomics_test.mgf") << Traces();
    QTest::newRow("20171013_HMP_C61_ISO_P1_GA1_UV_VIS_2.mzML")
        << Traces{{TraceType::Other, {u"Chromatogram 1"_s, u"index=0"_s}}};
}

void TestChromatograms::tracesAreExtracted()
{
    QFETCH(QList<TraceItem>, traces);
    const auto reader =
        MsDataAccessorsFactory::createReader(MsReaderOptions(dataPath(QTest::currentDataTag())));
    ORV_VERIFY_OK(reader->open());
    const Result<QList<TraceItem>> found = MsUtils::extractTraces(*reader);
    ORV_VERIFY_OK(found);
    QCOMPARE(*found, traces);
}

void TestChromatograms::summariesComeFirst()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s, mzml("<spectrum id=\"s\" msLevel=\"1\"/>", chromatogram("uv b", "MS:1000812") +
                                                                         chromatogram("base", "MS:1000628") +
                                                                         chromatogram("uv a", "MS:1000812")));
    const auto reader = MsDataAccessorsFactory::createReader(MsReaderOptions(tree.at(u"a.mzML"_s)));
    ORV_VERIFY_OK(reader->open());
    const Result<QList<TraceItem>> traces = MsUtils::extractTraces(*reader);
    ORV_VERIFY_OK(traces);
    QStringList names;
    for (const TraceItem &trace : *traces)
        names.append(trace.channelName());
    QCOMPARE(names, (QStringList{u"TIC"_s, u"base"_s, u"uv b"_s, u"uv a"_s}));
}

void TestChromatograms::filesAreOpenedOneByOne()
{
    const QStringList paths = {dataPath("pyteomics_test.mgf"), u"/nowhere/a.mzML"_s,
                               TestData::path(u"core_ms/vendor/thermo/small.RAW"_s),
                               dataPath("only_ms2.mzML")};
    const QList<MsUtils::AccessorForMsFile> files = MsUtils::accessorsForMsFiles(paths);
    QCOMPARE(files.size(), paths.size());
    for (qsizetype i = 0; i < files.size(); ++i) {
        QVERIFY(files[i].accessor);
        QCOMPARE(files[i].accessor->path(), paths[i]);
    }
    ORV_VERIFY_OK(files[0].error);
    QCOMPARE(files[1].error.code(), ErrorCode::CannotOpenFile);
    QCOMPARE(files[2].error.code(), ErrorCode::InvalidContent);
    QCOMPARE(files[2].accessor->vendorFormat(), VendorDataFormat::Thermo);
    ORV_VERIFY_OK(files[3].error);
    QVERIFY(MsUtils::accessorsForMsFiles({}).isEmpty());
}

void TestChromatograms::thePrefixOfOldNamesStands()
{
    QCOMPARE(QString(CHROMATOGRAM_NAME_OTHER_PREFIX), u"Other chromatogram "_s);
}

ORV_REGISTER_TEST(TestChromatograms)

#include "TestChromatograms.moc"
