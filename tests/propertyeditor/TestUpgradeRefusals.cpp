// What single steps refuse; the document is then as it was.
#include "LogCapture.h"
#include "OrvTest.h"
#include "UpgradeDocuments.h"
#include "UpgradeRuns.h"

using namespace orv;
using namespace UpgradeDocuments;
using namespace UpgradeRuns;
using namespace Qt::StringLiterals;
using Id = PropertyId;
using Type = WorkflowType;
using Setting = UpgradeDocuments::Setting;

Q_DECLARE_METATYPE(orv::PropertyEditorContent)

namespace {

const QString kNotPossible = u"Upgrade not possible."_s;
QJsonObject searchWithout(Id id)
{
    QList<Setting> settings = kProteinSearch;
    settings.removeIf([id](const Setting &setting) { return setting.id == id; });
    return cell(u"Karvon"_s, settings);
}

} // namespace

class TestUpgradeRefusals : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsRefuse_data();
    void stepsRefuse();
    void insertionsThatAreThereAlreadyAreRefused_data();
    void insertionsThatAreThereAlreadyAreRefused();
    void raggedTabsAreRefused();
};

void TestUpgradeRefusals::stepsRefuse_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<PropertyEditorContent>("content");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detail");

    const QJsonObject intact = cell(u"Intact"_s, {});
    QTest::newRow("presets: no samples") << u"5.27.0"_s << document(Type::IntactMass, {intact})
                                         << u"There are no samples in the workflow."_s << u"samples"_s;
    QTest::newRow("presets: four") << u"5.27.0"_s
                                   << document(Type::IntactOligo,
                                               {samplesCell({u"a"_s, u"b"_s, u"c"_s, u"d"_s})})
                                   << u"Workflow does not contain the expected trace peak option presets."_s
                                   << u"4"_s;
    QTest::newRow("digest: no such group")
        << u"5.28.0"_s << document(Type::TargetedPeptideMap, {cell(u"Senthia"_s, {})})
        << u"Cannot find properties for \"in-silico options (theoretical digest)\" group"_s << u"Senthia"_s;
    QTest::newRow("XIC: no such mode")
        << u"5.35.0"_s << document(Type::PeptideMap, {cell(u"Senthia"_s, {{Id::XicMode, u"Quick"_s}})})
        << u"Quick is not an enum value"_s << u"Fast"_s;
    QTest::newRow("oligo: no sequences")
        << u"5.22.0"_s << document(Type::DigestedOligo, {cell(u"Karvon"_s, kProteinSearch)}) << kNotPossible
        << u"Sequences"_s;
    for (const Id id :
         {Id::KarvonEnablePromoteScoreNglycan, Id::KarvonRalmixAutoScore, Id::KarvonProteinFdrPulldown}) {
        const QString name = PropertiesNames::internalNameForType(id);
        QTest::newRow(qPrintable(u"oligo: no %1"_s.arg(name)))
            << u"5.22.0"_s << oligoSearch(searchWithout(id)) << kNotPossible << name;
    }
    for (const Id id :
         {Id::KarvonMachineType, Id::KarvonRalmixMinScore, Id::KarvonRalmixAutoScore, Id::KarvonModText}) {
        const QString name = PropertiesNames::internalNameForType(id);
        QTest::newRow(qPrintable(u"oligo options: no %1"_s.arg(name)))
            << u"5.23.0"_s << oligoSearch(searchWithout(id)) << kNotPossible << name;
    }
    QTest::newRow("block: unknown type")
        << u"5.31.0"_s << oligoMolecules({u"X"_s, u"X"_s, u"Tail"_s, u"CH4"_s}) << kNotPossible << u"Tail"_s;
    QTest::newRow("mode: there already")
        << u"5.46.0"_s
        << document(Type::PeptideMap,
                    {cell(u"Senthia"_s, {{Id::EnableInSilico, u"true"_s}, {Id::InSilicoMode, 0}})})
        << kNotPossible << u"InSilicoMode"_s;
}

void TestUpgradeRefusals::stepsRefuse()
{
    QFETCH(QString, step);
    QFETCH(PropertyEditorContent, content);
    QFETCH(QString, message);
    QFETCH(QString, detail);
    const LogCapture log;
    PropertyEditorContent after(content);
    const Error error = runStep(step, &after);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), message);
    QVERIFY2(error.details().join(u' ').contains(detail), qPrintable(error.details().join(u' ')));
    QVERIFY(isSame(after, content));
}

void TestUpgradeRefusals::insertionsThatAreThereAlreadyAreRefused_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("workflow");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("id");
    QTest::addColumn<QJsonObject>("value");

    struct Row
    {
        QString step;
        Type workflow;
        QString kind;
        Id id;
        QJsonValue value;
    };
    const QList<Row> rows{
        {u"5.15.0"_s, Type::PeptideMap, u"Karvon"_s, Id::ExportSearchReport, u"true"_s},
        {u"5.20.0"_s, Type::PeptideMap, u"Senthia"_s, Id::IsotopeModel, 1},
        {u"5.20.0"_s, Type::ReleasedGlycans, u"Dravik"_s, Id::IsotopeModel, 1},
        {u"5.21.0"_s, Type::ProteinSearch, u"Karvon"_s, Id::ReportConfiguration, u"a.rptc"_s},
        {u"5.30.0"_s, Type::DigestedOligo, u"Senthia"_s, Id::InSilicoPeptidesFile, u"a.csv"_s},
        {u"5.34.0"_s, Type::LabelFreeQuantification, u"Trenq"_s, Id::MatchBetweenRuns, 1},
        {u"5.36.0"_s, Type::LabelFreeQuantification, u"Trenq"_s, Id::RetentionTimeAlignment, u"false"_s},
        {u"5.37.0"_s, Type::LabelFreeQuantification, u"Trenq"_s, Id::ReportedPeptideSelection, 1},
        {u"5.38.0"_s, Type::PeptideMap, u"Senthia"_s, Id::PdfReportTemplate, u"a"_s},
        {u"5.40.0"_s, Type::GlycoproteinSearch, u"Karvon"_s, Id::KarvonInclusionFilter, QJsonObject()},
        {u"5.41.0"_s, Type::ProteinSearch, u"Karvon"_s, Id::KarvonNglycanMotifLetters, QJsonArray{u"S"_s}},
        {u"5.43.0"_s, Type::PeptideMap, u"Senthia"_s, Id::AlignmentEnabled, u"true"_s},
        {u"5.43.0"_s, Type::PeptideMap, u"Trenq"_s, Id::AlignmentTolerance, u"1"_s},
    };
    for (const Row &row : rows) {
        const QString name = PropertiesNames::internalNameForType(row.id);
        QTest::newRow(qPrintable(u"%1 %2 %3"_s.arg(row.step, row.kind, name)))
            << row.step << int(row.workflow) << row.kind << int(row.id)
            << QJsonObject{{u"value"_s, row.value}};
    }
}

void TestUpgradeRefusals::insertionsThatAreThereAlreadyAreRefused()
{
    QFETCH(QString, step);
    QFETCH(int, workflow);
    QFETCH(QString, kind);
    QFETCH(int, id);
    QFETCH(QJsonObject, value);
    const PropertyEditorContent before =
        document(Type(workflow), {cell(kind, {{Id(id), value.value(u"value")}})});
    PropertyEditorContent after(before);
    const Error error = runStep(step, &after);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), kNotPossible);
    QVERIFY(error.details().join(u' ').contains(PropertiesNames::internalNameForType(Id(id))));
    QVERIFY(isSame(after, before));
}

void TestUpgradeRefusals::raggedTabsAreRefused()
{
    const QJsonArray tabs{Documents::tab(
        u"Steps"_s, {u"a"_s, u"b"_s}, {cell(u"Intact"_s, {}), cell(u"Oligo"_s, {}), cell(u"Intact"_s, {})})};
    const PropertyEditorContent before(Documents::document(tabs, {{u"version"_s, u"5.16.1"_s}}));
    PropertyEditorContent after(before);
    const Error error = runStep(u"5.17.0"_s, &after);
    QCOMPARE(error.errorMessage(), kNotPossible);
    QVERIFY(error.details().join(u' ').contains(u"\"Steps\""_s));
    QVERIFY(isSame(after, before));
}

ORV_REGISTER_TEST(TestUpgradeRefusals)
#include "TestUpgradeRefusals.moc"
