#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/FileTypes.h>
#include <orv/core_ms/MsFileInfo.h>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace {

using Format = VendorDataFormat;

const QSet<Format> kBruker = {Format::BrukerFID,       Format::BrukerYEP,  Format::BrukerBAF,
                              Format::BrukerU2,        Format::BrukerTims, Format::BrukerTsf,
                              Format::BrukerBAF_and_U2};

} // namespace

class TestMsFileInfo : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void formatsAreDescribed_data();
    void formatsAreDescribed();
    void everyFormatButUnknownHasADetector();
    void unknownFormatsAreWarnedOf_data();
    void unknownFormatsAreWarnedOf();
    void extensionsOfSeveralFormatsAreASet();
    void extensionsAreThoseOfTheFileTypes();
    void namesAreToldWithoutTheDisk_data();
    void namesAreToldWithoutTheDisk();
    void theFirstVendorIsEnough();
};

void TestMsFileInfo::formatsAreDescribed_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("kind");
    const auto row = [](Format format, const QString &extension, const QString &description,
                        const QString &kind) {
        QTest::addRow("%d", int(format)) << format << extension << description << kind;
    };
    row(Format::AgilentAcqData, u"d"_s, u"Agilent"_s, u"folder"_s);
    row(Format::BrukerFID, u"d"_s, u"Bruker"_s, u"folder"_s);
    row(Format::BrukerYEP, u"d"_s, u"Bruker"_s, u"folder"_s);
    row(Format::BrukerBAF, u"d"_s, u"Bruker"_s, u"folder"_s);
    row(Format::BrukerU2, u"d"_s, u"Bruker"_s, u"folder"_s);
    row(Format::BrukerBAF_and_U2, u"d"_s, u"Bruker"_s, u"folder"_s);
    row(Format::BrukerTims, u"d"_s, u"Bruker Tims"_s, u"folder"_s);
    row(Format::BrukerTsf, u"d"_s, u"Bruker Tsf"_s, u"folder"_s);
    row(Format::Ulvar2, u"ulvar2"_s, u"Ulvar v2"_s, u"file"_s);
    row(Format::Csv2d, u"csv2d"_s, u"Csv2D"_s, u"file"_s);
    row(Format::DataCut, u"data.cut"_s, u"Data Cut"_s, u"file"_s);
    row(Format::DataCutEmbedded, QString(), u"Data Cut Embedded"_s, u"file"_s);
    row(Format::MsFaux, u"msfaux"_s, u"Simulated msfaux"_s, u"file"_s);
    row(Format::MsFaux2, u"msfaux2"_s, u"Simulated msfaux2"_s, u"file"_s);
    row(Format::Mgf, u"mgf"_s, u"Mascot generic format (mgf)"_s, u"file"_s);
    row(Format::Mzml, u"mzml"_s, u"Open data format mzml"_s, u"file"_s);
    row(Format::Mzxml, u"mzxml"_s, u"Open data format mzxml"_s, u"file"_s);
    row(Format::Tolq, u"tolq"_s, u"Orv Acquisition file"_s, u"file or folder"_s);
    row(Format::Mobilion, u"mbi"_s, u"MOBILion"_s, u"file"_s);
    row(Format::SciexWiff, u"wiff"_s, u"Sciex wiff"_s, u"file"_s);
    row(Format::SciexWiff2, u"wiff2"_s, u"Sciex wiff2"_s, u"file"_s);
    row(Format::Shimadzu, u"lcd"_s, u"Shimadzu"_s, u"file"_s);
    row(Format::Thermo, u"raw"_s, u"Thermo"_s, u"file"_s);
    row(Format::Testing, QString(), u"Testing"_s, u"file"_s);
    row(Format::Waters, u"raw"_s, u"Waters"_s, u"folder"_s);
}

void TestMsFileInfo::formatsAreDescribed()
{
    QFETCH(Format, format);
    QFETCH(QString, extension);
    QFETCH(QString, description);
    QFETCH(QString, kind);
    QCOMPARE(MsFileInfo::fileNameExtension(format), extension);
    QCOMPARE(MsFileInfo::formatDescription(format), description);
    QCOMPARE(MsFileInfo::isFile(format), kind.contains(u"file"_s));
    QCOMPARE(MsFileInfo::isFolder(format), kind.contains(u"folder"_s));
}

void TestMsFileInfo::everyFormatButUnknownHasADetector()
{
    QSet<Format> formats;
    for (int number = 1; number <= 25; ++number)
        formats.insert(Format(number));
    QCOMPARE(MsFileInfo::allFormats(), formats);
}

void TestMsFileInfo::unknownFormatsAreWarnedOf_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("unknown") << 0;
    QTest::newRow("beyond the last") << 26;
    QTest::newRow("negative") << -1;
}

void TestMsFileInfo::unknownFormatsAreWarnedOf()
{
    QFETCH(int, number);
    const LogCapture log;
    QCOMPARE(MsFileInfo::fileNameExtension(Format(number)), QString());
    QCOMPARE(MsFileInfo::formatDescription(Format(number)), QString());
    QVERIFY(!MsFileInfo::isFile(Format(number)));
    QVERIFY(!MsFileInfo::isFolder(Format(number)));
    QVERIFY(MsFileInfo::fileNameExtensions({Format(number)}).isEmpty());
    QCOMPARE(log.warnings(), QStringList(5, u"Unknown file format: %1"_s.arg(number)));
    QCOMPARE(log.lines().first().category, u"orv.generic"_s);
}

void TestMsFileInfo::extensionsOfSeveralFormatsAreASet()
{
    QCOMPARE(MsFileInfo::fileNameExtensions({}), QSet<QString>());
    QCOMPARE(MsFileInfo::fileNameExtensions(
                 {Format::Thermo, Format::Waters, Format::Testing, Format::DataCutEmbedded, Format::Mgf}),
             QSet({u"raw"_s, u"mgf"_s}));
}

void TestMsFileInfo::extensionsAreThoseOfTheFileTypes()
{
    const QStringList suffixes = FileTypes::msDataSuffixes();
    QCOMPARE(MsFileInfo::fileNameExtensions(MsFileInfo::allFormats()),
             QSet(suffixes.begin(), suffixes.end()));
}

void TestMsFileInfo::namesAreToldWithoutTheDisk_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSet<Format>>("formats");
    QSet<Format> dotD = kBruker;
    dotD.insert(Format::AgilentAcqData);
    const QSet<Format> raw = {Format::Thermo, Format::Waters};

    QTest::newRow("d") << u"/nowhere/a.d"_s << dotD;
    QTest::newRow("capital d") << u"a.D"_s << dotD;
    // One of the two rules passes over separators at the end, the other doesn't.
    QTest::newRow("d with a separator") << u"a.d/"_s << kBruker;
    QTest::newRow("raw") << u"C:\\data\\a.raw"_s << raw;
    QTest::newRow("capital raw") << u"a.RAW"_s << raw;
    QTest::newRow("nothing but the extension") << u".raw"_s << raw;
    QTest::newRow("raw with a separator") << u"a.raw/"_s << QSet<Format>();
    QTest::newRow("ulvar2") << u"a.ulvar2"_s << QSet{Format::Ulvar2};
    QTest::newRow("csv2d") << u"a.Csv2D"_s << QSet{Format::Csv2d};
    QTest::newRow("data.cut") << u"a.data.cut"_s << QSet{Format::DataCut};
    QTest::newRow("cut") << u"a.cut"_s << QSet<Format>();
    QTest::newRow("msfaux") << u"a.msfaux"_s << QSet{Format::MsFaux};
    QTest::newRow("msfaux2") << u"a.msfaux2"_s << QSet{Format::MsFaux2};
    QTest::newRow("mgf") << u"a.mgf"_s << QSet{Format::Mgf};
    QTest::newRow("mzml") << u"a.mzML"_s << QSet{Format::Mzml};
    QTest::newRow("mzml, packed") << u"a.mzML.gz"_s << QSet<Format>();
    QTest::newRow("mzxml") << u"a.mzXML"_s << QSet{Format::Mzxml};
    QTest::newRow("tolq") << u"a.tolq"_s << QSet{Format::Tolq};
    QTest::newRow("mbi") << u"a.mbi"_s << QSet{Format::Mobilion};
    QTest::newRow("wiff") << u"a.wiff"_s << QSet{Format::SciexWiff};
    QTest::newRow("wiff2") << u"a.wiff2"_s << QSet{Format::SciexWiff2};
    QTest::newRow("wiff.scan") << u"a.wiff.scan"_s << QSet<Format>();
    QTest::newRow("lcd") << u"a.lcd"_s << QSet{Format::Shimadzu};
    QTest::newRow("marker") << u"xMAGIC_STRING_GOES_HERE_orv_testing"_s << QSet{Format::Testing};
    QTest::newRow("marker in other case") << u"magic_string_goes_here_ORV_TESTING"_s << QSet{Format::Testing};
    QTest::newRow("behind the marker") << u"MAGIC_STRING_GOES_HERE_orv_testing.x"_s << QSet<Format>();
    QTest::newRow("empty") << QString() << QSet<Format>();
    QTest::newRow("extension without a dot") << u"raw"_s << QSet<Format>();
    QTest::newRow("any other") << u"a.txt"_s << QSet<Format>();
}

void TestMsFileInfo::namesAreToldWithoutTheDisk()
{
    QFETCH(QString, path);
    QFETCH(QSet<Format>, formats);
    const auto location = DataSourceLocation::ofPath(path);
    QCOMPARE(MsFileInfo::detectFormatByName(location), formats);
    QCOMPARE(MsFileInfo::detectFormat(location, true, false), formats);
    QCOMPARE(MsFileInfo::isRecognised(location, true), !formats.isEmpty());
}

void TestMsFileInfo::theFirstVendorIsEnough()
{
    const auto first = [](const QString &path) {
        return MsFileInfo::detectFormat(DataSourceLocation::ofPath(path), true, true);
    };
    QCOMPARE(first(u"a.d"_s), QSet{Format::AgilentAcqData});
    QCOMPARE(first(u"a.raw"_s), QSet{Format::Thermo});
    QCOMPARE(first(u"a.txt"_s), QSet<Format>());
}

ORV_REGISTER_TEST(TestMsFileInfo)

#include "TestMsFileInfo.moc"
