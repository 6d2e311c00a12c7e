#include "OrvTest.h"
#include "References.h"

#include <orv/core_ms/ElutionPeaksBackwardsCompatibility.h>

#include <limits>

using namespace orv;
using namespace Qt::StringLiterals;

using Compatibility = ElutionPeaksBackwardsCompatibility;
using AutoCompute = ElutionPeaksOptions::AutoCompute;
using Entry = TracesImportList::Entry;
using Traces = QList<TraceItem>;

namespace {

const QStringList kNames{u"TIC-preset"_s, u"BPI-preset"_s, u"UV-preset"_s, u"CSV-preset"_s,
                         u"Default-preset"_s};

/// One number tells the kinds apart.
Compatibility::Input kindsApart(bool isIntact)
{
    Compatibility::Input input;
    for (size_t kind = 0; kind < 3; ++kind)
        input.oldOptions.at(kind).smoothSigma = double(kind) + 1;
    input.isIntact = isIntact;
    return input;
}

Compatibility::Output outputOf(const Compatibility::Input &input)
{
    const Result<Compatibility::Output> output = Compatibility::createOptionsFromOldPreset(input);
    if (output.hasError())
        qFatal("%s", qPrintable(output.error().errorMessage()));
    return *output;
}

Entry entry(TraceType type, const QString &name)
{
    return Entry(TraceItem(type, {name, name}));
}

} // namespace

class TestElutionPeaks : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreFivePresets();
    void presetsHaveTheSettingsOfTheirKind_data();
    void presetsHaveTheSettingsOfTheirKind();
    void settingsBecomeOptions();
    void theDefaultsOfKindsDiffer();
    void allPresetsHaveTheTimeRange();
    void expertSettingsBecomeOptions_data();
    void expertSettingsBecomeOptions();
    void unreadableExpertSettingsStayInTheText_data();
    void unreadableExpertSettingsStayInTheText();
    void settingsOutOfRangeFail_data();
    void settingsOutOfRangeFail();
    void tracesNameThePresetOfTheirKind();
    void samplesAreHandedOn();
    void doubleDashesBecomeEmpty();
    void aTableGivesATraceByItsName_data();
    void aTableGivesATraceByItsName();
    void noFileGivesNoTrace();
    void entriesGiveTheirTraces();
};

void TestElutionPeaks::thereAreFivePresets()
{
    QStringList names;
    const QList<ElutionPeaksOptions> presets = outputOf({}).options.peaksOptions;
    for (const ElutionPeaksOptions &preset : presets) {
        names.append(preset.name());
        QVERIFY2(preset.faults().isEmpty(), qPrintable(preset.faults().join(u' ')));
    }
    QCOMPARE(names, kNames);
}

void TestElutionPeaks::presetsHaveTheSettingsOfTheirKind_data()
{
    QTest::addColumn<bool>("isIntact");
    QTest::addColumn<QList<double>>("sigmas");
    QTest::newRow("Intact") << true << QList<double>{1, 2, 3, 3, 1};
    QTest::newRow("others") << false << QList<double>{1, 2, 3, 3, 3};
}

void TestElutionPeaks::presetsHaveTheSettingsOfTheirKind()
{
    QFETCH(bool, isIntact);
    QFETCH(QList<double>, sigmas);
    QList<double> found;
    const QList<ElutionPeaksOptions> presets = outputOf(kindsApart(isIntact)).options.peaksOptions;
    for (const ElutionPeaksOptions &preset : presets)
        found.append(preset.creationOptions().smoothSigma);
    QCOMPARE(found, sigmas);
}

void TestElutionPeaks::settingsBecomeOptions()
{
    Compatibility::Input input;
    input.oldOptions.at(Compatibility::Bpi) = {.peakMethod = 0,
                                               .smoothSigma = 0.2,
                                               .intervalTimeMinutes = 0.7,
                                               .baselineMethod = 0,
                                               .smoothSigmaBaseline = 3.5};
    const QList<ElutionPeaksOptions> presets = outputOf(input).options.peaksOptions;
    QVERIFY(
        (presets.at(1).creationOptions() == ElutionPeaksOptions::CreationOptions{.findsPeaks = false,
                                                                                 .smoothSigma = 0.2,
                                                                                 .intervalTimeMinutes = 0.7,
                                                                                 .correctsBaseline = false,
                                                                                 .smoothSigmaBaseline = 3.5,
                                                                                 .peakWidthFactor = {}}));
    QVERIFY(presets.at(0).creationOptions() == ElutionPeaksOptions::CreationOptions());
}

void TestElutionPeaks::theDefaultsOfKindsDiffer()
{
    const Compatibility::Input input;
    QCOMPARE(input.oldOptions.at(Compatibility::Tic).smoothSigma, 0.1);
    QCOMPARE(input.oldOptions.at(Compatibility::Bpi).smoothSigma, 0.1);
    QCOMPARE(input.oldOptions.at(Compatibility::Uv).smoothSigma, 0.05);
}

void TestElutionPeaks::allPresetsHaveTheTimeRange()
{
    Compatibility::Input input;
    for (const ElutionPeaksOptions &preset : outputOf(input).options.peaksOptions)
        QVERIFY(!preset.timeRange());
    input.timeRangeOfInterest =
        ElutionPeaksOptions::TimeRange{*Decimal::fromString(u"1.00"_s), *Decimal::fromString(u"25.50"_s)};
    for (const ElutionPeaksOptions &preset : outputOf(input).options.peaksOptions)
        QVERIFY(preset.timeRange() == input.timeRangeOfInterest);
}

void TestElutionPeaks::expertSettingsBecomeOptions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<AutoCompute>("autoCompute");
    QTest::addColumn<QString>("factor");
    QTest::addColumn<QString>("rest");

    QTest::newRow("none") << u"[Intact]\nMode=Denatured"_s << AutoCompute::Off << QString()
                          << u"[Intact]\nMode=Denatured"_s;
    QTest::newRow("automatic") << u"[ElutionPeaks]\nAutoCompute=true\n"_s << AutoCompute::ByPeakWidth
                               << QString() << QString();
    QTest::newRow("off") << u"[ElutionPeaks]\nAutoCompute=0"_s << AutoCompute::Off << QString() << QString();
    QTest::newRow("factor") << u"# wide\n[ElutionPeaks]\nPeakWidthFactor=1.5\nOther=1"_s << AutoCompute::Off
                            << u"1.50"_s << u"# wide\n[ElutionPeaks]\nOther=1"_s;
    QTest::newRow("both") << u"[ElutionPeaks]\nAutoCompute=1\nPeakWidthFactor=2\n[B]\nx=1"_s
                          << AutoCompute::ByPeakWidth << u"2.00"_s << u"[B]\nx=1"_s;
}

void TestElutionPeaks::expertSettingsBecomeOptions()
{
    QFETCH(QString, text);
    QFETCH(AutoCompute, autoCompute);
    QFETCH(QString, factor);
    QFETCH(QString, rest);
    Compatibility::Input input;
    input.advancedText = text;
    const Result<Compatibility::Output> output = Compatibility::createOptionsFromOldPreset(input);
    ORV_VERIFY_OK(output);
    QVERIFY(output.warnings().isEmpty());
    QCOMPARE(output->advancedText, rest);
    for (const ElutionPeaksOptions &preset : output->options.peaksOptions) {
        QCOMPARE(preset.creationOptions().autoCompute, autoCompute);
        const std::optional<Decimal> found = preset.creationOptions().peakWidthFactor;
        QCOMPARE(found ? found->toString() : QString(), factor);
    }
}

void TestElutionPeaks::unreadableExpertSettingsStayInTheText_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("no switch") << u"AutoCompute=sometimes"_s;
    QTest::newRow("no number") << u"PeakWidthFactor=wide"_s;
    QTest::newRow("zero") << u"PeakWidthFactor=0"_s;
    QTest::newRow("rounds to zero") << u"PeakWidthFactor=0.001"_s;
    QTest::newRow("not finite") << u"PeakWidthFactor=nan"_s;
}

void TestElutionPeaks::unreadableExpertSettingsStayInTheText()
{
    QFETCH(QString, line);
    Compatibility::Input input;
    input.advancedText = u"[ElutionPeaks]\n"_s + line;
    const Result<Compatibility::Output> output = Compatibility::createOptionsFromOldPreset(input);
    ORV_VERIFY_OK(output);
    QCOMPARE(output->advancedText, input.advancedText);
    QCOMPARE(output.warnings().size(), 1);
    QVERIFY(output.warnings().first().contains(line.section(u'=', 0, 0)));
}

void TestElutionPeaks::settingsOutOfRangeFail_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("below zero") << -0.1 << false;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << false;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << false;
    QTest::newRow("zero") << 0.0 << true;
}

void TestElutionPeaks::settingsOutOfRangeFail()
{
    QFETCH(double, value);
    QFETCH(bool, isGood);
    for (double Compatibility::OldPeaksOptions::*member :
         {&Compatibility::OldPeaksOptions::smoothSigma, &Compatibility::OldPeaksOptions::intervalTimeMinutes,
          &Compatibility::OldPeaksOptions::smoothSigmaBaseline}) {
        Compatibility::Input input;
        input.oldOptions.at(Compatibility::Uv).*member = value;
        const Result<Compatibility::Output> output = Compatibility::createOptionsFromOldPreset(input);
        QCOMPARE(!output.hasError(), isGood);
        if (isGood)
            continue;
        QCOMPARE(output.error().code(), ErrorCode::InvalidContent);
        QVERIFY(output.error().details().first().contains(u"UV"_s));
    }
}

void TestElutionPeaks::tracesNameThePresetOfTheirKind()
{
    Compatibility::Input input;
    Entry notImported = entry(TraceType::Bpi, u"BPC"_s);
    notImported.setImported(false);
    Entry ofOneSample = entry(TraceType::Csv, u"uv.csv"_s);
    ofOneSample.setSamplesIds(TraceSampleIds({3}));
    input.traces = {ofOneSample, entry(TraceType::Other, u"pump"_s), entry(TraceType::Uv, u"UV"_s),
                    notImported, entry(TraceType::Tic, u"TIC"_s),    entry(TraceType::Xic, u"x"_s)};
    const TraceImportAndProcessingOptions options = outputOf(input).options;
    QStringList found;
    for (const Entry &trace : options.traces.list())
        found.append(trace.traceItem().channelName() + u' ' + trace.peaksOptionsName());
    QCOMPARE(found, (QStringList{u"TIC TIC-preset"_s, u"BPC BPI-preset"_s, u"x Default-preset"_s,
                                 u"UV UV-preset"_s, u"pump Default-preset"_s, u"uv.csv CSV-preset"_s}));
    QVERIFY(!options.traces.list().at(1).isImported());
    QCOMPARE(options.traces.list().at(5).samplesIds(), TraceSampleIds({3}));
    QStringList warnings;
    QStringList errors;
    QVERIFY(options.validate(&warnings, &errors));
    QVERIFY(warnings.isEmpty());
}

void TestElutionPeaks::samplesAreHandedOn()
{
    Compatibility::Input input;
    SamplesInput::SampleWithCustomColumns sample;
    sample.name = u"lot 1"_s;
    sample.customValues.insert(u"Condition"_s, u"treated"_s);
    input.samples.samples = {sample};
    QVERIFY(input.samples.columns.addCustomColumn(u"Condition"_s));
    QVERIFY(outputOf(input).samples == input.samples);
}

void TestElutionPeaks::doubleDashesBecomeEmpty()
{
    RowNode table;
    table.addData(QStringList{u"a"_s, u"--"_s});
    RowNode *row = table.addNewChild({u"--"_s, u"a--b"_s, u" -- "_s, 2.5, u"-"_s, u"---"_s});
    row->addNewChild({u"--"_s});
    Compatibility::removeAllDoubleDashFromRowNode(row);
    QCOMPARE(row->data.toStringList(), (QStringList{{}, u"a--b"_s, {}, u"2.5"_s, u"-"_s, u"---"_s}));
    QCOMPARE(row->data.at(3), QVariant(2.5));
    QCOMPARE(row->getChild(0)->data.toStringList(), QStringList{QString()});
    QCOMPARE(table.data.toStringList(), (QStringList{u"a"_s, u"--"_s}));
}

void TestElutionPeaks::aTableGivesATraceByItsName_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Traces>("existing");
    QTest::addColumn<TraceItem>("trace");
    const TraceItem uv(TraceType::Csv, {u"uv.csv"_s, u"uv.csv"_s});
    QTest::newRow("a new one") << u"/runs/1/uv.csv"_s << Traces() << uv;
    QTest::newRow("that of another folder") << u"/runs/2/uv.csv"_s << Traces{uv} << uv;
    QTest::newRow("another case") << u"/runs/2/UV.CSV"_s << Traces{uv} << uv;
    QTest::newRow("another name") << u"C:\\runs\\b.txt"_s << Traces{uv}
                                  << TraceItem(TraceType::Csv, {u"b.txt"_s, u"b.txt"_s});
    QTest::newRow("the name of another kind")
        << u"uv.csv"_s << Traces{{TraceType::Uv, {u"UV.csv"_s, u"1"_s}}} << uv;
}

void TestElutionPeaks::aTableGivesATraceByItsName()
{
    QFETCH(QString, file);
    QFETCH(Traces, existing);
    QFETCH(TraceItem, trace);
    QCOMPARE(Compatibility::createTraceCsvTrace(referenceOf(file), existing), std::optional(trace));
}

void TestElutionPeaks::noFileGivesNoTrace()
{
    QVERIFY(!Compatibility::createTraceCsvTrace({}, {}));
    QVERIFY(!Compatibility::createTraceCsvTrace(referenceOf({}), {}));
}

void TestElutionPeaks::entriesGiveTheirTraces()
{
    QCOMPARE(Compatibility::traceItemsFromTracesEntries({}), Traces());
    const TraceItem tic(TraceType::Tic, {u"TIC"_s, u"1"_s});
    const TraceItem uv(TraceType::Uv, {u"UV"_s, u"2"_s});
    QCOMPARE(Compatibility::traceItemsFromTracesEntries({Entry(uv), Entry(tic)}), (Traces{uv, tic}));
}

ORV_REGISTER_TEST(TestElutionPeaks)
#include "TestElutionPeaks.moc"
