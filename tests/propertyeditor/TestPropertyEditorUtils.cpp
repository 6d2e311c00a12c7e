#include "CurrentVersion.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "ProjectFixtures.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QMetaEnum>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace ProjectFixtures;
using namespace Qt::StringLiterals;

namespace {

using Utils = PropertyEditorUtils;
using Types = QList<BaseItemType>;
using enum ORV_QEnumsBaseItemType::BaseItemType;

/// "tab: column, column; tab: ..."
QString shapeOf(const PropertyEditorContent &content)
{
    QStringList tabs;
    for (const auto &[name, tab] : content.tabsAndContent())
        tabs.append(name + u": "_s + tab.first.join(u", "_s));
    return tabs.join(u"; "_s);
}

QJsonArray cellsOf(const QStringList &types)
{
    QJsonArray cells;
    for (const QString &type : types)
        cells.append(Documents::cell(type));
    return cells;
}

QJsonObject tabOf(const QString &name, const QStringList &types)
{
    return Documents::tab(name, types, cellsOf(types));
}

PropertyEditorContent workflow(const QJsonArray &tabs)
{
    return PropertyEditorContent(
        Documents::document(tabs, {{u"version"_s, u"5.40.0"_s}, {u"name"_s, u"n"_s}}));
}

QString versionOf(const PropertyEditorContent &content)
{
    return WflwMetaData::versionFromMetaDataObject(content.metadata());
}

} // namespace

/// What is told of a workflow as a whole.
class TestPropertyEditorUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void applicationsKeepTheirCells_data();
    void applicationsKeepTheirCells();
    void columnsAndTabsLeftEmptyAreRemoved();
    void mixedColumnsLoseOnlyWhatIsNotKept();
    void applicationsOfEverythingGetACopy_data();
    void applicationsOfEverythingGetACopy();
    void theRestOfTheDocumentStays();
    void aDocumentThatCannotBeLoadedGivesNone();

    void theTypeIsReadFromTheMetadata_data();
    void theTypeIsReadFromTheMetadata();
    void metadataThatCannotBeReadAreAnError_data();
    void metadataThatCannotBeReadAreAnError();

    void resultsHaveTheirFileTypes_data();
    void resultsHaveTheirFileTypes();
    void filtersFollowTheDocuments_data();
    void filtersFollowTheDocuments();
    void listsWithoutAProjectHaveNoFilter_data();
    void listsWithoutAProjectHaveNoFilter();
    void suffixesOfResultsStandOnce_data();
    void suffixesOfResultsStandOnce();
    void documentsHaveTheirModes();

    void extensionsOfResultsAreExpected_data();
    void extensionsOfResultsAreExpected();
    void projectNamesLoseTheirExtension_data();
    void projectNamesLoseTheirExtension();

    void propertiesWithReferencesAreListedInOrder();
    void modesOfCoresAreKnownToTheMetaObject();
};

void TestPropertyEditorUtils::applicationsKeepTheirCells_data()
{
    QTest::addColumn<int>("app");
    QTest::addColumn<Types>("kept");

    QTest::newRow("1") << 1 << Types{Samples, Proteins, Senthia, Database, Isotope, Disulfide};
    QTest::newRow("3") << 3 << Types{Samples, Proteins, Karvon};
    QTest::newRow("4") << 4 << Types{Samples, Proteins, Dravik, DetachedGlycans, GlycanOptions};
    QTest::newRow("5") << 5 << Types{Samples, Proteins, Intact, IntactProteins, Masses, IntactOptions};
    QTest::newRow("6") << 6 << Types{Samples, Proteins, Oligo, OligoMolecules, Masses, IntactOptions};
    QTest::newRow("9") << 9 << Types{Samples, Proteins, Ostrale};
    QTest::newRow("12") << 12 << Types{Samples, Database, Preview, TrenqPreview};
    QTest::newRow("19") << 19 << Types{Samples, MultiDocReport};
    QTest::newRow("25") << 25 << Types{Samples, Trenq, Database, Isotope, Disulfide};
    for (const int app : {-1, 0, 2, 8, 10, 11, 13, 18, 26})
        QTest::addRow("%d", app) << app << Types();
}

void TestPropertyEditorUtils::applicationsKeepTheirCells()
{
    QFETCH(int, app);
    QFETCH(Types, kept);
    // A tab for each type, so that what is kept is what is left of the tabs.
    QJsonArray tabs;
    QStringList expected;
    for (const QString &type : BaseItem::typeNames()) {
        if (type == u"Unknown"_s)
            continue;
        QJsonObject cell = Documents::cell(type);
        if (type == u"Samples"_s)
            cell = samplesCell({});
        if (type == u"SamplesProteins"_s || type == u"Proteins"_s || type == u"OligoMasses"_s)
            cell = {
                {u"type"_s, type},
                {u"properties"_s, PropertyEditorJsonUtils::defaultJsonContents(BaseItem::typeFromString(type))
                                      .value(u"properties"_s)}};
        tabs.append(Documents::tab(type, {type}, {cell}));
        if (kept.contains(BaseItem::typeFromString(type)))
            expected.append(type + u": "_s + type);
    }
    const PropertyEditorContent adjusted =
        Utils::adjustContentToApplication(workflow(tabs), ApplicationType(app));
    QCOMPARE(shapeOf(adjusted), expected.join(u"; "_s));
    QCOMPARE(versionOf(adjusted), currentVersionText());
}

void TestPropertyEditorUtils::columnsAndTabsLeftEmptyAreRemoved()
{
    const PropertyEditorContent content =
        workflow({tabOf(u"Samples"_s, {u"Samples"_s, u"Masses"_s}),
                  tabOf(u"Searches"_s, {u"Karvon"_s, u"Dravik"_s}), tabOf(u"Analyses"_s, {u"Dravik"_s}),
                  Documents::tab(u"Empty"_s, {}, {}), Documents::tab(u"No cells"_s, {u"Karvon"_s}, {})});
    QCOMPARE(shapeOf(Utils::adjustContentToApplication(content, ApplicationType::Karvon)),
             u"Samples: Samples; Searches: Karvon"_s);
    QVERIFY(Utils::adjustContentToApplication(content, ApplicationType::None).tabsAndContent().isEmpty());
}

void TestPropertyEditorUtils::mixedColumnsLoseOnlyWhatIsNotKept()
{
    const QJsonArray cells = cellsOf({u"Karvon"_s, u"Dravik"_s, u"Karvon"_s});
    const PropertyEditorContent adjusted = Utils::adjustContentToApplication(
        workflow({Documents::tab(u"t"_s, {u"c"_s}, cells)}), ApplicationType::Karvon);
    QCOMPARE(adjusted.tabsAndContent().constFirst().second.second.size(), 2);
}

void TestPropertyEditorUtils::applicationsOfEverythingGetACopy_data()
{
    QTest::addColumn<int>("app");

    QTest::newRow("7") << 7;
    QTest::newRow("15") << 15;
}

void TestPropertyEditorUtils::applicationsOfEverythingGetACopy()
{
    QFETCH(int, app);
    // Not even what no tree could hold is touched.
    const PropertyEditorContent content =
        workflow({tabOf(u"a"_s, {u"Karvon"_s}),
                  Documents::tab(u"b"_s, {u"c"_s}, {QJsonObject{{u"type"_s, u"Nonsense"_s}}})});
    const PropertyEditorContent adjusted = Utils::adjustContentToApplication(content, ApplicationType(app));
    QCOMPARE(shapeOf(adjusted), shapeOf(content));
    QCOMPARE(adjusted.metadata(), content.metadata());
    QCOMPARE(versionOf(adjusted), u"5.40.0"_s);
}

void TestPropertyEditorUtils::theRestOfTheDocumentStays()
{
    const QJsonObject samples = samplesCell({{u"lot 1"_s, u"../a.raw"_s, {}, {}}});
    const PropertyEditorContent adjusted = Utils::adjustContentToApplication(
        workflow({Documents::tab(u"t"_s, {u"c"_s}, {samples})}), ApplicationType::Karvon);
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(adjusted.metadata()), u"n"_s);
    QVERIFY(adjusted.toJson().contains("../a.raw"));
}

void TestPropertyEditorUtils::aDocumentThatCannotBeLoadedGivesNone()
{
    const LogCapture log;
    const PropertyEditorContent adjusted = Utils::adjustContentToApplication(
        workflow({tabOf(u"a"_s, {u"Karvon"_s}),
                  Documents::tab(u"b"_s, {u"c"_s}, {QJsonObject{{u"type"_s, u"Nonsense"_s}}})}),
        ApplicationType::Karvon);
    QVERIFY(adjusted.tabsAndContent().isEmpty());
    QVERIFY(adjusted.metadata().isEmpty());
    QVERIFY(log.warnings().constLast().startsWith(u"Cannot adjust the workflow"_s));
}

void TestPropertyEditorUtils::theTypeIsReadFromTheMetadata_data()
{
    QTest::addColumn<QJsonObject>("metadata");
    QTest::addColumn<WorkflowType>("type");

    QTest::newRow("type") << QJsonObject{{u"workflowType"_s, u"DigestedOligo"_s}}
                          << WorkflowType::DigestedOligo;
    QTest::newRow("icon") << QJsonObject{{u"icon"_s, u"digested-oligo"_s}} << WorkflowType::DigestedOligo;
    QTest::newRow("type before icon")
        << QJsonObject{{u"workflowType"_s, u"PeptideMap"_s}, {u"icon"_s, u"digested-oligo"_s}}
        << WorkflowType::PeptideMap;
    QTest::newRow("unknown type before icon")
        << QJsonObject{{u"workflowType"_s, u"x"_s}, {u"icon"_s, u"digested-oligo"_s}}
        << WorkflowType::Unknown;
    QTest::newRow("type that is no text")
        << QJsonObject{{u"workflowType"_s, 28}, {u"icon"_s, u"digested-oligo"_s}} << WorkflowType::Unknown;
    QTest::newRow("unknown icon") << QJsonObject{{u"icon"_s, u"x"_s}} << WorkflowType::Unknown;
    QTest::newRow("neither") << QJsonObject{{u"name"_s, u"x"_s}} << WorkflowType::Unknown;
}

void TestPropertyEditorUtils::theTypeIsReadFromTheMetadata()
{
    QFETCH(QJsonObject, metadata);
    const auto type = Utils::workflowType(Documents::document({}, metadata));
    ORV_VERIFY_OK(type);
    QTEST(*type, "type");
}

void TestPropertyEditorUtils::metadataThatCannotBeReadAreAnError_data()
{
    QTest::addColumn<QJsonObject>("json");

    QTest::newRow("absent") << QJsonObject{{u"tabs"_s, QJsonArray()}};
    QTest::newRow("object") << QJsonObject{{u"metadata"_s, QJsonObject{{u"icon"_s, u"x"_s}}}};
    QTest::newRow("empty") << QJsonObject{{u"metadata"_s, QString()}};
    QTest::newRow("no JSON") << QJsonObject{{u"metadata"_s, u"{"_s}};
    QTest::newRow("array") << QJsonObject{{u"metadata"_s, u"[]"_s}};
}

void TestPropertyEditorUtils::metadataThatCannotBeReadAreAnError()
{
    QFETCH(QJsonObject, json);
    const auto type = Utils::workflowType(json);
    QVERIFY(type.hasError());
    QCOMPARE(type.error().code(), ErrorCode::InvalidContent);
}

void TestPropertyEditorUtils::resultsHaveTheirFileTypes_data()
{
    QTest::addColumn<BaseItemType>("document");
    QTest::addColumn<FileType>("type");

    const QList<QPair<BaseItemType, FileType>> types{
        {Senthia, MirelFileTypes::SENTHIA}, {Dravik, MirelFileTypes::DRAVIK},
        {Karvon, MirelFileTypes::KARVON},   {Intact, MirelFileTypes::INTACT},
        {Oligo, MirelFileTypes::OLIGO},     {Ostrale, MirelFileTypes::OSTRALE},
        {Trenq, MirelFileTypes::TRENQ},     {MultiDocReport, MirelFileTypes::MULTIDOCREPORT},
        {Preview, FileTypes::ZIP},          {TrenqPreview, FileTypes::ZIP},
        {CaldrinDIA, FileTypes::Invalid},   {Masses, FileTypes::Invalid}};
    for (const auto &[document, type] : types)
        QTest::newRow(qPrintable(BaseItem::typeToString(document))) << document << type;
}

void TestPropertyEditorUtils::resultsHaveTheirFileTypes()
{
    QFETCH(BaseItemType, document);
    QFETCH(FileType, type);
    const auto filter = Utils::fileNameFilterForExpectedProject({document, document});
    ORV_VERIFY_OK(filter);
    QCOMPARE(filter->types(), FileExtensionsNameFilter({type}).types());
    QCOMPARE(Utils::resultProjectExtensionsFromWorkflow({document}), FileTypes::suffixes(type));
}

void TestPropertyEditorUtils::filtersFollowTheDocuments_data()
{
    QTest::addColumn<Types>("documents");
    QTest::addColumn<QStringList>("masks");

    QTest::newRow("search and analysis") << Types{Karvon, Dravik} << QStringList{u"*.dravik"_s};
    QTest::newRow("preview and analysis")
        << Types{Preview, TrenqPreview, Intact} << QStringList{u"*.intact"_s};
    QTest::newRow("two analyses") << Types{Oligo, Karvon, Intact, Oligo}
                                  << QStringList{u"*.oligo"_s, u"*.intact"_s};
    QTest::newRow("searches") << Types{Karvon, Karvon} << QStringList{u"*.karvon"_s};
}

void TestPropertyEditorUtils::filtersFollowTheDocuments()
{
    QFETCH(Types, documents);
    const auto filter = Utils::fileNameFilterForExpectedProject(documents);
    ORV_VERIFY_OK(filter);
    QTEST(filter->fileMasks(), "masks");
}

void TestPropertyEditorUtils::listsWithoutAProjectHaveNoFilter_data()
{
    QTest::addColumn<Types>("documents");
    QTest::addColumn<QString>("message");

    const QString unsupported = u"Current workflow processing nodes configuration is not supported"_s;
    QTest::newRow("none") << Types() << u"Workflow has to contain at least one processing node"_s;
    QTest::newRow("search and preview") << Types{Karvon, Preview} << unsupported;
    QTest::newRow("previews of two kinds") << Types{Preview, TrenqPreview} << unsupported;
}

void TestPropertyEditorUtils::listsWithoutAProjectHaveNoFilter()
{
    QFETCH(Types, documents);
    const auto filter = Utils::fileNameFilterForExpectedProject(documents);
    QVERIFY(filter.hasError());
    QCOMPARE(filter.error().code(), ErrorCode::InvalidContent);
    QTEST(filter.error().errorMessage(), "message");
    QVERIFY(!filter.error().details().isEmpty());
}

void TestPropertyEditorUtils::suffixesOfResultsStandOnce_data()
{
    QTest::addColumn<Types>("documents");
    QTest::addColumn<QStringList>("suffixes");

    QTest::newRow("none") << Types() << QStringList();
    QTest::newRow("previews share one") << Types{Preview, TrenqPreview} << QStringList{u"zip"_s};
    QTest::newRow("searches count") << Types{Karvon, Dravik, Karvon} << QStringList{u"karvon"_s, u"dravik"_s};
    QTest::newRow("without a result") << Types{CaldrinDIA, Masses} << QStringList();
}

void TestPropertyEditorUtils::suffixesOfResultsStandOnce()
{
    QFETCH(Types, documents);
    QTEST(Utils::resultProjectExtensionsFromWorkflow(documents), "suffixes");
}

void TestPropertyEditorUtils::documentsHaveTheirModes()
{
    const auto modes =
        Utils::modesFromPropertyTypes({Senthia, Trenq, Ostrale, Intact, Oligo, Dravik, Karvon, MultiDocReport,
                                       Preview, TrenqPreview, CaldrinDIA, Senthia});
    QList<int> numbers;
    for (const SamplesInput::Mode mode : modes)
        numbers.append(int(mode));
    QCOMPARE(numbers, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 8, 0}));
}

void TestPropertyEditorUtils::extensionsOfResultsAreExpected_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<Types>("documents");
    QTest::addColumn<bool>("expected");

    QTest::newRow("expected") << u"dravik"_s << Types{Karvon, Dravik} << true;
    QTest::newRow("upper case") << u"DRAVIK"_s << Types{Dravik} << true;
    QTest::newRow("of another document") << u"intact"_s << Types{Dravik} << false;
    QTest::newRow("with its dot") << u".dravik"_s << Types{Dravik} << false;
    QTest::newRow("a part") << u"drav"_s << Types{Dravik} << false;
    QTest::newRow("empty") << QString() << Types{Dravik} << false;
    QTest::newRow("no documents") << u"dravik"_s << Types() << false;
}

void TestPropertyEditorUtils::extensionsOfResultsAreExpected()
{
    QFETCH(QString, extension);
    QFETCH(Types, documents);
    QTEST(PropertyEditorJsonUtils::endsWithExpectedExtension(extension, documents), "expected");
}

void TestPropertyEditorUtils::projectNamesLoseTheirExtension_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("adjusted");

    QTest::newRow("with its extension") << u"study.dravik"_s << u"study"_s;
    QTest::newRow("upper case") << u"study.Dravik"_s << u"study"_s;
    QTest::newRow("further dots") << u"study.2.b.dravik"_s << u"study.2.b"_s;
    QTest::newRow("only once") << u"study.dravik.dravik"_s << u"study.dravik"_s;
    QTest::newRow("without") << u"study"_s << u"study"_s;
    QTest::newRow("another extension") << u"study.intact"_s << u"study.intact"_s;
    QTest::newRow("not the last part") << u"study.dravik.old"_s << u"study.dravik.old"_s;
    QTest::newRow("nothing but the extension") << u"dravik"_s << u""_s;
    QTest::newRow("dot at the end") << u"study."_s << u"study."_s;
    QTest::newRow("empty") << u""_s << u""_s;
}

void TestPropertyEditorUtils::projectNamesLoseTheirExtension()
{
    QFETCH(QString, name);
    QTEST(PropertyEditorJsonUtils::adjustProjectName(name, {Dravik}), "adjusted");
}

void TestPropertyEditorUtils::propertiesWithReferencesAreListedInOrder()
{
    QList<int> numbers;
    for (const PropertyId id : Utils::propertiesWithReferences())
        numbers.append(int(id));
    QCOMPARE(numbers, (QList<int>{264, 113, 168, 169, 291, 290, 120, 60, 227}));
}

void TestPropertyEditorUtils::modesOfCoresAreKnownToTheMetaObject()
{
    const auto modes = QMetaEnum::fromType<Utils::MulticoreMode>();
    QCOMPARE(modes.keyCount(), 3);
    QCOMPARE(modes.keyToValue("Light"), 0);
    QCOMPARE(modes.keyToValue("Normal"), 1);
    QCOMPARE(modes.keyToValue("Heavy"), 2);
}

ORV_REGISTER_TEST(TestPropertyEditorUtils)
#include "TestPropertyEditorUtils.moc"
