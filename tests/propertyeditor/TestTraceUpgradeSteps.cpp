#include "CurrentVersion.h"
#include "Documents.h"
#include "LogCapture.h"
#include "MzmlTexts.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "TableCells.h"
#include "TestData.h"
#include "TraceFiles.h"

#include <orv/core_ms/MsDataAccessorsFactory.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QVersionNumber>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

using Entry = TracesImportList::Entry;
using Helper = WflwUpgradeHelper;

namespace {

QString closedFile()
{
    return TestData::path(u"core_ms/vendor/thermo/small.RAW"_s);
}

QJsonObject settingsCell(const QString &type, const QJsonObject &values)
{
    QJsonArray properties;
    for (auto it = values.begin(); it != values.end(); ++it)
        properties.append(
            QJsonObject{{u"name"_s, it.key()}, {u"value"_s, it.value()}, {u"group"_s, u"Traces"_s}});
    return TableCells::cell(type, properties);
}

/// A samples cell and cells of settings, each in a tab of its own.
PropertyEditorContent document(const QJsonObject &samples, const QList<QJsonObject> &settings = {})
{
    QJsonArray tabs;
    if (!samples.isEmpty())
        tabs.append(Documents::tab(u"Samples"_s, {u"Samples"_s}, {samples}));
    for (const QJsonObject &cell : settings) {
        const QString type = cell.value(u"type"_s).toString();
        tabs.append(Documents::tab(u"Tab %1"_s.arg(tabs.size()), {type}, {cell}));
    }
    return PropertyEditorContent(Documents::document(tabs, {{u"version"_s, u"5.5.0"_s}}));
}

QJsonObject rowsCell(const QJsonArray &columns, const QList<QJsonArray> &rows, const QJsonArray &defined = {})
{
    QJsonArray entries{TableCells::entry(u"Samples"_s, TableCells::node(columns, rows))};
    if (!defined.isEmpty())
        entries.append(TableCells::entry(u"CustomColumns"_s, TableCells::node(defined)));
    return TableCells::cell(u"Samples"_s, entries);
}

QJsonObject trace(TraceType type, const QString &name, bool isImported = true)
{
    return {{u"type"_s, int(type)},
            {u"channelName"_s, name},
            {u"channelId"_s, name},
            {u"imported"_s, isImported}};
}

QJsonObject sample(int id, const QString &path)
{
    return {{u"SamplesId"_s, id}, {u"SampleName"_s, u"s%1"_s.arg(id)}, {u"SamplePath"_s, path}};
}

/// A samples cell in the present form.
QJsonObject presentCell(const QJsonArray &samples, const QJsonArray &traces)
{
    const QJsonObject value{
        {u"Samples"_s, samples},
        {u"TraceImportAndProcessingOptions"_s, QJsonObject{{u"TracesImportList"_s, traces}}}};
    return TableCells::cell(u"Samples"_s, {TableCells::entry(u"SamplesTable"_s, value)});
}

Content treeOf(const PropertyEditorContent &content)
{
    Content tree;
    const Error error =
        tree.assignFromJson(Documents::parse(content.toJson()), ValidationOption::SkipTypeValidation);
    if (error)
        qFatal("%s", qPrintable(error.errorMessage()));
    return tree;
}

KeyValueItem *settingsOf(const Content &tree, BaseItemType type)
{
    return qobject_cast<KeyValueItem *>(tree.findAllItems(type).value(0));
}

/// The keys beside those that a load adds to every such cell.
QStringList keysOf(const Content &tree, BaseItemType type)
{
    KeyValueItem empty(type);
    const Error error = empty.assignFromJson(settingsCell(BaseItem::typeToString(type), {}), {});
    if (error)
        qFatal("%s", qPrintable(error.errorMessage()));
    QStringList keys = settingsOf(tree, type)->keys();
    for (const QString &key : empty.keys())
        keys.removeOne(key);
    return keys;
}

QStringList described(const PropertyEditorContent &content)
{
    QStringList texts;
    const QList<Entry> entries = treeOf(content).samplesAndTraces().options.traces.list();
    for (const Entry &entry : entries) {
        texts.append(u"%1 %2 %3"_s.arg(int(entry.traceItem().type()))
                         .arg(entry.traceItem().channelName(), entry.isImported() ? u"on" : u"off"));
    }
    return texts;
}

/// Whether the step failed, with these words, and left the document alone.
void verifyFailure(Error (Helper::*step)(PropertyEditorContent *), PropertyEditorContent document,
                   const QString &message)
{
    const PropertyEditorContent before = document;
    Helper helper;
    const Error error = (helper.*step)(&document);
    QVERIFY(error.hasError());
    QCOMPARE(error.errorMessage(), message);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QVERIFY(!error.details().isEmpty());
    QVERIFY(document.tabsAndContent() == before.tabsAndContent());
    QCOMPARE(document.metadata(), before.metadata());
}

/// While it lives, files of a closed format read as \a path does.
class ReaderOfAHost
{
public:
    explicit ReaderOfAHost(const QString &path)
    {
        using namespace msreader;
        MsDataAccessorsFactory::setReaderFactory(
            VendorDataFormat::Thermo,
            [path](const MsReaderOptions &options) { return std::make_unique<Reader>(options, path); });
    }
    ~ReaderOfAHost()
    {
        msreader::MsDataAccessorsFactory::setReaderFactory(msreader::VendorDataFormat::Thermo, {});
    }
    Q_DISABLE_COPY_MOVE(ReaderOfAHost)

private:
    /// What a vendor's library would be, for data that were converted.
    class Reader : public msreader::MsReaderAccessor
    {
    public:
        Reader(const msreader::MsReaderOptions &options, const QString &path)
            : MsReaderAccessor(options, msreader::VendorDataFormat::Thermo)
            , m_inner(msreader::MsDataAccessorsFactory::createReader(msreader::MsReaderOptions(path)))
        {}

    protected:
        Error openData() override { return m_inner->open(); }
        [[nodiscard]] Result<bool> readHasLevel(int level) const override
        {
            return m_inner->hasMsProfileData(level);
        }
        [[nodiscard]] Result<QList<msreader::ChromatogramInfo>> readChromatograms() const override
        {
            return m_inner->chromatogramInfoList();
        }

    private:
        std::unique_ptr<msreader::MsReaderAccessor> m_inner;
    };
};

QByteArray runWithDevices()
{
    using MzmlTexts::chromatogram;
    return MzmlTexts::mzml({}, chromatogram("TIC", "MS:1000235") +
                                   chromatogram("Pump pressure", "MS:1003019") +
                                   chromatogram("UV 214", "MS:1000812"));
}

const QJsonObject kOldName = trace(TraceType::Other, u"Other chromatogram 1"_s);

} // namespace

class TestTraceUpgradeSteps : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void oldPeakSettingsMoveIntoTheSamplesTable();
    void theFirstIntactCellLeads_data();
    void theFirstIntactCellLeads();
    void withoutSettingsThereAreDefaults();
    void expertSettingsOfPeaksMoveToo();
    void aCellWithoutExpertSettingsGetsNone();
    void customColumnsMoveToo();
    void samplesOfThePresentFormStay();
    void withoutSamplesTheOldKeysGo();
    void badPeakSettingsFail();
    void afterTheStepNoOldKeyIsLeft();

    void tracesAreRebuiltFromTheFiles();
    void filesAreCorrected();
    void companionsAreCheckedToo();
    void filesThatAreNoMsFilesAreNotChecked();
    void aMissingFileFails();
    void aFileThatCannotBeReadFails();
    void withoutSamplesTracesCannotBeUpdated_data();
    void withoutSamplesTracesCannotBeUpdated();
    void withoutSampleDataTracesStay();

    void oldNamesOfDevicesBecomeThoseOfTheFile();
    void entriesAreFoundAgainByName();
    void withoutOldNamesNothingIsDone_data();
    void withoutOldNamesNothingIsDone();
    void aClosedFormatKeepsTheOldNames();
    void otherFormatsKeepTheOldNames();
    void aMissingFileFailsBeforeOldNamesAreReplaced();
};

void TestTraceUpgradeSteps::oldPeakSettingsMoveIntoTheSamplesTable()
{
    PropertyEditorContent content =
        document(rowsCell({u"SampleName"_s, u"SamplePath"_s, u"TracesCsv"_s, u"Condition"_s},
                          {{u"lot 1.mzML"_s, goodFile(), u"/r/uv.csv"_s, u"treated"_s},
                           {u"lot 2"_s, goodFile(), u"--"_s, u"--"_s}}),
                 {settingsCell(u"Intact"_s, {{u"TicSmoothSigma"_s, 0.3},
                                             {u"UvPeakMethod"_s, u"Disable"_s},
                                             {u"InterestTimeStart"_s, 1.0},
                                             {u"InterestTimeEnd"_s, 20.0}})});
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));

    const Content tree = treeOf(content);
    const SamplesAndTracesContent samples = tree.samplesAndTraces();
    QCOMPARE(samples.samples.names(), (QStringList{u"lot 1"_s, u"lot 2"_s}));
    QCOMPARE(samples.samples.samples.at(0).id, 1);
    QCOMPARE(samples.samples.samples.at(1).msFile->text(), goodFile());
    QCOMPARE(samples.samples.samples.at(0).traces.first()->text(), u"/r/uv.csv"_s);
    QCOMPARE(samples.samples.columns.customColumnNames(), QStringList{u"Condition"_s});
    QCOMPARE(samples.samples.samples.at(0).customValues.value(u"Condition"_s), QVariant(u"treated"_s));
    QCOMPARE(described(content), (QStringList{u"1 TIC on"_s, u"2 BPC off"_s, u"5 uv.csv on"_s}));

    const QList<ElutionPeaksOptions> presets = samples.options.peaksOptions;
    QCOMPARE(presets.size(), 5);
    QCOMPARE(presets.at(0).creationOptions().smoothSigma, 0.3);
    QCOMPARE(presets.at(4).creationOptions().smoothSigma, 0.3);
    QVERIFY(!presets.at(2).creationOptions().findsPeaks);
    QCOMPARE(presets.at(0).timeRange()->end.toString(), u"20.00"_s);
    QStringList warnings;
    QStringList errors;
    QVERIFY2(samples.options.validate(&warnings, &errors), qPrintable(errors.join(u' ')));
    QCOMPARE(keysOf(tree, BaseItemType::Intact), QStringList());
}

void TestTraceUpgradeSteps::theFirstIntactCellLeads_data()
{
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<double>("tic");
    QTest::addColumn<double>("defaultSigma");
    QTest::newRow("Intact") << QStringList{u"Intact"_s} << 1.0 << 1.0;
    QTest::newRow("Dravik") << QStringList{u"Dravik"_s} << 1.0 << 0.5;
    QTest::newRow("Intact before Dravik") << QStringList{u"Dravik"_s, u"Intact"_s} << 2.0 << 2.0;
    QTest::newRow("the first of two") << QStringList{u"Intact"_s, u"Intact"_s} << 1.0 << 1.0;
    QTest::newRow("another") << QStringList{u"Senthia"_s} << 0.1 << 0.05;
}

void TestTraceUpgradeSteps::theFirstIntactCellLeads()
{
    QFETCH(QStringList, types);
    QFETCH(double, tic);
    QFETCH(double, defaultSigma);
    QList<QJsonObject> cells;
    for (const QString &type : types) {
        cells.append(settingsCell(type, type == u"Senthia"_s
                                            ? QJsonObject()
                                            : QJsonObject{{u"TicSmoothSigma"_s, double(cells.size()) + 1},
                                                          {u"UvSmoothSigma"_s, 0.5}}));
    }
    PropertyEditorContent content = document(rowsCell({u"SampleName"_s}, {{u"a"_s}}), cells);
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
    const QList<ElutionPeaksOptions> presets = treeOf(content).samplesAndTraces().options.peaksOptions;
    QCOMPARE(presets.at(0).creationOptions().smoothSigma, tic);
    QCOMPARE(presets.at(4).creationOptions().smoothSigma, defaultSigma);
}

void TestTraceUpgradeSteps::withoutSettingsThereAreDefaults()
{
    PropertyEditorContent content = document(rowsCell({u"SampleName"_s}, {{u"a"_s}}));
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
    const SamplesAndTracesContent samples = treeOf(content).samplesAndTraces();
    QCOMPARE(samples.samples.names(), QStringList{u"a"_s});
    QCOMPARE(samples.options.peaksOptions.size(), 5);
}

void TestTraceUpgradeSteps::expertSettingsOfPeaksMoveToo()
{
    PropertyEditorContent content = document(
        rowsCell({u"SampleName"_s}, {{u"a"_s}}),
        {settingsCell(u"Dravik"_s, {{u"AdvancedConfiguration"_s,
                                     u"[ElutionPeaks]\nAutoCompute=true\nPeakWidthFactor=x\n[B]\ny=2"_s}})});
    const LogCapture log;
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
    const Content tree = treeOf(content);
    QCOMPARE(settingsOf(tree, BaseItemType::Dravik)->value(PropertyId::AdvancedConfiguration).toString(),
             u"[ElutionPeaks]\nPeakWidthFactor=x\n[B]\ny=2"_s);
    QCOMPARE(tree.samplesAndTraces().options.peaksOptions.first().creationOptions().autoCompute,
             ElutionPeaksOptions::AutoCompute::ByPeakWidth);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().contains(u"PeakWidthFactor"_s));
}

void TestTraceUpgradeSteps::aCellWithoutExpertSettingsGetsNone()
{
    PropertyEditorContent content = document(rowsCell({u"SampleName"_s}, {{u"a"_s}}),
                                             {settingsCell(u"Intact"_s, {{u"TicSmoothSigma"_s, 1.0}})});
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
    const Content tree = treeOf(content);
    QVERIFY(!settingsOf(tree, BaseItemType::Intact)->contains(PropertyId::AdvancedConfiguration));
}

void TestTraceUpgradeSteps::customColumnsMoveToo()
{
    const QJsonObject defined{{u"name"_s, u"Replicate"_s}, {u"type"_s, u"number"_s}};
    PropertyEditorContent content = document(
        rowsCell({u"SampleName"_s, u"Replicate"_s, u"Condition"_s}, {{u"a"_s, 3, u"x"_s}}, {defined}));
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
    const SamplesInput::SamplesArrayWithCustomColumns samples = treeOf(content).samplesAndTraces().samples;
    QStringList columns;
    for (const SamplesInput::CustomColumn &column : samples.columns.columns())
        columns.append(column.name + u' ' + column.type);
    QCOMPARE(columns, (QStringList{u"Replicate number"_s, u"Condition text"_s}));
    QCOMPARE(samples.samples.first().customValues.value(u"Replicate"_s).toInt(), 3);
}

void TestTraceUpgradeSteps::samplesOfThePresentFormStay()
{
    PropertyEditorContent content =
        document(presentCell({sample(7, u"/nowhere/a.raw"_s)}, {trace(TraceType::Tic, u"mine"_s)}),
                 {settingsCell(u"Intact"_s, {{u"TicSmoothSigma"_s, 1.0}})});
    const SamplesAndTracesContent before = treeOf(content).samplesAndTraces();
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
    const Content tree = treeOf(content);
    QVERIFY(tree.samplesAndTraces() == before);
    QCOMPARE(keysOf(tree, BaseItemType::Intact), QStringList());
}

void TestTraceUpgradeSteps::withoutSamplesTheOldKeysGo()
{
    PropertyEditorContent content = document({}, {settingsCell(u"Intact"_s, {{u"TicSmoothSigma"_s, 1.0}})});
    ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
    const Content tree = treeOf(content);
    QCOMPARE(keysOf(tree, BaseItemType::Intact), QStringList());
}

void TestTraceUpgradeSteps::badPeakSettingsFail()
{
    PropertyEditorContent content = document(rowsCell({u"SampleName"_s}, {{u"a"_s}}),
                                             {settingsCell(u"Intact"_s, {{u"TicSmoothSigma"_s, -1.0}})});
    const PropertyEditorContent before = content;
    const Error error = Helper().upgradeV_5_6_0(&content);
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY(error.details().first().contains(u"TIC"_s));
    QVERIFY(content.tabsAndContent() == before.tabsAndContent());
}

void TestTraceUpgradeSteps::afterTheStepNoOldKeyIsLeft()
{
    QJsonObject values;
    for (const QString &prefix : {u"Tic"_s, u"Bpi"_s, u"Uv"_s}) {
        for (const QString &key :
             {u"SmoothSigma"_s, u"IntervalTimeMin"_s, u"SmoothSigmaBaseline"_s, u"BaselineMaxAngle"_s,
              u"BaselineMaxLimit"_s, u"BaselineMinAngle"_s, u"BaselineMinLimit"_s, u"BaselinePushLimit"_s,
              u"BaselinePushTolerance"_s, u"PeakTolMax"_s, u"PeakTolMin"_s})
            values.insert(prefix + key, 1.0);
        values.insert(prefix + u"PeakMethod"_s, u"Enable"_s);
        values.insert(prefix + u"BaselineMethod"_s, u"Enable"_s);
    }
    for (const QString &type : {u"Intact"_s, u"Dravik"_s}) {
        PropertyEditorContent content =
            document(rowsCell({u"SampleName"_s}, {{u"a"_s}}), {settingsCell(type, values)});
        ORV_VERIFY_OK(Helper().upgradeV_5_6_0(&content));
        const Content tree = treeOf(content);
        QCOMPARE(keysOf(tree, BaseItem::typeFromString(type)), QStringList());
    }
}

void TestTraceUpgradeSteps::tracesAreRebuiltFromTheFiles()
{
    PropertyEditorContent content =
        document(presentCell({sample(1, goodFile())},
                             {trace(TraceType::Bpi, u"Base peak"_s), trace(TraceType::Tic, u"TIC MS"_s)}));
    ORV_VERIFY_OK(Helper().upgradeV_5_10_1(&content));
    QCOMPARE(described(content), (QStringList{u"1 TIC on"_s, u"2 BPC on"_s}));
}

void TestTraceUpgradeSteps::filesAreCorrected()
{
    const SampleTree tree;
    tree.add(u"Runs/a.mzML"_s, TestData::read(goodFile()));
    QJsonObject first = sample(1, tree.at(u"runs/A.mzML"_s));
    first.insert(u"FileMetadata"_s, QJsonObject{{tree.at(u"runs/A.mzML"_s), QJsonObject{{u"x"_s, 1}}}});
    PropertyEditorContent content = document(presentCell({first, sample(2, goodFile())}, {}));
    ORV_VERIFY_OK(Helper().upgradeV_5_10_1(&content));
    const QList<SamplesInput::SampleWithCustomColumns> samples =
        treeOf(content).samplesAndTraces().samples.samples;
    QCOMPARE(samples.at(0).msFile->text(), tree.at(u"Runs/a.mzML"_s));
    QCOMPARE(samples.at(0).fileMetadata.keys(), QStringList{tree.at(u"Runs/a.mzML"_s)});
    QCOMPARE(samples.at(1).msFile->text(), goodFile());
}

void TestTraceUpgradeSteps::companionsAreCheckedToo()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s, runWithDevices());
    QJsonObject both = sample(1, goodFile());
    both.insert(u"Traces"_s, QJsonArray{tree.at(u"A.mzml"_s)});
    PropertyEditorContent content = document(presentCell({both}, {trace(TraceType::Uv, u"UV 214"_s)}));
    ORV_VERIFY_OK(Helper().upgradeV_5_10_1(&content));
    QCOMPARE(treeOf(content).samplesAndTraces().samples.samples.first().traces.first()->text(),
             tree.at(u"a.mzML"_s));
    QCOMPARE(described(content),
             (QStringList{u"1 TIC off"_s, u"2 BPC off"_s, u"3 UV 214 on"_s, u"0 Pump pressure off"_s}));

    both.insert(u"Traces"_s, QJsonArray());
    both.insert(u"ExtraReferences"_s, QJsonArray{u"/nowhere/b.mzML"_s});
    verifyFailure(
        &Helper::upgradeV_5_10_1, document(presentCell({both}, {})),
        u"Upgrade not possible. An error occured while trying to access the file: /nowhere/b.mzML."_s);
}

void TestTraceUpgradeSteps::filesThatAreNoMsFilesAreNotChecked()
{
    QJsonObject table = sample(1, u"/nowhere/lamp.csv"_s);
    table.insert(u"Traces"_s, QJsonArray{u"/nowhere/uv.txt"_s});
    PropertyEditorContent content = document(presentCell({table}, {trace(TraceType::Csv, u"uv.txt"_s)}));
    ORV_VERIFY_OK(Helper().upgradeV_5_10_1(&content));
    QCOMPARE(described(content), QStringList{u"5 uv.txt on"_s});
}

void TestTraceUpgradeSteps::aMissingFileFails()
{
    verifyFailure(
        &Helper::upgradeV_5_10_1,
        document(presentCell({sample(1, goodFile()), sample(2, u"/nowhere/run 2.mzML"_s)}, {})),
        u"Upgrade not possible. An error occured while trying to access the file: /nowhere/run 2.mzML."_s);
}

void TestTraceUpgradeSteps::aFileThatCannotBeReadFails()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s, "<mzML><run>");
    PropertyEditorContent content =
        document(presentCell({sample(1, tree.at(u"a.mzML"_s))}, {trace(TraceType::Tic, u"x"_s)}));
    const PropertyEditorContent before = content;
    const Error error = Helper().upgradeV_5_10_1(&content);
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY(error.details().join(u' ').contains(tree.at(u"a.mzML"_s)));
    QVERIFY(content.tabsAndContent() == before.tabsAndContent());
}

void TestTraceUpgradeSteps::withoutSamplesTracesCannotBeUpdated_data()
{
    QTest::addColumn<bool>("isFirst");
    QTest::newRow("5.10.1") << true;
    QTest::newRow("5.39.0") << false;
}

void TestTraceUpgradeSteps::withoutSamplesTracesCannotBeUpdated()
{
    QFETCH(bool, isFirst);
    verifyFailure(isFirst ? &Helper::upgradeV_5_10_1 : &Helper::upgradeV_5_39_0,
                  document({}, {settingsCell(u"Intact"_s, {})}), u"There are no samples in the workflow."_s);
}

void TestTraceUpgradeSteps::withoutSampleDataTracesStay()
{
    const QJsonArray traces{kOldName, trace(TraceType::Tic, u"TIC MS"_s)};
    PropertyEditorContent content = document(presentCell({sample(1, u"/nowhere/a.mzML"_s)}, traces));
    const SamplesAndTracesContent before = treeOf(content).samplesAndTraces();
    const LogCapture log;
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 9, 0), &content, nullptr, false));
    // The samples stand elsewhere than documents of that age have them.
    QCOMPARE(log.warnings(), QStringList{u"Unable to get samples from the workflow."_s});
    QVERIFY(treeOf(content).samplesAndTraces() == before);
    QCOMPARE(treeOf(content).version(), currentVersionText());
}

void TestTraceUpgradeSteps::oldNamesOfDevicesBecomeThoseOfTheFile()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s, runWithDevices());
    const ReaderOfAHost reader(tree.at(u"a.mzML"_s));
    QJsonObject used = kOldName;
    used.insert(u"peaksOptions"_s, u"mine"_s);
    PropertyEditorContent content =
        document(presentCell({sample(1, closedFile())},
                             {used, trace(TraceType::Other, u"Other chromatogram 2"_s, false),
                              trace(TraceType::Tic, u"TIC"_s), trace(TraceType::Csv, u"uv.csv"_s, false)}));
    ORV_VERIFY_OK(Helper().upgradeV_5_39_0(&content));
    QCOMPARE(described(content),
             (QStringList{u"1 TIC on"_s, u"3 UV 214 on"_s, u"0 Pump pressure on"_s, u"5 uv.csv off"_s}));
    const QList<Entry> entries = treeOf(content).samplesAndTraces().options.traces.list();
    QCOMPARE(entries.at(1).peaksOptionsName(), u"mine"_s);
    QCOMPARE(entries.at(0).peaksOptionsName(), QString());
}

void TestTraceUpgradeSteps::entriesAreFoundAgainByName()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s, runWithDevices());
    const ReaderOfAHost reader(tree.at(u"a.mzML"_s));
    QJsonObject pump = trace(TraceType::Other, u"Pump pressure"_s, false);
    pump.insert(u"channelId"_s, u"old id"_s);
    pump.insert(u"samplesIds"_s, QJsonArray{1});
    QJsonObject oldName = kOldName;
    oldName.insert(u"imported"_s, false);
    PropertyEditorContent content = document(presentCell({sample(1, closedFile())}, {pump, oldName}));
    ORV_VERIFY_OK(Helper().upgradeV_5_39_0(&content));
    QCOMPARE(described(content), (QStringList{u"3 UV 214 off"_s, u"0 Pump pressure off"_s}));
    const Entry found = treeOf(content).samplesAndTraces().options.traces.list().at(1);
    QCOMPARE(found.traceItem().channelId(), u"Pump pressure"_s);
    QCOMPARE(found.samplesIds(), TraceSampleIds({1}));
}

void TestTraceUpgradeSteps::withoutOldNamesNothingIsDone_data()
{
    QTest::addColumn<QJsonArray>("samples");
    QTest::addColumn<QJsonArray>("traces");
    // A file that is missing would fail the step.
    const QJsonArray missing{sample(1, u"/nowhere/a.mzML"_s)};
    QTest::newRow("no traces") << missing << QJsonArray();
    QTest::newRow("another name") << missing << QJsonArray{trace(TraceType::Other, u"Pump"_s)};
    QTest::newRow("another case") << missing
                                  << QJsonArray{trace(TraceType::Other, u"other chromatogram 1"_s)};
    QTest::newRow("in the middle") << missing
                                   << QJsonArray{trace(TraceType::Other, u"An Other chromatogram 1"_s)};
    QTest::newRow("another type") << missing << QJsonArray{trace(TraceType::Uv, u"Other chromatogram 1"_s)};
    QTest::newRow("no samples") << QJsonArray() << QJsonArray{kOldName};
}

void TestTraceUpgradeSteps::withoutOldNamesNothingIsDone()
{
    QFETCH(QJsonArray, samples);
    QFETCH(QJsonArray, traces);
    PropertyEditorContent content = document(presentCell(samples, traces));
    const PropertyEditorContent before = content;
    ORV_VERIFY_OK(Helper().upgradeV_5_39_0(&content));
    QVERIFY(content.tabsAndContent() == before.tabsAndContent());
    QCOMPARE(content.metadata(), before.metadata());
}

void TestTraceUpgradeSteps::aClosedFormatKeepsTheOldNames()
{
    PropertyEditorContent content =
        document(presentCell({sample(1, closedFile())}, {kOldName, trace(TraceType::Tic, u"TIC"_s)}));
    const LogCapture log;
    ORV_VERIFY_OK(Helper().upgradeV_5_39_0(&content));
    QCOMPARE(described(content), (QStringList{u"1 TIC on"_s, u"0 Other chromatogram 1 on"_s}));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().contains(closedFile()));
}

void TestTraceUpgradeSteps::otherFormatsKeepTheOldNames()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s, runWithDevices());
    PropertyEditorContent content = document(presentCell({sample(1, goodFile())}, {kOldName}));
    ORV_VERIFY_OK(Helper().upgradeV_5_39_0(&content));
    QCOMPARE(described(content), QStringList{u"0 Other chromatogram 1 on"_s});

    const ReaderOfAHost reader(tree.at(u"a.mzML"_s));
    content = document(presentCell({sample(1, goodFile()), sample(2, closedFile())}, {kOldName}));
    ORV_VERIFY_OK(Helper().upgradeV_5_39_0(&content));
    QCOMPARE(described(content),
             (QStringList{u"3 UV 214 on"_s, u"0 Other chromatogram 1 on"_s, u"0 Pump pressure on"_s}));
}

void TestTraceUpgradeSteps::aMissingFileFailsBeforeOldNamesAreReplaced()
{
    verifyFailure(
        &Helper::upgradeV_5_39_0, document(presentCell({sample(1, u"/nowhere/a.raw"_s)}, {kOldName})),
        u"Upgrade not possible. An error occured while trying to access the file: /nowhere/a.raw."_s);
}

ORV_REGISTER_TEST(TestTraceUpgradeSteps)
#include "TestTraceUpgradeSteps.moc"
