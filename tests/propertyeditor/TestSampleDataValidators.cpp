#include "OrvTest.h"
#include "RawDatabase.h"
#include "SampleTree.h"
#include "TestData.h"
#include "TolqFiles.h"
#include "ValidatorRun.h"

#include <orv/core_ms/Ulvar2Dao.h>
#include <orv/propertyeditor/validators/MGFValidator.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/validators/Ulvar2Validator.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using Format = msreader::VendorDataFormat;
using ProjectFixtures::Sample;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;

namespace {

const QString kMerged = u"Cannot perform quantitative analysis using merged Ulvar2 files"_s;
const QString kNoMs1 = u"Cannot create a project using an MGF sample with no MS1 data."_s;
const QString kSeveralVendors =
    u"Multi-vendor projects are not yet supported. Please ensure all samples belong to the same vendor."_s;

const QByteArray kMs1 = "BEGIN IONS\n100.5 10\n200.5 20\nEND IONS\n";
const QByteArray kMs2 = "BEGIN IONS\nPEPMASS=500.5\nCHARGE=2+\n100.5 10\n200.5 20\nEND IONS\n";

void makeUlvar2(const QString &path, const QString &flag)
{
    RawDatabase database(path);
    database.run(u"CREATE TABLE Info (Key TEXT NOT NULL, Value TEXT)"_s);
    database.run(u"INSERT INTO Info VALUES ('Instrument', 'true')"_s);
    if (!flag.isNull())
        database.run(u"INSERT INTO Info VALUES (?, ?)"_s,
                     {QString(ulvar2::kIsCreatedByOrvMergeFilesKey), flag});
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Counts the samples that it looks at, and finds all of them wanting.
class Picky : public SampleDataValidator
{
public:
    using SampleDataValidator::validate;
    using SampleDataValidator::validateSample;

    Format vendorFormat() const override { return Format::Mgf; }
    QSet<BaseItemType> documentsToCheck() const override { return {BaseItemType::Senthia}; }
    Error validateSample(const QString &path) const override
    {
        looks.append(path);
        return Error(ErrorCode::InvalidContent, u"Bad: "_s + QFileInfo(path).fileName());
    }

    static inline QStringList looks;
};

/// Takes the file away before it is read.
class Vanishing : public MGFValidator
{
public:
    Error validateSample(const QString &path) const override
    {
        QFile::remove(path);
        return MGFValidator::validateSample(path);
    }
};

/// Knows the formats by the names of samples, as an application with a catalogue of its own would.
class ByName : public SampleTypesValidator
{
public:
    QSet<Format> detectPossibleSampleVendorFormats(const SamplesInput::Entry &sample) const override
    {
        return sample.name.startsWith(u't') ? QSet{Format::Thermo} : QSet{Format::Waters};
    }
};

/// A server whose files are far away.
class Remote : public ResourceHandler
{
public:
    using ResourceHandler::ResourceHandler;

    bool isAvailableLocally() const override { return reference()->name().startsWith(u"refused"_s); }
    Result<bool> exists() override { return true; }
    Result<QString> grab() override { return Error(ErrorCode::CannotOpenFile, u"The server says no."_s); }
};

SamplesInput::Entry sampleOf(const QString &path)
{
    SamplesInput::Entry sample;
    sample.name = u"s"_s;
    sample.msFile = ResourceReferenceUtils::fromString(path);
    return sample;
}

} // namespace

class TestSampleDataValidators : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void formatsAndDocuments();
    void onlySomeDocumentsAreChecked_data();
    void onlySomeDocumentsAreChecked();
    void severalDocumentsLookAtASampleOnce();
    void everySampleIsToldOf();
    void samplesWithoutFileArePassedOver();
    void otherFormatsArePassedOver();
    void samplesFarAwayAreSkipped();
    void aServerThatRefusesIsTold();
    void aFileThatVanishesIsTold();
    void mergedFilesAreRefused_data();
    void mergedFilesAreRefused();
    void mergedFilesInAcquiredSamplesAreRefused();
    void harmfulArchivesAreRefused();
    void brokenDatabasesAreTold();
    void peaksWithoutMs1AreRefused_data();
    void peaksWithoutMs1AreRefused();
    void vendorsMustAgree_data();
    void vendorsMustAgree();
    void vendorsMatterForKarvonOnly();
    void vendorsOfAllTablesAreChecked();
    void formatsAreToldByScheme();
    void applicationsMayKnowMoreOfSamples();
};

void TestSampleDataValidators::cleanup()
{
    for (const auto scheme : {ResourceReference::Scheme::ServerFile, ResourceReference::Scheme::UNIFI})
        ResourceManager::setHandlerFactory(scheme, {});
}

void TestSampleDataValidators::formatsAndDocuments()
{
    const QSet<BaseItemType> documents{BaseItemType::Senthia, BaseItemType::Trenq};
    QCOMPARE(int(Ulvar2Validator().vendorFormat()), 2);
    QCOMPARE(Ulvar2Validator().documentsToCheck(), documents);
    QCOMPARE(int(MGFValidator().vendorFormat()), 19);
    QCOMPARE(MGFValidator().documentsToCheck(), documents);
}

void TestSampleDataValidators::onlySomeDocumentsAreChecked_data()
{
    QTest::addColumn<bool>("isGood");
    for (const char *type : {"Senthia", "Trenq"})
        QTest::newRow(type) << false;
    for (const char *type : {"Karvon", "Dravik", "Intact", "Preview", "TrenqPreview"})
        QTest::newRow(type) << true;
}

void TestSampleDataValidators::onlySomeDocumentsAreChecked()
{
    QFETCH(bool, isGood);
    const SampleTree tree;
    tree.add(u"a.mgf"_s, kMs2);
    const ValidatorRun run =
        runOf<MGFValidator>(contentOf({samplesCell({{u"a"_s, tree.at(u"a.mgf"_s), {}, {}}}),
                                       step(QString::fromLatin1(QTest::currentDataTag()))}));
    QCOMPARE(run.errors, isGood ? QList<QString>() : QList<QString>{kNoMs1});
    QCOMPARE(run.isGood, isGood);
}

void TestSampleDataValidators::severalDocumentsLookAtASampleOnce()
{
    const SampleTree tree;
    tree.add(u"a.mgf"_s);
    const Content content = contentOf(
        {samplesCell({{u"a"_s, tree.at(u"a.mgf"_s), {}, {}}}), step(u"Senthia"_s), step(u"Senthia"_s)});
    Picky::looks.clear();
    QCOMPARE(Picky().validate(content).errorMessages(), QStringList{u"Bad: a.mgf"_s});
    QCOMPARE(Picky::looks.size(), 1);
}

void TestSampleDataValidators::everySampleIsToldOf()
{
    const SampleTree tree;
    tree.addAll({u"a.mgf"_s, u"b.mgf"_s});
    const Content content =
        contentOf({samplesCell({{u"a"_s, tree.at(u"a.mgf"_s), {}, {}}}), step(u"Senthia"_s),
                   samplesCell({{u"b"_s, tree.at(u"b.mgf"_s), {}, {}}})});
    const ValidatorRun run = runOf<Picky>(content);
    QCOMPARE(run.errors, (QList<QString>{u"Bad: a.mgf"_s, u"Bad: b.mgf"_s}));
    QCOMPARE(run.findings.size(), 2);
    QCOMPARE(run.findings.at(1).place.sample, u"b"_s);
    QCOMPARE(run.findings.at(1).place.item, content.findAllItems(BaseItemType::Samples).at(1));
}

void TestSampleDataValidators::samplesWithoutFileArePassedOver()
{
    QVERIFY(!Picky().validateSample(SamplesInput::Entry()).hasError());
}

void TestSampleDataValidators::otherFormatsArePassedOver()
{
    const SampleTree tree;
    tree.addAll({u"a.mzML"_s, u"a.txt"_s});
    QVERIFY(!Picky().validateSample(sampleOf(tree.at(u"a.mzML"_s))).hasError());
    QVERIFY(!Picky().validateSample(sampleOf(tree.at(u"a.txt"_s))).hasError());
    tree.add(u"a.MGF"_s);
    QVERIFY(Picky().validateSample(sampleOf(tree.at(u"a.MGF"_s))).hasError());
}

void TestSampleDataValidators::samplesFarAwayAreSkipped()
{
    ResourceManager::setHandlerFactory(
        ResourceReference::Scheme::ServerFile,
        [](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new Remote(reference));
        });
    const LogCapture log;
    QVERIFY(!MGFValidator().validateSample(sampleOf(u"talvane:/lab/a.mgf"_s)).hasError());
    QCOMPARE(log.texts(QtDebugMsg),
             QStringList{u"Sample: \"s\" is not available locally, validation is skipped."_s});
}

void TestSampleDataValidators::aServerThatRefusesIsTold()
{
    const Error unknown = MGFValidator().validateSample(sampleOf(u"talvane:/lab/a.mgf"_s));
    QVERIFY(unknown.hasError());
    ResourceManager::setHandlerFactory(
        ResourceReference::Scheme::ServerFile,
        [](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new Remote(reference));
        });
    const Error refused = MGFValidator().validateSample(sampleOf(u"talvane:/lab/refused.mgf"_s));
    QCOMPARE(refused.errorMessage(), u"The server says no."_s);
}

void TestSampleDataValidators::aFileThatVanishesIsTold()
{
    const SampleTree tree;
    tree.add(u"a.mgf"_s, kMs1);
    const Content content =
        contentOf({samplesCell({{u"a"_s, tree.at(u"a.mgf"_s), {}, {}}}), step(u"Senthia"_s)});
    QList<QString> warnings;
    QList<QString> errors;
    QVERIFY(!Vanishing().validate(content, {}, &warnings, &errors));
    QCOMPARE(errors.size(), 1);
    QVERIFY(!errors.constFirst().isEmpty());
}

void TestSampleDataValidators::mergedFilesAreRefused_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("not told") << QString() << true;
    QTest::newRow("merged") << u"true"_s << false;
    QTest::newRow("in capitals") << u"TRUE"_s << false;
    QTest::newRow("not merged") << u"false"_s << true;
    QTest::newRow("a number") << u"1"_s << true;
    QTest::newRow("with a blank") << u"true "_s << true;
}

void TestSampleDataValidators::mergedFilesAreRefused()
{
    QFETCH(QString, flag);
    QFETCH(bool, isGood);
    const SampleTree tree;
    makeUlvar2(tree.at(u"a.ulvar2"_s), flag);
    const ValidatorRun run = runOf<Ulvar2Validator>(
        contentOf({samplesCell({{u"a"_s, tree.at(u"a.ulvar2"_s), {}, {}}}), step(u"Trenq"_s)}));
    QCOMPARE(run.errors, isGood ? QList<QString>() : QList<QString>{kMerged});
}

void TestSampleDataValidators::mergedFilesInAcquiredSamplesAreRefused()
{
    const SampleTree tree;
    makeUlvar2(tree.at(u"run.ulvar2"_s), u"True"_s);
    const QString tolq = tree.at(u"a.tolq"_s);
    makeZip(tolq, {{u"metadata.json"_s, tolqMetadata("run.ulvar2")},
                   {u"run.ulvar2"_s, bytesOf(tree.at(u"run.ulvar2"_s))}});
    QCOMPARE(Ulvar2Validator().validateSample(tolq).errorMessage(), kMerged);
    const ValidatorRun run =
        runOf<Ulvar2Validator>(contentOf({samplesCell({{u"a"_s, tolq, {}, {}}}), step(u"Senthia"_s)}));
    QCOMPARE(run.errors, QList<QString>{kMerged});
    QVERIFY(!run.findings.constFirst().hint.isEmpty());
}

void TestSampleDataValidators::harmfulArchivesAreRefused()
{
    const SampleTree tree;
    const QString bomb = tree.at(u"bomb.tolq"_s);
    makeZip(bomb, {{u"metadata.json"_s, tolqMetadata("run.ulvar2")},
                   {u"run.ulvar2"_s, QByteArray(64 * 1024 * 1024, '\0')}});
    const Error error = Ulvar2Validator().validateSample(bomb);
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    const QString trap = tree.at(u"trap.tolq"_s);
    makeZip(trap, {{u"metadata.json"_s, tolqMetadata("../run.ulvar2")}, {u"../run.ulvar2"_s, "x"}});
    QVERIFY(Ulvar2Validator().validateSample(trap).hasError());
}

void TestSampleDataValidators::brokenDatabasesAreTold()
{
    const SampleTree tree;
    tree.add(u"a.ulvar2"_s, "no database");
    const ValidatorRun run = runOf<Ulvar2Validator>(
        contentOf({samplesCell({{u"a"_s, tree.at(u"a.ulvar2"_s), {}, {}}}), step(u"Trenq"_s)}));
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors.size(), 1);
    QVERIFY(Ulvar2Validator().validateSample(tree.at(u"missing.ulvar2"_s)).hasError());
}

void TestSampleDataValidators::peaksWithoutMs1AreRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isGood");
    const auto real = [](const char *name) { return TestData::path(u"core_ms/ms/"_s + QLatin1String(name)); };
    QTest::newRow("both levels") << real("mixed_ms1_ms2.mgf") << true;
    QTest::newRow("level 1 alone") << real("ms1_no_pepmass.mgf") << true;
    QTest::newRow("level 2 alone") << real("pyteomics_test.mgf") << false;
}

void TestSampleDataValidators::peaksWithoutMs1AreRefused()
{
    QFETCH(QString, path);
    QFETCH(bool, isGood);
    const Error error = MGFValidator().validateSample(path);
    QCOMPARE(error.errorMessage(), isGood ? QString() : kNoMs1);
    const QJsonArray cells{samplesCell({{u"a"_s, path, {}, {}}}), step(u"Senthia"_s)};
    QCOMPARE(runOf<MGFValidator>(contentOf(cells)).isGood, isGood);
    const QJsonArray search{samplesCell({{u"a"_s, path, {}, {}}}), step(u"Karvon"_s)};
    QVERIFY(runOf<MGFValidator>(contentOf(search)).isGood);
}

void TestSampleDataValidators::vendorsMustAgree_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("one sample") << QStringList{u"/n/a.raw"_s} << true;
    QTest::newRow("one vendor") << QStringList{u"/n/a.mzML"_s, u"/n/b.mzML"_s} << true;
    QTest::newRow("two vendors") << QStringList{u"/n/a.mzML"_s, u"/n/b.mgf"_s} << false;
    QTest::newRow("unknown ones don't count")
        << QStringList{u"/n/a.txt"_s, u"/n/a.mzML"_s, u""_s, u"/n/b.mzML"_s} << true;
    QTest::newRow("three vendors, told once")
        << QStringList{u"/n/a.mzML"_s, u"/n/b.mgf"_s, u"/n/c.wiff"_s} << false;
    QTest::newRow("managed resources have none")
        << QStringList{u"/n/a.mzML"_s, u"managed:/12/b.mgf"_s} << true;
}

void TestSampleDataValidators::vendorsMustAgree()
{
    QFETCH(QStringList, files);
    QFETCH(bool, isGood);
    QList<Sample> samples;
    for (const QString &file : files)
        samples.append({file, file, {}, {}});
    const ValidatorRun run =
        runOf<SampleTypesValidator>(contentOf({samplesCell(samples), step(u"Karvon"_s), step(u"Karvon"_s)}));
    QCOMPARE(run.errors, isGood ? QList<QString>() : QList<QString>{kSeveralVendors});
    QCOMPARE(run.isGood, isGood);
    if (!isGood)
        QCOMPARE(run.findings.constFirst().place.sample, files.at(1));
}

void TestSampleDataValidators::vendorsMatterForKarvonOnly()
{
    const QJsonObject samples =
        samplesCell({{u"a"_s, u"/n/a.mzML"_s, {}, {}}, {u"b"_s, u"/n/b.mgf"_s, {}, {}}});
    QVERIFY(runOf<SampleTypesValidator>(contentOf({samples, step(u"Senthia"_s)})).isGood);
    QVERIFY(runOf<SampleTypesValidator>(contentOf({samples, step(u"Karvon"_s), step(u"Senthia"_s)})).isGood);
    QVERIFY(!runOf<SampleTypesValidator>(contentOf({samples})).isGood);
}

void TestSampleDataValidators::vendorsOfAllTablesAreChecked()
{
    const QJsonObject good =
        samplesCell({{u"a"_s, u"/n/a.mzML"_s, {}, {}}, {u"b"_s, u"/n/b.mzML"_s, {}, {}}});
    const QJsonObject bad = samplesCell({{u"a"_s, u"/n/a.mgf"_s, {}, {}}, {u"b"_s, u"/n/b.mzML"_s, {}, {}}});
    const QJsonObject other = samplesCell({{u"a"_s, u"/n/a.mgf"_s, {}, {}}, {u"b"_s, u"/n/b.mgf"_s, {}, {}}});
    QVERIFY(runOf<SampleTypesValidator>(contentOf({good, other, step(u"Karvon"_s)})).isGood);
    QVERIFY(!runOf<SampleTypesValidator>(contentOf({good, bad, step(u"Karvon"_s)})).isGood);
}

void TestSampleDataValidators::formatsAreToldByScheme()
{
    const SampleTree tree;
    tree.add(u"there.raw"_s);
    const SampleTypesValidator validator;
    const auto formats = [&validator](const QString &path) {
        return validator.detectPossibleSampleVendorFormats(sampleOf(path));
    };
    QCOMPARE(formats({}), QSet<Format>());
    QCOMPARE(formats(tree.at(u"there.raw"_s)), QSet{Format::Thermo});
    // Overlap isn't agreement.
    QCOMPARE(formats(u"/nowhere/a.raw"_s), QSet({Format::Thermo, Format::Waters}));
    QList<QString> warnings;
    QList<QString> errors;
    QVERIFY(!validator.validateSamples({sampleOf(tree.at(u"there.raw"_s)), sampleOf(u"/nowhere/a.raw"_s)},
                                       &warnings, &errors));
    QCOMPARE(errors, QList<QString>{kSeveralVendors});
    QCOMPARE(formats(u"talvane:/lab/a.raw"_s), QSet<Format>());
    QCOMPARE(formats(u"unifi:/server.lab/{2f5d7d5e-2b8e-4b0b-9a55-0d4b3e9f1a11}/folder/item.raw"_s),
             QSet({Format::Thermo, Format::Waters}));
}

void TestSampleDataValidators::applicationsMayKnowMoreOfSamples()
{
    const QJsonObject samples =
        samplesCell({{u"t1"_s, u"/n/a.mzML"_s, {}, {}}, {u"t2"_s, u"/n/b.mgf"_s, {}, {}}});
    QVERIFY(runOf<ByName>(contentOf({samples, step(u"Karvon"_s)})).isGood);
    const QJsonObject mixed =
        samplesCell({{u"t1"_s, u"/n/a.mzML"_s, {}, {}}, {u"w1"_s, u"/n/b.mzML"_s, {}, {}}});
    QVERIFY(!runOf<ByName>(contentOf({mixed, step(u"Karvon"_s)})).isGood);
}

ORV_REGISTER_TEST(TestSampleDataValidators)
#include "TestSampleDataValidators.moc"
