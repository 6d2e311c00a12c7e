// What an upgrade tells: state, steps to review, losses, notes and the new text.
#include "LogCapture.h"
#include "OrvTest.h"
#include "TestData.h"
#include "UpgradeDocuments.h"
#include "UpgradeRuns.h"

#include <orv/propertyeditor/workflow/WorkflowUpgrade.h>

using namespace orv;
using namespace UpgradeDocuments;
using namespace Qt::StringLiterals;
using Id = PropertyId;
using ReviewedKind = WorkflowUpgradeChange::Kind;
using ReportedState = WflwMetaData::WflwState;

namespace {

WorkflowUpgradeReport reportOf(const PropertyEditorContent &document)
{
    const UpgradeRuns::WithoutSampleFiles expected;
    return WorkflowUpgrade::run(document.document(),
                                {.accessSampleData = false, .baseUrl = {}, .user = u"reviewer"_s});
}

/// What the step to that version did, as "kind property".
QStringList changesOfStep(const WorkflowUpgradeReport &report, const QString &version)
{
    static const QStringList kinds{u"added"_s, u"removed"_s, u"renamed"_s, u"moved"_s, u"changed"_s};
    QStringList changes;
    for (const WorkflowUpgradeStep &step : report.steps) {
        if (step.version.toString() != version)
            continue;
        for (const WorkflowUpgradeChange &change : step.changes)
            changes.append(kinds.at(int(change.kind)) + u' ' + change.property);
    }
    return changes;
}

} // namespace

class TestWorkflowUpgrade : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCurrentDocumentNeedsNothing();
    void stepsAreToldWithTheirChanges();
    void aSettingThatLivesOnIsRenamed();
    void everyCellTellsItsRenaming();
    void anEqualNumberIsNoRenaming();
    void theTextIsStampedForTheUser();
    void lossesOfTheFirstLoadAreTold();
    void whatIsNotChangedLosesNothing_data();
    void whatIsNotChangedLosesNothing();
    void whatTheValueFormDropsIsTold_data();
    void whatTheValueFormDropsIsTold();
    void theModeOfOldDocumentsIsNotLost();
    void faultyMetadataAreRefused();
    void whatHasNoTabsIsNoWorkflow();
    void newerDocumentsAreRefusedWithTheirState();
    void aStepThatFailsIsTold();
};

void TestWorkflowUpgrade::aCurrentDocumentNeedsNothing()
{
    const WorkflowUpgradeReport report =
        reportOf(document(WorkflowType::PeptideMap, {cell(u"Senthia"_s, {})},
                          WflwMetaData::currentWorkflowVersion().toString()));
    QVERIFY(!report.error.hasError());
    QVERIFY(report.state == ReportedState::UpToDate);
    QVERIFY(!report.isChanged && report.steps.isEmpty() && report.upgraded.isEmpty());
    QCOMPARE(report.to, report.from);
}

void TestWorkflowUpgrade::stepsAreToldWithTheirChanges()
{
    const WorkflowUpgradeReport report = reportOf(document(
        WorkflowType::PeptideMap,
        {cell(u"Senthia"_s, {{Id::CreateXicCache, u"true"_s}}), cell(u"Karvon"_s, {})}, u"5.40.0"_s));
    QVERIFY(!report.error.hasError());
    QVERIFY(report.state == ReportedState::NeedsUpgrade);
    QCOMPARE(report.from, QVersionNumber(5, 40, 0));
    QCOMPARE(report.to, WflwMetaData::currentWorkflowVersion());
    QCOMPARE(changesOfStep(report, u"5.41.0"_s), QStringList{u"added KarvonNglycanMotifLetters"_s});
    QCOMPARE(changesOfStep(report, u"5.42.0"_s), QStringList{u"removed CreateXicCache"_s});
}

void TestWorkflowUpgrade::aSettingThatLivesOnIsRenamed()
{
    const WorkflowUpgradeReport report = reportOf(document(
        WorkflowType::PeptideMap, {cell(u"Senthia"_s, {{Id::EnableInSilico, u"true"_s}})}, u"5.45.0"_s));
    const QStringList changes = changesOfStep(report, u"5.46.0"_s);
    QVERIFY2(changes.contains(u"renamed InSilicoMode"_s), qPrintable(changes.join(u'\n')));
    QVERIFY(!changes.contains(u"removed EnableInSilico"_s));
}

void TestWorkflowUpgrade::everyCellTellsItsRenaming()
{
    QList<QJsonObject> cells;
    for (const char *isOn : {"true", "false", "true"})
        cells.append(cell(u"Senthia"_s, {{Id::EnableInSilico, QLatin1String(isOn)}}));
    const QStringList changes =
        changesOfStep(reportOf(document(WorkflowType::PeptideMap, cells, u"5.45.0"_s)), u"5.46.0"_s);
    QCOMPARE(changes.count(u"renamed InSilicoMode"_s), 3);
    QCOMPARE(changes.filter(u"EnableInSilico"_s), QStringList());
    QCOMPARE(changes.count(u"added InSilicoMode"_s), 0);
}

void TestWorkflowUpgrade::anEqualNumberIsNoRenaming()
{
    const WorkflowUpgradeReport report =
        reportOf(document(WorkflowType::DigestedOligo,
                          {cell(u"Karvon"_s, {{Id::KarvonMachineType, 0, u"Instrument Parameters"_s},
                                              {Id::KarvonRalmixMinScore, u"1"_s},
                                              {Id::KarvonRalmixAutoScore, u"false"_s},
                                              {Id::KarvonModText, QJsonObject()}})},
                          u"5.22.0"_s));
    ORV_VERIFY_OK(report.error);
    const QStringList changes = changesOfStep(report, u"5.23.0"_s);
    QVERIFY2(changes.contains(u"removed KarvonMachineType"_s), qPrintable(changes.join(u'\n')));
    QVERIFY2(changes.contains(u"added KarvonMoleculeType"_s), qPrintable(changes.join(u'\n')));
    QCOMPARE(changes.filter(u"renamed"_s), QStringList());
}

void TestWorkflowUpgrade::theTextIsStampedForTheUser()
{
    const WorkflowUpgradeReport report =
        reportOf(document(WorkflowType::PeptideMap, {cell(u"Senthia"_s, {})}, u"5.40.0"_s));
    QVERIFY(report.isChanged);
    const PropertyEditorContent upgraded(report.upgraded);
    QCOMPARE(UpgradeRuns::versionOf(upgraded), WflwMetaData::currentWorkflowVersion());
    QCOMPARE(upgraded.metadata().value(u"user").toString(), u"reviewer"_s);
}

void TestWorkflowUpgrade::lossesOfTheFirstLoadAreTold()
{
    QJsonObject odd = cell(u"Senthia"_s, {});
    odd.insert(u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"NoSuchSetting"_s}, {u"value"_s, 1}}});
    const LogCapture log;
    const WorkflowUpgradeReport report = reportOf(document(WorkflowType::PeptideMap, {odd}, u"5.40.0"_s));
    QCOMPARE(report.lost.size(), 1);
    QVERIFY(report.lost.constFirst().what.contains(u"NoSuchSetting"_s));
}

void TestWorkflowUpgrade::whatIsNotChangedLosesNothing_data()
{
    QTest::addColumn<QString>("version");
    QTest::newRow("current") << WflwMetaData::currentWorkflowVersion().toString();
    QTest::newRow("of a later minor version") << u"5.48.0"_s;
    QTest::newRow("of a step that fails") << u"5.25.0"_s;
}

void TestWorkflowUpgrade::whatIsNotChangedLosesNothing()
{
    QFETCH(QString, version);
    QJsonObject odd = cell(u"Senthia"_s, {});
    odd.insert(u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"NoSuchSetting"_s}, {u"value"_s, 1}}});
    const LogCapture log;
    const WorkflowUpgradeReport report =
        reportOf(document(WorkflowType::IntactMass, {samplesCell({u"a"_s}), odd}, version));
    QVERIFY(!report.isChanged);
    QCOMPARE(report.lost.size(), 0);
}

void TestWorkflowUpgrade::whatTheValueFormDropsIsTold_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("broken");
    QTest::addColumn<QString>("lostPath");
    const QJsonObject settings = cell(u"Senthia"_s, {});
    QTest::newRow("cells in an object")
        << u"cells"_s << QJsonValue(QJsonObject{{u"0"_s, settings}}) << u"/tabs/0/cells"_s;
    QTest::newRow("a cell that is a text") << u"cells"_s << QJsonValue(QJsonArray{settings, u"x"_s})
                                           << QString() /* the upgrade fails, and nothing is lost */;
    QTest::newRow("columns in a text") << u"columns"_s << QJsonValue(u"A"_s) << QString();
    QTest::newRow("a name that is a number") << u"name"_s << QJsonValue(5) << u"/tabs/0/name"_s;
}

void TestWorkflowUpgrade::whatTheValueFormDropsIsTold()
{
    const LogCapture log;
    QFETCH(QString, key);
    QFETCH(QJsonValue, broken);
    QFETCH(QString, lostPath);
    QJsonObject json = document(WorkflowType::PeptideMap, {cell(u"Senthia"_s, {})}, u"5.20.0"_s).document();
    QJsonArray tabs = json["tabs"_L1].toArray();
    QJsonObject tab = tabs.first().toObject();
    tab.insert(key, broken);
    tabs.replace(0, tab);
    json.insert("tabs"_L1, tabs);
    const WorkflowUpgradeReport report = WorkflowUpgrade::run(json, {.accessSampleData = false});
    QCOMPARE(report.malformed.code(), ErrorCode::MalformedStructure);
    QVERIFY(report.malformed.details().contains(u"Tab 1."_s));
    QCOMPARE(report.isChanged, !lostPath.isEmpty());
    QStringList lost;
    for (const Loss &loss : report.lost)
        lost.append(loss.path);
    QCOMPARE(lost.contains(lostPath), report.isChanged);
}

void TestWorkflowUpgrade::theModeOfOldDocumentsIsNotLost()
{
    const UpgradeRuns::WithoutSampleFiles expected;
    QJsonObject json = document(WorkflowType::PeptideMap, {cell(u"Senthia"_s, {})}, u"5.40.0"_s).document();
    json.insert("projectCreationMode"_L1, 1);
    const WorkflowUpgradeReport report = WorkflowUpgrade::run(json, {.accessSampleData = false});
    QVERIFY(!report.error.hasError());
    QVERIFY(!report.malformed.hasError());
    QCOMPARE(report.lost.size(), 0);
    QCOMPARE(PropertyEditorContent(report.upgraded).metadata()["contentMode"_L1].toInt(), 1);
}

void TestWorkflowUpgrade::faultyMetadataAreRefused()
{
    QJsonObject json = document(WorkflowType::PeptideMap, {cell(u"Senthia"_s, {})}, u"5.40.0"_s).document();
    json.insert("metadata"_L1, uR"({"version":"5.40.0","icon":"D:\Data"})"_s);
    const WorkflowUpgradeReport report = WorkflowUpgrade::run(json, {.accessSampleData = false});
    QCOMPARE(report.error.code(), ErrorCode::InvalidContent);
    QCOMPARE(report.error.errorMessage(), u"the escape \\D is none that JSON knows"_s);
    QVERIFY(!report.isChanged);
}

void TestWorkflowUpgrade::whatHasNoTabsIsNoWorkflow()
{
    const WorkflowUpgradeReport report = WorkflowUpgrade::run({}, {});
    QCOMPARE(report.error.code(), ErrorCode::MalformedStructure);
    QVERIFY(!report.state);
}

void TestWorkflowUpgrade::newerDocumentsAreRefusedWithTheirState()
{
    const LogCapture log;
    const WorkflowUpgradeReport report =
        reportOf(document(WorkflowType::PeptideMap, {cell(u"Senthia"_s, {})}, u"6.0.0"_s));
    QVERIFY(report.error.hasError());
    QVERIFY(!report.error.errorMessages().isEmpty());
    QVERIFY(report.state == ReportedState::NotSupported);
    QVERIFY(!report.isChanged && report.lost.isEmpty());
}

void TestWorkflowUpgrade::aStepThatFailsIsTold()
{
    const WorkflowUpgradeReport report = reportOf(
        document(WorkflowType::IntactMass, {samplesCell({u"a"_s}), cell(u"Senthia"_s, {})}, u"5.25.0"_s));
    QCOMPARE(report.error.errorMessage(),
             u"Workflow does not contain the expected trace peak option presets."_s);
    QVERIFY(!report.isChanged && report.steps.isEmpty());
}

ORV_REGISTER_TEST(TestWorkflowUpgrade)
#include "TestWorkflowUpgrade.moc"
