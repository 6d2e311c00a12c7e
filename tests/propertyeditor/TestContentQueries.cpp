#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/chemistry/ProteinGenerator.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ExtendedMetadataSink.h>
#include <orv/propertyeditor/content/IntactProteinsTableItem.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

QJsonObject settings(const QString &type, const QJsonArray &entries = {}, const QString &name = {})
{
    return {{u"type"_s, type}, {u"name"_s, name}, {u"properties"_s, entries}};
}

QJsonObject entry(int number, const QJsonValue &value)
{
    return {{u"name"_s, PropertiesNames::internalNameForType(PropertyId(number))}, {u"value"_s, value}};
}

QJsonObject samples()
{
    const QJsonObject value{
        {u"Samples"_s,
         QJsonArray{QJsonObject{{u"SamplesId"_s, 1},
                                {u"SampleName"_s, u"lot 1"_s},
                                {u"SamplePath"_s, u"a.raw"_s},
                                {u"Traces"_s, QJsonArray{u"a_uv.csv"_s}},
                                {u"FileMetadata"_s, QJsonObject{{u"a.raw"_s, QJsonObject{{u"size"_s, 1}}}}}},
                    QJsonObject{
                        {u"SamplesId"_s, 2}, {u"SampleName"_s, u"lot 2"_s}, {u"SamplePath"_s, u"b.raw"_s}}}}};
    return {{u"type"_s, u"Samples"_s},
            {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SamplesTable"_s}, {u"value"_s, value}}}}};
}

QJsonObject database(const QStringList &files)
{
    QJsonArray rows;
    for (const QString &file : files)
        rows.append(QJsonObject{{u"id"_s, int(rows.size()) + 1}, {u"fasta"_s, file}, {u"species"_s, u""_s}});
    const QJsonObject value{{u"sequences"_s, rows}};
    return {
        {u"type"_s, u"Database"_s},
        {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SequenceDatabases"_s}, {u"value"_s, value}}}}};
}

void load(Content *content, const QJsonArray &cells)
{
    QStringList columns;
    for (qsizetype i = 0; i < cells.size(); ++i)
        columns.append(QString::number(i));
    const Error error =
        content->assignFromJson(Documents::document({Documents::tab(u"Tab"_s, columns, cells)}), {});
    if (error.hasError())
        qFatal("%s", qPrintable(error.errorMessage()));
}

QStringList texts(const QList<ResourceReferenceSPtr> &references)
{
    QStringList list = ResourceReferenceUtils::toStringList(references);
    list.sort();
    return list;
}

ReferenceMapping moved(const QString &from, const QString &to)
{
    return {ResourceReferenceUtils::fromString(from), ResourceReferenceUtils::fromString(to)};
}

class RecordingSink : public ExtendedMetadataSink
{
public:
    explicit RecordingSink(MappingTarget target)
        : m_target(target)
    {}

    [[nodiscard]] MappingTarget target() const override { return m_target; }
    void reloadMetadata(const QList<MetadataMapping> &mappings,
                        const QList<TalvaneMetadataMappingConnection> &connections) override
    {
        ++calls;
        lastMappings = mappings;
        lastConnections = connections;
    }

    int calls = 0;
    QList<MetadataMapping> lastMappings;
    QList<TalvaneMetadataMappingConnection> lastConnections;

private:
    MappingTarget m_target;
};

TalvaneMetadataMappingConnection connection(const QString &attribute, MappingTarget target)
{
    TalvaneMetadataMappingConnection made;
    made.attribute = attribute;
    made.target = target;
    return made;
}

} // namespace

class TestContentQueries : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyDocumentHasEmptyAnswers();
    void documentsAreListedWithRepeats();
    void projectsCountDataIndependentSearches();
    void documentListsAreJudged_data();
    void documentListsAreJudged();
    void aDocumentOfOneKindIsKnown();
    void referencesComeFromEverywhereOnce();
    void databasesAreFoundByNumber();
    void samplesAreReadAndReplaced();
    void movedFilesAreFollowed();
    void anUnknownFileChangesNothing();
    void theSecondDatabaseTableStays();
    void settingsKeepTheirReferences();
    void metadataReachTheirSamples();
    void metadataComeInOneOrder();
    void emptyReferencesAreNone();
    void eachSinkGetsWhatIsMeantForIt();
    void applicationsAreToldByTheirReferences();
    void coresFollowTheMode();
    void expertSettingsAreRead();
    void theFirstUnevenTabIsFound();
};

void TestContentQueries::anEmptyDocumentHasEmptyAnswers()
{
    Content content;
    QVERIFY(content.findAllDocuments().isEmpty());
    QVERIFY(content.findProjects().isEmpty());
    QVERIFY(content.allReferences().isEmpty());
    QVERIFY(content.sampleNames().isEmpty());
    QVERIFY(content.samplesAndTraces() == SamplesAndTracesContent());
    QVERIFY(content.sequenceDatabaseItems(0).isEmpty());
    content.setSamplesAndTraces({});
    content.setSequenceDatabaseItems({}, 0);
    content.updateReferences({moved(u"a"_s, u"b"_s)});
    content.updateMetadataContent();
}

void TestContentQueries::documentsAreListedWithRepeats()
{
    Content content;
    load(&content, {settings(u"Karvon"_s), samples(), settings(u"CaldrinDIA"_s), settings(u"Karvon"_s)});
    QCOMPARE(content.findAllDocuments(), QList<BaseItemType>({BaseItemType::Karvon, BaseItemType::Karvon}));
}

void TestContentQueries::projectsCountDataIndependentSearches()
{
    Content content;
    load(&content, {settings(u"Karvon"_s, {}, u"k"_s), samples(), settings(u"CaldrinDIA"_s, {}, u"c"_s)});
    const QList<KeyValueItem *> projects = content.findProjects();
    QCOMPARE(projects.size(), 2);
    QCOMPARE(projects.at(0)->name(), u"k"_s);
    QCOMPARE(projects.at(1)->name(), u"c"_s);
}

void TestContentQueries::documentListsAreJudged_data()
{
    using Types = QList<BaseItemType>;
    QTest::addColumn<Types>("documents");
    QTest::addColumn<bool>("karvonOnly");
    QTest::addColumn<bool>("previewOnly");
    QTest::addColumn<bool>("multi");
    const auto karvon = BaseItemType::Karvon;
    const auto preview = BaseItemType::Preview;
    const auto trenqPreview = BaseItemType::TrenqPreview;
    QTest::newRow("none") << Types() << true << true << false;
    QTest::newRow("searches") << Types{karvon, karvon} << true << false << false;
    QTest::newRow("previews") << Types{preview, preview} << false << true << false;
    QTest::newRow("other previews") << Types{trenqPreview} << false << true << false;
    QTest::newRow("previews of both kinds") << Types{preview, trenqPreview} << false << false << true;
    QTest::newRow("search and report") << Types{karvon, BaseItemType::Dravik} << false << false << false;
    QTest::newRow("two reports") << Types{BaseItemType::Dravik, BaseItemType::Intact} << false << false
                                 << true;
}

void TestContentQueries::documentListsAreJudged()
{
    QFETCH(QList<BaseItemType>, documents);
    QFETCH(bool, karvonOnly);
    QFETCH(bool, previewOnly);
    QFETCH(bool, multi);
    QCOMPARE(PropertyEditorUtils::isKarvonOnly(documents), karvonOnly);
    QCOMPARE(PropertyEditorUtils::isPreviewOnly(documents), previewOnly);
    QCOMPARE(PropertyEditorUtils::isMultiDocument(documents), multi);
}

void TestContentQueries::aDocumentOfOneKindIsKnown()
{
    Content searches;
    load(&searches, {settings(u"Karvon"_s), samples()});
    QVERIFY(searches.isKarvonOnlyOrPreviewProject());
    Content mixed;
    load(&mixed, {settings(u"Karvon"_s), settings(u"Preview"_s)});
    QVERIFY(!mixed.isKarvonOnlyOrPreviewProject());
}

void TestContentQueries::referencesComeFromEverywhereOnce()
{
    const QJsonArray entries{entry(264, u"report.xml"_s), entry(60, u""_s), entry(227, u"human.fasta"_s),
                             entry(0, u"[Library]\nProjectPath=lib.db\n[Other]\nProjectPath=no.db"_s)};
    Content content;
    load(&content, {samples(), database({u"human.fasta"_s, u"mouse.fasta"_s}), database({u"human.fasta"_s}),
                    settings(u"Karvon"_s, entries)});
    QCOMPARE(texts(content.allReferences()),
             QStringList({u"a.raw"_s, u"a_uv.csv"_s, u"b.raw"_s, u"human.fasta"_s, u"lib.db"_s,
                          u"mouse.fasta"_s, u"report.xml"_s}));
}

void TestContentQueries::databasesAreFoundByNumber()
{
    Content content;
    load(&content, {database({u"a.fasta"_s}), samples()});
    QCOMPARE(content.sequenceDatabaseItems(0).size(), 1);
    QVERIFY(content.sequenceDatabaseItems(1).isEmpty());
    QVERIFY(content.sequenceDatabaseItems(-1).isEmpty());
    content.setSequenceDatabaseItems({}, 1);
    QCOMPARE(content.sequenceDatabaseItems(0).size(), 1);
    content.setSequenceDatabaseItems({}, 0);
    QVERIFY(content.sequenceDatabaseItems(0).isEmpty());
}

void TestContentQueries::samplesAreReadAndReplaced()
{
    Content content;
    load(&content, {samples()});
    QCOMPARE(content.sampleNames(), QStringList({u"lot 1"_s, u"lot 2"_s}));
    SamplesAndTracesContent changed = content.samplesAndTraces();
    changed.samples.samples.removeFirst();
    content.setSamplesAndTraces(changed);
    QCOMPARE(content.sampleNames(), QStringList(u"lot 2"_s));
}

void TestContentQueries::movedFilesAreFollowed()
{
    Content content;
    load(&content, {samples(), database({u"human.fasta"_s})});
    content.updateReferences({moved(u"./a.raw"_s, u"/new/a.raw"_s),
                              moved(u"human.fasta"_s, u"/new/human.fasta"_s),
                              moved(u"a_uv.csv"_s, u"/new/a_uv.csv"_s),
                              {}});
    QCOMPARE(texts(content.allReferences()),
             QStringList({u"/new/a.raw"_s, u"/new/a_uv.csv"_s, u"/new/human.fasta"_s, u"b.raw"_s}));

    Content withMetadata;
    load(&withMetadata, {samples()});
    withMetadata.updateReferences({moved(u"a.raw"_s, u"/new/a.raw"_s)});
    const auto sample = withMetadata.samplesAndTraces().samples.samples.constFirst();
    QVERIFY(sample.fileMetadata.contains(u"/new/a.raw"_s));
    QVERIFY(!sample.fileMetadata.contains(u"a.raw"_s));
}

void TestContentQueries::anUnknownFileChangesNothing()
{
    Content content;
    load(&content, {samples(), database({u"human.fasta"_s})});
    const QByteArray before = content.toJson(PropertyConversionFlag::KeepPaths);
    content.updateReferences({moved(u"unknown.raw"_s, u"/new/unknown.raw"_s)});
    QCOMPARE(content.toJson(PropertyConversionFlag::KeepPaths), before);
}

void TestContentQueries::theSecondDatabaseTableStays()
{
    Content content;
    load(&content, {database({u"a.fasta"_s}), database({u"a.fasta"_s})});
    content.updateReferences({moved(u"a.fasta"_s, u"b.fasta"_s), moved(u"a.fasta"_s, u"c.fasta"_s)});
    QCOMPARE(content.sequenceDatabaseItems(0).constFirst().fastaReference()->text(), u"b.fasta"_s);
    QCOMPARE(content.sequenceDatabaseItems(1).constFirst().fastaReference()->text(), u"a.fasta"_s);
}

void TestContentQueries::settingsKeepTheirReferences()
{
    Content content;
    load(&content, {settings(u"Karvon"_s, {entry(264, u"report.xml"_s)})});
    content.updateReferences({moved(u"report.xml"_s, u"other.xml"_s)});
    QCOMPARE(texts(content.allReferences()), QStringList(u"report.xml"_s));
}

void TestContentQueries::metadataReachTheirSamples()
{
    Content content;
    load(&content, {samples()});
    TalvaneExtendedMetaDataValue value;
    value.attribute = u"temperature"_s;
    value.value = 60;
    TalvaneExtendedMetaDataValue unconnected;
    unconnected.attribute = u"pressure"_s;
    content.setMetadataCache({{ResourceReferenceUtils::fromString(u"b.raw"_s), {value, unconnected}}});
    content.setMetadataMappingConnections({connection(u"temperature"_s, MappingTarget::Samples)});
    content.updateMetadataContent();
    const auto shown = content.samplesAndTraces().samples.samples;
    QCOMPARE(shown.at(1).customValues.value(u"temperature"_s).toInt(), 60);
    QVERIFY(!shown.at(0).customValues.value(u"temperature"_s).toBool());
    QVERIFY(!shown.at(1).customValues.contains(u"pressure"_s));

    content.setMetadataMappingConnections({});
    content.updateMetadataContent();
    QVERIFY(!content.samplesAndTraces().samples.samples.at(1).customValues.contains(u"temperature"_s));
}

void TestContentQueries::metadataComeInOneOrder()
{
    Content content;
    load(&content, {Documents::cell(u"IntactProteins"_s)});
    content.setMetadataMappingConnections({connection(u"chain"_s, MappingTarget::IntactProteins)});
    ExtendedMetadataInfo::MetadataCache cache;
    for (int i = 0; i < 40; ++i) {
        TalvaneExtendedMetaDataValue value;
        value.attribute = u"chain"_s;
        value.value = QString(i + 1, u'A');
        cache.insert(ResourceReferenceUtils::fromString(u"%1.raw"_s.arg(i, 2, 10, QLatin1Char('0'))),
                     {value});
    }
    content.setMetadataCache(cache);
    const LogCapture log;
    content.updateMetadataContent();
    const auto *proteins =
        qobject_cast<IntactProteinsTableItem *>(content.findAllItems(BaseItemType::IntactProteins).first());
    const Result<ProteinGenerator::InputOptions> options =
        ProteinGenerator::parseInputOptions(proteins->root());
    ORV_VERIFY_OK(options);
    QCOMPARE(options->chains.size(), 40);
    for (int i = 0; i < 40; ++i) {
        QCOMPARE(options->chains.at(i).number, i + 1);
        QCOMPARE(options->chains.at(i).sequence.size(), i + 1);
    }
}

void TestContentQueries::emptyReferencesAreNone()
{
    Content content;
    load(&content, {database({u"human.fasta"_s, u""_s}), settings(u"Karvon"_s, {entry(60, u""_s)})});
    QCOMPARE(texts(content.allReferences()), QStringList(u"human.fasta"_s));
}

void TestContentQueries::eachSinkGetsWhatIsMeantForIt()
{
    RecordingSink samplesSink(MappingTarget::Samples);
    RecordingSink proteinsSink(MappingTarget::IntactProteins);
    MetadataMapping first;
    first.sampleIds = {1};
    first.target = MappingTarget::Samples;
    MetadataMapping second = first;
    second.sampleIds = {2};
    Content::updateMetadataContent(
        {connection(u"a"_s, MappingTarget::Samples), connection(u"b"_s, MappingTarget::None)},
        {first, second}, {&samplesSink, &proteinsSink});
    QCOMPARE(samplesSink.lastMappings, (QList<MetadataMapping>{first, second}));
    QCOMPARE(samplesSink.lastConnections.size(), 1);
    QCOMPARE(proteinsSink.calls, 1);
    QVERIFY(proteinsSink.lastMappings.isEmpty());
    QVERIFY(proteinsSink.lastConnections.isEmpty());
}

void TestContentQueries::applicationsAreToldByTheirReferences()
{
    using Scheme = ResourceReference::Scheme;
    QCOMPARE(PropertyEditorUtils::supportedReferences(WorkflowAppType::Mirel),
             QList<Scheme>({Scheme(3), Scheme(5)}));
    QCOMPARE(PropertyEditorUtils::supportedReferences(WorkflowAppType::Talvane),
             QList<Scheme>({Scheme(4), Scheme(2), Scheme(1), Scheme(3)}));
    QVERIFY(PropertyEditorUtils::supportedReferences(WorkflowAppType(7)).isEmpty());
    const auto applications = [](const QStringList &files) {
        return PropertyEditorUtils::supportedApplications(ResourceReferenceUtils::fromStringList(files));
    };
    QCOMPARE(applications({u"/a.raw"_s}),
             QList<WorkflowAppType>({WorkflowAppType::Mirel, WorkflowAppType::Talvane}));
    QCOMPARE(applications({u"/a.raw"_s, u"talvane:/a.tolq"_s}),
             QList<WorkflowAppType>(1, WorkflowAppType::Talvane));
    QVERIFY(applications({u"unifi:/h/{1}/a/b"_s, u"talvane:/a.tolq"_s}).isEmpty());
}

void TestContentQueries::coresFollowTheMode()
{
    using Mode = PropertyEditorUtils::MulticoreMode;
    const int all = PropertyEditorUtils::coresNumber(Mode::Heavy);
    QVERIFY(all >= 1);
    QCOMPARE(PropertyEditorUtils::coresNumber(Mode::Light), 1);
    QCOMPARE(PropertyEditorUtils::coresNumber(Mode::Normal), std::max(1, all - 2));
    QCOMPARE(PropertyEditorUtils::coresNumber(Mode(9)), 1);
}

void TestContentQueries::expertSettingsAreRead()
{
    Content content;
    load(&content,
         {settings(u"Karvon"_s, {entry(0, u"[Library]\nProjectPath=lib.db"_s)}), settings(u"Karvon"_s)});
    const QList<KeyValueItem *> projects = content.findProjects();
    QCOMPARE(PropertyEditorUtils::getAdvancedConfigurationFromProject(projects.at(0))
                 ->value(u"Library/ProjectPath"_s),
             QVariant(u"lib.db"_s));
    QVERIFY(PropertyEditorUtils::getAdvancedConfigurationFromProject(projects.at(1))->isEmpty());
    QCOMPARE(PropertyEditorUtils::getValueFromProject(projects.at(1), PropertyId(0), 5), QVariant(5));
}

void TestContentQueries::theFirstUnevenTabIsFound()
{
    const QJsonObject even =
        Documents::tab(u"Even"_s, {u"A"_s, u"B"_s}, {settings(u"Karvon"_s), settings(u"Karvon"_s)});
    const QJsonObject uneven = Documents::tab(u"Uneven"_s, {u"A"_s, u"B"_s}, {settings(u"Karvon"_s)});
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(Documents::document({even}), {}));
    QVERIFY(!content.firstUnevenGroup());
    ORV_VERIFY_OK(content.assignFromJson(Documents::document({even, uneven}), {}));
    QCOMPARE(content.firstUnevenGroup()->name(), u"Uneven"_s);
}

ORV_REGISTER_TEST(TestContentQueries)
#include "TestContentQueries.moc"
