// Single steps: what they do beyond what the fixtures show.
#include "LogCapture.h"
#include "OrvTest.h"
#include "UpgradeDocuments.h"
#include "UpgradeRuns.h"

#include <orv/chemistry/ProteinGenerator.h>
#include <orv/propertyeditor/content/OligoProteinsTableItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace UpgradeDocuments;
using namespace UpgradeRuns;
using namespace Qt::StringLiterals;
using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;
using Id = PropertyId;
using Type = WorkflowType;
using Setting = UpgradeDocuments::Setting;

namespace {

const QString kDigestGroup = u"In-silico options (Theoretical Digest)"_s;
const QString kCsvGroup = u"In-silico options (CSV import)"_s;

QString referenceIn(const KeyValueItem *item, Id id)
{
    return ResourceReferenceUtils::toString(ResourceReferenceUtils::fromVariant(item->value(id)));
}

/// The entry that a step has written, before it is read again.
QJsonObject entryOf(const PropertyEditorContent &document, const QString &type, Id id)
{
    const QJsonObject json = QJsonDocument::fromJson(document.toJson()).object();
    for (const auto tab : json.value(u"tabs").toArray()) {
        for (const auto cell : tab.toObject().value(u"cells").toArray()) {
            if (cell.toObject().value(u"type") != type)
                continue;
            for (const auto entry : cell.toObject().value(u"properties").toArray()) {
                if (entry.toObject().value(u"name") == PropertiesNames::internalNameForType(id))
                    return entry.toObject();
            }
        }
    }
    return {};
}

} // namespace

class TestUpgradeSteps : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheFirstIntactCellGetsTheNewSearch();
    void theIconTellsTheType();
    void expertTextsWithoutSettingsStay();
    void onlyTheFirstMapGetsXicOptions();
    void unreadableExpertSettingsAreLogged();
    void icIefIsRenamedEverywhere();
    void icIefNeedsNoSamples();
    void otherNamesStay();
    void autoScoreGetsALowPriority();
    void filesThatAreNamedStay();
    void theFifthPresetIsTheModel();
    void aFileThatIsNamedOutlivesTheDigest();
    void onlyTheLastSettingOfTheDigestIsReplaced();
    void oldFormulasAreConverted_data();
    void oldFormulasAreConverted();
    void modesAreSetWhereTextsAreUntouched_data();
    void modesAreSetWhereTextsAreUntouched();
    void oneNoteIsEnough();
    void noNoteWhereAllIsFast();
    void theSelectionStandsBehindTheCount();
    void alignmentIsSplitFromTheText();
    void alignmentHasDefaults();
    void profilingMovesItsFile();
    void nothingIsWrittenWithoutDataIndependentCells_data();
    void nothingIsWrittenWithoutDataIndependentCells();
    void outputCellsAreCompleted();
    void switchesBecomeModes_data();
    void switchesBecomeModes();
    void glycansStandBehindModifications();
};

void TestUpgradeSteps::onlyTheFirstIntactCellGetsTheNewSearch()
{
    const QJsonObject intact = cell(u"Intact"_s, {{Id::AutoFindMasses, 1}});
    PropertyEditorContent content = document(Type::IntactMass, {intact, intact});
    ORV_VERIFY_OK(runStep(u"5.9.0"_s, &content));
    const Content tree = treeOf(content);
    QCOMPARE(item(tree, BaseItemType::Intact, 0)->value(Id::AutoFindMasses).toInt(), 2);
    QCOMPARE(item(tree, BaseItemType::Intact, 1)->value(Id::AutoFindMasses).toInt(), 1);
}

void TestUpgradeSteps::theIconTellsTheType()
{
    PropertyEditorContent content(Documents::document(
        {}, {{u"icon"_s, workflowTypeIconName(Type::SubunitMass)}, {u"workflowType"_s, u"PeptideMap"_s}}));
    ORV_VERIFY_OK(runStep(u"5.12.0"_s, &content));
    QCOMPARE(treeOf(content).workflowType(), Type::SubunitMass);
}

void TestUpgradeSteps::expertTextsWithoutSettingsStay()
{
    const PropertyEditorContent before = document(
        Type::PeptideMap, {cell(u"Senthia"_s, {{Id::AdvancedConfiguration, u"; only a remark\n"_s}}),
                           cell(u"Senthia"_s, {{Id::AdvancedConfiguration, u"[XIC]\nMode=Fast\n"_s}})});
    PropertyEditorContent after(before);
    ORV_VERIFY_OK(runStep(u"5.12.2"_s, &after));
    QVERIFY(isSame(after, before));
}

void TestUpgradeSteps::onlyTheFirstMapGetsXicOptions()
{
    const QJsonObject map =
        cell(u"Senthia"_s, {{Id::AdvancedConfiguration, u"[XIC]\nMode=fast\nMzBins=32\n[A]\nb=1"_s}});
    PropertyEditorContent content = document(Type::PeptideMap, {map, map});
    ORV_VERIFY_OK(runStep(u"5.12.2"_s, &content));
    QCOMPARE(entryOf(content, u"Senthia"_s, Id::XicMode).value(u"value").toString(), u"Fast"_s);
    QCOMPARE(entryOf(content, u"Senthia"_s, Id::XicMode).value(u"group").toString(), u"XIC"_s);
    QCOMPARE(entryOf(content, u"Senthia"_s, Id::FastXicMzBins).value(u"value").toInt(), 32);
    const Content tree = treeOf(content);
    QCOMPARE(item(tree, BaseItemType::Senthia, 0)->value(Id::AdvancedConfiguration).toString(),
             u"[A]\nb=1"_s);
    QVERIFY(!item(tree, BaseItemType::Senthia, 1)->contains(Id::XicMode));
}

void TestUpgradeSteps::unreadableExpertSettingsAreLogged()
{
    PropertyEditorContent content = document(
        Type::PeptideMap, {cell(u"Senthia"_s, {{Id::AdvancedConfiguration, u"[XIC]\nMzBins=many\n"_s}})});
    const LogCapture log;
    ORV_VERIFY_OK(runStep(u"5.12.2"_s, &content));
    QVERIFY(log.warnings().join(u' ').contains(u"many"_s));
    QCOMPARE(entryOf(content, u"Senthia"_s, Id::FastXicMzBins).value(u"value").toInt(), 64);
}

void TestUpgradeSteps::icIefIsRenamedEverywhere()
{
    const QJsonArray traces{QJsonObject{{u"type"_s, 8}, {u"peaksOptions"_s, u"IntaBio_pI_slices"_s}}};
    const QString oldReport = u"../../Intact/report_config/Intact_IntaBioReport.rptc"_s;
    const QString newReport = u"../../Intact/report_config/Intact_icIEF_Report.rptc"_s;
    PropertyEditorContent content =
        document(Type::IcIefMs, {samplesCell({u"x"_s, u"IntaBio_pI_slices"_s}, traces),
                                 cell(u"Intact"_s, {{Id::ReportConfiguration, u"my.rptc"_s}}),
                                 cell(u"Intact"_s, {{Id::ReportConfiguration, oldReport}}),
                                 cell(u"Oligo"_s, {{Id::ReportConfiguration, oldReport}})});
    ORV_VERIFY_OK(runStep(u"5.19.0"_s, &content));
    const Content tree = treeOf(content);
    const TraceImportAndProcessingOptions options = tree.samplesAndTraces().options;
    QCOMPARE(options.peaksOptions.at(0).name(), u"x"_s);
    QCOMPARE(options.peaksOptions.at(1).name(), u"icIEF_pI_slices"_s);
    QCOMPARE(options.traces.list().constFirst().peaksOptionsName(), u"icIEF_pI_slices"_s);
    QCOMPARE(referenceIn(item(tree, BaseItemType::Intact, 0), Id::ReportConfiguration), u"my.rptc"_s);
    QCOMPARE(referenceIn(item(tree, BaseItemType::Intact, 1), Id::ReportConfiguration), newReport);
    QCOMPARE(referenceIn(item(tree, BaseItemType::Oligo), Id::ReportConfiguration), oldReport);
}

void TestUpgradeSteps::icIefNeedsNoSamples()
{
    PropertyEditorContent content(Documents::document(
        {}, {{u"workflowType"_s, workflowTypeToString(Type::IcIefMs)}, {u"name"_s, u"IntaBio icIEF-MS"_s}}));
    ORV_VERIFY_OK(runStep(u"5.19.0"_s, &content));
    QCOMPARE(treeOf(content).name(), u"icIEF-MS"_s);
}

void TestUpgradeSteps::otherNamesStay()
{
    PropertyEditorContent content(
        Documents::document({}, {{u"workflowType"_s, workflowTypeToString(Type::IcIefMs)},
                                 {u"name"_s, u"My IntaBio icIEF-MS"_s}}));
    ORV_VERIFY_OK(runStep(u"5.19.0"_s, &content));
    QCOMPARE(treeOf(content).name(), u"My IntaBio icIEF-MS"_s);
}

void TestUpgradeSteps::autoScoreGetsALowPriority()
{
    PropertyEditorContent content = oligoSearch(cell(u"Karvon"_s, kProteinSearch));
    ORV_VERIFY_OK(runStep(u"5.23.0"_s, &content));
    QCOMPARE(entryOf(content, u"Karvon"_s, Id::KarvonRalmixAutoScore).value(u"priority").toInt(), 3);
    QCOMPARE(entryOf(content, u"Karvon"_s, Id::KarvonMoleculeType).value(u"group").toString(),
             u"Instrument Parameters"_s);
    QCOMPARE(entryOf(content, u"Karvon"_s, Id::KarvonModText).value(u"value").toObject(),
             (QJsonObject{{u"modifications"_s, u"M | fixed\n"_s}}));
}

void TestUpgradeSteps::filesThatAreNamedStay()
{
    PropertyEditorContent content =
        document(Type::MultiAttributeMethod,
                 {cell(u"Senthia"_s, {{Id::UiFilter, u"mine.cft"_s}}),
                  cell(u"Senthia"_s, {{Id::UiFilter, u""_s}}), cell(u"Senthia"_s, {{Id::UiLayout, u""_s}})});
    ORV_VERIFY_OK(runStep(u"5.26.0"_s, &content));
    const Content tree = treeOf(content);
    QCOMPARE(referenceIn(item(tree, BaseItemType::Senthia, 0), Id::UiFilter), u"mine.cft"_s);
    QCOMPARE(referenceIn(item(tree, BaseItemType::Senthia, 1), Id::UiFilter),
             u"../filters/Remove XIC AUC is 0.cft"_s);
    QVERIFY(!item(tree, BaseItemType::Senthia, 2)->contains(Id::UiFilter));
}

void TestUpgradeSteps::theFifthPresetIsTheModel()
{
    PropertyEditorContent content =
        document(Type::SubunitMass, {samplesCell({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s})});
    ORV_VERIFY_OK(runStep(u"5.27.0"_s, &content));
    const QList<ElutionPeaksOptions> presets = treeOf(content).samplesAndTraces().options.peaksOptions;
    QCOMPARE(presets.size(), 7);
    ElutionPeaksOptions expected = presets.at(4);
    ElutionPeaksOptions::CreationOptions options = expected.creationOptions();
    QCOMPARE(options.autoCompute, ElutionPeaksOptions::AutoCompute::Off);
    options.autoCompute = ElutionPeaksOptions::AutoCompute::ByPeakWidth;
    expected.setCreationOptions(options);
    expected.setName(u"AutoComputeByPeakWidth-preset"_s);
    QCOMPARE(presets.at(6), expected);
    for (const ElutionPeaksOptions &preset : presets)
        QCOMPARE(preset.creationOptions().peakWidthFactor->toString(), u"1.00"_s);
}

void TestUpgradeSteps::aFileThatIsNamedOutlivesTheDigest()
{
    PropertyEditorContent content =
        document(Type::TargetedPeptideMap, {cell(u"Senthia"_s, {{Id::EnableInSilico, u"true"_s, kDigestGroup},
                                                                {Id::PeptideMissedCleavages, 1, kDigestGroup},
                                                                {Id::InSilicoPeptidesFile, u"p.csv"_s}})});
    ORV_VERIFY_OK(runStep(u"5.28.0"_s, &content));
    const Content tree = treeOf(content);
    QCOMPARE(item(tree, BaseItemType::Senthia)->value(Id::PeptideMissedCleavages), QVariant());
    QCOMPARE(referenceIn(item(tree, BaseItemType::Senthia), Id::InSilicoPeptidesFile), u"p.csv"_s);
}

void TestUpgradeSteps::onlyTheLastSettingOfTheDigestIsReplaced()
{
    PropertyEditorContent content =
        document(Type::TargetedPeptideMap, {cell(u"Senthia"_s, {{Id::StudyName, u"s"_s},
                                                                {Id::EnableInSilico, u"true"_s, kDigestGroup},
                                                                {Id::PeptideMissedCleavages, 1, kDigestGroup},
                                                                {Id::ChargeMax, 4}})});
    ORV_VERIFY_OK(runStep(u"5.28.0"_s, &content));
    const Content tree = treeOf(content);
    const KeyValueItem *map = item(tree, BaseItemType::Senthia);
    const QStringList keys = map->keys().filter(QRegularExpression(u"^[^:]"_s));
    QCOMPARE(keys, (QStringList{u"StudyName"_s, u"InSilicoPeptidesFile"_s, u"ChargeMax"_s}));
    QCOMPARE(map->groupCaption(Id::InSilicoPeptidesFile), kCsvGroup);
}

void TestUpgradeSteps::oldFormulasAreConverted_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("formula");
    QTest::addColumn<QString>("expected");
    QTest::newRow("base") << u"Base"_s << u"C5H5N5"_s << u"C5H4N5"_s;
    QTest::newRow("sugar") << u"sugar"_s << u"C5H10O5"_s << u"C5H7O4"_s;
    QTest::newRow("end") << u"FivePrimeEnd"_s << u"H2O"_s << u"H"_s;
    QTest::newRow("unfinished") << u"Base"_s << QString() << QString();
}

void TestUpgradeSteps::oldFormulasAreConverted()
{
    QFETCH(QString, type);
    QFETCH(QString, formula);
    PropertyEditorContent content = oligoMolecules({u"X"_s, u"X"_s, type, formula});
    ORV_VERIFY_OK(runStep(u"5.31.0"_s, &content));
    const Content tree = treeOf(content);
    const auto *table = qobject_cast<PropertyEditor::OligoProteinsTableItem *>(
        tree.findAllItems(BaseItemType::OligoMolecules).constFirst());
    const auto options = ProteinGenerator::parseInputOptions(table->root());
    ORV_VERIFY_OK(options);
    QTEST(options->buildingBlocks.constFirst().formula, "expected");
}

void TestUpgradeSteps::modesAreSetWhereTextsAreUntouched_data()
{
    QTest::addColumn<int>("workflow");
    QTest::addColumn<QString>("intactText");
    QTest::addColumn<QString>("oligoText");
    QTest::addColumn<QString>("newIntactText");
    QTest::addColumn<QString>("newOligoText");
    const QString none = u"none"_s;
    const QString defaults =
        u"[Intact]\nAdvancedMonoCalculation=true\nMaxMonoisotope=35000\nShowObservedMono=true\n"
        "IsotopeEnvelopeFilter=true\nSteppingMethod=Linear\nMZResolution=35000\nIsotopeSpacing=10\n"
        "ComputeChargeNew=true\nRemoveChargeOne=0.1\nChargeEnvelopeFilterPower2=true\n"
        "ChargeEnvelopeWeights=0.05,0.9,0.05"_s;
    const QString denatured = u"[Intact]\nMode=Denatured"_s;
    const QString resolved = u"[Intact]\nMode=IsoResolved"_s;
    const int reduced = int(Type::ReducedIntactMass);
    const int oligo = int(Type::IntactOligo);
    QTest::newRow("intact") << reduced << u""_s << none << denatured << none;
    QTest::newRow("intact, changed") << reduced << u"[Intact]\nMode=Native"_s << none
                                     << u"[Intact]\nMode=Native"_s << none;
    QTest::newRow("oligo") << oligo << none << defaults << none << resolved;
    QTest::newRow("oligo, changed") << oligo << none << (defaults + u'\n') << none << (defaults + u'\n');
    QTest::newRow("oligo, empty") << oligo << none << u""_s << none << u""_s;
    QTest::newRow("both") << oligo << u"x=1"_s << defaults << u"x=1"_s << defaults;
    QTest::newRow("another type") << int(Type::NativeIntactMass) << u""_s << none << u""_s << none;
}

void TestUpgradeSteps::modesAreSetWhereTextsAreUntouched()
{
    QFETCH(int, workflow);
    QFETCH(QString, intactText);
    QFETCH(QString, oligoText);
    QList<QJsonObject> cells;
    if (intactText != u"none"_s)
        cells.append(cell(u"Intact"_s, {{Id::AdvancedConfiguration, intactText}}));
    if (oligoText != u"none"_s)
        cells.append(cell(u"Oligo"_s, {{Id::AdvancedConfiguration, oligoText}}));
    PropertyEditorContent content = document(Type(workflow), cells);
    ORV_VERIFY_OK(runStep(u"5.33.0"_s, &content));
    const Content tree = treeOf(content);
    const auto text = [&tree](BaseItemType type) {
        const KeyValueItem *found = item(tree, type);
        return found ? found->value(Id::AdvancedConfiguration).toString() : u"none"_s;
    };
    QTEST(text(BaseItemType::Intact), "newIntactText");
    QTEST(text(BaseItemType::Oligo), "newOligoText");
}

void TestUpgradeSteps::oneNoteIsEnough()
{
    const QJsonObject map = cell(u"Senthia"_s, {{Id::XicMode, u"Standard"_s}});
    PropertyEditorContent content = document(Type::PeptideMap, {map, map, cell(u"Senthia"_s, {})});
    QList<QString> notes;
    ORV_VERIFY_OK(runStep(u"5.35.0"_s, &content, &notes));
    QCOMPARE(notes, QList<QString>{u"For more efficient processing, the workflow was updated to use the fast "
                                   "XIC method."_s});
    for (int i = 0; i < 2; ++i)
        QCOMPARE(item(treeOf(content), BaseItemType::Senthia, i)->value(Id::XicMode).toString(), u"Fast"_s);
}

void TestUpgradeSteps::noNoteWhereAllIsFast()
{
    const PropertyEditorContent before =
        document(Type::PeptideMap, {cell(u"Senthia"_s, {{Id::XicMode, u"Fast"_s}})});
    PropertyEditorContent after(before);
    QList<QString> notes;
    ORV_VERIFY_OK(runStep(u"5.35.0"_s, &after, &notes));
    QVERIFY(notes.isEmpty());
    QVERIFY(isSame(after, before));
}

void TestUpgradeSteps::theSelectionStandsBehindTheCount()
{
    const QString group = u"Reported peptide filtering"_s;
    PropertyEditorContent content =
        document(Type::LabelFreeQuantification,
                 {cell(u"Trenq"_s, {{Id::QuantifySharedPeptides, u"true"_s, group},
                                    {Id::ReportedPeptideCount, 3, group},
                                    {Id::QuantifyModifiedPeptides, u"true"_s, group}})});
    ORV_VERIFY_OK(runStep(u"5.37.0"_s, &content));
    const Content tree = treeOf(content);
    const QStringList keys = item(tree, BaseItemType::Trenq)->keys().filter(QRegularExpression(u"^[^:]"_s));
    QCOMPARE(keys, (QStringList{u"QuantifySharedPeptides"_s, u"ReportedPeptideCount"_s,
                                u"ReportedPeptideSelection"_s, u"QuantifyModifiedPeptides"_s}));
}

void TestUpgradeSteps::alignmentIsSplitFromTheText()
{
    PropertyEditorContent content = document(
        Type::PeptideMap,
        {cell(
            u"Trenq"_s,
            {{Id::AdvancedConfiguration,
              u"[InSilicoAlign]\nEnabled=0\nTolerance=1.5\nToleranceDetermination=ByHand\n[A]\nb=1\n"_s}})});
    ORV_VERIFY_OK(runStep(u"5.43.0"_s, &content));
    const Content tree = treeOf(content);
    const KeyValueItem *map = item(tree, BaseItemType::Trenq);
    QCOMPARE(map->value(Id::AlignmentEnabled).toBool(), false);
    QCOMPARE(map->value(Id::AlignmentTolerance).toDouble(), 1.5);
    QCOMPARE(entryOf(content, u"Trenq"_s, Id::ToleranceDetermination).value(u"value").toInt(), 1);
    QCOMPARE(map->groupCaption(Id::AlignmentEnabled), kCsvGroup);
    QCOMPARE(map->value(Id::AdvancedConfiguration).toString(), u"[A]\nb=1\n"_s);
}

void TestUpgradeSteps::alignmentHasDefaults()
{
    PropertyEditorContent content = document(Type::PeptideMap, {cell(u"Senthia"_s, {})});
    ORV_VERIFY_OK(runStep(u"5.43.0"_s, &content));
    const Content tree = treeOf(content);
    const KeyValueItem *map = item(tree, BaseItemType::Senthia);
    QCOMPARE(map->value(Id::AlignmentEnabled).toBool(), true);
    QCOMPARE(map->value(Id::AlignmentTolerance).toDouble(), 0.0);
    QVERIFY(!map->contains(Id::AdvancedConfiguration));
}

void TestUpgradeSteps::profilingMovesItsFile()
{
    const QString oldGroup = u"In-silico options (file import)"_s;
    PropertyEditorContent content = document(
        Type::CompoundProfiling, {cell(u"Senthia"_s, {{Id::ChargeMax, 3, u"Search"_s},
                                                      {Id::InSilicoPeptidesFile, u"p.csv"_s, oldGroup},
                                                      {Id::StudyName, u"s"_s, u"Report"_s}}),
                                  cell(u"Senthia"_s, {{Id::InSilicoPeptidesFile, u"p.csv"_s, kCsvGroup},
                                                      {Id::StudyName, u"s"_s, u"Report"_s}})});
    ORV_VERIFY_OK(runStep(u"5.43.0"_s, &content));
    const Content tree = treeOf(content);
    const auto captions = [&tree](int index) {
        const KeyValueItem *map = item(tree, BaseItemType::Senthia, index);
        QStringList found;
        for (const QString &key : map->keys()) {
            const QString caption = map->groupCaption(key);
            if (!key.startsWith(u':') && !found.contains(caption))
                found.append(caption);
        }
        return found;
    };
    QCOMPARE(captions(0), (QStringList{u"Search"_s, kCsvGroup, u"Report"_s}));
    QCOMPARE(captions(1), (QStringList{kCsvGroup, u"Report"_s}));
    QCOMPARE(referenceIn(item(tree, BaseItemType::Senthia, 0), Id::InSilicoPeptidesFile), u"p.csv"_s);
}

void TestUpgradeSteps::nothingIsWrittenWithoutDataIndependentCells_data()
{
    QTest::addColumn<QString>("step");
    for (const QString &step : {u"5.44.0"_s, u"5.45.0"_s, u"5.47.0"_s})
        QTest::newRow(qPrintable(step)) << step;
}

void TestUpgradeSteps::nothingIsWrittenWithoutDataIndependentCells()
{
    QFETCH(QString, step);
    const PropertyEditorContent before =
        document(Type::DataIndependentAcquisition, {cell(u"Karvon"_s, kProteinSearch)});
    PropertyEditorContent after(before);
    ORV_VERIFY_OK(runStep(step, &after));
    QVERIFY(isSame(after, before));
}

void TestUpgradeSteps::outputCellsAreCompleted()
{
    PropertyEditorContent content = document(
        Type::DataIndependentAcquisition,
        {cell(u"CaldrinDIA"_s, {{Id::CaldrinOutputFdr, u"5% FDR"_s}, {Id::CaldrinUseFdrCutoff, u"true"_s}}),
         cell(u"CaldrinDIA"_s, {{Id::CaldrinDigestion, u"Lys-C @ K | C-term"_s}})});
    ORV_VERIFY_OK(runStep(u"5.44.0"_s, &content));
    ORV_VERIFY_OK(runStep(u"5.45.0"_s, &content));
    const Content tree = treeOf(content);
    const auto text = [&tree](int index, Id id) {
        return item(tree, BaseItemType::CaldrinDIA, index)->value(id).toString();
    };
    QCOMPARE(text(0, Id::CaldrinOutputFdr), u"5% FDR"_s);
    QCOMPARE(text(0, Id::CaldrinDigestion), u"Trypsin @ R,K | C-term"_s);
    QVERIFY(!item(tree, BaseItemType::CaldrinDIA)->contains(Id::CaldrinUseFdrCutoff));
    QCOMPARE(text(1, Id::CaldrinOutputFdr), u"2% FDR"_s);
    QCOMPARE(text(1, Id::CaldrinDigestion), u"Lys-C @ K | C-term"_s);
    QCOMPARE(text(1, Id::CaldrinInstrument), u"QTOF / HCD"_s);
}

void TestUpgradeSteps::switchesBecomeModes_data()
{
    QTest::addColumn<QString>("old");
    QTest::addColumn<int>("mode");
    QTest::newRow("on") << u"true"_s << 1;
    QTest::newRow("off") << u"false"_s << 0;
}

void TestUpgradeSteps::switchesBecomeModes()
{
    QFETCH(QString, old);
    PropertyEditorContent content = document(
        Type::PeptideMap, {cell(u"Senthia"_s, {{Id::EnableInSilico, old, kDigestGroup}, {Id::ChargeMax, 3}}),
                           cell(u"Senthia"_s, {{Id::ChargeMax, 3}})});
    ORV_VERIFY_OK(runStep(u"5.46.0"_s, &content));
    QTEST(entryOf(content, u"Senthia"_s, Id::InSilicoMode).value(u"value").toInt(), "mode");
    const Content tree = treeOf(content);
    const KeyValueItem *map = item(tree, BaseItemType::Senthia);
    QVERIFY(!map->contains(Id::EnableInSilico));
    QCOMPARE(map->groupCaption(Id::InSilicoMode), kDigestGroup);
    QCOMPARE(map->groupCaption(Id::TheoreticalPeptides), kDigestGroup);
    QVERIFY(!item(tree, BaseItemType::Senthia, 1)->contains(Id::TheoreticalPeptides));
}

void TestUpgradeSteps::glycansStandBehindModifications()
{
    PropertyEditorContent content =
        document(Type::DataIndependentAcquisition,
                 {cell(u"CaldrinDIA"_s,
                       {{Id::KarvonModText, QJsonObject{{u"modifications"_s, u"M\n"_s}}, u"modifications"_s},
                        {Id::StudyName, u"s"_s, u"Output"_s}})});
    ORV_VERIFY_OK(runStep(u"5.47.0"_s, &content));
    const Content tree = treeOf(content);
    const KeyValueItem *search = item(tree, BaseItemType::CaldrinDIA);
    const QStringList keys = search->keys().filter(QRegularExpression(u"^[^:]"_s));
    QCOMPARE(keys, (QStringList{u"KarvonModText"_s, u"KarvonGlycanText"_s, u"StudyName"_s}));
    QCOMPARE(PropertyEditorJsonUtils::variantToObject(search->value(Id::KarvonGlycanText)),
             (QJsonObject{{u"glycans"_s, u"% Custom modification text below\n"_s}}));
}

ORV_REGISTER_TEST(TestUpgradeSteps)
#include "TestUpgradeSteps.moc"
