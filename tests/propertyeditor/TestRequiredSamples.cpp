#include "LogCapture.h"
#include "OrvTest.h"
#include "ProjectFixtures.h"
#include "RawDatabase.h"

#include <orv/project/KarvonResultFile.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Ms2SearchMatcher.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace ProjectFixtures;
using namespace Qt::StringLiterals;

namespace {

using Utils = PropertyEditorUtils;

QStringList namesOf(const QList<SamplesInput::Entry> &samples)
{
    QStringList names;
    for (const SamplesInput::Entry &sample : samples)
        names.append(sample.name);
    return names;
}

ResourceReferenceSPtr ref(const QString &text)
{
    return ResourceReferenceUtils::fromString(text);
}

} // namespace

class TestRequiredSamples : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dir = std::make_unique<QTemporaryDir>(); }

    void thePatternChoosesSamples_data();
    void thePatternChoosesSamples();
    void onlySettingsUseSamples();
    void caldrinTakesNoTablesAndResults_data();
    void caldrinTakesNoTablesAndResults();
    void karvonSkipsWhatWasSearched();
    void otherStepsTakeWhatWasSearched();
    void usesOfNamesAreCounted();

    void aResultMatchesItsFiles_data();
    void aResultMatchesItsFiles();
    void aProjectMatchesTheFilesOfItsWorkflow();
    void aListComesBeforeTheWorkflow();
    void aResultThatCannotBeReadMatchesNothing_data();
    void aResultThatCannotBeReadMatchesNothing();
    void aResultIsReadOnceForAllSamples();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }
    /// The names that the second cell requires of the samples in the first.
    [[nodiscard]] static QStringList required(const QList<Sample> &samples, const QJsonObject &step);

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

QStringList TestRequiredSamples::required(const QList<Sample> &samples, const QJsonObject &step)
{
    Content content;
    load(&content, document({samplesCell(samples), step}));
    const BaseItem *item =
        content.findAllItems(BaseItem::typeFromString(step.value(u"type"_s).toString())).constFirst();
    return namesOf(Utils::getRequiredSamples(item, content.samplesAndTraces().samples.entries()));
}

void TestRequiredSamples::thePatternChoosesSamples_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("names");

    const QStringList all{u"lot 1"_s, u"lot 2"_s, u"Lot 3"_s, u"lot 1"_s};
    QTest::newRow("without the property") << QString() << all;
    QTest::newRow("all") << u"*"_s << all;
    QTest::newRow("none") << u""_s << QStringList();
    QTest::newRow("no match") << u"x*"_s << QStringList();
    QTest::newRow("name, which two samples have") << u"lot 1"_s << QStringList{u"lot 1"_s, u"lot 1"_s};
    QTest::newRow("case counts") << u"lot*"_s << QStringList{u"lot 1"_s, u"lot 2"_s, u"lot 1"_s};
    QTest::newRow("order of the samples") << u"Lot 3; lot 2"_s << QStringList{u"lot 2"_s, u"Lot 3"_s};
    QTest::newRow("matched twice") << u"lot 2; *2"_s << QStringList{u"lot 2"_s};
}

void TestRequiredSamples::thePatternChoosesSamples()
{
    QFETCH(QString, pattern);
    const QList<Sample> samples{{u"lot 1"_s, u"a.raw"_s, {}, {}},
                                {u"lot 2"_s, u"b.raw"_s, {}, {}},
                                {u"Lot 3"_s, u"c.raw"_s, {}, {}},
                                {u"lot 1"_s, u"d.raw"_s, {}, {}}};
    QTEST(required(samples, step(u"Dravik"_s, pattern)), "names");
}

void TestRequiredSamples::onlySettingsUseSamples()
{
    QCOMPARE(required({{u"a"_s, u"a.raw"_s, {}, {}}}, Documents::cell(u"Masses"_s)), QStringList());
    QVERIFY(Utils::getRequiredSamples(nullptr, {SamplesInput::Entry()}).isEmpty());
}

void TestRequiredSamples::caldrinTakesNoTablesAndResults_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("Caldrin") << u"CaldrinDIA"_s << QStringList{u"raw"_s, u"karvon"_s};
    QTest::newRow("another") << u"Trenq"_s
                             << QStringList{u"raw"_s,    u"csv"_s,        u"text"_s,  u"trace"_s,
                                            u"result"_s, u"own result"_s, u"karvon"_s};
}

void TestRequiredSamples::caldrinTakesNoTablesAndResults()
{
    QFETCH(QString, type);
    const QList<Sample> samples{{u"raw"_s, u"a.raw"_s, {u"a.pi"_s}, {}},
                                {u"csv"_s, u"a.CSV"_s, {}, {}},
                                {u"text"_s, u"a.txt"_s, {}, {}},
                                {u"trace"_s, u"a.raw"_s, {u"a.pi"_s, u"a.tsv"_s}, {}},
                                {u"result"_s, u"a.raw"_s, {}, {u"b.pi"_s, u"a.caldrslt"_s}},
                                {u"own result"_s, u"a.caldrslt"_s, {}, {}},
                                {u"karvon"_s, u"a.raw"_s, {}, {u"a.karvrslt"_s}}};
    QTEST(required(samples, step(type)), "names");
}

void TestRequiredSamples::karvonSkipsWhatWasSearched()
{
    ORV_VERIFY_OK(createKarvrslt(at(u"a.karvrslt"_s), {u"/data/a.raw"_s, u"/data/c.raw"_s}));
    makeProject(at(u"b.karvon"_s), document({samplesCell({{u"b"_s, u"/data/b.raw"_s, {}, {}}})}));
    const QString result = at(u"a.karvrslt"_s);
    const QList<Sample> samples{{u"searched"_s, u"/data/a.raw"_s, {}, {result}},
                                {u"in a project"_s, u"/data/b.raw"_s, {}, {result, at(u"b.karvon"_s)}},
                                {u"another file's result"_s, u"/data/b.raw"_s, {}, {result}},
                                {u"result among the traces"_s, u"/data/a.raw"_s, {result}, {}},
                                {u"no result"_s, u"/data/a.raw"_s, {}, {}},
                                {u"without a file"_s, {}, {}, {result}}};
    QCOMPARE(required(samples, step(u"Karvon"_s)),
             (QStringList{u"another file's result"_s, u"result among the traces"_s, u"no result"_s,
                          u"without a file"_s}));
}

void TestRequiredSamples::otherStepsTakeWhatWasSearched()
{
    ORV_VERIFY_OK(createKarvrslt(at(u"a.karvrslt"_s), {u"/data/a.raw"_s}));
    QCOMPARE(required({{u"a"_s, u"/data/a.raw"_s, {}, {at(u"a.karvrslt"_s)}}}, step(u"Dravik"_s)),
             QStringList{u"a"_s});
}

void TestRequiredSamples::usesOfNamesAreCounted()
{
    Content content;
    load(&content, document({samplesCell({{u"a"_s, u"a.raw"_s, {}, {}},
                                          {u"b"_s, u"b.raw"_s, {}, {}},
                                          {u"c"_s, u"c.csv"_s, {}, {}},
                                          {u"unused"_s, u"d.raw"_s, {}, {}}}),
                             step(u"Dravik"_s, u"a;b;c"_s), step(u"Intact"_s, u"b"_s),
                             step(u"CaldrinDIA"_s, u"b;c"_s)}));
    const QMap<QString, int> expected{{u"a"_s, 1}, {u"b"_s, 3}, {u"c"_s, 1}};
    QCOMPARE(Utils::createSampleNamesIndexes(content.findProjects(), content), expected);
    QVERIFY(Utils::createSampleNamesIndexes({}, content).isEmpty());
}

void TestRequiredSamples::aResultMatchesItsFiles_data()
{
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("matches");

    QTest::newRow("listed") << u"a.karvrslt"_s << u"/data/a.raw"_s << true;
    QTest::newRow("listed otherwise") << u"a.karvrslt"_s << u"/data/./x/../a.raw"_s << true;
    QTest::newRow("on a server") << u"a.karvrslt"_s << u"managed:/1/b"_s << true;
    QTest::newRow("not listed") << u"a.karvrslt"_s << u"/data/b.raw"_s << false;
    QTest::newRow("no file") << u"a.karvrslt"_s << QString() << false;
    QTest::newRow("another suffix") << u"a.dravik"_s << u"/data/a.raw"_s << false;
}

void TestRequiredSamples::aResultMatchesItsFiles()
{
    QFETCH(QString, result);
    QFETCH(QString, file);
    ORV_VERIFY_OK(createKarvrslt(at(result), {u"/data/a.raw"_s, u"managed:/1/b"_s}));
    QTEST(ms2SearchMatchesMsFile(ref(at(result)), ref(file)), "matches");
    QVERIFY(!ms2SearchMatchesMsFile({}, ref(file)));
}

void TestRequiredSamples::aProjectMatchesTheFilesOfItsWorkflow()
{
    makeProject(at(u"a.karvon"_s), document({samplesCell({{u"a"_s, u"/data/a.raw"_s, {}, {}}})}));
    QVERIFY(ms2SearchMatchesMsFile(ref(at(u"a.karvon"_s)), ref(u"/data/a.raw"_s)));
    QVERIFY(!ms2SearchMatchesMsFile(ref(at(u"a.karvon"_s)), ref(u"/data/b.raw"_s)));
}

void TestRequiredSamples::aListComesBeforeTheWorkflow()
{
    // The result itself lists another file than the workflow that made it.
    const QJsonObject workflow = document({samplesCell({{u"a"_s, u"/data/a.raw"_s, {}, {}}})});
    {
        RawDatabase writer(at(u"a.karvrslt"_s));
        writer.run(u"CREATE TABLE MsFiles (Position INTEGER, Reference TEXT)"_s);
        writer.run(u"INSERT INTO MsFiles VALUES (1, '/data/b.raw')"_s);
        writer.run(u"CREATE TABLE ProjectCreationOptions (Key TEXT, Value TEXT)"_s);
        writer.run(u"INSERT INTO ProjectCreationOptions VALUES (?, ?)"_s,
                   {QString(kMirelProjectCreationOptions), Documents::toBytes(workflow)});
    }
    QVERIFY(ms2SearchMatchesMsFile(ref(at(u"a.karvrslt"_s)), ref(u"/data/b.raw"_s)));
    QVERIFY(!ms2SearchMatchesMsFile(ref(at(u"a.karvrslt"_s)), ref(u"/data/a.raw"_s)));
}

void TestRequiredSamples::aResultThatCannotBeReadMatchesNothing_data()
{
    QTest::addColumn<QString>("result");

    QTest::newRow("missing") << u"missing.karvrslt"_s;
    QTest::newRow("no database") << u"text.karvrslt"_s;
    QTest::newRow("a server that nothing here reaches") << u"managed:/1/a.karvrslt"_s;
    QTest::newRow("neither list nor workflow") << u"empty.karvrslt"_s;
}

void TestRequiredSamples::aResultThatCannotBeReadMatchesNothing()
{
    QFile text(at(u"text.karvrslt"_s));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write(QByteArray(200, 'x')) == 200);
    text.close();
    ORV_VERIFY_OK(createKarvrslt(at(u"empty.karvrslt"_s), {}));
    QFETCH(QString, result);
    const ResourceReferenceSPtr reference = ref(result.contains(u':') ? result : at(result));
    const LogCapture log;
    QVERIFY(!ms2SearchMatchesMsFile(reference, ref(u"/data/a.raw"_s)));
    QVERIFY(!log.warnings().isEmpty());
}

void TestRequiredSamples::aResultIsReadOnceForAllSamples()
{
    const LogCapture log;
    Ms2SearchMatcher matcher;
    QVERIFY(!matcher.matches(ref(at(u"missing.karvrslt"_s)), ref(u"/a.raw"_s)));
    const qsizetype lines = log.warnings().size();
    QVERIFY(lines > 0);
    QVERIFY(!matcher.matches(ref(at(u"missing.karvrslt"_s)), ref(u"/b.raw"_s)));
    QCOMPARE(log.warnings().size(), lines);
}

ORV_REGISTER_TEST(TestRequiredSamples)
#include "TestRequiredSamples.moc"
