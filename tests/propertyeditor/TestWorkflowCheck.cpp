// The check of a workflow as hosts run it, and where its findings stand.
#include "LogCapture.h"
#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/validators/FindingPlaces.h>
#include <orv/propertyeditor/validators/Validators.h>
#include <orv/propertyeditor/validators/WorkflowCheck.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;

namespace {

const QUrl kWorkflowFolder(u"file:///nowhere/"_s);

/// A search with a setting out of its range, behind the samples \a names.
QJsonObject faultyDocument(const QStringList &names)
{
    QList<ProjectFixtures::Sample> samples;
    for (const QString &name : names)
        samples.append({name, u"runs/%1.raw"_s.arg(name), {}, {}});
    return ProjectFixtures::document(
        {samplesCell(samples), settings(u"Karvon"_s, {{PropertyId::KarvonCentroidTopk, -5}})});
}

/// The report on a document that was loaded from its text.
WorkflowCheckReport checkReportOn(const QJsonObject &document, const QStringList &validators)
{
    const LogCapture log;
    Content content;
    ProjectFixtures::load(&content, document);
    const Result<WorkflowCheckReport> report =
        WorkflowCheck(validators).run(content, kWorkflowFolder, {document, Documents::toBytes(document)});
    if (report.hasError())
        qFatal("%s", qPrintable(report.error().errorMessage()));
    return *report;
}

} // namespace

class TestWorkflowCheck : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutNamesTheDefaultSetRuns();
    void pathsCountFromTheFolder();
    void aSettingIsFoundInTheFile();
    void aSampleIsFoundInTheFile();
    void samplesOfOneNameAreFoundEachByItself();
    void whatTheDocumentHasInAnotherOrderIsFoundByName();
    void withoutAFileThereAreNamesAlone();
    void whatIsNotInTheFileStandsAtItsCell();
    void onlySearchesOfOneKindAreAskedForTheirVendors_data();
    void onlySearchesOfOneKindAreAskedForTheirVendors();
    void whatCannotBeOpenedIsAnError_data();
    void whatCannotBeOpenedIsAnError();
    void anOutdatedDocumentIsCheckedAsUpgraded();
    void anOutdatedDocumentThatCannotBeUpgradedIsAnError();
    void aNewerDocumentIsCheckedAsItIs();
    void unevenTabsAreRefused();
    void aNameThatIsNoValidatorsIsRefused();
    void manySamplesAreLocatedInOneWalk();
};

void TestWorkflowCheck::withoutNamesTheDefaultSetRuns()
{
    QCOMPARE(WorkflowCheck().validators(), Validators::defaultNames());
    QCOMPARE(WorkflowCheck({u"MzIdent"_s}).validators(), QStringList{u"MzIdent"_s});
    const WorkflowCheckReport report = checkReportOn(faultyDocument({u"a"_s}), {});
    QVERIFY(!report.isValid);
    QVERIFY(report.errors.size() >= 2);
    QVERIFY(report.findings.size() >= report.errors.size());
}

void TestWorkflowCheck::pathsCountFromTheFolder()
{
    const WorkflowCheckReport report = checkReportOn(faultyDocument({u"a"_s}), {u"Files"_s});
    QCOMPARE(report.findings.size(), 1);
    QVERIFY2(report.findings.constFirst().hint.contains(u"\"/nowhere/runs/a.raw\""_s),
             qPrintable(report.findings.constFirst().hint));
}

void TestWorkflowCheck::aSettingIsFoundInTheFile()
{
    const QJsonObject document = faultyDocument({u"a"_s});
    const LocatedFinding finding = checkReportOn(document, {u"Builtin"_s}).findings.value(0);
    QVERIFY(finding.isError());
    QCOMPARE(finding.rule, u"Builtin/range"_s);
    QCOMPARE(finding.tab, u"Tab"_s);
    QCOMPARE(finding.column, u"1"_s);
    QCOMPARE(finding.row, std::optional(0));
    QCOMPARE(finding.property, u"KarvonCentroidTopk"_s);
    QCOMPARE(finding.pointer, u"/tabs/0/cells/1/properties/0/value"_s);
    const QList<QByteArray> lines = Documents::toBytes(document).split('\n');
    QVERIFY(finding.line);
    QVERIFY2(lines.at(*finding.line - 1).contains("\"value\": -5"), lines.at(*finding.line - 1).constData());
}

void TestWorkflowCheck::aSampleIsFoundInTheFile()
{
    const WorkflowCheckReport report = checkReportOn(faultyDocument({u"a"_s, u"b"_s}), {u"Files"_s});
    QCOMPARE(report.findings.size(), 2);
    const LocatedFinding &second = report.findings.at(1);
    QCOMPARE(second.sample, u"b"_s);
    QCOMPARE(second.pointer, u"/tabs/0/cells/0/properties/0/value/Samples/1"_s);
}

void TestWorkflowCheck::samplesOfOneNameAreFoundEachByItself()
{
    const QJsonObject document = faultyDocument({u"a"_s, u"b"_s, u"a"_s, u"a"_s});
    const WorkflowCheckReport report = checkReportOn(document, {u"Files"_s});
    QStringList pointers;
    QSet<qsizetype> lines;
    for (const LocatedFinding &finding : report.findings) {
        if (!finding.message.endsWith(u"\"a\" does not exist"_s))
            continue;
        pointers.append(finding.pointer);
        lines.insert(finding.line.value_or(0));
    }
    const QString samples = u"/tabs/0/cells/0/properties/0/value/Samples/"_s;
    QCOMPARE(pointers, (QStringList{samples + u'0', samples + u'2', samples + u'3'}));
    QCOMPARE(lines.size(), 3);
    const auto repeated =
        std::ranges::find(report.findings, u"Duplicated sample names found: a,a"_s, &LocatedFinding::message);
    QVERIFY(repeated != report.findings.end());
    QCOMPARE(repeated->pointer, samples + u'2');
}

void TestWorkflowCheck::whatTheDocumentHasInAnotherOrderIsFoundByName()
{
    const QJsonObject document = faultyDocument({u"a"_s, u"b"_s});
    Content content;
    ProjectFixtures::load(&content, document);
    FindingPlaces places(content, document);
    const BaseItem *const table = content.findAllItems(BaseItemType::Samples).constFirst();
    const auto pointerTo = [&](const QString &name, qsizetype row) {
        return places.named({table, PropertyId::SamplesTable, name, row}).pointer;
    };
    QVERIFY(pointerTo(u"b"_s, 0).endsWith(u"/Samples/1"_s));
    QVERIFY(pointerTo(u"b"_s, 7).endsWith(u"/Samples/1"_s));
    QVERIFY(pointerTo(u"c"_s, 0).endsWith(u"/value"_s));
}

void TestWorkflowCheck::withoutAFileThereAreNamesAlone()
{
    const LogCapture log;
    Content content;
    ProjectFixtures::load(&content, faultyDocument({u"a"_s}));
    const Result<WorkflowCheckReport> report = WorkflowCheck({u"Builtin"_s}).run(content, kWorkflowFolder);
    ORV_VERIFY_OK(report);
    const LocatedFinding &finding = report->findings.constFirst();
    QCOMPARE(finding.column, u"1"_s);
    QVERIFY(finding.pointer.isEmpty() && !finding.line);
}

void TestWorkflowCheck::whatIsNotInTheFileStandsAtItsCell()
{
    const QJsonObject document = faultyDocument({u"a"_s});
    const Content content = contentOf({step(u"Karvon"_s), step(u"Karvon"_s)});
    FindingPlaces places(content, document);
    const BaseItem *const item = content.findAllItems(BaseItemType::Karvon).at(1);
    QCOMPARE(places.named({item, PropertyId::PeptideMassMin, {}}).pointer, u"/tabs/0/cells/1"_s);
    QCOMPARE(places.named({item, PropertyId::NoProperty, {}}).pointer, u"/tabs/0/cells/1"_s);
    QCOMPARE(places.named({item, PropertyId::KarvonCentroidTopk, u"no such sample"_s}).pointer,
             u"/tabs/0/cells/1/properties/0/value"_s);
    const NamedPlace nowhere = places.named({nullptr, PropertyId::Samples, u"a"_s});
    QVERIFY(nowhere.pointer.isEmpty() && nowhere.tab.isEmpty() && !nowhere.row);
    QCOMPARE(nowhere.sample, u"a"_s);
}

void TestWorkflowCheck::onlySearchesOfOneKindAreAskedForTheirVendors_data()
{
    QTest::addColumn<QStringList>("validators");
    QTest::addColumn<QString>("document");
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("search") << QStringList() << u"Karvon"_s << true;
    QTest::newRow("map") << QStringList() << u"Senthia"_s << false;
    QTest::newRow("search, by name") << QStringList{u"Workflow"_s} << u"Karvon"_s << false;
}

void TestWorkflowCheck::onlySearchesOfOneKindAreAskedForTheirVendors()
{
    QFETCH(QStringList, validators);
    QFETCH(QString, document);
    QFETCH(bool, isAsked);
    const WorkflowCheckReport report =
        checkReportOn(ProjectFixtures::document(
                          {samplesCell({{u"a"_s, u"/n/a.mzML"_s, {}, {}}, {u"b"_s, u"/n/b.mgf"_s, {}, {}}}),
                           step(document)}),
                      validators);
    const bool wasAsked = std::ranges::any_of(
        report.findings, [](const LocatedFinding &finding) { return finding.rule == u"SampleTypes"_s; });
    QCOMPARE(wasAsked, isAsked);
}

void TestWorkflowCheck::whatCannotBeOpenedIsAnError_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QTest::newRow("unknown cell") << step(u"Novelty"_s);
    const QJsonObject entry{{u"name"_s, u"KarvonCentroidTopk"_s}, {u"value"_s, 5}};
    QTest::newRow("setting of other cells")
        << QJsonObject{{u"type"_s, u"Isotope"_s}, {u"properties"_s, QJsonArray{entry}}};
}

void TestWorkflowCheck::whatCannotBeOpenedIsAnError()
{
    QFETCH(QJsonObject, cell);
    const LogCapture log;
    const QJsonObject document = ProjectFixtures::document({step(u"Karvon"_s), cell});
    const auto report = WorkflowCheck().run(WorkflowSource{document, {}}, kWorkflowFolder);
    QVERIFY(report.hasError());
    QVERIFY(!report.error().errorMessage().isEmpty());
}

void TestWorkflowCheck::anOutdatedDocumentIsCheckedAsUpgraded()
{
    const LogCapture log;
    const QJsonObject document = ProjectFixtures::document(
        {samplesCell({{u"a"_s, u"runs/a.raw"_s, {}, {}}}),
         settings(u"Karvon"_s, {{PropertyId::KarvonCentroidTopk, -5}, {PropertyId::Samples, u"b"_s}})},
        {{u"version"_s, u"5.40.0"_s}});
    const auto report =
        WorkflowCheck().run(WorkflowSource{document, Documents::toBytes(document)}, kWorkflowFolder);
    ORV_VERIFY_OK(report);
    QCOMPARE(report->version, QVersionNumber(5, 40, 0));
    QCOMPARE(report->checkedVersion, WflwMetaData::currentWorkflowVersion());
    const auto finding = std::ranges::find(report->findings, u"Builtin/range"_s, &LocatedFinding::rule);
    QVERIFY(finding != report->findings.end());
    QCOMPARE(finding->pointer, u"/tabs/0/cells/1/properties/0/value"_s);
    QVERIFY(finding->line);
}

void TestWorkflowCheck::anOutdatedDocumentThatCannotBeUpgradedIsAnError()
{
    const LogCapture log;
    const QJsonObject document = ProjectFixtures::document(
        {samplesCell({}), step(u"Senthia"_s)},
        {{u"version"_s, u"5.25.0"_s}, {u"workflowType"_s, workflowTypeToString(WorkflowType::IntactMass)}});
    const auto report = WorkflowCheck().run(WorkflowSource{document, {}}, kWorkflowFolder);
    QVERIFY(report.hasError());
    QCOMPARE(report.error().errorMessage(),
             u"Workflow does not contain the expected trace peak option presets."_s);
}

void TestWorkflowCheck::aNewerDocumentIsCheckedAsItIs()
{
    const LogCapture log;
    for (const QString &version : {u"5.48.0"_s, u"6.0.0"_s}) {
        const QJsonObject document =
            ProjectFixtures::document({step(u"Karvon"_s)}, {{u"version"_s, version}});
        const auto report = WorkflowCheck().run(WorkflowSource{document, {}}, kWorkflowFolder);
        ORV_VERIFY_OK(report);
        QCOMPARE(report->checkedVersion.toString(), version);
        QVERIFY(!report->isValid); // for want of samples
    }
}

void TestWorkflowCheck::unevenTabsAreRefused()
{
    Content content;
    ProjectFixtures::load(
        &content, Documents::document({Documents::tab(u"Search"_s, {u"A"_s, u"B"_s}, {step(u"Karvon"_s)})}));
    QVERIFY(WorkflowCheck().run(content, kWorkflowFolder).hasError());
}

void TestWorkflowCheck::aNameThatIsNoValidatorsIsRefused()
{
    Content content;
    ProjectFixtures::load(&content,
                          Documents::document({Documents::tab(u"Search"_s, {u"A"_s}, {step(u"Karvon"_s)})}));
    const auto report = WorkflowCheck({u"Workflow"_s, u"Vendors"_s}).run(content, kWorkflowFolder);
    QVERIFY(report.hasError());
    QCOMPARE(report.error().errorMessage(), u"There is no validator \"Vendors\"."_s);
    QVERIFY(report.error().details().constFirst().contains(u"SampleTypes"_s));
}

// With a walk over all samples for each of them, this takes longer than the test may.
void TestWorkflowCheck::manySamplesAreLocatedInOneWalk()
{
    constexpr int kManySamples = 10000;
    QStringList names;
    for (int i = 0; i < kManySamples; ++i)
        names.append(u"lot %1"_s.arg(i));
    const WorkflowCheckReport report = checkReportOn(faultyDocument(names), {u"Files"_s});
    QCOMPARE(report.findings.size(), kManySamples);
    QVERIFY(report.findings.constLast().pointer.endsWith(u"/Samples/9999"_s));
}

ORV_REGISTER_TEST(TestWorkflowCheck)
#include "TestWorkflowCheck.moc"
