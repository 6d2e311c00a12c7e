#include "LogCapture.h"
#include "OrvTest.h"
#include "RecordingQuestions.h"
#include "SampleTree.h"
#include "TestData.h"
#include "TraceFiles.h"

#include <orv/propertyeditor/ObsoleteCustomSettingsChecker.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/workflow/MirelElutionPeaksBackwardsCompatibility.h>

#include <QJsonArray>
#include <QJsonObject>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

using Compatibility = ElutionPeaksBackwardsCompatibility;
using Old = Compatibility::OldPeaksOptions;
using Entry = TracesImportList::Entry;
using SamplesInput::CustomColumns;
using SamplesInput::SampleWithCustomColumns;

namespace {

/// A cell of settings that holds these values.
std::unique_ptr<KeyValueItem> itemWith(const QJsonObject &values)
{
    QJsonArray properties;
    for (auto it = values.begin(); it != values.end(); ++it)
        properties.append(
            QJsonObject{{u"name"_s, it.key()}, {u"value"_s, it.value()}, {u"group"_s, u"Traces"_s}});
    auto item = std::make_unique<KeyValueItem>(BaseItemType::Intact);
    const Error error = item->assignFromJson({{u"type"_s, u"Intact"_s}, {u"properties"_s, properties}}, {});
    if (error)
        qFatal("%s", qPrintable(error.errorMessage()));
    return item;
}

/// The keys beside those that a load adds to every such cell.
QStringList keysOf(const KeyValueItem &item)
{
    QStringList keys = item.keys();
    for (const QString &key : itemWith({})->keys())
        keys.removeOne(key);
    return keys;
}

Compatibility::Input inputOf(KeyValueItem *item, bool isIntact = true)
{
    return MirelElutionPeaksBackwardsCompatibility::inputFromWlfw(RowNode(), {}, item, isIntact);
}

QStringList oldKeys()
{
    QStringList keys;
    for (const QString &prefix : {u"Tic"_s, u"Bpi"_s, u"Uv"_s}) {
        for (const QString &key :
             {u"PeakMethod"_s, u"SmoothSigma"_s, u"IntervalTimeMin"_s, u"BaselineMethod"_s,
              u"SmoothSigmaBaseline"_s, u"BaselineMaxAngle"_s, u"BaselineMaxLimit"_s, u"BaselineMinAngle"_s,
              u"BaselineMinLimit"_s, u"BaselinePushLimit"_s, u"BaselinePushTolerance"_s, u"PeakTolMax"_s,
              u"PeakTolMin"_s})
            keys.append(prefix + key);
    }
    return keys;
}

RowNode table(const QStringList &columns, const QList<VariantItems> &rows)
{
    RowNode root;
    root.addData(columns);
    for (const VariantItems &row : rows)
        root.addNewChild(row);
    return root;
}

RowNode definitions(const QList<QVariantMap> &columns)
{
    RowNode node;
    for (const QVariantMap &column : columns)
        node.data.append(column);
    return node;
}

struct Extracted
{
    QList<SampleWithCustomColumns> samples;
    CustomColumns columns;
    QList<Entry> traces;

    [[nodiscard]] QStringList traceNames() const
    {
        QStringList names;
        for (const Entry &entry : traces)
            names.append(entry.traceItem().channelName());
        return names;
    }
};

Extracted extracted(const RowNode &samples, const std::optional<RowNode> &columns = {})
{
    Extracted result;
    extractSamplesAndAllTracesFromWlfwSamplesRowNode(samples, columns, &result.samples, &result.columns,
                                                     &result.traces);
    return result;
}

} // namespace

class TestMirelElutionPeaks : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void missingKeysHaveTheirDefaults();
    void keysAreReadPerKind_data();
    void keysAreReadPerKind();
    void methodsAreOnForOneTextOnly_data();
    void methodsAreOnForOneTextOnly();
    void allOldKeysAreRemovedAndNoOthers();
    void theTimeRangeIsReadAndRemoved_data();
    void theTimeRangeIsReadAndRemoved();
    void aTimeRangeThatCannotBeHeldIsLeftOutWithAWarning_data();
    void aTimeRangeThatCannotBeHeldIsLeftOutWithAWarning();
    void theAdvancedTextIsTaken();
    void retiredSettingsOfPeaksAreThoseOfTheCheck();
    void samplesAreReadByColumn();
    void doubleDashesAreNothing();
    void olderNamesOfThePathAreRead();
    void customColumnsAreTakenOver();
    void definedColumnsComeFirst();
    void columnsThatCannotBeTakenOverAreTold();
    void textsThatAreNoReferencesAreLeftOutWithAWarning();
    void metadataThatAreAnObjectAreKept();
    void tracesOfAllFilesAreCollectedOnce();
    void anImportedTraceOfOneFileIsImported();
    void aTableGivesATraceForItsSamples();
    void aPathOfATraceFileIsNotOpened_data();
    void aPathOfATraceFileIsNotOpened();
    void aFileFoundElsewhereStaysWithTheSample();
    void oneAnswerHoldsForTheProcess();
    void everyMissingFileGivesALineInAConsole();
};

void TestMirelElutionPeaks::missingKeysHaveTheirDefaults()
{
    const auto item = itemWith({});
    const Compatibility::Input input = inputOf(item.get());
    for (int kind : {Compatibility::Tic, Compatibility::Bpi, Compatibility::Uv}) {
        const Old old = input.oldOptions.at(size_t(kind));
        QCOMPARE(old.peakMethod, 1);
        QCOMPARE(old.smoothSigma, kind == Compatibility::Uv ? 0.05 : 0.1);
        QCOMPARE(old.intervalTimeMinutes, 0.5);
        QCOMPARE(old.baselineMethod, 1);
        QCOMPARE(old.smoothSigmaBaseline, 1.5);
    }
    QVERIFY(!input.timeRangeOfInterest);
    QCOMPARE(input.advancedText, QString());
    QVERIFY(input.isIntact);
    QVERIFY(!inputOf(item.get(), false).isIntact);

    KeyValueItem neverLoaded(BaseItemType::Dravik);
    QVERIFY(inputOf(&neverLoaded).oldOptions == input.oldOptions);
}

void TestMirelElutionPeaks::keysAreReadPerKind_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<int>("kind");
    QTest::newRow("TIC") << u"Tic"_s << 0;
    QTest::newRow("BPI") << u"Bpi"_s << 1;
    QTest::newRow("UV") << u"Uv"_s << 2;
}

void TestMirelElutionPeaks::keysAreReadPerKind()
{
    QFETCH(QString, prefix);
    QFETCH(int, kind);
    const auto item = itemWith({{prefix + u"PeakMethod"_s, u"Disable"_s},
                                {prefix + u"SmoothSigma"_s, 0.25},
                                {prefix + u"IntervalTimeMin"_s, 0.75},
                                {prefix + u"BaselineMethod"_s, u"Disable"_s},
                                {prefix + u"SmoothSigmaBaseline"_s, 2.5}});
    const Compatibility::Input input = inputOf(item.get());
    const Compatibility::Input usual;
    for (size_t i = 0; i < input.oldOptions.size(); ++i) {
        const Old old{.peakMethod = 0,
                      .smoothSigma = 0.25,
                      .intervalTimeMinutes = 0.75,
                      .baselineMethod = 0,
                      .smoothSigmaBaseline = 2.5};
        QVERIFY(input.oldOptions.at(i) == (i == size_t(kind) ? old : usual.oldOptions.at(i)));
    }
}

void TestMirelElutionPeaks::methodsAreOnForOneTextOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("method");
    QTest::newRow("on") << u"Enable"_s << 1;
    QTest::newRow("off") << u"Disable"_s << 0;
}

void TestMirelElutionPeaks::methodsAreOnForOneTextOnly()
{
    QFETCH(QString, text);
    QFETCH(int, method);
    const auto item = itemWith({{u"UvPeakMethod"_s, text}, {u"UvBaselineMethod"_s, text}});
    const Old old = inputOf(item.get()).oldOptions.at(Compatibility::Uv);
    QCOMPARE(old.peakMethod, method);
    QCOMPARE(old.baselineMethod, method);

    // A key may be there as a plain text that no list checks.
    const auto plain = itemWith({});
    QVERIFY(plain->insert(u"UvPeakMethod"_s, u"Traces"_s, u"enable"_s, 10));
    QCOMPARE(inputOf(plain.get()).oldOptions.at(Compatibility::Uv).peakMethod, 0);
}

void TestMirelElutionPeaks::allOldKeysAreRemovedAndNoOthers()
{
    QCOMPARE(oldKeys().size(), 39);
    QJsonObject values{{u"AdvancedConfiguration"_s, u"[A]\nx=1"_s},
                       {u"InterestTimeStart"_s, 1.0},
                       {u"InterestTimeEnd"_s, 2.0}};
    for (const QString &key : oldKeys())
        values.insert(key, key.endsWith(u"Method"_s) ? QJsonValue(u"Enable"_s) : QJsonValue(1.0));
    const auto item = itemWith(values);
    QCOMPARE(keysOf(*item).size(), 42);
    const Compatibility::Input input = inputOf(item.get());
    QCOMPARE(keysOf(*item), QStringList{u"AdvancedConfiguration"_s});
    QCOMPARE(input.oldOptions.at(Compatibility::Tic).smoothSigma, 1.0);
}

void TestMirelElutionPeaks::theTimeRangeIsReadAndRemoved_data()
{
    QTest::addColumn<QJsonObject>("values");
    QTest::addColumn<QString>("range");
    const auto both = [](double start, double end) {
        return QJsonObject{{u"InterestTimeStart"_s, start}, {u"InterestTimeEnd"_s, end}};
    };
    QTest::newRow("good") << both(1.5, 30) << u"1.50 30.00"_s;
    QTest::newRow("rounded") << both(0.126, 2.994) << u"0.13 2.99"_s;
    QTest::newRow("nothing long") << both(2, 2) << u"2.00 2.00"_s;
    QTest::newRow("from zero") << both(0, 5) << u"0.00 5.00"_s;
    QTest::newRow("a trifle below zero") << both(-1e-13, 5) << u"0.00 5.00"_s;
    QTest::newRow("below zero") << both(-1e-11, 5) << QString();
    QTest::newRow("out of order") << both(5, 4.99) << QString();
    QTest::newRow("no end") << QJsonObject{{u"InterestTimeStart"_s, 1.0}} << QString();
    QTest::newRow("no start") << QJsonObject{{u"InterestTimeEnd"_s, 1.0}} << QString();
    QTest::newRow("neither") << QJsonObject() << QString();
}

void TestMirelElutionPeaks::theTimeRangeIsReadAndRemoved()
{
    QFETCH(QJsonObject, values);
    QFETCH(QString, range);
    const auto item = itemWith(values);
    const auto found = inputOf(item.get()).timeRangeOfInterest;
    QCOMPARE(found ? found->start.toString() + u' ' + found->end.toString() : QString(), range);
    QCOMPARE(keysOf(*item), QStringList());
}

void TestMirelElutionPeaks::aTimeRangeThatCannotBeHeldIsLeftOutWithAWarning_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::newRow("endless") << u"0"_s << u"inf"_s;
    QTest::newRow("huge end") << u"0"_s << u"1e300"_s;
    QTest::newRow("both huge") << u"1e300"_s << u"1e301"_s;
    QTest::newRow("no number") << u"0"_s << u"nan"_s;
    QTest::newRow("from no number") << u"nan"_s << u"5"_s;
}

void TestMirelElutionPeaks::aTimeRangeThatCannotBeHeldIsLeftOutWithAWarning()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    const auto item = itemWith({{u"InterestTimeStart"_s, start}, {u"InterestTimeEnd"_s, end}});
    const LogCapture log;
    QVERIFY(!inputOf(item.get()).timeRangeOfInterest);
    QCOMPARE(keysOf(*item), QStringList());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().contains(u"The time range of interest from %1 to %2 minutes"_s.arg(
        start == u"1e300"_s ? u"1e+300"_s : start, end == u"1e300"_s   ? u"1e+300"_s
                                                   : end == u"1e301"_s ? u"1e+301"_s
                                                                       : end)));
}

void TestMirelElutionPeaks::theAdvancedTextIsTaken()
{
    const auto item = itemWith({{u"AdvancedConfiguration"_s, u"[Intact]\nMode=Denatured"_s}});
    QCOMPARE(inputOf(item.get()).advancedText, u"[Intact]\nMode=Denatured"_s);
}

void TestMirelElutionPeaks::retiredSettingsOfPeaksAreThoseOfTheCheck()
{
    QSet<QString> keys;
    for (const ObsoleteCustomSettingsChecker::Row &row : ObsoleteCustomSettingsChecker::rows()) {
        if (row.successor == PropertyId::SamplesTable)
            keys.insert(row.key);
    }
    QCOMPARE(keys, (QSet<QString>{Compatibility::kAutoCompute, Compatibility::kPeakWidthFactor}));
}

void TestMirelElutionPeaks::samplesAreReadByColumn()
{
    const Extracted result =
        extracted(table({u"Ms2Search"_s, u"SampleName"_s, u"SamplePath"_s, u"SampleTimeUnit"_s,
                         u"Digestion"_s, u"TracesCsv"_s, u"TracesMs"_s, u"SampleType"_s, u"Metadata"_s},
                        {{u"/r/lot1.karvrslt"_s, u"lot 1.raw"_s, goodFile(), u"min"_s, u"Trypsin"_s,
                          u"/r/uv.csv"_s, goodFile(), u"Blank"_s, u""_s},
                         {{}, u"lot 2"_s}}));
    QCOMPARE(result.samples.size(), 2);
    const SampleWithCustomColumns &sample = result.samples.at(0);
    QCOMPARE(sample.id, 1);
    QCOMPARE(sample.name, u"lot 1"_s);
    QCOMPARE(sample.msFile->text(), goodFile());
    QCOMPARE(sample.timeUnit, u"min"_s);
    QCOMPARE(sample.digestion, u"Trypsin"_s);
    QCOMPARE(sample.sampleType, u"Blank"_s);
    QVERIFY(sample.metadata.isEmpty());
    QCOMPARE(sample.traces.size(), 2);
    QCOMPARE(sample.traces.at(0)->text(), u"/r/uv.csv"_s);
    QCOMPARE(sample.traces.at(1)->text(), goodFile());
    QCOMPARE(sample.extraReferences.size(), 1);
    QCOMPARE(sample.extraReferences.at(0)->text(), u"/r/lot1.karvrslt"_s);
    QVERIFY(sample.customValues.isEmpty());
    QVERIFY(result.columns.isEmpty());

    const SampleWithCustomColumns &second = result.samples.at(1);
    QCOMPARE(second.id, 2);
    QCOMPARE(second.name, u"lot 2"_s);
    QVERIFY(!second.msFile);
    QVERIFY(second.companions().isEmpty());
}

void TestMirelElutionPeaks::doubleDashesAreNothing()
{
    const Extracted result =
        extracted(table({u"SampleName"_s, u"SamplePath"_s, u"TracesCsv"_s, u"Condition"_s},
                        {{u"lot--1"_s, u"--"_s, u"--"_s, u"--"_s}}));
    const SampleWithCustomColumns &sample = result.samples.first();
    QCOMPARE(sample.name, u"lot--1"_s);
    QVERIFY(!sample.msFile);
    QVERIFY(sample.traces.isEmpty());
    QCOMPARE(sample.customValues.value(u"Condition"_s), QVariant(QString()));
    QVERIFY(result.traces.isEmpty());
}

void TestMirelElutionPeaks::olderNamesOfThePathAreRead()
{
    for (const QString &column : {u"FilePath"_s, u"FileName"_s}) {
        const Extracted result = extracted(table({u"SampleName"_s, column}, {{u"a"_s, goodFile()}}));
        QCOMPARE(result.samples.first().msFile->text(), goodFile());
        QVERIFY(result.columns.isEmpty());
        QCOMPARE(result.traces.size(), 2);
    }
}

void TestMirelElutionPeaks::customColumnsAreTakenOver()
{
    const Extracted result = extracted(
        table({u"SampleName"_s, u"Condition"_s, u"Replicate"_s}, {{u"a"_s, u"treated"_s, 2}, {u"b"_s}}));
    QCOMPARE(result.columns.customColumnNames(), (QStringList{u"Condition"_s, u"Replicate"_s}));
    QCOMPARE(result.columns.columns().first().type, u"text"_s);
    QCOMPARE(result.samples.at(0).customValues,
             (QVariantMap{{u"Condition"_s, u"treated"_s}, {u"Replicate"_s, 2}}));
    QVERIFY(result.samples.at(1).customValues.isEmpty());
}

void TestMirelElutionPeaks::definedColumnsComeFirst()
{
    const RowNode defined = definitions({{{u"name"_s, u"Replicate"_s}, {u"type"_s, u"number"_s}},
                                         {{u"name"_s, u"SampleName"_s}, {u"type"_s, u"text"_s}},
                                         {{u"name"_s, u"Later"_s}}});
    const Extracted result =
        extracted(table({u"SampleName"_s, u"Condition"_s, u"Replicate"_s}, {{u"a"_s, u"x"_s, 2}}), defined);
    QStringList columns;
    for (const SamplesInput::CustomColumn &column : result.columns.columns())
        columns.append(column.name + u' ' + column.type);
    QCOMPARE(columns, (QStringList{u"Replicate number"_s, u"Later text"_s, u"Condition text"_s}));
    QCOMPARE(result.samples.first().customValues,
             (QVariantMap{{u"Condition"_s, u"x"_s}, {u"Replicate"_s, 2}}));
}

void TestMirelElutionPeaks::columnsThatCannotBeTakenOverAreTold()
{
    const LogCapture log;
    const Extracted result = extracted(table({u"SampleName"_s, u"SamplesId"_s, u""_s}, {{u"a"_s, 7, 8}}),
                                       definitions({{{u"type"_s, u"text"_s}}}));
    QVERIFY(result.columns.isEmpty());
    QCOMPARE(result.samples.first().id, 1);
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings().at(0).contains(u"without a name"_s));
    QVERIFY(log.warnings().at(1).contains(u"\"SamplesId\""_s));
}

void TestMirelElutionPeaks::textsThatAreNoReferencesAreLeftOutWithAWarning()
{
    const QString bad = u"ftp://server/a.raw"_s;
    const QString words = ResourceReference::fromString(bad).error().errorMessage();
    const LogCapture log;
    const Extracted result =
        extracted(table({u"SampleName"_s, u"SamplePath"_s, u"TracesCsv"_s, u"TracesMs"_s, u"Ms2Search"_s},
                        {{u"a"_s, bad, bad, bad, bad}}));
    QCOMPARE(log.warnings(), QStringList(4, words));
    QCOMPARE(result.samples.size(), 1);
    QCOMPARE(result.samples.first().name, u"a"_s);
    QVERIFY(!result.samples.first().msFile);
    QVERIFY(result.samples.first().companions().isEmpty());
    QVERIFY(result.traces.isEmpty());
}

void TestMirelElutionPeaks::metadataThatAreAnObjectAreKept()
{
    const QVariantMap map{{u"type"_s, 1}};
    const Extracted result =
        extracted(table({u"SampleName"_s, u"Metadata"_s},
                        {{u"a"_s, u"{\"type\": 1}"_s}, {u"b"_s, map}, {u"c"_s, u"some words"_s}}));
    QCOMPARE(result.samples.at(0).metadata, (QJsonObject{{u"type"_s, 1}}));
    QCOMPARE(result.samples.at(1).metadata, (QJsonObject{{u"type"_s, 1}}));
    QVERIFY(result.samples.at(2).metadata.isEmpty());
}

void TestMirelElutionPeaks::tracesOfAllFilesAreCollectedOnce()
{
    const Extracted result =
        extracted(table({u"SampleName"_s, u"SamplePath"_s, u"TracesMs"_s},
                        {{u"a"_s, goodFile(), TestData::path(u"core_ms/ms/OpenSwath_generic_input.mzML"_s)},
                         {u"b"_s, goodFile()},
                         {u"c"_s, TestData::path(u"core_ms/ms/ten_ms2.mzML"_s)}}));
    QCOMPARE(result.traceNames(),
             (QStringList{u"TIC"_s, u"BPC"_s, u"tr1"_s, u"tr3"_s, u"tr2"_s, u"tr4"_s, u"tr5"_s}));
    for (const Entry &entry : result.traces)
        QVERIFY(entry.samplesIds().isAll());
}

void TestMirelElutionPeaks::anImportedTraceOfOneFileIsImported()
{
    const Extracted result = extracted(table({u"SampleName"_s, u"SamplePath"_s}, {{u"a"_s, goodFile()}}));
    QVERIFY(result.traces.at(0).isImported());
    QVERIFY(!result.traces.at(1).isImported());
}

void TestMirelElutionPeaks::aTableGivesATraceForItsSamples()
{
    const Extracted result = extracted(table(
        {u"SampleName"_s, u"TracesCsv"_s},
        {{u"a"_s, u"/r/1/uv.csv"_s}, {u"b"_s, u"/r/2/UV.csv"_s}, {u"c"_s, u"C:\\r\\lamp.txt"_s}, {u"d"_s}}));
    QCOMPARE(result.traceNames(), (QStringList{u"uv.csv"_s, u"lamp.txt"_s}));
    QCOMPARE(result.traces.at(0).traceItem().type(), TraceType::Csv);
    QCOMPARE(result.traces.at(0).samplesIds(), TraceSampleIds({1, 2}));
    QCOMPARE(result.traces.at(1).samplesIds(), TraceSampleIds({3}));
    QVERIFY(result.traces.at(0).isImported());
}

void TestMirelElutionPeaks::aPathOfATraceFileIsNotOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isTraceFile");
    for (const char *name : {"a.csv", "a.CSV", "a.txt", "a.Txt", "a.arw", "a.ARW"})
        QTest::newRow(name) << QString::fromLatin1(name) << true;
    for (const char *name : {"a.csv.mzML", "acsv", "a.tsv"})
        QTest::newRow(name) << QString::fromLatin1(name) << false;
}

void TestMirelElutionPeaks::aPathOfATraceFileIsNotOpened()
{
    QFETCH(QString, name);
    QFETCH(bool, isTraceFile);
    // A missing file gives a line when it is to be opened.
    const LogCapture log;
    const Extracted result =
        extracted(table({u"SampleName"_s, u"SamplePath"_s}, {{u"a"_s, u"/nowhere/"_s + name}}));
    QCOMPARE(log.warnings().isEmpty(), isTraceFile);
    QCOMPARE(result.traceNames(), isTraceFile ? QStringList{name} : QStringList());
    QCOMPARE(result.samples.first().msFile->text(), u"/nowhere/"_s + name);
}

void TestMirelElutionPeaks::aFileFoundElsewhereStaysWithTheSample()
{
    const PersonAtTheScreen person;
    person->reply.answer = MissingFileQuestions::Answer::FindFile;
    person->chosen = goodFile();
    const Extracted result = extracted(table({u"SampleName"_s, u"SamplePath"_s, u"TracesMs"_s},
                                             {{u"a"_s, u"/nowhere/a.mzML"_s, u"/nowhere/t.mzML"_s}}));
    QCOMPARE(result.samples.first().msFile->text(), goodFile());
    QCOMPARE(result.samples.first().traces.first()->text(), goodFile());
    QCOMPARE(person->questions.size(), 2);
    QCOMPARE(result.traceNames(), (QStringList{u"TIC"_s, u"BPC"_s}));
}

void TestMirelElutionPeaks::oneAnswerHoldsForTheProcess()
{
    const PersonAtTheScreen person;
    person->reply.isBoxChecked = true;
    const RowNode samples = table({u"SampleName"_s, u"SamplePath"_s},
                                  {{u"a"_s, u"/nowhere/a.mzML"_s}, {u"b"_s, u"/nowhere/b.mzML"_s}});
    for (int workflow = 0; workflow < 2; ++workflow) {
        const Extracted result = extracted(samples);
        QCOMPARE(result.samples.size(), 2);
        QCOMPARE(result.samples.first().msFile->text(), u"/nowhere/a.mzML"_s);
        QVERIFY(result.traces.isEmpty());
    }
    QCOMPARE(person->questions.size(), 1);
    QVERIFY(person->dialogs.isEmpty());
    QVERIFY(person->errors.isEmpty());

    MissingFileQuestions::forgetAnswer();
    QCOMPARE(extracted(samples).samples.size(), 2);
    QCOMPARE(person->questions.size(), 2);
}

void TestMirelElutionPeaks::everyMissingFileGivesALineInAConsole()
{
    const LogCapture log;
    const Extracted result =
        extracted(table({u"SampleName"_s, u"SamplePath"_s},
                        {{u"a"_s, u"/nowhere/a.mzML"_s}, {u"b"_s, u"/nowhere/b.mzML"_s}}));
    QCOMPARE(log.warnings(),
             (QStringList{u"File /nowhere/a.mzML not found. Cannot load traces for this file."_s,
                          u"File /nowhere/b.mzML not found. Cannot load traces for this file."_s}));
    QCOMPARE(result.samples.size(), 2);
}

ORV_REGISTER_TEST(TestMirelElutionPeaks)
#include "TestMirelElutionPeaks.moc"
