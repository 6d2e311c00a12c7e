#include "OrvTest.h"
#include "SampleTree.h"
#include "ValidatorRun.h"

#include <orv/core/MultiDocumentReportConstants.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/FilesValidator.h>
#include <orv/propertyeditor/validators/MirelPathsValidator.h>
#include <orv/resources/FileTypeUtils.h>
#include <orv/resources/ResourceManager.h>

#include <atomic>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::Sample;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;

namespace {

/// Counts how often files are asked for, and looks at the disk.
class CountingHandler : public ResourceHandler
{
public:
    CountingHandler(const ResourceReferenceSPtr &reference, std::atomic<int> *count)
        : ResourceHandler(reference)
        , m_count(count)
    {}

    bool isAvailableLocally() const override { return QFile::exists(reference()->text()); }
    Result<bool> exists() override
    {
        ++*m_count;
        return isAvailableLocally();
    }
    Result<QString> grab() override { return reference()->text(); }

private:
    std::atomic<int> *m_count;
};

ValidatorRun filesRun(const QJsonArray &cells)
{
    return runOf<FilesValidator>(contentOf(cells));
}

} // namespace

class TestFilesValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void goodSamplesPass();
    void namesAreChecked_data();
    void namesAreChecked();
    void aSampleNeedsAFile();
    void anExternalSampleIsNotLookedAt();
    void aMissingFileEndsTheCheckOfItsSample();
    void everyMissingTraceIsTold();
    void theFileMustBeMsDataOrAProject_data();
    void theFileMustBeMsDataOrAProject();
    void aWrongFileEndsTheCheckOfItsTraces();
    void tracesHaveTypes_data();
    void tracesHaveTypes();
    void aMissingTraceOfAWrongTypeHasTwoTexts();
    void companionsMustExist();
    void traceOptionsAreCheckedForMolecules_data();
    void traceOptionsAreCheckedForMolecules();
    void allTablesAreChecked();
    void documentsOfReportsAreChecked();
    void documentsOfTwoTypesGiveOneText();
    void aReportHasNoSamples();
    void applicationsOfReportsAreThoseOfTheirFiles();
    void referencesOfSettingsAreLookedUpOnDemand();
    void aSettingThatIsNoReferenceFails();
    void eachFileIsAskedForOnce();
    void manySamplesKeepTheirOrder();
    void missingFilesAreLogged();
    void findingsTellSampleAndRemedy();
};

void TestFilesValidator::cleanup()
{
    ResourceManager::setHandlerFactory(ResourceReference::Scheme::LocalFile, {});
}

void TestFilesValidator::goodSamplesPass()
{
    const SampleTree tree;
    tree.addAll({u"a.raw"_s, u"b.mzML"_s, u"t.csv"_s, u"r.karvrslt"_s});
    const ValidatorRun run = filesRun(
        {samplesCell({{u"a"_s, tree.at(u"a.raw"_s), {tree.at(u"t.csv"_s)}, {tree.at(u"r.karvrslt"_s)}},
                      {u"b"_s, tree.at(u"b.mzML"_s), {}, {}},
                      {u"c"_s, u""_s, {tree.at(u"t.csv"_s)}, {}}}),
         step(u"Senthia"_s)});
    QCOMPARE(run.errors, QList<QString>());
    QVERIFY(run.isGood);
    QVERIFY(filesRun({step(u"Karvon"_s)}).isGood);
}

void TestFilesValidator::namesAreChecked_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("errors");
    const QString twice = u"Duplicated sample names found: %1"_s;
    QTest::newRow("good") << QStringList{u"a"_s, u"b"_s} << QStringList();
    QTest::newRow("case counts") << QStringList{u"a"_s, u"A"_s} << QStringList();
    QTest::newRow("empty") << QStringList{u"a"_s, u""_s}
                           << QStringList{u"The sample name at row #2 is empty"_s};
    QTest::newRow("quote") << QStringList{u"a\"b"_s}
                           << QStringList{u"The sample at row #1 contains illegal character: \""_s};
    QTest::newRow("repeats") << QStringList{u"a"_s, u"b"_s, u"a"_s, u"b"_s, u"a"_s}
                             << QStringList{twice.arg(u"a,b,a"_s)};
    QTest::newRow("empty ones repeat too")
        << QStringList{u""_s, u""_s}
        << QStringList{u"The sample name at row #1 is empty"_s, u"The sample name at row #2 is empty"_s,
                       twice.arg(QString())};
}

void TestFilesValidator::namesAreChecked()
{
    QFETCH(QStringList, names);
    QFETCH(QStringList, errors);
    const SampleTree tree;
    tree.add(u"a.raw"_s);
    QList<Sample> samples;
    for (const QString &name : names)
        samples.append({name, tree.at(u"a.raw"_s), {}, {}});
    const ValidatorRun run = filesRun({samplesCell(samples)});
    QCOMPARE(run.errors, errors);
    QCOMPARE(run.isGood, errors.isEmpty());
}

void TestFilesValidator::aSampleNeedsAFile()
{
    const ValidatorRun run = filesRun({samplesCell({{u"a"_s, u""_s, {}, {}}})});
    QCOMPARE(run.errors, QList<QString>{u"The sample path and traces path of the sample \"a\" are empty"_s});
}

void TestFilesValidator::anExternalSampleIsNotLookedAt()
{
    const QString path = u"unifi:/server.lab/{2f5d7d5e-2b8e-4b0b-9a55-0d4b3e9f1a11}/folder/item"_s;
    QVERIFY(filesRun({samplesCell({{u"a"_s, path, {u"/nowhere/t.xyz"_s}, {}}})}).isGood);
}

void TestFilesValidator::aMissingFileEndsTheCheckOfItsSample()
{
    const ValidatorRun run = filesRun({samplesCell(
        {{u"a"_s, u"/nowhere/a.txt"_s, {u"/nowhere/t.xyz"_s}, {}}, {u"b"_s, u"/nowhere/b.raw"_s, {}, {}}})});
    QCOMPARE(run.errors, (QList<QString>{u"The sample path of the sample \"a\" does not exist"_s,
                                         u"The sample path of the sample \"b\" does not exist"_s}));
}

void TestFilesValidator::everyMissingTraceIsTold()
{
    const SampleTree tree;
    tree.add(u"a.raw"_s);
    const ValidatorRun run = filesRun(
        {samplesCell({{u"a"_s, tree.at(u"a.raw"_s), {u"/nowhere/1.csv"_s, u"/nowhere/2.csv"_s}, {}}})});
    QCOMPARE(run.errors,
             (QList<QString>{u"The traces path of the sample \"/nowhere/1.csv\" does not exist"_s,
                             u"The traces path of the sample \"/nowhere/2.csv\" does not exist"_s}));
}

void TestFilesValidator::theFileMustBeMsDataOrAProject_data()
{
    QTest::addColumn<bool>("isGood");
    for (const char *name : {"a.raw", "a.D", "a.mgf", "a.dravik", "a.intact", "a.oligo"})
        QTest::newRow(name) << true;
    for (const char *name : {"a.txt", "a", "a.senthia", "a.karvon", "a.mgf.gz"})
        QTest::newRow(name) << false;
}

void TestFilesValidator::theFileMustBeMsDataOrAProject()
{
    QFETCH(bool, isGood);
    const SampleTree tree;
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    tree.add(name);
    const ValidatorRun run = filesRun({samplesCell({{u"a"_s, tree.at(name), {}, {}}})});
    QCOMPARE(
        run.errors,
        isGood ? QList<QString>()
               : QList<QString>{u"The sample path of the sample \"a\" should be MS file or project file"_s});
}

void TestFilesValidator::aWrongFileEndsTheCheckOfItsTraces()
{
    const SampleTree tree;
    tree.addAll({u"a.txt"_s, u"t.xyz"_s});
    const ValidatorRun run =
        filesRun({samplesCell({{u"a"_s, tree.at(u"a.txt"_s), {tree.at(u"t.xyz"_s)}, {}}})});
    QCOMPARE(run.errors,
             QList<QString>{u"The sample path of the sample \"a\" should be MS file or project file"_s});
}

void TestFilesValidator::tracesHaveTypes_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("error");
    const QString wrong =
        u"The traces path of the sample \"a\" should be MS file / text file / pI file / icIEF file"_s;
    const QString pI = u"The traces path for electropherogram file (.pI) is only supported for Dravik"_s;
    const QString icIef = u"The traces path for icIEF file (.itb) is only supported for Intact"_s;
    QTest::newRow("MS") << u"t.raw"_s << u"Senthia"_s << QString();
    QTest::newRow("table") << u"t.CSV"_s << u"Senthia"_s << QString();
    QTest::newRow("text") << u"t.txt"_s << u"Senthia"_s << QString();
    QTest::newRow("pI for Dravik") << u"t.pI"_s << u"Dravik"_s << QString();
    QTest::newRow("pI for Intact") << u"t.pI"_s << u"Intact"_s << pI;
    QTest::newRow("icIEF for Intact") << u"t.itb"_s << u"Intact"_s << QString();
    QTest::newRow("icIEF for Dravik") << u"t.itb"_s << u"Dravik"_s << icIef;
    QTest::newRow("other") << u"t.xyz"_s << u"Dravik"_s << wrong;
}

void TestFilesValidator::tracesHaveTypes()
{
    QFETCH(QString, file);
    QFETCH(QString, document);
    QFETCH(QString, error);
    const SampleTree tree;
    tree.addAll({u"a.raw"_s, file});
    const ValidatorRun run =
        filesRun({samplesCell({{u"a"_s, tree.at(u"a.raw"_s), {tree.at(file)}, {}}}), step(document)});
    QCOMPARE(run.errors, error.isEmpty() ? QList<QString>() : QList<QString>{error});
}

void TestFilesValidator::aMissingTraceOfAWrongTypeHasTwoTexts()
{
    const ValidatorRun run = filesRun({samplesCell({{u"a"_s, u""_s, {u"/nowhere/t.xyz"_s}, {}}})});
    QCOMPARE(
        run.errors,
        (QList<QString>{
            u"The traces path of the sample \"/nowhere/t.xyz\" does not exist"_s,
            u"The traces path of the sample \"a\" should be MS file / text file / pI file / icIEF file"_s}));
}

void TestFilesValidator::companionsMustExist()
{
    const SampleTree tree;
    tree.addAll({u"a.raw"_s, u"there.karvrslt"_s});
    const ValidatorRun run = filesRun({samplesCell(
        {{u"a"_s, tree.at(u"a.raw"_s), {}, {tree.at(u"there.karvrslt"_s), u"/nowhere/r.karvrslt"_s}},
         {u"b"_s, u"/nowhere/b.raw"_s, {}, {u"/nowhere/b.karvrslt"_s}}})});
    QCOMPARE(run.errors, (QList<QString>{u"The sample path of the sample \"b\" does not exist"_s,
                                         u"/nowhere/r.karvrslt does not exist"_s,
                                         u"/nowhere/b.karvrslt does not exist"_s}));
}

void TestFilesValidator::traceOptionsAreCheckedForMolecules_data()
{
    QTest::addColumn<bool>("isChecked");
    for (const char *type : {"Intact", "Dravik"})
        QTest::newRow(type) << true;
    for (const char *type : {"Senthia", "Karvon"})
        QTest::newRow(type) << false;
}

void TestFilesValidator::traceOptionsAreCheckedForMolecules()
{
    QFETCH(bool, isChecked);
    const SampleTree tree;
    tree.add(u"a.raw"_s);
    const QJsonArray traces{
        QJsonObject{{u"type"_s, 1}, {u"channelName"_s, u"TIC"_s}, {u"peaksOptions"_s, u"none"_s}},
        QJsonObject{{u"type"_s, 2}, {u"channelName"_s, u"BPI"_s}, {u"samplesIds"_s, QJsonArray()}}};
    const ValidatorRun run = filesRun({samplesCell({{u"a"_s, tree.at(u"a.raw"_s), {}, {}}}, traces),
                                       step(QString::fromLatin1(QTest::currentDataTag()))});
    QCOMPARE(run.isGood, !isChecked);
    QCOMPARE(run.errors.size(), isChecked ? 1 : 0);
    QCOMPARE(run.warnings.size(), isChecked ? 1 : 0);
}

void TestFilesValidator::allTablesAreChecked()
{
    const ValidatorRun run = filesRun({samplesCell({{u"a"_s, u"/nowhere/a.raw"_s, {}, {}}}),
                                       samplesCell({{u"b"_s, u"/nowhere/b.raw"_s, {}, {}}})});
    QCOMPARE(run.errors.size(), 2);
}

void TestFilesValidator::documentsOfReportsAreChecked()
{
    const SampleTree tree;
    tree.addAll({u"a.senthia"_s, u"b.raw"_s});
    const ValidatorRun run = filesRun({samplesCell({{u""_s, tree.at(u"a.senthia"_s), {}, {}},
                                                    {u"b"_s, tree.at(u"b.raw"_s), {}, {}},
                                                    {u"c"_s, u""_s, {}, {}},
                                                    {u"d"_s, u"/nowhere/d.senthia"_s, {}, {}}}),
                                       step(u"MultiDocReport"_s)});
    QCOMPARE(run.errors,
             (QList<QString>{
                 u"The file path with id \"2\" is not a correct document type. Allowed files are: "
                 "*.senthia *.dravik *.karvon *.intact *.oligo *.ostrale *.trenq"_s,
                 u"The document path with id \"3\" is empty"_s, u"/nowhere/d.senthia does not exist"_s}));
}

void TestFilesValidator::documentsOfTwoTypesGiveOneText()
{
    const SampleTree tree;
    tree.addAll({u"a.senthia"_s, u"b.dravik"_s, u"c.dravik"_s});
    const ValidatorRun run = filesRun({samplesCell({{u"a"_s, tree.at(u"a.senthia"_s), {}, {}},
                                                    {u"b"_s, tree.at(u"b.dravik"_s), {}, {}},
                                                    {u"c"_s, tree.at(u"c.dravik"_s), {}, {}}}),
                                       step(u"MultiDocReport"_s)});
    QCOMPARE(run.errors, QList<QString>{u"All documents should have the same type"_s});
}

void TestFilesValidator::aReportHasNoSamples()
{
    const SampleTree tree;
    tree.add(u"a.senthia"_s);
    const ValidatorRun run = filesRun(
        {samplesCell({{u"a"_s, tree.at(u"a.senthia"_s), {u"/nowhere/t.csv"_s}, {u"/nowhere/r.karvrslt"_s}},
                      {u"a"_s, tree.at(u"a.senthia"_s), {}, {}}}),
         step(u"MultiDocReport"_s)});
    QCOMPARE(run.errors, QList<QString>());
}

void TestFilesValidator::applicationsOfReportsAreThoseOfTheirFiles()
{
    QList<ApplicationType> ofFiles;
    for (FileType type : MirelFileTypes::MULTIDOCALLOWEDFILES)
        ofFiles.append(FileTypeUtils::appType(type));
    const auto &supported = MultiDocumentReportConstants::SUPPORTED_APPLICATIONS;
    QCOMPARE(ofFiles, QList<ApplicationType>(std::begin(supported), std::end(supported)));
}

void TestFilesValidator::referencesOfSettingsAreLookedUpOnDemand()
{
    const QJsonObject settings =
        ::settings(u"Senthia"_s, {{PropertyId(290), u"/nowhere/filter.cft"_s}, {PropertyId(291), u""_s}});
    const Content content = contentOf({settings});
    QList<QString> warnings;
    QList<QString> errors;
    QVERIFY(FilesValidator(false).validate(content, {}, &warnings, &errors));
    const LogCapture log;
    QVERIFY(!FilesValidator(true).validate(content, {}, &warnings, &errors));
    QCOMPARE(errors, QList<QString>{u"/nowhere/filter.cft does not exist"_s});
}

void TestFilesValidator::aSettingThatIsNoReferenceFails()
{
    const Content content = contentOf({settings(u"Senthia"_s, {})});
    auto *item = qobject_cast<KeyValueItem *>(content.findAllItems(BaseItemType::Senthia).constFirst());
    QVERIFY(item->insert(PropertiesNames::internalNameForType(PropertyId(290)), u"Report"_s,
                         u"ftp://server/filter.cft"_s, KProperty::String));
    QList<QString> warnings;
    QList<QString> errors;
    QVERIFY(!FilesValidator(true).validate(content, {}, &warnings, &errors));
    QCOMPARE(errors.size(), 1);
}

void TestFilesValidator::eachFileIsAskedForOnce()
{
    const SampleTree tree;
    tree.addAll({u"a.raw"_s, u"t.csv"_s});
    std::atomic<int> count = 0;
    ResourceManager::setHandlerFactory(
        ResourceReference::Scheme::LocalFile,
        [&count](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new CountingHandler(reference, &count));
        });
    for (const qsizetype samples : {3, 100}) {
        QList<Sample> rows;
        for (qsizetype i = 0; i < samples; ++i)
            rows.append(
                {QString::number(i), tree.at(u"a.raw"_s), {tree.at(u"t.csv"_s)}, {tree.at(u"t.csv"_s)}});
        const Content content = contentOf({samplesCell(rows)});
        count = 0;
        QList<QString> warnings;
        QList<QString> errors;
        QVERIFY(FilesValidator().validate(content, {}, &warnings, &errors));
        QCOMPARE(count.load(), 2);
    }
}

void TestFilesValidator::manySamplesKeepTheirOrder()
{
    QList<Sample> samples;
    QList<QString> expected;
    for (int i = 0; i < 500; ++i) {
        samples.append({QString::number(i), u"/nowhere/%1.raw"_s.arg(i), {}, {}});
        expected.append(u"The sample path of the sample \"%1\" does not exist"_s.arg(i));
    }
    QCOMPARE(filesRun({samplesCell(samples)}).errors, expected);
}

void TestFilesValidator::missingFilesAreLogged()
{
    const Content content = contentOf({samplesCell({{u"a"_s, u"/nowhere/a.raw"_s, {}, {}}})});
    const LogCapture log;
    QList<QString> warnings;
    QList<QString> errors;
    QVERIFY(!FilesValidator().validate(content, {}, &warnings, &errors));
    QCOMPARE(log.warnings(), QStringList{u"File \"/nowhere/a.raw\" doesn't exist"_s});
}

void TestFilesValidator::findingsTellSampleAndRemedy()
{
    const Content content = contentOf({samplesCell({{u"a"_s, u"/nowhere/a.raw"_s, {}, {u"/nowhere/r"_s}}})});
    const ValidatorRun run = runOf<FilesValidator>(content);
    QCOMPARE(run.findings.size(), 2);
    for (const Finding &finding : run.findings) {
        QCOMPARE(finding.rule, u"Files"_s);
        QCOMPARE(finding.place.sample, u"a"_s);
        QCOMPARE(finding.place.property, PropertyId::SamplesTable);
        QCOMPARE(finding.place.item, content.findAllItems(BaseItemType::Samples).constFirst());
        QVERIFY(!finding.hint.isEmpty());
    }
    QVERIFY(run.findings.constFirst().hint.contains(u"/nowhere/a.raw"_s));
}

ORV_REGISTER_TEST(TestFilesValidator)
#include "TestFilesValidator.moc"
