#include "OrvTest.h"
#include "SampleTree.h"
#include "TestData.h"
#include "TolqFiles.h"

#include <orv/core_ms/MsDataAccessorsFactory.h>

#include <QStringEncoder>

#include <zlib.h>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace {

using Format = VendorDataFormat;

QString readerDataPath(const char *name)
{
    return TestData::path(u"core_ms/ms/"_s + QString::fromLatin1(name));
}

std::unique_ptr<MsReaderAccessor> readerOf(const QString &path)
{
    return MsDataAccessorsFactory::createReader(MsReaderOptions(path));
}

/// The levels from 1 to 4 that a file has; nothing if a question fails.
std::optional<QList<int>> levelsOf(const QString &path, Error *error = nullptr)
{
    const auto reader = readerOf(path);
    Error failure = reader->open();
    QList<int> levels;
    for (int level = 0; level <= 4 && !failure.hasError(); ++level) {
        const Result<bool> has = reader->hasMsProfileData(level);
        if (has.hasError())
            failure = has.error();
        else if (*has)
            levels.append(level);
    }
    if (error)
        *error = failure;
    return failure.hasError() ? std::nullopt : std::optional(levels);
}

QByteArray packed(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"x.gz"_s));
    gzFile file = gzopen(path.constData(), "wb");
    gzwrite(file, bytes.constData(), unsigned(bytes.size()));
    gzclose(file);
    return TestData::read(QFile::decodeName(path));
}

QByteArray smallMzml(const QByteArray &run, const QByteArray &head = {})
{
    return R"(<?xml version="1.0" encoding="ISO-8859-1"?><mzML xmlns="http://psi.hupo.org/ms/mzml">)" + head +
           "<run>" + run + "</run></mzML>";
}

QByteArray spectrum(const QByteArray &content, int peaks = 3)
{
    return "<spectrum id=\"s\" defaultArrayLength=\"" + QByteArray::number(peaks) + "\">" + content +
           "</spectrum>";
}

QByteArray term(const QByteArray &accession, const QByteArray &value = {})
{
    return "<cvParam cvRef=\"MS\" accession=\"" + accession + "\" value=\"" + value + "\"/>";
}

} // namespace

class TestMsReaders : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void levelsAreFound_data();
    void levelsAreFound();
    void packedFilesAreRead_data();
    void packedFilesAreRead();
    void mzmlTellsLevelsInManyWays_data();
    void mzmlTellsLevelsInManyWays();
    void emptySpectraAreNoData();
    void damagedFilesAreRefusedWithTheirPlace_data();
    void damagedFilesAreRefusedWithTheirPlace();
    void filesCutShortAnywhereAreRefused_data();
    void filesCutShortAnywhereAreRefused();
    void packedFilesCutShortAnywhereAreRefused();
    void whatCannotBeOpenedIsTold_data();
    void whatCannotBeOpenedIsTold();
    void vendorFormatsNeedTheirLibrary_data();
    void vendorFormatsNeedTheirLibrary();
    void ownFormatsAreNotRead();
    void acquiredSamplesAreReadInside();
    void questionsNeedAnOpenFile();
    void hostileXmlIsRefused_data();
    void hostileXmlIsRefused();
    void longPackedFilesAreReadToTheirEnd();
};

void TestMsReaders::levelsAreFound_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QList<int>>("levels");
    QTest::newRow("three_test_scans.mzML") << Format::Mzml << QList{1, 2};
    QTest::newRow("ten_ms2.mzML") << Format::Mzml << QList{2};
    QTest::newRow("only_ms2.mzML") << Format::Mzml << QList{2};
    QTest::newRow("MzMLFile_2_minimal.mzML") << Format::Mzml << QList<int>();
    QTest::newRow("20171013_HMP_C61_ISO_P1_GA1_UV_VIS_2.mzML") << Format::Mzml << QList<int>();
    QTest::newRow("MzMLFile_6_uncompressed.mzML.gz") << Format::Mzml << QList{1};
    QTest::newRow("pyteomics_test.mzXML") << Format::Mzxml << QList{1, 2};
    QTest::newRow("MzXMLFile_2_minimal.mzXML") << Format::Mzxml << QList{1};
    QTest::newRow("mixed_ms1_ms2.mgf") << Format::Mgf << QList{1, 2};
    QTest::newRow("ms1_no_pepmass.mgf") << Format::Mgf << QList{1};
    QTest::newRow("pyteomics_test.mgf") << Format::Mgf << QList{2};
}

void TestMsReaders::levelsAreFound()
{
    QFETCH(Format, format);
    QFETCH(QList<int>, levels);
    const QString path = readerDataPath(QTest::currentDataTag());
    QCOMPARE(readerOf(path)->vendorFormat(), format);
    QCOMPARE(readerOf(path)->path(), path);
    Error error;
    const std::optional<QList<int>> found = levelsOf(path, &error);
    ORV_VERIFY_OK(error);
    QCOMPARE(*found, levels);
}

void TestMsReaders::packedFilesAreRead_data()
{
    QTest::addColumn<QString>("packedName");
    QTest::addColumn<QList<int>>("levels");
    QTest::newRow("three_test_scans.mzML") << u"a.mzML.gz"_s << QList{1, 2};
    QTest::newRow("only_ms2.mzML") << u"packed under the plain name.mzML"_s << QList{2};
    QTest::newRow("pyteomics_test.mzXML") << u"A.MZXML.GZ"_s << QList{1, 2};
    QTest::newRow("mixed_ms1_ms2.mgf") << u"a.mgf.gz"_s << QList{1, 2};
}

void TestMsReaders::packedFilesAreRead()
{
    QFETCH(QString, packedName);
    QFETCH(QList<int>, levels);
    const SampleTree tree;
    const QByteArray bytes = TestData::read(readerDataPath(QTest::currentDataTag()));
    tree.add(packedName, packed(bytes));
    Error error;
    const std::optional<QList<int>> found = levelsOf(tree.at(packedName), &error);
    ORV_VERIFY_OK(error);
    QCOMPARE(*found, levels);
    // Several packed pieces in a row are one text.
    tree.add(packedName, packed(bytes.first(300)) + packed(bytes.sliced(300)));
    QCOMPARE(levelsOf(tree.at(packedName)), std::optional(levels));
}

void TestMsReaders::mzmlTellsLevelsInManyWays_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<int>>("levels");
    const QByteArray group = "<referenceableParamGroupList><referenceableParamGroup id=\"g\">" +
                             term("MS:1000511", "3") +
                             "</referenceableParamGroup></referenceableParamGroupList>";
    QTest::newRow("level") << smallMzml(spectrum(term("MS:1000511", "2"))) << QList{2};
    QTest::newRow("group") << smallMzml(spectrum("<referenceableParamGroupRef ref=\"g\"/>"), group)
                           << QList{3};
    QTest::newRow("unknown group") << smallMzml(spectrum("<referenceableParamGroupRef ref=\"h\"/>"), group)
                                   << QList{0};
    QTest::newRow("MS1 spectrum") << smallMzml(spectrum(term("MS:1000579"))) << QList{1};
    QTest::newRow("attribute") << smallMzml("<spectrum msLevel=\"2\" defaultArrayLength=\"1\"/>") << QList{2};
    QTest::newRow("light has no level") << smallMzml(spectrum(term("MS:1000804"))) << QList{0};
    QTest::newRow("terms of a scan don't count")
        << smallMzml(spectrum("<scanList><scan>" + term("MS:1000511", "1") + "</scan></scanList>"))
        << QList{0};
    QTest::newRow("newer terms") << smallMzml(spectrum(term("MS:9999999") + term("MS:1000511", "1")))
                                 << QList{1};
    QTest::newRow("other encoding") << smallMzml("<!-- \xE4 --><spectrum id=\"\xB5\">" +
                                                 term("MS:1000511", "1") + "</spectrum>")
                                    << QList{1};
    QStringEncoder utf16(QStringEncoder::Utf16, QStringEncoder::Flag::WriteBom);
    QTest::newRow("wide text") << QByteArray(utf16(QString::fromLatin1(
                                      "<mzML>" + spectrum(term("MS:1000511", "1")) + "</mzML>")))
                               << QList{1};
    QTest::newRow("text of the wrong kind") << smallMzml(spectrum(term("MS:1000511", "one"))) << QList{0};
}

void TestMsReaders::mzmlTellsLevelsInManyWays()
{
    QFETCH(QByteArray, text);
    QFETCH(QList<int>, levels);
    const SampleTree tree;
    tree.add(u"a.mzML"_s, text);
    Error error;
    const std::optional<QList<int>> found = levelsOf(tree.at(u"a.mzML"_s), &error);
    ORV_VERIFY_OK(error);
    QCOMPARE(*found, levels);
}

void TestMsReaders::emptySpectraAreNoData()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s,
             smallMzml(spectrum(term("MS:1000511", "1"), 0) + spectrum(term("MS:1000511", "2"), 1)));
    tree.add(u"a.mzXML"_s, "<mzXML><msRun><scan num=\"1\" msLevel=\"1\" peaksCount=\"0\"><scan num=\"2\" "
                           "msLevel=\"2\" peaksCount=\"5\"/></scan></msRun></mzXML>");
    tree.add(u"a.mgf"_s, "BEGIN IONS\nEND IONS\nBEGIN IONS\nPEPMASS=3\n1 2\nEND IONS\n");
    for (const QString &name : {u"a.mzML"_s, u"a.mzXML"_s, u"a.mgf"_s})
        QCOMPARE(levelsOf(tree.at(name)), std::optional(QList{2}));
}

void TestMsReaders::damagedFilesAreRefusedWithTheirPlace_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("place");
    QTest::newRow("mzML, other root")
        << u"a.mzML"_s << "<mzXML></mzXML><!-- </mzML> -->"_ba << u"Line 1, column 7"_s;
    QTest::newRow("mzXML, other root")
        << u"a.mzXML"_s << "<html></html><!-- </mzXML> -->"_ba << u"Line 1, column 6"_s;
    QTest::newRow("mzML, tags that don't fit") << u"a.mzML"_s << "<mzML>\n<run>\n</mzML>"_ba << u"Line 3"_s;
    QTest::newRow("mzML, zero bytes inside")
        << u"a.mzML"_s << "<mzML>\n\n" + QByteArray(9, '\0') + "</mzML>" << u"Line 3"_s;
    QTest::newRow("mgf") << u"a.mgf"_s << "BEGIN IONS\n1 2\n"_ba << u"Line 2"_s;
}

void TestMsReaders::damagedFilesAreRefusedWithTheirPlace()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, place);
    const SampleTree tree;
    tree.add(name, bytes);
    Error error;
    QVERIFY(!levelsOf(tree.at(name), &error));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    const QString details = error.details().join(u'\n');
    QVERIFY2(details.contains(place), qPrintable(details));
    QVERIFY(details.contains(tree.at(name)));
}

void TestMsReaders::filesCutShortAnywhereAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("three_test_scans.mzML") << u"a.mzML"_s;
    QTest::newRow("MzMLFile_2_minimal.mzML") << u"a.mzML"_s;
    QTest::newRow("pyteomics_test.mzXML") << u"a.mzXML"_s;
}

void TestMsReaders::filesCutShortAnywhereAreRefused()
{
    QFETCH(QString, name);
    const QByteArray whole = TestData::read(readerDataPath(QTest::currentDataTag()));
    const qsizetype end = qMax(whole.lastIndexOf("</mzML>"), whole.lastIndexOf("</msRun>"));
    QVERIFY(end > 0);
    const SampleTree tree;
    for (int part = 0; part < 20; ++part) {
        const qsizetype size = end * part / 20;
        tree.add(name, whole.first(size));
        const auto reader = readerOf(tree.at(name));
        const Error error = reader->open();
        QCOMPARE(error.code(), ErrorCode::InvalidContent);
        QVERIFY(error.details().first().contains(u"after %1 bytes"_s.arg(size)));
    }
    // Space that was reserved and never written.
    tree.add(name, whole.first(end / 2) + QByteArray(5000, '\0'));
    QCOMPARE(readerOf(tree.at(name))->open().code(), ErrorCode::InvalidContent);
}

void TestMsReaders::packedFilesCutShortAnywhereAreRefused()
{
    const SampleTree tree;
    for (const QString &name : {u"three_test_scans.mzML"_s, u"mixed_ms1_ms2.mgf"_s}) {
        const QByteArray whole = packed(TestData::read(TestData::path(u"core_ms/ms/"_s + name)));
        for (int part = 1; part < 20; ++part) {
            tree.add(name + u".gz"_s, whole.first(whole.size() * part / 20));
            Error error;
            QVERIFY(!levelsOf(tree.at(name + u".gz"_s), &error));
            QVERIFY(error.hasError());
            QVERIFY(error.details().size() >= 2);
        }
        QByteArray damagedEnd = whole;
        damagedEnd[whole.size() - 6] = char(~damagedEnd[whole.size() - 6]);
        tree.add(name + u".gz"_s, damagedEnd);
        QVERIFY(!levelsOf(tree.at(name + u".gz"_s)));
    }
}

void TestMsReaders::whatCannotBeOpenedIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ErrorCode>("code");
    QTest::newRow("missing mzML") << u"missing.mzML"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("missing mgf") << u"missing.mgf"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("missing raw") << u"missing.raw"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("missing text") << u"missing.txt"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("empty name") << QString() << ErrorCode::CannotOpenFile;
    QTest::newRow("folder") << u"folder.mzML"_s << ErrorCode::InvalidContent;
    QTest::newRow("empty mzML") << u"empty.mzML"_s << ErrorCode::InvalidContent;
    QTest::newRow("empty mzXML") << u"empty.mzXML"_s << ErrorCode::InvalidContent;
    QTest::newRow("empty mgf") << u"empty.mgf"_s << ErrorCode::InvalidContent;
    QTest::newRow("text") << u"notes.txt"_s << ErrorCode::InvalidContent;
    QTest::newRow("folder without data") << u"none.d"_s << ErrorCode::InvalidContent;
}

void TestMsReaders::whatCannotBeOpenedIsTold()
{
    QFETCH(QString, name);
    QFETCH(ErrorCode, code);
    const SampleTree tree;
    tree.addAll({u"folder.mzML/"_s, u"none.d/"_s, u"notes.txt"_s});
    for (const QString &empty : {u"empty.mzML"_s, u"empty.mzXML"_s, u"empty.mgf"_s})
        tree.add(empty, {});
    Error error;
    QVERIFY(!levelsOf(name.isEmpty() ? QString() : tree.at(name), &error));
    QCOMPARE(error.code(), code);
    QVERIFY(!error.details().isEmpty());
}

void TestMsReaders::vendorFormatsNeedTheirLibrary_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("description");
    QTest::newRow("vendor/thermo/small.RAW") << Format::Thermo << u"Thermo"_s;
    QTest::newRow("vendor/waters/MassLynxTest.raw") << Format::Waters << u"Waters"_s;
    QTest::newRow("vendor/bruker/tdf/diaPASEF.d") << Format::BrukerTims << u"Bruker Tims"_s;
    QTest::newRow("vendor/agilent/AgilentMassHunterTest.d") << Format::AgilentAcqData << u"Agilent"_s;
    QTest::newRow("vendor/sciex/SciexTest.wiff") << Format::SciexWiff << u"Sciex wiff"_s;
}

void TestMsReaders::vendorFormatsNeedTheirLibrary()
{
    QFETCH(Format, format);
    QFETCH(QString, description);
    const auto reader =
        readerOf(TestData::path(u"core_ms/"_s + QString::fromLatin1(QTest::currentDataTag())));
    QCOMPARE(reader->vendorFormat(), format);
    const Error error = reader->open();
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(
        error.errorMessage(),
        u"Reading the format \"%1\" needs a library of its vendor, which is not there."_s.arg(description));
    QVERIFY(reader->hasMsProfileData(1).hasError());
}

void TestMsReaders::ownFormatsAreNotRead()
{
    const SampleTree tree;
    tree.add(u"a.ulvar2"_s);
    const auto reader = readerOf(tree.at(u"a.ulvar2"_s));
    QCOMPARE(reader->vendorFormat(), Format::Ulvar2);
    QCOMPARE(reader->open().errorMessage(), u"Spectra of the format \"Ulvar v2\" aren't read."_s);
}

void TestMsReaders::acquiredSamplesAreReadInside()
{
    const SampleTree tree;
    const QByteArray bytes = TestData::read(readerDataPath("three_test_scans.mzML"));
    makeZip(tree.at(u"a.tolq"_s), {{u"metadata.json"_s, tolqMetadata("s.mzML")}, {u"s.mzML"_s, bytes}});
    tree.add(u"b.tolq/metadata.json"_s, tolqMetadata("s.mzML"));
    tree.add(u"b.tolq/s.mzML"_s, bytes);
    makeZip(tree.at(u"c.tolq"_s), {{u"metadata.json"_s, tolqMetadata("c.tolq")}, {u"c.tolq"_s, "x"}});
    for (const QString &name : {u"a.tolq"_s, u"b.tolq"_s}) {
        const auto reader = readerOf(tree.at(name));
        QCOMPARE(reader->vendorFormat(), Format::Tolq);
        ORV_VERIFY_OK(reader->open());
        QVERIFY(*reader->hasMsProfileData(1));
        QVERIFY(!*reader->hasMsProfileData(3));
        QCOMPARE(reader->chromatogramInfoList()->size(), 2);
    }
    QVERIFY(readerOf(tree.at(u"c.tolq"_s))->open().hasError());
    const auto reader = readerOf(tree.at(u"a.tolq"_s));
    for (int i = 0; i < 2; ++i)
        ORV_VERIFY_OK(reader->open());
}

void TestMsReaders::questionsNeedAnOpenFile()
{
    const auto reader = readerOf(readerDataPath("mixed_ms1_ms2.mgf"));
    QCOMPARE(reader->hasMsProfileData(1).error().code(), ErrorCode::CannotOpenFile);
    QCOMPARE(reader->chromatogramInfoList().error().code(), ErrorCode::CannotOpenFile);
}

void TestMsReaders::hostileXmlIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("deep") << smallMzml(QByteArray("<a>").repeated(1000) + QByteArray("</a>").repeated(1000));
    QByteArray entities = "<!DOCTYPE mzML [<!ENTITY a0 \"xxxxxxxxxx\">";
    for (int i = 1; i < 20; ++i) {
        const QByteArray last = "&a" + QByteArray::number(i - 1) + ';';
        entities += "<!ENTITY a" + QByteArray::number(i) + " \"" + last.repeated(10) + "\">";
    }
    QTest::newRow("entities that grow") << entities + "]><mzML><run>&a19;</run></mzML>";
    QTest::newRow("a file as entity")
        << "<!DOCTYPE mzML [<!ENTITY f SYSTEM \"file:///etc/passwd\">]><mzML><run>&f;&g;</run></mzML>"_ba;
}

void TestMsReaders::hostileXmlIsRefused()
{
    QFETCH(QByteArray, text);
    const SampleTree tree;
    tree.add(u"a.mzML"_s, text);
    Error error;
    QVERIFY(!levelsOf(tree.at(u"a.mzML"_s), &error));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
}

void TestMsReaders::longPackedFilesAreReadToTheirEnd()
{
    // Many megabytes of blanks pack to some kilobytes.
    const SampleTree tree;
    const QByteArray blanks = packed((QByteArray(65'535, ' ') + '\n').repeated(256));
    QFile file(tree.at(u"a.mgf.gz"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 4; ++i)
        file.write(blanks);
    file.write(packed("BEGIN IONS\n1 2\nEND IONS\n"));
    file.close();
    QCOMPARE(levelsOf(file.fileName()).value_or(QList<int>()), QList{1});
}

ORV_REGISTER_TEST(TestMsReaders)

#include "TestMsReaders.moc"
