#include "OrvTest.h"

#include <orv/samples/SamplesAndTracesTables.h>
#include <orv/table_model/TableSheet.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <limits>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QJsonObject parsed(const char *json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return document.object();
}

QJsonObject twoSamples()
{
    return parsed(R"({
        "Samples": [
            {"SamplesId": 4, "SampleName": "lot 1", "SamplePath": "../data/lot1.raw", "Reference": true,
             "Condition": "treated", "Volume": 1.50, "Newer": {"a": [1]}, "FileMetadata": {"x": {"y": 1}}},
            {"SamplesId": 7, "SampleName": "lot 2", "SamplePath": "../data/lot2.raw", "Traces": ["a;b.csv", "c.csv"]}
        ],
        "CustomColumns": [{"name": "Condition", "type": "text"}, {"name": "Volume", "type": "number"}],
        "TraceImportAndProcessingOptions": {
            "TracesImportList": [
                {"type": 3, "channelName": "UV 214", "channelId": "u1", "samplesIds": [7], "peaksOptions": "P",
                 "imported": true},
                {"type": 42, "channelName": "new", "channelId": "n", "newer": true,
                 "imported": true}],
            "ElutionPeaksOptions": [
                {"name": "P", "timeRange": {"start": "1.00", "end": "20.500"}, "creationOptions": {"newer": 1,
                 "autoCompute": 0, "correctsBaseline": true, "findsPeaks": true, "intervalTimeMinutes": 0.5,
                 "smoothSigma": 0.1, "smoothSigmaBaseline": 1.5}}]},
        "newer": "kept"})");
}

QJsonObject sampleOf(const QJsonObject &content, int row)
{
    return content["Samples"_L1].toArray()[row].toObject();
}

struct Tables : SamplesAndTracesTables
{
    explicit Tables(const QJsonObject &json)
    {
        if (setJsonContent(json).hasError())
            qFatal("The samples don't load");
    }
    void edit(int row, const char *column, const QString &text)
    {
        const Sheet sheet = samples();
        if (sheet->setText(row, sheet->columnOf(QLatin1String(column)), text).hasError())
            qFatal("The text has no room");
    }
    QString cell(int row, const char *column) const
    {
        return samples()->text(row, samples()->columnOf(QLatin1String(column))).toString();
    }
};

} // namespace

class TestSamplesAndTracesTables : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsTheContentAfterAnyEdit_data();
    void whatIsWrittenIsTheContentAfterAnyEdit();
    void whatNobodyEditsComesBack();
    void anEditChangesItsCellAlone();
    void undoneEditsLeaveNothing();
    void newSamplesGetFreeIds();
    void idsStayWithTheirRows();
    void entriesFollowEveryStepOnce();
    void customColumnsComeAndGo();
    void filesAreAddedOnce();
    void samplesAreNamedByTheirFiles();
    void wrongTextsStayAndAreTold();
    void whatIsNoReferenceIsShownAndMended();
    void tracesAndPresetsAreEdited();
    void tracesTellTheirSamples();
    void whatIsNoContentComesBack();
    void settingContentFromAListenerIsSafe();
    void highestIdsAreNoTrap();
};

void TestSamplesAndTracesTables::whatNobodyEditsComesBack()
{
    const Tables tables(twoSamples());
    QCOMPARE(tables.jsonContent(), twoSamples());
    QCOMPARE(tables.content().toJson(), twoSamples());
    QCOMPARE(tables.cell(0, "Volume"), u"1.5"_s);
    QCOMPARE(tables.cell(1, "Traces"), u"\"a;b.csv\"; c.csv"_s);
    QCOMPARE(tables.cell(0, "Reference"), u"Yes"_s);
}

void TestSamplesAndTracesTables::anEditChangesItsCellAlone()
{
    Tables tables(twoSamples());
    tables.edit(0, "SampleName", u"renamed"_s);
    tables.edit(0, "Volume", u"2.25"_s);
    tables.edit(1, "SamplePath", u"/data/lot2.raw"_s);
    QJsonObject expected = twoSamples();
    QJsonArray samples = expected["Samples"_L1].toArray();
    QJsonObject first = samples[0].toObject();
    first["SampleName"_L1] = u"renamed"_s;
    first["Volume"_L1] = 2.25;
    QJsonObject second = samples[1].toObject();
    second["SamplePath"_L1] = u"/data/lot2.raw"_s;
    expected["Samples"_L1] = QJsonArray{first, second};
    QCOMPARE(tables.jsonContent(), expected);
}

void TestSamplesAndTracesTables::undoneEditsLeaveNothing()
{
    QJsonObject json = twoSamples();
    QJsonArray samples = json["Samples"_L1].toArray();
    QJsonObject withoutId = samples[0].toObject();
    withoutId.remove("SamplesId"_L1);
    json["Samples"_L1] = QJsonArray{withoutId};
    Tables tables(json);
    tables.edit(0, "SampleName", u"renamed"_s);
    QVERIFY(tables.jsonContent() != json);
    tables.samples()->history()->undo();
    QCOMPARE(tables.jsonContent(), json);
}

void TestSamplesAndTracesTables::newSamplesGetFreeIds()
{
    Tables tables(twoSamples());
    tables.samples()->insertRows(1, 2);
    tables.samples()->duplicateRows({0});
    QList<int> ids;
    for (const SamplesInput::Entry &entry : tables.entries())
        ids.append(entry.id);
    QCOMPARE(ids.size(), 5);
    QCOMPARE(ids.constFirst(), 4);
    QCOMPARE(ids.constLast(), 7);
    QCOMPARE(QSet<int>(ids.begin(), ids.end()), (QSet<int>{4, 7, 8, 9, 10}));
    QCOMPARE(tables.entries()[1].name, u"lot 1"_s);
}

void TestSamplesAndTracesTables::idsStayWithTheirRows()
{
    Tables tables(twoSamples());
    tables.samples()->insertRows(2, 1);
    const int id = tables.entries()[2].id;
    tables.samples()->moveRows({2}, 0);
    QCOMPARE(tables.entries()[0].id, id);
    tables.samples()->removeRows({0});
    tables.samples()->history()->undo();
    QCOMPARE(tables.entries()[0].id, id);
    QCOMPARE(tables.sampleIdOfRow(tables.samples()->rowId(1)), 4);
}

void TestSamplesAndTracesTables::entriesFollowEveryStepOnce()
{
    Tables tables(twoSamples());
    QSignalSpy changes(&tables, &SamplesAndTracesTables::samplesChanged);
    const auto names = [&tables] {
        QStringList texts;
        for (const SamplesInput::Entry &entry : tables.entries())
            texts.append(entry.name);
        return texts.join(u',');
    };
    // One step that changes a row and adds two.
    const Error error =
        tables.samples()->setCells({{0, 0, u"a"_s}, {2, 0, u"b"_s}, {3, 0, u"c"_s}}, u"paste"_s);
    ORV_VERIFY_OK(error);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(names(), u"a,lot 2,b,c"_s);
    tables.samples()->history()->undo();
    QCOMPARE(changes.size(), 2);
    QCOMPARE(names(), u"lot 1,lot 2"_s);
    tables.samples()->history()->redo();
    tables.samples()->removeRows({1, 2});
    QCOMPARE(names(), u"a,c"_s);
    tables.samples()->history()->undo();
    QCOMPARE(names(), u"a,lot 2,b,c"_s);
    tables.samples()->moveRows({3}, 0);
    QCOMPARE(names(), u"c,a,lot 2,b"_s);
    QCOMPARE(changes.size(), 6);
}

void TestSamplesAndTracesTables::customColumnsComeAndGo()
{
    Tables tables(twoSamples());
    QSignalSpy sheets(&tables, &SamplesAndTracesTables::sheetsChanged);
    ORV_VERIFY_OK(tables.addCustomColumn({u"Replicate"_s, u"number"_s, {}, {}}));
    QCOMPARE(sheets.size(), 1);
    tables.edit(1, "Replicate", u"3"_s);
    QCOMPARE(sampleOf(tables.jsonContent(), 1)["Replicate"_L1].toDouble(), 3.0);
    const Error taken = tables.addCustomColumn({u"SampleName"_s, u"text"_s, {}, {}});
    QCOMPARE(taken.errorMessage(), u"A column can't be called \"SampleName\"."_s);
    QVERIFY(tables.hasValues(u"Condition"_s));
    QVERIFY(tables.removeCustomColumn(u"Condition"_s));
    QVERIFY(!tables.removeCustomColumn(u"Condition"_s));
    QVERIFY(!sampleOf(tables.jsonContent(), 0).contains("Condition"_L1));
    QCOMPARE(sampleOf(tables.jsonContent(), 1)["Replicate"_L1].toDouble(), 3.0);
    QCOMPARE(tables.entries()[0].id, 4);
}

void TestSamplesAndTracesTables::filesAreAddedOnce()
{
    Tables tables(twoSamples());
    const QList<SamplePathAndName> files = {{u"/d/new.raw"_s, {}},
                                            {u"/d/new.raw"_s, u"again"_s},
                                            {u"../data/lot1.raw"_s, {}},
                                            {u"../data/lot1.raw"_s, u"lot 1"_s}};
    QCOMPARE(*tables.addFiles(files), 2);
    QCOMPARE(tables.samples()->rowCount(), 4);
    QCOMPARE(tables.entries()[2].name, u"new"_s);
    QCOMPARE(tables.entries()[2].msFile->text(), u"/d/new.raw"_s);
    QCOMPARE(tables.entries()[3].name, u"again"_s);
    QCOMPARE(*tables.addFiles(files), 0);
    tables.samples()->history()->undo();
    QCOMPARE(tables.samples()->rowCount(), 2);
}

void TestSamplesAndTracesTables::samplesAreNamedByTheirFiles()
{
    Tables tables(twoSamples());
    tables.edit(0, "SampleName", {});
    QCOMPARE(*tables.nameByFiles(), 1);
    QCOMPARE(tables.entries()[0].name, u"lot1"_s);
}

void TestSamplesAndTracesTables::wrongTextsStayAndAreTold()
{
    Tables tables(twoSamples());
    tables.edit(0, "Volume", u"much"_s);
    tables.edit(0, "SamplePath", u"odd://other"_s);
    tables.edit(1, "SampleName", {});
    QStringList warnings;
    QStringList errors;
    QStringList details;
    QVERIFY(!tables.validate(&warnings, &errors, &details));
    QCOMPARE(errors.size(), 3);
    QCOMPARE(errors[1], u"Every sample needs a name."_s);
    QCOMPARE(errors[2], u"Every sample needs a file."_s);
    QVERIFY2(details.contains(u"Samples, row 1, Volume: Is not a number."_s),
             qPrintable(details.join(u'\n')));
    QVERIFY(details.contains(u"Samples without a name are in the rows 2."_s));
    QCOMPARE(sampleOf(tables.jsonContent(), 0)["Volume"_L1].toString(), u"much"_s);
    QCOMPARE(sampleOf(tables.jsonContent(), 0)["SamplePath"_L1].toString(), u"odd://other"_s);
}

void TestSamplesAndTracesTables::whatIsNoReferenceIsShownAndMended()
{
    const QRegularExpression warning(u"odd:.*no reference"_s);
    QTest::ignoreMessage(QtWarningMsg, warning);
    QJsonObject json{
        {u"Samples"_s, QJsonArray{QJsonObject{{u"SampleName"_s, u"a"_s}, {u"SamplePath"_s, u"odd://x"_s}}}}};
    Tables tables(json);
    QCOMPARE(tables.jsonContent(), json);
    QCOMPARE(tables.cell(0, "SamplePath"), u"odd://x"_s);
    QVERIFY(!tables.samples()->problem(0, 1).isEmpty());
    tables.edit(0, "SamplePath", u"x.raw"_s);
    QCOMPARE(tables.entries()[0].msFile->text(), u"x.raw"_s);
    QCOMPARE(sampleOf(tables.jsonContent(), 0)["SamplePath"_L1].toString(), u"x.raw"_s);
}

void TestSamplesAndTracesTables::tracesAndPresetsAreEdited()
{
    Tables tables(twoSamples());
    const auto traces = tables.traces();
    ORV_VERIFY_OK(traces->setText(1, traces->columnOf(u"samplesIds"_s), u"4;7"_s));
    ORV_VERIFY_OK(traces->setText(0, traces->columnOf(u"imported"_s), u"No"_s));
    const auto presets = tables.presets();
    ORV_VERIFY_OK(presets->setText(0, presets->columnOf(u"start"_s), u"2.5"_s));
    QVERIFY(traces->problem(0, traces->columnOf(u"peaksOptions"_s)).isEmpty());
    ORV_VERIFY_OK(presets->setText(0, presets->columnOf(u"name"_s), u"Q"_s));
    QCOMPARE(traces->problem(0, traces->columnOf(u"peaksOptions"_s)), u"There is no preset \"P\"."_s);
    const QJsonObject options = tables.jsonContent()["TraceImportAndProcessingOptions"_L1].toObject();
    const QJsonObject expected = parsed(R"({"traces": [
        {"type": 3, "channelName": "UV 214", "channelId": "u1", "imported": false, "samplesIds": [7],
         "peaksOptions": "P"},
        {"type": 42, "channelName": "new", "channelId": "n", "imported": true, "newer": true,
         "samplesIds": [4, 7]}]})");
    QCOMPARE(options["TracesImportList"_L1].toArray(), expected["traces"_L1].toArray());
    const QJsonObject preset = options["ElutionPeaksOptions"_L1][0].toObject();
    QCOMPARE(preset["timeRange"_L1].toObject(), parsed(R"({"start": "2.5", "end": "20.500"})"));
}

void TestSamplesAndTracesTables::tracesTellTheirSamples()
{
    Tables tables(twoSamples());
    QVERIFY(tables.isTraceOf(0, {7}));
    QVERIFY(!tables.isTraceOf(0, {4}));
    QVERIFY(tables.isTraceOf(1, {4}));
    QCOMPARE(tables.namesOfSamples(u"7; 99"), u"lot 2, no sample 99"_s);
    tables.edit(1, "SampleName", u"renamed"_s);
    QCOMPARE(tables.namesOfSamples(u"7"), u"renamed"_s);
}

void TestSamplesAndTracesTables::whatIsNoContentComesBack()
{
    Tables tables(twoSamples());
    const QJsonObject odd = parsed(R"({"Samples": {"not": "an array"}, "x": 1})");
    QVERIFY(tables.setJsonContent(odd).hasError());
    QVERIFY(tables.isUnreadable());
    QCOMPARE(tables.samples()->rowCount(), 0);
    QCOMPARE(tables.jsonContent(), odd);
    QVERIFY(tables.addFiles({{u"/d/x.raw"_s, {}}}).hasError());
    QVERIFY(tables.addCustomColumn({u"c"_s, u"text"_s, {}, {}}).hasError());
    QCOMPARE(tables.jsonContent(), odd);
    QStringList errors;
    QVERIFY(!tables.validate(nullptr, &errors, nullptr));
    QCOMPARE(errors, QStringList(u"The samples can't be read."_s));
}

void TestSamplesAndTracesTables::settingContentFromAListenerIsSafe()
{
    Tables tables(twoSamples());
    int count = 0;
    connect(&tables, &SamplesAndTracesTables::samplesChanged, &tables, [&] {
        if (++count == 1)
            QVERIFY(!tables.setJsonContent({}).hasError());
    });
    tables.edit(0, "SampleName", u"renamed"_s);
    QCOMPARE(count, 2);
    QCOMPARE(tables.samples()->rowCount(), 0);
}

void TestSamplesAndTracesTables::highestIdsAreNoTrap()
{
    const int highest = std::numeric_limits<int>::max();
    Tables tables(QJsonObject{{u"Samples"_s, QJsonArray{QJsonObject{{u"SamplesId"_s, highest}},
                                                        QJsonObject{{u"SamplesId"_s, 1}}}}});
    tables.samples()->insertRows(2, 2);
    QCOMPARE(tables.entries()[2].id, 2);
    QCOMPARE(tables.entries()[3].id, 3);
}

void TestSamplesAndTracesTables::whatIsWrittenIsTheContentAfterAnyEdit_data()
{
    QTest::addColumn<QJsonObject>("table");

    QTest::newRow("listed columns") << twoSamples();
    QTest::newRow("columns of the members alone") << parsed(
        R"({"Samples":[{"SamplesId":1,"SampleName":"A","Plate":3},{"SamplesId":2,"SampleName":"B","Plate":"x"},
            {"SamplesId":3,"SampleName":"C","FilePath":"/c.raw","Lot":true}]})");
}

void TestSamplesAndTracesTables::whatIsWrittenIsTheContentAfterAnyEdit()
{
    QFETCH(QJsonObject, table);
    QRandomGenerator random(7);
    Tables tables(table);
    const SamplesAndTracesTables::Sheet sheet = tables.samples();
    for (int i = 0; i < 400; ++i) {
        const int row = int(random.bounded(std::max(sheet->rowCount(), 1)));
        const int column = int(random.bounded(sheet->columnCount()));
        Error error;
        switch (random.bounded(6)) {
        case 0:
            error = sheet->insertRows(row, {QStringList(sheet->columnCount())}, u"Insert"_s);
            break;
        case 1:
            sheet->removeRows({row});
            break;
        case 2:
            sheet->history()->undo();
            break;
        case 3:
            sheet->history()->redo();
            break;
        default:
            if (row < sheet->rowCount())
                error = sheet->setText(row, column, QString::number(random.bounded(9)));
        }
        QVERIFY(!error.hasError());
        // Most are read, some edits come together.
        if (random.bounded(3) > 0)
            QCOMPARE(tables.jsonContent(), sheet->history()->index() > 0 ? tables.content().toJson() : table);
    }
}

ORV_REGISTER_TEST(TestSamplesAndTracesTables)

#include "TestSamplesAndTracesTables.moc"
