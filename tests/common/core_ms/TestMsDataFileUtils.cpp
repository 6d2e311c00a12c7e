#include "OrvTest.h"
#include "SampleTree.h"
#include "TolqFiles.h"

#include <orv/core_ms/MsDataFileUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;
using Format = msreader::VendorDataFormat;

class TestMsDataFileUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void extensionsAreKnown_data();
    void extensionsAreKnown();
    void whatIsThereIsLookedAt();
    void whatIsNotThereGoesByItsName();
    void anAcquiredSampleHasTheFormatInside();
};

void TestMsDataFileUtils::extensionsAreKnown_data()
{
    QTest::addColumn<bool>("isMs");
    for (const char *name : {"a.raw", "a.D", "/x/a.mzML", "C:\\x\\a.data.cut", "a.wiff2", "a.raw/"})
        QTest::newRow(name) << true;
    for (const char *name : {"", "raw", "a.txt", "a.wiff.scan", "a.raw/b", "a.mzML.gz", "a.cut",
                             "MAGIC_STRING_GOES_HERE_orv_testing"})
        QTest::newRow(name) << false;
}

void TestMsDataFileUtils::extensionsAreKnown()
{
    QFETCH(bool, isMs);
    QCOMPARE(MsDataFileUtils::hasMsExtension(QString::fromLatin1(QTest::currentDataTag())), isMs);
}

void TestMsDataFileUtils::whatIsThereIsLookedAt()
{
    const SampleTree tree;
    tree.addAll({u"thermo.raw"_s, u"waters.raw/_FUNC001.DAT"_s, u"empty.raw/"_s,
                 u"two.d/AcqData/MSScan.bin"_s, u"two.d/analysis.tdf"_s});
    const auto formats = [&tree](const QString &name) {
        return MsDataFileUtils::detectPossibleVendorFormats(tree.at(name));
    };
    QCOMPARE(formats(u"thermo.raw"_s), QSet{Format::Thermo});
    QCOMPARE(formats(u"waters.raw"_s), QSet{Format::Waters});
    QCOMPARE(formats(u"empty.raw"_s), QSet<Format>());
    QCOMPARE(formats(u"two.d"_s), QSet({Format::AgilentAcqData, Format::BrukerTims}));
}

void TestMsDataFileUtils::whatIsNotThereGoesByItsName()
{
    QCOMPARE(MsDataFileUtils::detectPossibleVendorFormats(u"/nowhere/a.raw"_s),
             QSet({Format::Thermo, Format::Waters}));
    QCOMPARE(MsDataFileUtils::detectPossibleVendorFormats(u"/nowhere/a.txt"_s), QSet<Format>());
    QCOMPARE(MsDataFileUtils::detectPossibleVendorFormats(QString()), QSet<Format>());
}

void TestMsDataFileUtils::anAcquiredSampleHasTheFormatInside()
{
    const SampleTree tree;
    makeZip(tree.at(u"a.tolq"_s), {{u"metadata.json"_s, tolqMetadata("run.ulvar2")}, {u"run.ulvar2"_s, "x"}});
    tree.addAll({u"broken.tolq"_s});
    QCOMPARE(MsDataFileUtils::detectPossibleVendorFormats(tree.at(u"a.tolq"_s)),
             QSet({Format::Tolq, Format::Ulvar2}));
    QCOMPARE(MsDataFileUtils::detectPossibleVendorFormats(tree.at(u"broken.tolq"_s)), QSet{Format::Tolq});
    QCOMPARE(MsDataFileUtils::detectPossibleVendorFormats(u"/nowhere/a.tolq"_s), QSet{Format::Tolq});
}

ORV_REGISTER_TEST(TestMsDataFileUtils)

#include "TestMsDataFileUtils.moc"
