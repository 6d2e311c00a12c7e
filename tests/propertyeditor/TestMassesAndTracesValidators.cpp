#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/validators/DeltaMassesValidator.h>
#include <orv/propertyeditor/validators/MsTracesValidator.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;
using TableCells::cell;
using TableCells::entry;
using TableCells::node;

namespace {

const QString kNoSamples = u"The workflow doesn't have any samples"_s;
const QString kNoDocuments = u"The workflow doesn't have any documents"_s;

QJsonObject masses(const QList<QJsonArray> &rows)
{
    return cell(u"Masses"_s,
                {entry(u"MassTable"_s, node({u"Name"_s, u"Mass"_s, u"Protein"_s, u"SamplesIds"_s}, rows))});
}

QJsonObject twoSamples(const QJsonArray &traces = {})
{
    return samplesCell({{u"first"_s, u"/data/1.raw"_s, {}, {}}, {u"second"_s, u"/data/2.RAW"_s, {}, {}}},
                       traces);
}

QJsonObject trace(bool imported, const QJsonValue &ids = QJsonValue::Undefined)
{
    QJsonObject json{{u"type"_s, 1}, {u"channelName"_s, u"TIC"_s}, {u"imported"_s, imported}};
    if (!ids.isUndefined())
        json.insert(u"samplesIds"_s, ids);
    return json;
}

QString noTraces(int id)
{
    return u"The sample with id \"%1\" has no MS traces selected. Please select at least one MS trace"_s.arg(
        id);
}

} // namespace

class TestMassesAndTracesValidators : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutMassesNothingIsAsked();
    void massesNeedSamples_data();
    void massesNeedSamples();
    void massesAreHeldAgainstTheSamples();
    void onlyTheFirstTableOfMassesCounts();
    void tracesNeedSamples_data();
    void tracesNeedSamples();
    void onlyMoleculesNeedTraces_data();
    void onlyMoleculesNeedTraces();
    void everyMsFileNeedsATrace_data();
    void everyMsFileNeedsATrace();
    void otherFilesNeedNoTrace();
    void aMissingTraceNamesItsSample();
};

void TestMassesAndTracesValidators::withoutMassesNothingIsAsked()
{
    QVERIFY(runOf<DeltaMassesValidator>(contentOf({step(u"Intact"_s)})).isGood);
    // Another table with masses of its own.
    QVERIFY(runOf<DeltaMassesValidator>(contentOf({Documents::cell(u"IntactOptions"_s)})).isGood);
}

void TestMassesAndTracesValidators::massesNeedSamples_data()
{
    QTest::addColumn<QJsonArray>("cells");
    QTest::newRow("no table") << QJsonArray{masses({})};
    QTest::newRow("an empty table") << QJsonArray{masses({}), samplesCell({})};
}

void TestMassesAndTracesValidators::massesNeedSamples()
{
    QFETCH(QJsonArray, cells);
    const ValidatorRun run = runOf<DeltaMassesValidator>(contentOf(cells));
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, QList<QString>{kNoSamples});
}

void TestMassesAndTracesValidators::massesAreHeldAgainstTheSamples()
{
    QVERIFY(runOf<DeltaMassesValidator>(
                contentOf({twoSamples(), masses({{u"G0F"_s, 1444.5, u""_s, QJsonArray{2}}})}))
                .isGood);

    const Content content =
        contentOf({twoSamples(),
                   masses({{u"a"_s, 5.0, u""_s, QJsonArray{7}}, {u"b"_s, 6.0, u""_s, QJsonArray{1, 7}}})});
    const ValidatorRun run = runOf<DeltaMassesValidator>(content);
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors.size(), 1);
    QVERIFY2(run.errors.constFirst().startsWith(u"Row 1 (\"a\")"_s), qPrintable(run.errors.constFirst()));
    QCOMPARE(run.warnings.size(), 1);
    QVERIFY2(run.warnings.constFirst().startsWith(u"Row 2 (\"b\")"_s), qPrintable(run.warnings.constFirst()));
    QCOMPARE(run.findings.size(), 2);
    for (const Finding &finding : run.findings) {
        QCOMPARE(finding.place.item, content.findAllItems(BaseItemType::Masses).constFirst());
        QCOMPARE(finding.place.property, PropertyId::MassTable);
    }
}

void TestMassesAndTracesValidators::onlyTheFirstTableOfMassesCounts()
{
    const QJsonObject bad = masses({{u"a"_s, 5.0, u""_s, QJsonArray{7}}});
    const QJsonObject good = masses({{u"a"_s, 5.0, u""_s, QJsonArray{1}}});
    QVERIFY(runOf<DeltaMassesValidator>(contentOf({twoSamples(), good, bad})).isGood);
    QVERIFY(!runOf<DeltaMassesValidator>(contentOf({twoSamples(), bad, good})).isGood);
}

void TestMassesAndTracesValidators::tracesNeedSamples_data()
{
    QTest::addColumn<QJsonArray>("cells");
    QTest::addColumn<QString>("message");
    QTest::newRow("no table") << QJsonArray{step(u"Karvon"_s)} << kNoSamples;
    QTest::newRow("an empty table") << QJsonArray{step(u"Intact"_s), samplesCell({})} << kNoSamples;
    QTest::newRow("no table of a report") << QJsonArray{step(u"MultiDocReport"_s)} << kNoDocuments;
    QTest::newRow("an empty table of a report")
        << QJsonArray{step(u"MultiDocReport"_s), samplesCell({})} << kNoDocuments;
}

void TestMassesAndTracesValidators::tracesNeedSamples()
{
    QFETCH(QJsonArray, cells);
    QFETCH(QString, message);
    const ValidatorRun run = runOf<MsTracesValidator>(contentOf(cells));
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, QList<QString>{message});
}

void TestMassesAndTracesValidators::onlyMoleculesNeedTraces_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("needsTraces");
    for (const char *type : {"Intact", "Dravik"})
        QTest::newRow(type) << QString::fromLatin1(type) << true;
    for (const char *type : {"Senthia", "Karvon", "Oligo", "Trenq", "Preview"})
        QTest::newRow(type) << QString::fromLatin1(type) << false;
}

void TestMassesAndTracesValidators::onlyMoleculesNeedTraces()
{
    QFETCH(QString, type);
    QFETCH(bool, needsTraces);
    const ValidatorRun run = runOf<MsTracesValidator>(contentOf({twoSamples(), step(type)}));
    QCOMPARE(run.isGood, !needsTraces);
    QCOMPARE(run.errors, needsTraces ? QList<QString>({noTraces(1), noTraces(2)}) : QList<QString>());
}

void TestMassesAndTracesValidators::everyMsFileNeedsATrace_data()
{
    QTest::addColumn<QJsonArray>("traces");
    QTest::addColumn<QList<int>>("missing");
    QTest::newRow("one of all samples") << QJsonArray{trace(true)} << QList<int>();
    QTest::newRow("not imported") << QJsonArray{trace(false)} << QList<int>{1, 2};
    QTest::newRow("of the first") << QJsonArray{trace(true, QJsonArray{1})} << QList<int>{2};
    QTest::newRow("of each") << QJsonArray{trace(true, QJsonArray{1}), trace(true, QJsonArray{2})}
                             << QList<int>();
    QTest::newRow("the second isn't imported")
        << QJsonArray{trace(true, QJsonArray{1}), trace(false, QJsonArray{2})} << QList<int>{2};
    QTest::newRow("of no sample") << QJsonArray{trace(true, QJsonArray())} << QList<int>{1, 2};
}

void TestMassesAndTracesValidators::everyMsFileNeedsATrace()
{
    QFETCH(QJsonArray, traces);
    QFETCH(QList<int>, missing);
    const ValidatorRun run = runOf<MsTracesValidator>(contentOf({twoSamples(traces), step(u"Intact"_s)}));
    QList<QString> expected;
    for (int id : missing)
        expected.append(noTraces(id));
    QCOMPARE(run.errors, expected);
    QCOMPARE(run.isGood, expected.isEmpty());
}

void TestMassesAndTracesValidators::otherFilesNeedNoTrace()
{
    const QJsonObject samples =
        samplesCell({{u"p"_s, u"/data/a.intact"_s, {}, {}}, {u"none"_s, u""_s, {}, {}}});
    QVERIFY(runOf<MsTracesValidator>(contentOf({samples, step(u"Intact"_s)})).isGood);
}

void TestMassesAndTracesValidators::aMissingTraceNamesItsSample()
{
    const Content content = contentOf({twoSamples(), step(u"Dravik"_s)});
    const ValidatorRun run = runOf<MsTracesValidator>(content);
    QCOMPARE(run.findings.size(), 2);
    const Finding &finding = run.findings.at(1);
    QCOMPARE(finding.rule, u"MsTraces"_s);
    QCOMPARE(finding.place.sample, u"second"_s);
    QCOMPARE(finding.place.item, content.findAllItems(BaseItemType::Samples).constFirst());
    QVERIFY(!finding.hint.isEmpty());
}

ORV_REGISTER_TEST(TestMassesAndTracesValidators)
#include "TestMassesAndTracesValidators.moc"
