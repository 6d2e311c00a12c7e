#include "OrvTest.h"
#include "References.h"

#include <orv/resources/FileTypeUtils.h>
#include <orv/resources/PepmapTypesChecker.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestResourceTypes : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void spectraOfEveryVendorAreMsFiles_data();
    void spectraOfEveryVendorAreMsFiles();
    void otherFilesAreNot_data();
    void otherFilesAreNot();
    void kindsAreToldByTheSuffix_data();
    void kindsAreToldByTheSuffix();
    void noReferenceHoldsNothing();
    void applicationsHaveTheirNumbers_data();
    void applicationsHaveTheirNumbers();
    void everyDocumentOfAReportHasAnApplication();
    void referenceProjectsAreThoseOfThreeProducts();
};

void TestResourceTypes::spectraOfEveryVendorAreMsFiles_data()
{
    QTest::addColumn<QString>("text");

    for (const QString &suffix :
         {u"d"_s, u"raw"_s, u"wiff"_s, u"wiff2"_s, u"lcd"_s, u"mbi"_s, u"mzML"_s, u"mzXML"_s, u"MGF"_s,
          u"tolq"_s, u"ulvar2"_s, u"csv2d"_s, u"data.cut"_s, u"msfaux"_s, u"msfaux2"_s})
        QTest::newRow(qPrintable(suffix)) << u"/data/a."_s + suffix;
    QTest::newRow("folder") << u"C:\\data\\a.d\\"_s;
    QTest::newRow("server") << u"talvane:/a.tolq"_s;
    QTest::newRow("source") << u"eds:/s/a.raw"_s;
}

void TestResourceTypes::spectraOfEveryVendorAreMsFiles()
{
    QFETCH(QString, text);
    QVERIFY(ResourceTypeChecker::isMSFileType(referenceOf(text)));
}

void TestResourceTypes::otherFilesAreNot_data()
{
    QTest::addColumn<QString>("text");

    for (const QString &text : {u"a.csv"_s, u"a.fasta"_s, u"raw"_s, u"a.raw/x.txt"_s, u"a.cut"_s,
                                u"a.raw.zip"_s, u"a"_s, u"a.wiff.scan"_s, u"a.dravik"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void TestResourceTypes::otherFilesAreNot()
{
    QFETCH(QString, text);
    QVERIFY(!ResourceTypeChecker::isMSFileType(referenceOf(text)));
}

void TestResourceTypes::kindsAreToldByTheSuffix_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kinds");

    QTest::newRow("tolq") << u"a.TOLQ"_s << u"tolq"_s;
    QTest::newRow("tolq folder") << u"a.tolq/"_s << u"tolq"_s;
    QTest::newRow("csv") << u"a.csv"_s << u"text"_s;
    QTest::newRow("txt") << u"a.TXT"_s << u"text"_s;
    QTest::newRow("tsv") << u"a.tsv"_s << u"text"_s;
    QTest::newRow("csv2d is no table") << u"a.csv2d"_s << QString();
    QTest::newRow("pI") << u"a.pI"_s << u"electropherogram"_s;
    QTest::newRow("pi") << u"a.pi"_s << u"electropherogram"_s;
    QTest::newRow("result") << u"a.karvrslt"_s << u"karvon"_s;
    QTest::newRow("project") << u"a.karvon"_s << u"karvon"_s;
    QTest::newRow("Caldrin result") << u"a.CALDRSLT"_s << u"caldrin"_s;
    QTest::newRow("other project") << u"a.dravik"_s << QString();
    QTest::newRow("fasta") << u"a.fas"_s << u"fasta"_s;
    QTest::newRow("none") << u"a"_s << QString();
}

void TestResourceTypes::kindsAreToldByTheSuffix()
{
    QFETCH(QString, text);
    QStringList kinds;
    if (ResourceTypeChecker::isTolqFileType(referenceOf(text)))
        kinds += u"tolq"_s;
    if (ResourceTypeChecker::isCSVOrTextFileType(referenceOf(text)))
        kinds += u"text"_s;
    if (ResourceTypeChecker::isElectropherogramFileType(referenceOf(text)))
        kinds += u"electropherogram"_s;
    if (ResourceTypeChecker::isKarvonResultFileType(referenceOf(text)))
        kinds += u"karvon"_s;
    if (ResourceTypeChecker::isCaldrinResultFileType(referenceOf(text)))
        kinds += u"caldrin"_s;
    if (ResourceTypeChecker::matches(referenceOf(text), FileTypes::FASTA))
        kinds += u"fasta"_s;
    QTEST(kinds.join(u','), "kinds");
}

void TestResourceTypes::noReferenceHoldsNothing()
{
    for (const ResourceReferenceSPtr &none : {ResourceReferenceSPtr(), referenceOf(QString())}) {
        QVERIFY(!ResourceTypeChecker::matches(none, FileTypes::Invalid));
        QVERIFY(!ResourceTypeChecker::isMSFileType(none));
        QVERIFY(!ResourceTypeChecker::isCSVOrTextFileType(none));
        QCOMPARE(FileTypeUtils::appType(none), ApplicationType::None);
    }
}

void TestResourceTypes::applicationsHaveTheirNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("Senthia") << u"a.senthia"_s << 1;
    QTest::newRow("Karvon") << u"a.karvon"_s << 3;
    QTest::newRow("Dravik") << u"a.DRAVIK"_s << 4;
    QTest::newRow("Intact") << u"a.intact"_s << 5;
    QTest::newRow("Oligo") << u"a.oligo"_s << 6;
    QTest::newRow("Ostrale") << u"a.ostrale"_s << 9;
    QTest::newRow("icIEF") << u"a.itb"_s << 18;
    QTest::newRow("report") << u"a.mdrpt"_s << 19;
    QTest::newRow("Trenq") << u"talvane:/a.trenq"_s << 25;
    QTest::newRow("data") << u"a.raw"_s << 0;
    QTest::newRow("preset") << u"a.prv"_s << 0;
    QTest::newRow("none") << u"a"_s << 0;
}

void TestResourceTypes::applicationsHaveTheirNumbers()
{
    QFETCH(QString, text);
    QTEST(int(FileTypeUtils::appType(referenceOf(text))), "number");
}

void TestResourceTypes::everyDocumentOfAReportHasAnApplication()
{
    for (FileType type : MirelFileTypes::MULTIDOCALLOWEDFILES)
        QVERIFY(FileTypeUtils::appType(type) != ApplicationType::None);
}

void TestResourceTypes::referenceProjectsAreThoseOfThreeProducts()
{
    QList<FileType> types;
    for (FileType type : FileTypes::all()) {
        if (PepmapTypesChecker::isPepmapType(type))
            types.append(type);
    }
    QCOMPARE(types, QList<FileType>({MirelFileTypes::DRAVIK, MirelFileTypes::INTACT, MirelFileTypes::OLIGO}));
    QVERIFY(PepmapTypesChecker::isPepmapFile(u"C:\\data\\a.Dravik"_s));
    QVERIFY(!PepmapTypesChecker::isPepmapFile(u"a.karvon"_s));
    QVERIFY(!PepmapTypesChecker::isPepmapFile(QString()));
}

ORV_REGISTER_TEST(TestResourceTypes)

#include "TestResourceTypes.moc"
