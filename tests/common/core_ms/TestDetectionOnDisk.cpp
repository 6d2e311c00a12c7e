#include "ChildProcess.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "TestData.h"

#include <orv/core_ms/MsFileInfo.h>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace {

using Format = VendorDataFormat;
using Formats = QSet<Format>;

Formats formatsAt(const QString &path)
{
    return MsFileInfo::detectFormat(DataSourceLocation::ofPath(path));
}

} // namespace

class TestDetectionOnDisk : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void measurementsOfInstrumentsAreRecognised_data();
    void measurementsOfInstrumentsAreRecognised();
    void simpleFormatsNeedTheirKind_data();
    void simpleFormatsNeedTheirKind();
    void oneExtensionServesTwoVendors_data();
    void oneExtensionServesTwoVendors();
    void brukerFoldersAreToldByTheirFiles_data();
    void brukerFoldersAreToldByTheirFiles();
    void fidComesBeforeAllElse();
    void agilentFoldersHoldAcqData_data();
    void agilentFoldersHoldAcqData();
    void wiffNeedsItsScans_data();
    void wiffNeedsItsScans();
    void aMissingCompanionIsWarnedOf_data();
    void aMissingCompanionIsWarnedOf();
    void theMarkerOfTestsNeedsNoDisk();
    void linksAreFollowed();
    void brokenLinksAreNothing();
    void loopsOfLinksEnd();
    void linksToOnePlaceAreFollowedUnderEachExtension();
    void foldersWithoutPermissionHoldNothing();
    void hugeFoldersAreRead();
    void deepFoldersAreRead();
    void namesAreAnyText();
    void theFirstVendorIsEnough();
};

void TestDetectionOnDisk::measurementsOfInstrumentsAreRecognised_data()
{
    QTest::addColumn<Formats>("formats");
    QTest::newRow("agilent/AgilentMassHunterTest.d") << Formats{Format::AgilentAcqData};
    QTest::newRow("bruker/tdf/diaPASEF.d") << Formats{Format::BrukerTims};
    QTest::newRow("bruker/tsf/timsTOF_autoMSMS_Urine_50s_neg.d") << Formats{Format::BrukerTsf};
    QTest::newRow("bruker/u2/lc_run_01.d") << Formats{Format::BrukerU2};
    QTest::newRow("bruker/yep/Sample_1-A,1_01_985.d") << Formats{Format::BrukerYEP};
    // It holds analysis.baf in small letters, and a file "fid".
    QTest::newRow("bruker/baf/BrukerBafTest.d") << Formats();
    QTest::newRow("mobilion/ExampleTuneMix_binned5.mbi") << Formats{Format::Mobilion};
    QTest::newRow("sciex/SciexTest.wiff") << Formats{Format::SciexWiff};
    QTest::newRow("shimadzu/10nmol_Negative_MS_ID_ON_055.lcd") << Formats{Format::Shimadzu};
    QTest::newRow("thermo/small.RAW") << Formats{Format::Thermo};
    QTest::newRow("waters/MassLynxTest.raw") << Formats{Format::Waters};
}

void TestDetectionOnDisk::measurementsOfInstrumentsAreRecognised()
{
    QFETCH(Formats, formats);
    const QString path = TestData::path(u"core_ms/vendor/"_s + QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(QFileInfo::exists(path));
    QCOMPARE(formatsAt(path), formats);
}

void TestDetectionOnDisk::simpleFormatsNeedTheirKind_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<bool>("mayBeFolder");
    QTest::newRow("a.ulvar2") << Format::Ulvar2 << false;
    QTest::newRow("a.csv2d") << Format::Csv2d << false;
    QTest::newRow("a.data.cut") << Format::DataCut << false;
    QTest::newRow("a.msfaux") << Format::MsFaux << false;
    QTest::newRow("a.msfaux2") << Format::MsFaux2 << false;
    QTest::newRow("a.mgf") << Format::Mgf << false;
    QTest::newRow("a.mzML") << Format::Mzml << false;
    QTest::newRow("a.MZXML") << Format::Mzxml << false;
    QTest::newRow("a.tolq") << Format::Tolq << true;
    QTest::newRow("a.mbi") << Format::Mobilion << false;
    QTest::newRow("a.lcd") << Format::Shimadzu << false;
}

void TestDetectionOnDisk::simpleFormatsNeedTheirKind()
{
    QFETCH(Format, format);
    QFETCH(bool, mayBeFolder);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const SampleTree tree;
    tree.add(u"file/"_s + name);
    tree.add(u"folder/"_s + name + u'/');
    QCOMPARE(formatsAt(tree.at(u"file/"_s + name)), Formats{format});
    QCOMPARE(formatsAt(tree.at(u"folder/"_s + name)), mayBeFolder ? Formats{format} : Formats());
    QCOMPARE(formatsAt(tree.at(u"missing/"_s + name)), Formats());
}

void TestDetectionOnDisk::oneExtensionServesTwoVendors_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<Formats>("formats");
    QTest::newRow("file") << QStringList{u"x.RAW"_s} << Formats{Format::Thermo};
    QTest::newRow("folder with functions") << QStringList{u"x.RAW/_FUNC001.DAT"_s} << Formats{Format::Waters};
    QTest::newRow("folder without functions") << QStringList{u"x.RAW/"_s} << Formats();
    QTest::newRow("functions in small letters") << QStringList{u"x.RAW/_func001.dat"_s} << Formats();
    QTest::newRow("functions too deep") << QStringList{u"x.RAW/a/_FUNC001.DAT"_s} << Formats();
    QTest::newRow("nothing") << QStringList{u"y"_s} << Formats();
}

void TestDetectionOnDisk::oneExtensionServesTwoVendors()
{
    QFETCH(QStringList, entries);
    QFETCH(Formats, formats);
    const SampleTree tree;
    tree.addAll(entries);
    QCOMPARE(formatsAt(tree.at(u"x.RAW"_s)), formats);
}

void TestDetectionOnDisk::brukerFoldersAreToldByTheirFiles_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<Format>("format");
    const auto row = [](const char *name, const QStringList &entries, Format format) {
        QTest::newRow(name) << entries << format;
    };
    for (const char *file : {"1/1SRef/fid", "1SRef/fid", "1/1SLin/fid", "1SLin/fid", "1/1Ref/fid", "1Ref/fid",
                             "1/1Lin/fid", "1Lin/fid"})
        row(file, {u"0_A1/"_s + QString::fromLatin1(file)}, Format::BrukerFID);
    row("fid two levels too high", {u"1SLin/fid"_s}, Format::Unknown);
    row("fid one level too deep", {u"a/b/1SLin/fid"_s}, Format::Unknown);
    row("fid of another kind", {u"a/1Other/fid"_s}, Format::Unknown);
    row("folder fid in an entry", {u"a/fid/"_s}, Format::BrukerFID);
    row("file fid in an entry", {u"a/fid"_s}, Format::Unknown);
    row("folder fid beside Analysis.baf", {u"a/fid/"_s, u"a/Analysis.baf"_s}, Format::Unknown);
    row("folder fid beside analysis.baf", {u"a/fid/"_s, u"a/analysis.baf"_s}, Format::Unknown);
    row("folder fid in the root", {u"fid/"_s}, Format::BrukerFID);
    row("folder fid in the root with analysis.baf", {u"fid/"_s, u"analysis.baf"_s}, Format::Unknown);
    row("folder fid in the root with Analysis.baf", {u"fid/"_s, u"Analysis.baf"_s}, Format::BrukerBAF);
    row("file fid in the root", {u"fid"_s}, Format::Unknown);
    row("hidden entry", {u".a/1SLin/fid"_s}, Format::BrukerFID);
    row("yep", {u"Analysis.yep"_s}, Format::BrukerYEP);
    row("yep in small letters", {u"analysis.yep"_s}, Format::Unknown);
    row("yep before baf", {u"Analysis.yep"_s, u"Analysis.baf"_s}, Format::BrukerYEP);
    row("baf", {u"Analysis.baf"_s}, Format::BrukerBAF);
    row("baf in small letters", {u"analysis.baf"_s}, Format::Unknown);
    row("baf in small letters with tdf", {u"analysis.baf"_s, u"analysis.tdf"_s}, Format::BrukerTims);
    row("u2", {u"run.u2"_s}, Format::BrukerU2);
    row("u2 of another name", {u"other.u2"_s}, Format::Unknown);
    row("u2 of the whole name", {u"run.d.u2"_s}, Format::Unknown);
    row("baf and u2", {u"Analysis.baf"_s, u"run.u2"_s}, Format::BrukerBAF_and_U2);
    row("baf in small letters and u2", {u"analysis.baf"_s, u"run.u2"_s}, Format::BrukerU2);
    row("baf before tdf", {u"Analysis.baf"_s, u"analysis.tdf"_s}, Format::BrukerBAF);
    row("tdf", {u"analysis.tdf"_s}, Format::BrukerTims);
    row("tdf with a capital", {u"Analysis.tdf"_s}, Format::BrukerTims);
    row("tdf before tsf", {u"analysis.tsf"_s, u"analysis.tdf"_s}, Format::BrukerTims);
    row("tsf", {u"analysis.tsf"_s}, Format::BrukerTsf);
    row("tsf with a capital", {u"Analysis.tsf"_s}, Format::BrukerTsf);
    row("all in capitals", {u"ANALYSIS.TDF"_s, u"ANALYSIS.BAF"_s}, Format::Unknown);
    row("nothing", {}, Format::Unknown);
}

void TestDetectionOnDisk::brukerFoldersAreToldByTheirFiles()
{
    QFETCH(QStringList, entries);
    QFETCH(Format, format);
    const SampleTree tree;
    tree.add(u"run.d/"_s);
    for (const QString &entry : entries)
        tree.add(u"run.d/"_s + entry);
    const Formats expected = format == Format::Unknown ? Formats() : Formats{format};
    QCOMPARE(formatsAt(tree.at(u"run.d"_s)), expected);
    QCOMPARE(formatsAt(tree.at(u"run.d/"_s)), expected);

    // The companion is named after ".d" as it stands; all else doesn't depend on the name.
    QVERIFY(QFile::rename(tree.at(u"run.d"_s), tree.at(u"run.D"_s)));
    Formats withoutCompanion = expected;
    if (format == Format::BrukerBAF_and_U2)
        withoutCompanion = {Format::BrukerBAF};
    else if (format == Format::BrukerU2)
        withoutCompanion = {};
    QCOMPARE(formatsAt(tree.at(u"run.D"_s)), withoutCompanion);
    QVERIFY(QFile::rename(tree.at(u"run.D"_s), tree.at(u"run"_s)));
    QCOMPARE(formatsAt(tree.at(u"run"_s)), Formats());
}

void TestDetectionOnDisk::fidComesBeforeAllElse()
{
    const SampleTree tree;
    tree.addAll({u"run.d/0_A1/1/1SRef/fid"_s, u"run.d/Analysis.yep"_s, u"run.d/Analysis.baf"_s,
                 u"run.d/run.u2"_s, u"run.d/analysis.tdf"_s, u"run.d/analysis.tsf"_s});
    QCOMPARE(formatsAt(tree.at(u"run.d"_s)), Formats{Format::BrukerFID});
}

void TestDetectionOnDisk::agilentFoldersHoldAcqData_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<bool>("isAgilent");
    QTest::newRow("AcqData") << QStringList{u"run.d/AcqData/"_s} << true;
    QTest::newRow("AcqData in other case") << QStringList{u"run.d/ACQDATA/"_s} << true;
    QTest::newRow("a file AcqData") << QStringList{u"run.d/AcqData"_s} << false;
    QTest::newRow("scans") << QStringList{u"run.d/acqdata/MSScan.bin"_s} << true;
    QTest::newRow("in a folder .d deeper down") << QStringList{u"run.d/a/b/inner.D/AcqData/"_s} << true;
    QTest::newRow("in a folder without .d") << QStringList{u"run.d/inner/AcqData/"_s} << false;
    QTest::newRow("scans without AcqData") << QStringList{u"run.d/MSScan.bin"_s} << false;
    QTest::newRow("a longer name") << QStringList{u"run.d/AcqData2/"_s} << false;
    QTest::newRow("a file run.d") << QStringList{u"run.d"_s} << false;
    QTest::newRow("nothing") << QStringList{u"run.d/"_s} << false;
}

void TestDetectionOnDisk::agilentFoldersHoldAcqData()
{
    QFETCH(QStringList, entries);
    QFETCH(bool, isAgilent);
    const SampleTree tree;
    tree.addAll(entries);
    QCOMPARE(formatsAt(tree.at(u"run.d"_s)), isAgilent ? Formats{Format::AgilentAcqData} : Formats());
}

void TestDetectionOnDisk::wiffNeedsItsScans_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("path");
    QTest::addColumn<Formats>("formats");
    QTest::newRow("wiff") << QStringList{u"a.wiff"_s, u"a.wiff.scan"_s} << u"a.wiff"_s
                          << Formats{Format::SciexWiff};
    QTest::newRow("wiff2") << QStringList{u"a.wiff2"_s, u"a.wiff.scan"_s} << u"a.wiff2"_s
                           << Formats{Format::SciexWiff2};
    QTest::newRow("capitals") << QStringList{u"A.WIFF"_s, u"A.WIFF.scan"_s} << u"A.WIFF"_s
                              << Formats{Format::SciexWiff};
    QTest::newRow("wiff, a folder") << QStringList{u"a.wiff/"_s, u"a.wiff.scan"_s} << u"a.wiff"_s
                                    << Formats();
}

void TestDetectionOnDisk::wiffNeedsItsScans()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, path);
    QFETCH(Formats, formats);
    const SampleTree tree;
    tree.addAll(entries);
    QCOMPARE(formatsAt(tree.at(path)), formats);
}

void TestDetectionOnDisk::aMissingCompanionIsWarnedOf_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("warning");
    QTest::newRow("wiff") << u"a.wiff"_s
                          << u"looks like ABI SCIEX WIFF file. But .wiff.scan file is absent"_s;
    QTest::newRow("wiff2") << u"a.wiff2"_s << u"looks like SCIEX WIFF2 file. But .wiff.scan file is absent"_s;
}

void TestDetectionOnDisk::aMissingCompanionIsWarnedOf()
{
    QFETCH(QString, name);
    QFETCH(QString, warning);
    const SampleTree tree;
    tree.addAll({name, u"a.wiff2.scan"_s, u"b.wiff.scan"_s});
    const LogCapture log;
    QCOMPARE(formatsAt(tree.at(name)), Formats());
    QCOMPARE(log.warnings(), QStringList(u"File \"%1\" %2"_s.arg(tree.at(name), warning)));
    QCOMPARE(log.lines().first().category, u"orv.generic"_s);
    // A file that isn't there misses nothing.
    QCOMPARE(formatsAt(tree.at(u"missing/"_s + name)), Formats());
    QCOMPARE(log.lines().size(), 1);
}

void TestDetectionOnDisk::theMarkerOfTestsNeedsNoDisk()
{
    QCOMPARE(formatsAt(u"/nowhere/MAGIC_STRING_GOES_HERE_orv_testing"_s), Formats{Format::Testing});
    QCOMPARE(formatsAt(u"magic_string_goes_here_orv_testing"_s), Formats{Format::Testing});
}

void TestDetectionOnDisk::linksAreFollowed()
{
    const SampleTree tree;
    tree.addAll(
        {u"file"_s, u"waters/_FUNC001.DAT"_s, u"bruker/0_A1/1/1SLin/fid"_s, u"store/AcqData/MSScan.bin"_s});
    tree.link(u"a.raw"_s, u"file"_s);
    tree.link(u"b.raw"_s, u"waters"_s);
    tree.link(u"c.d"_s, u"bruker"_s);
    tree.link(u"d.d/inner.d"_s, u"../store"_s);
    tree.link(u"e.d/AcqData"_s, u"../store/AcqData"_s);
    QCOMPARE(formatsAt(tree.at(u"a.raw"_s)), Formats{Format::Thermo});
    QCOMPARE(formatsAt(tree.at(u"b.raw"_s)), Formats{Format::Waters});
    QCOMPARE(formatsAt(tree.at(u"c.d"_s)), Formats{Format::BrukerFID});
    QCOMPARE(formatsAt(tree.at(u"d.d"_s)), Formats{Format::AgilentAcqData});
    QCOMPARE(formatsAt(tree.at(u"e.d"_s)), Formats{Format::AgilentAcqData});
}

void TestDetectionOnDisk::brokenLinksAreNothing()
{
    const SampleTree tree;
    tree.link(u"a.raw"_s, u"nothing"_s);
    tree.link(u"b.d/AcqData"_s, u"nothing"_s);
    tree.link(u"c.d"_s, u"c.d"_s);
    for (const QString &name : {u"a.raw"_s, u"b.d"_s, u"c.d"_s})
        QCOMPARE(formatsAt(tree.at(name)), Formats());
}

void TestDetectionOnDisk::loopsOfLinksEnd()
{
    const SampleTree tree;
    tree.add(u"a.d/deep/er/"_s);
    tree.link(u"a.d/deep/er/up"_s, u"../.."_s);
    tree.link(u"a.d/deep/er/top"_s, u"../../../a.d"_s);
    tree.link(u"a.d/deep/here"_s, u"."_s);
    // Each of many links leads to all the others: without a memory of places, paths would multiply.
    for (int i = 0; i < 30; ++i)
        tree.link(u"a.d/hub/link%1"_s.arg(i), u"."_s);
    QCOMPARE(formatsAt(tree.at(u"a.d"_s)), Formats());
    tree.add(u"a.d/zz/inner.d/AcqData/"_s);
    QCOMPARE(formatsAt(tree.at(u"a.d"_s)), Formats{Format::AgilentAcqData});
}

void TestDetectionOnDisk::linksToOnePlaceAreFollowedUnderEachExtension()
{
    const SampleTree tree;
    tree.add(u"store/AcqData/"_s);
    tree.add(u"a.d/"_s);
    tree.link(u"a.d/1"_s, u"../store"_s);
    tree.link(u"a.d/2.d"_s, u"../store"_s);
    tree.link(u"a.d/3"_s, u"../store"_s);
    QCOMPARE(formatsAt(tree.at(u"a.d"_s)), Formats{Format::AgilentAcqData});
}

void TestDetectionOnDisk::foldersWithoutPermissionHoldNothing()
{
    const SampleTree tree;
    tree.addAll({u"closed.d/AcqData/MSScan.bin"_s, u"half.d/inside/"_s, u"half.d/open/x.d/AcqData/"_s});
    QVERIFY(QFile::setPermissions(tree.at(QString()), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(tree.at(u"closed.d"_s), QFile::Permissions(0)));
    QVERIFY(QFile::setPermissions(tree.at(u"half.d/inside"_s), QFile::Permissions(0)));
    const int outcome = inChildProcess([&tree] {
        if (!becomeNobody())
            return 10;
        const bool closed = formatsAt(tree.at(u"closed.d"_s)).isEmpty();
        const bool half = formatsAt(tree.at(u"half.d"_s)) == Formats{Format::AgilentAcqData};
        return (closed ? 1 : 0) + (half ? 2 : 0);
    });
    for (const QString &name : {u"closed.d"_s, u"half.d/inside"_s})
        QVERIFY(QFile::setPermissions(tree.at(name), QFile::Permissions(0x7755)));
    if (outcome == kChildNotSupported || outcome == 10)
        QSKIP("Permissions don't bind this user, and no other user can be taken");
    QCOMPARE(outcome, 3);
}

void TestDetectionOnDisk::hugeFoldersAreRead()
{
    const SampleTree tree;
    constexpr int kEntries = 100'000;
    constexpr int kNamesOfAFile = 50'000; // some file systems allow 65,000
    // Further names of one file are quicker to make than files.
    QByteArray file;
    for (int i = 0; i < kEntries; ++i) {
        const QString name = u"a.d/%1"_s.arg(i);
        if (i % kNamesOfAFile == 0) {
            tree.add(name);
            file = QFile::encodeName(tree.at(name));
        } else {
            QCOMPARE(link(file.constData(), QFile::encodeName(tree.at(name)).constData()), 0);
        }
    }
    QCOMPARE(formatsAt(tree.at(u"a.d"_s)), Formats());
    tree.add(u"a.d/AcqData/"_s);
    tree.add(u"a.d/analysis.tdf"_s);
    QCOMPARE(formatsAt(tree.at(u"a.d"_s)), Formats({Format::AgilentAcqData, Format::BrukerTims}));
}

void TestDetectionOnDisk::deepFoldersAreRead()
{
    const SampleTree tree;
    const QString deep = u"a.d/"_s + u"x/"_s.repeated(60);
    tree.add(deep + u"b.d/AcqData/"_s);
    QCOMPARE(formatsAt(tree.at(u"a.d"_s)), Formats{Format::AgilentAcqData});
    // Beyond what any instrument writes the walk ends.
    tree.add(u"c.d/"_s + u"x/"_s.repeated(80) + u"b.d/AcqData/"_s);
    QCOMPARE(formatsAt(tree.at(u"c.d"_s)), Formats());
}

void TestDetectionOnDisk::namesAreAnyText()
{
    const SampleTree tree;
    for (const QString &name : {u"Mäuse #1 100%.raw"_s, u"line\nbreak.raw"_s, u"[1,2] {a}.raw"_s,
                                u"質量.raw"_s, u" .raw"_s, u"a\\b.raw"_s}) {
        tree.add(name);
        QCOMPARE(formatsAt(tree.at(name)), Formats{Format::Thermo});
    }
}

void TestDetectionOnDisk::theFirstVendorIsEnough()
{
    const SampleTree tree;
    tree.addAll({u"a.d/AcqData/"_s, u"a.d/analysis.tdf"_s, u"b.d/analysis.tdf"_s, u"c.d/"_s});
    const auto first = [&tree](const QString &name) {
        return MsFileInfo::detectFormat(DataSourceLocation::ofPath(tree.at(name)), false, true);
    };
    QCOMPARE(first(u"a.d"_s), Formats{Format::AgilentAcqData});
    QCOMPARE(first(u"b.d"_s), Formats{Format::BrukerTims});
    QCOMPARE(first(u"c.d"_s), Formats());
    QVERIFY(MsFileInfo::isRecognised(DataSourceLocation::ofPath(tree.at(u"b.d"_s)), false));
    QVERIFY(!MsFileInfo::isRecognised(DataSourceLocation::ofPath(tree.at(u"c.d"_s)), false));
}

ORV_REGISTER_TEST(TestDetectionOnDisk)

#include "TestDetectionOnDisk.moc"
