// The chain as a whole: which steps run, what is handed back, and what a failure leaves.
#include "CurrentVersion.h"
#include "OrvTest.h"
#include "TestData.h"
#include "UpgradeDocuments.h"
#include "UpgradeRuns.h"

#include <orv/core_ms/ChromatogramInfo.h>
#include <orv/propertyeditor/workflow/WflwUpgradeObserver.h>

#include <cstring>
#include <thread>

using namespace orv;
using namespace UpgradeDocuments;
using namespace UpgradeRuns;
using namespace Qt::StringLiterals;
using Id = PropertyId;
using Type = WorkflowType;

namespace {

PropertyEditorContent intactDocument(const QString &version)
{
    return document(Type::NativeIntactMass, {cell(u"Intact"_s, {})}, version);
}

PropertyEditorContent fileOf(const QString &name)
{
    return PropertyEditorContent(TestData::read(TestData::path(name)));
}

QStringList versionsTold(const WflwUpgradeCollector &told)
{
    QStringList versions;
    for (const WflwUpgradeChange &change : told.changes())
        versions.append(change.version.toString());
    return versions;
}

/// The place of a virtual function in its table, where the compiler's member pointers tell.
template<typename Function>
qsizetype slotOf(Function function)
{
    qsizetype word = 0;
    std::memcpy(&word, &function, sizeof(word));
    return (word - 1) / qsizetype(sizeof(void *));
}

} // namespace

class TestWflwUpgrader : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void leavesADocumentOfTheCurrentVersionAlone();
    void changesNothingOfANewerPatch();
    void endsAtTheCurrentVersionEvenIfNoStepApplies_data();
    void endsAtTheCurrentVersionEvenIfNoStepApplies();
    void theVersionOnEntryPicksTheSteps_data();
    void theVersionOnEntryPicksTheSteps();
    void theSpecialVersionRunsEveryStep();
    void sampleFilesStayClosed();
    void notesAreHandedBack();
    void aFailureLeavesWhatTheLastStepWrote();
    void aDocumentThatIsNoTreeIsRefused();
    void stampsAreThoseOfTheCustomUser();
    void observersHearOfChanges();
    void observersHearNothingOfStamps();
    void documentsOfSeveralThreadsDontMix();
    void stepsStandInTheOrderOfVersions();
};

void TestWflwUpgrader::leavesADocumentOfTheCurrentVersionAlone()
{
    PropertyEditorContent document = intactDocument(currentVersionText());
    QList<QString> notes{u"kept"_s};
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(currentVersion(), &document, &notes, true));
    QCOMPARE(notes, QList<QString>{u"kept"_s});
    QVERIFY(!document.metadata().contains(u"user"));
}

void TestWflwUpgrader::changesNothingOfANewerPatch()
{
    const PropertyEditorContent before = intactDocument(nextPatch().toString());
    PropertyEditorContent after(before);
    QList<QString> notes{u"replaced"_s};
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(nextPatch(), &after, &notes, true));
    QVERIFY(isSame(after, before));
    QVERIFY(notes.isEmpty());
}

void TestWflwUpgrader::endsAtTheCurrentVersionEvenIfNoStepApplies_data()
{
    QTest::addColumn<QString>("version");
    for (const QString &version : {u"5.17.0"_s, u"5.44.0"_s, u"5.46.0"_s, currentVersionCutShort()})
        QTest::newRow(qPrintable(version)) << version;
}

void TestWflwUpgrader::endsAtTheCurrentVersionEvenIfNoStepApplies()
{
    QFETCH(QString, version);
    PropertyEditorContent document = intactDocument(version);
    ORV_VERIFY_OK(runChain(&document));
    QCOMPARE(versionOf(document), currentVersion());
    QVERIFY(document.metadata().contains(u"user"));
}

void TestWflwUpgrader::theVersionOnEntryPicksTheSteps_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("hasGlycans");
    QTest::newRow("two segments lie below") << u"5.47"_s << true;
    QTest::newRow("below") << u"5.46.0"_s << true;
    QTest::newRow("of this version") << u"5.47.0"_s << false;
}

void TestWflwUpgrader::theVersionOnEntryPicksTheSteps()
{
    QFETCH(QString, version);
    PropertyEditorContent content =
        document(Type::DataIndependentAcquisition, {cell(u"CaldrinDIA"_s, {})}, version);
    ORV_VERIFY_OK(runChain(&content));
    const PropertyEditor::Content tree = treeOf(content);
    QTEST(item(tree, BaseItemType::CaldrinDIA)->contains(Id::KarvonGlycanText), "hasGlycans");
    // The step to 5.45.0 isn't due in any of them.
    QVERIFY(!item(tree, BaseItemType::CaldrinDIA)->contains(Id::CaldrinInstrument));
}

void TestWflwUpgrader::theSpecialVersionRunsEveryStep()
{
    PropertyEditorContent special = fileOf(u"versions/v3.wflw"_s);
    PropertyEditorContent oldest = fileOf(u"versions/v5.5.0.wflw"_s);
    QCOMPARE(versionOf(special), QVersionNumber(3));
    ORV_VERIFY_OK(runChain(&special));
    ORV_VERIFY_OK(runChain(&oldest));
    QCOMPARE(withoutMoment(special), withoutMoment(oldest));
}

void TestWflwUpgrader::sampleFilesStayClosed()
{
    const QString oldName = msreader::CHROMATOGRAM_NAME_OTHER_PREFIX + u"1"_s;
    const QJsonArray traces{QJsonObject{{u"type"_s, 0}, {u"channelName"_s, oldName}}};
    const QJsonObject sample{
        {u"SamplesId"_s, 1}, {u"SampleName"_s, u"lot 1"_s}, {u"SamplePath"_s, u"/nowhere/lot1.mzML"_s}};
    const QJsonObject table{
        {u"Samples"_s, QJsonArray{sample}},
        {u"TraceImportAndProcessingOptions"_s, QJsonObject{{u"TracesImportList"_s, traces}}}};
    const QJsonObject entry{{u"name"_s, u"SamplesTable"_s}, {u"value"_s, table}};
    const QJsonObject samples{{u"type"_s, u"Samples"_s}, {u"properties"_s, QJsonArray{entry}}};
    const LogCapture log; // the step for UNIFI items looks for samples elsewhere in the document
    PropertyEditorContent content = document(Type::PeptideMap, {samples}, u"5.9.0"_s);
    const TracesImportList before = treeOf(content).samplesAndTraces().options.traces;
    ORV_VERIFY_OK(runChain(&content));
    QCOMPARE(versionOf(content), currentVersion());
    QVERIFY(treeOf(content).samplesAndTraces().options.traces == before);
    // Both steps that open them would find that the files aren't there.
    for (const QString &version : {u"5.9.0"_s, u"5.38.0"_s}) {
        PropertyEditorContent opened = document(Type::PeptideMap, {samples}, version);
        QVERIFY(WflwUpgrader::upgradeWorkflow(versionOf(opened), &opened, nullptr, true).hasError());
    }
}

void TestWflwUpgrader::notesAreHandedBack()
{
    const QJsonObject map = cell(u"Senthia"_s, {{Id::XicMode, u"Standard"_s}});
    PropertyEditorContent content = document(Type::PeptideMap, {map, map}, u"5.34.0"_s);
    QList<QString> notes{u"replaced"_s};
    ORV_VERIFY_OK(runChain(&content, &notes));
    QCOMPARE(notes.size(), 1);
    QVERIFY(notes.constFirst().contains(u"fast XIC method"_s));

    // A run that fails after the note hands none back.
    PropertyEditorContent failing = document(
        Type::PeptideMap, {map, cell(u"Karvon"_s, {{Id::KarvonNglycanMotifLetters, QJsonArray{u"S"_s}}})},
        u"5.34.0"_s);
    notes = {u"kept"_s};
    QCOMPARE(runChain(&failing, &notes).errorMessage(), u"Upgrade not possible."_s);
    QCOMPARE(notes, QList<QString>{u"kept"_s});
}

void TestWflwUpgrader::aFailureLeavesWhatTheLastStepWrote()
{
    const QJsonObject samples = samplesCell({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    const QJsonObject map = cell(u"Senthia"_s, {});
    PropertyEditorContent failed = document(Type::IntactMass, {samples, map}, u"5.16.1"_s);
    PropertyEditorContent expected(failed);
    const Error error = runChain(&failed);
    QCOMPARE(error.errorMessage(), u"Workflow does not contain the expected trace peak option presets."_s);
    const QString details = error.details().join(u' ');
    QVERIFY2(details.contains(u"5.16.1"_s) && details.contains(u"5.27.0"_s), qPrintable(details));
    QVERIFY(!error.trail().isEmpty());

    for (const QString &step : {u"5.17.0"_s, u"5.18.0"_s, u"5.19.0"_s, u"5.20.0"_s, u"5.21.0"_s, u"5.22.0"_s,
                                u"5.23.0"_s, u"5.24.0"_s, u"5.25.0"_s, u"5.26.0"_s})
        ORV_VERIFY_OK(runStep(step, &expected));
    QCOMPARE(withoutMoment(failed), withoutMoment(expected));
}

void TestWflwUpgrader::aDocumentThatIsNoTreeIsRefused()
{
    const QJsonObject broken{{u"name"_s, u"Tab"_s}, {u"cells"_s, QJsonArray{cell(u"Intact"_s, {})}}};
    const PropertyEditorContent before(Documents::document({broken}, {{u"version"_s, u"5.46.0"_s}}));
    PropertyEditorContent after(before);
    const Error error = runChain(&after);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QVERIFY(isSame(after, before));
}

void TestWflwUpgrader::stampsAreThoseOfTheCustomUser()
{
    PropertyEditorContent content = document(Type::PeptideMap, {samplesCell({}), cell(u"Senthia"_s, {})});
    content.setCustomUser(u"somebody"_s);
    ORV_VERIFY_OK(runChain(&content));
    QCOMPARE(content.customUser(), u"somebody"_s);
    QCOMPARE(content.metadata().value(u"user").toString(), u"somebody"_s);
}

void TestWflwUpgrader::observersHearOfChanges()
{
    PropertyEditorContent content = fileOf(u"upgrade/5.44.0_applies.wflw"_s);
    const PropertyEditorContent before(content);
    WflwUpgradeCollector told;
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 43, 0), &content, nullptr, false, &told));
    QCOMPARE(versionsTold(told), (QStringList{u"5.44.0"_s, u"5.45.0"_s, u"5.47.0"_s}));
    QCOMPARE(withoutMoment(told.changes().constFirst().before), withoutMoment(before));
    QCOMPARE(withoutMoment(told.changes().constLast().after), withoutMoment(content));
    for (qsizetype i = 1; i < told.changes().size(); ++i)
        QCOMPARE(withoutMoment(told.changes().at(i).before), withoutMoment(told.changes().at(i - 1).after));
}

void TestWflwUpgrader::observersHearNothingOfStamps()
{
    PropertyEditorContent content = document(Type::PeptideMap, {cell(u"Intact"_s, {})}, u"5.46.0"_s);
    WflwUpgradeCollector told;
    ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 46, 0), &content, nullptr, false, &told));
    QCOMPARE(versionOf(content), currentVersion());
    QVERIFY2(told.changes().isEmpty(), qPrintable(versionsTold(told).join(u' ')));
}

void TestWflwUpgrader::documentsOfSeveralThreadsDontMix()
{
    PropertyEditorContent expected = fileOf(u"upgrade/5.12.2_applies.wflw"_s);
    ORV_VERIFY_OK(runChain(&expected));
    std::vector<std::thread> threads;
    std::vector<QJsonObject> results(4);
    for (QJsonObject &result : results) {
        threads.emplace_back([&result] {
            PropertyEditorContent content = fileOf(u"upgrade/5.12.2_applies.wflw"_s);
            if (!runChain(&content).hasError())
                result = withoutMoment(content);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const QJsonObject &result : results)
        QCOMPARE(result, withoutMoment(expected));
}

void TestWflwUpgrader::stepsStandInTheOrderOfVersions()
{
#if defined(__GNUC__) && !defined(_WIN32) && defined(__x86_64__)
    using Helper = WflwUpgradeHelper;
    QCOMPARE(slotOf(&Helper::upgradeV_5_6_0), 0);
    QCOMPARE(slotOf(&Helper::upgradeV_5_10_1), 2);
    QCOMPARE(slotOf(&Helper::upgradeV_5_15_0), 6);
    QCOMPARE(slotOf(&Helper::upgradeV_5_16_1), 7);
    QCOMPARE(slotOf(&Helper::upgradeV_5_17_0), 8);
    QCOMPARE(slotOf(&Helper::upgradeV_5_29_0), 20);
    QCOMPARE(slotOf(&Helper::upgradeV_5_39_0), 30);
    QCOMPARE(slotOf(&Helper::upgradeV_5_40_0), 31);
    QCOMPARE(slotOf(&Helper::upgradeV_5_47_0), 38);
    QCOMPARE(slotOf(&Helper::upgradeToCurrentWorkflowVersion), 39);
    // The table of steps and what a helper keeps.
    QCOMPARE(sizeof(Helper), 2 * sizeof(void *));
#else
    QSKIP("Member pointers of this compiler tell no places");
#endif
}

ORV_REGISTER_TEST(TestWflwUpgrader)
#include "TestWflwUpgrader.moc"
