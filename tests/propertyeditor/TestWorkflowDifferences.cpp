#include "Documents.h"
#include "OrvTest.h"
#include "TestData.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QDir>

#include <functional>

using namespace orv;
using namespace Qt::StringLiterals;
using Kind = WorkflowDifference::Kind;

/// What stands in the list of differences, and that it agrees with the verdict.
class TestWorkflowDifferences : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDifferenceIsNamed_data();
    void aDifferenceIsNamed();
    void aDifferenceTellsItsPlace();
    void theListIsEmptyExactlyWhenTheVerdictIsEqual_data();
    void theListIsEmptyExactlyWhenTheVerdictIsEqual();
    void theOtherWayRoundAddedIsRemoved();
    void examplesDifferInNothingFromThemselves();
    void longTablesAndDeepValuesAreCompared();
    void longNamesAreCutInPaths();
};

namespace {

QJsonObject parse(const char *json)
{
    return Documents::parse(QByteArray(json).replace('\'', '"'));
}

/// A document of one tab "T" with the columns "C" and "D".
QJsonObject twoCells(const char *first, const char *second = "{'type': 'Masses'}")
{
    return Documents::document({Documents::tab(u"T"_s, {u"C"_s, u"D"_s}, {parse(first), parse(second)})});
}

QString lineOf(const WorkflowDifference &difference)
{
    static const QStringList marks{u"+"_s, u"-"_s, u"~"_s};
    const QByteArray values =
        QJsonDocument(QJsonArray{difference.left, difference.right}).toJson(QJsonDocument::Compact);
    return u"%1 %2 %3"_s.arg(marks.at(int(difference.kind)), difference.path, QString::fromUtf8(values))
        .replace(u'"', u'\'');
}

QStringList linesOf(const QJsonObject &left, const QJsonObject &right, bool strict = false)
{
    QStringList lines;
    for (const WorkflowDifference &difference : WorkflowDifferences::between(left, right, strict))
        lines.append(lineOf(difference));
    return lines;
}

struct Pair
{
    QByteArray name;
    QJsonObject left;
    QJsonObject right;
    QStringList lines; ///< of the comparison that is not strict
};

const char kTable[] =
    "{'type': 'Masses', 'properties': [{'name': 'MassTable', 'value': {'data': ['Name', 'Mass'],"
    " 'children': [{'data': ['water', 18], 'children': []}, {'data': ['salt', 58], 'children': []}]}}]}";

QJsonObject replaced(const char *text, const char *from, const char *to)
{
    QByteArray changed(text);
    if (!changed.contains(from))
        qFatal("The test replaces nothing: %s", from);
    changed.replace(from, to);
    return twoCells(changed.constData());
}

QJsonObject withTabs(const QList<QPair<QString, QStringList>> &tabs)
{
    QJsonArray array;
    for (const auto &[name, columns] : tabs) {
        QJsonArray cells;
        for (const QString &column : columns)
            cells.append(QJsonObject{{u"type"_s, u"Masses"_s}, {u"name"_s, column}});
        array.append(Documents::tab(name, columns, cells));
    }
    return Documents::document(array);
}

QList<Pair> structurePairs()
{
    const QJsonObject one = withTabs({{u"A"_s, {u"X"_s, u"Y"_s}}});
    return {
        {"another tab",
         one,
         withTabs({{u"A"_s, {u"X"_s, u"Y"_s}}, {u"B"_s, {}}}),
         {u"+ B [null,{'cells':[],'columns':[],'name':'B'}]"_s}},
        {"tabs in another order",
         withTabs({{u"A"_s, {u"X"_s}}, {u"B"_s, {u"Y"_s}}}),
         withTabs({{u"B"_s, {u"Y"_s}}, {u"A"_s, {u"X"_s}}}),
         {u"~ order of tabs [['A','B'],['B','A']]"_s}},
        {"columns in another order",
         one,
         withTabs({{u"A"_s, {u"Y"_s, u"X"_s}}}),
         {u"~ A / order of columns [['X','Y'],['Y','X']]"_s}},
        {"another column",
         one,
         withTabs({{u"A"_s, {u"Z"_s, u"X"_s, u"Y"_s}}}),
         {u"+ A / Z [null,[{'name':'Z','type':'Masses'}]]"_s}},
        {"columns of one name",
         withTabs({{u"A"_s, {u"X"_s, u"X"_s}}}),
         withTabs({{u"A"_s, {u"X"_s}}}),
         {u"- A / X (2) [[{'name':'X','type':'Masses'}],null]"_s}},
        {"a shorter column",
         Documents::document({Documents::tab(u"T"_s, {u"C"_s}, {parse("{'type': 'Masses'}")})}),
         Documents::document({Documents::tab(u"T"_s, {u"C"_s}, {})}),
         {u"- T / C / row 0 [{'type':'Masses'},null]"_s}},
        {"another type of cell",
         twoCells("{'type': 'Masses'}"),
         twoCells("{'type': 'Proteins'}"),
         {u"~ T / C / row 0 / type ['Masses','Proteins']"_s}},
        {"a member of the tab",
         parse("{'tabs': [{'name': 'T', 'columns': ['C'], 'cells': [], 'x': 1}]}"),
         parse("{'tabs': [{'name': 'T', 'columns': ['C'], 'cells': []}]}"),
         {u"- T / x [1,null]"_s}},
        {"a foreign member of the document",
         parse("{'tabs': [], 'more': {'a': 1}}"),
         parse("{'tabs': [], 'more': {'a': 2}}"),
         {u"~ more / a [1,2]"_s}},
        {"no tabs at all", parse("{'tabs': []}"), parse("{}"), {u"- tabs [[],null]"_s}},
        {"tabs that are no tabs", parse("{'tabs': [1]}"), parse("{'tabs': [2]}"), {u"~ (no name) [1,2]"_s}},
        {"cells without columns",
         parse("{'tabs': [{'name': 'T', 'cells': [1]}]}"),
         parse("{'tabs': [{'name': 'T', 'cells': [2]}]}"),
         {u"~ T [{'cells':[1],'name':'T'},{'cells':[2],'name':'T'}]"_s}},
        {"a cell that is none",
         parse("{'tabs': [{'name': 'T', 'columns': ['C'], 'cells': [1]}]}"),
         parse("{'tabs': [{'name': 'T', 'columns': ['C'], 'cells': [{'type': 'Masses'}]}]}"),
         {u"~ T / C / row 0 [1,{'type':'Masses'}]"_s}},
    };
}

QList<Pair> settingPairs()
{
    const char settings[] = "{'type': 'Karvon', 'properties': [{'name': 'KarvonCentroidTopk', 'value': 4},"
                            " {'name': 'Samples', 'value': 'a', 'priority': 1}]}";
    return {
        {"a setting",
         twoCells(settings),
         replaced(settings, "4", "5"),
         {u"~ T / C / row 0 / KarvonCentroidTopk [4,5]"_s}},
        {"the priority of a setting",
         twoCells(settings),
         replaced(settings, "'priority': 1", "'priority': 3"),
         {u"~ T / C / row 0 / Samples / priority [1,3]"_s}},
        {"a setting that is gone",
         twoCells(settings),
         twoCells("{'type': 'Karvon', 'properties': []}"),
         {u"- T / C / row 0 / KarvonCentroidTopk [4,null]"_s, u"- T / C / row 0 / Samples ['a',null]"_s}},
        {"a setting without a value",
         twoCells(settings),
         replaced(settings, "'value': 4", "'x': 4"),
         {u"- T / C / row 0 / KarvonCentroidTopk [4,null]"_s,
          u"+ T / C / row 0 / KarvonCentroidTopk / x [null,4]"_s}},
        {"settings in another order",
         twoCells(settings),
         twoCells("{'type': 'Karvon', 'properties': [{'name': 'Samples', 'value': 'a', 'priority': 1},"
                  " {'name': 'KarvonCentroidTopk', 'value': 4}]}"),
         {u"~ T / C / row 0 / order of settings [['KarvonCentroidTopk','Samples'],['Samples','KarvonCentroidTopk']]"_s}},
        {"a former name",
         twoCells("{'type': 'Karvon', 'properties': [{'name': 'DatabaseFile', 'value': 'a'}]}"),
         twoCells("{'type': 'Karvon', 'properties': [{'name': 'SequenceDatabases', 'value': 'a'}]}"),
         {u"~ T / C / row 0 / SequenceDatabases / name ['DatabaseFile','SequenceDatabases']"_s}},
        {"a name that is no property",
         twoCells("{'type': 'X', 'properties': [{'name': 'Own', 'value': 1}]}"),
         twoCells("{'type': 'X', 'properties': [{'name': 'Own', 'value': 2}]}"),
         {u"~ T / C / row 0 / Own [1,2]"_s}},
        {"an entry that is none",
         twoCells("{'type': 'Karvon', 'properties': [1]}"),
         twoCells("{'type': 'Karvon', 'properties': [{}]}"),
         {u"~ T / C / row 0 / (no name) [1,{}]"_s}},
        {"settings that are no list",
         twoCells("{'type': 'Karvon', 'properties': {'a': 1}}"),
         twoCells("{'type': 'Karvon', 'properties': {'a': 2}}"),
         {u"~ T / C / row 0 / properties / a [1,2]"_s}},
        {"the stamp of a cell",
         twoCells("{'type': 'Karvon', 'metadata': 'a'}"),
         twoCells("{'type': 'Karvon', 'metadata': 'b'}"),
         {}},
    };
}

QList<Pair> tablePairs()
{
    const char samples[] = "{'type': 'Samples', 'properties': [{'name': 'Samples', 'value': {'Samples':"
                           " [{'SampleName': 'a', 'Id': 1}, {'SampleName': 'b', 'Id': 2}]}}]}";
    const char nested[] = "{'type': 'IntactProteins', 'properties': [{'name': 'IntactProteins', 'value':"
                          " {'data': ['Chains'], 'children': [{'data': ['Number', 'Name'], 'children':"
                          " [{'data': [1, 'HC'], 'children': []}]}]}}]}";
    return {
        {"an entry of a table",
         twoCells(kTable),
         replaced(kTable, "58", "59"),
         {u"~ T / C / row 0 / MassTable / row 1 / Mass [58,59]"_s}},
        {"a row of a table",
         twoCells(kTable),
         replaced(kTable, ", {'data': ['salt', 58], 'children': []}", ""),
         {u"- T / C / row 0 / MassTable / row 1 [{'children':[],'data':['salt',58]},null]"_s}},
        {"a column of a table",
         twoCells(kTable),
         replaced(kTable, "'Mass']", "'Weight']"),
         {u"- T / C / row 0 / MassTable / columns / Mass ['Mass',null]"_s,
          u"+ T / C / row 0 / MassTable / columns / Weight [null,'Weight']"_s}},
        {"an entry behind the last column",
         twoCells(kTable),
         replaced(kTable, "18]", "18, 7]"),
         {u"+ T / C / row 0 / MassTable / row 0 / entry behind the last column 0 [null,7]"_s}},
        {"a member beside a table",
         twoCells(kTable),
         replaced(kTable, "{'data': ['Name'", "{'x': 1, 'data': ['Name'"),
         {u"+ T / C / row 0 / MassTable / x [null,1]"_s}},
        {"a row that is none",
         twoCells(kTable),
         replaced(kTable, "{'data': ['salt', 58], 'children': []}", "7"),
         {u"~ T / C / row 0 / MassTable / row 1 [{'children':[],'data':['salt',58]},7]"_s}},
        {"a table in a table",
         twoCells(nested),
         replaced(nested, "HC", "LC"),
         {u"~ T / C / row 0 / IntactProteins / Chains / row 0 / Name ['HC','LC']"_s}},
        {"a sample",
         twoCells(samples),
         replaced(samples, "'Id': 2", "'Id': 3"),
         {u"~ T / C / row 0 / %1 / Samples / b / Id [2,3]"_s.arg(u"SamplesTable"_s)}},
    };
}

QList<Pair> pairs()
{
    return structurePairs() + settingPairs() + tablePairs();
}

} // namespace

void TestWorkflowDifferences::aDifferenceIsNamed_data()
{
    QTest::addColumn<QJsonObject>("left");
    QTest::addColumn<QJsonObject>("right");
    QTest::addColumn<QStringList>("lines");
    for (const Pair &pair : pairs())
        QTest::newRow(pair.name.constData()) << pair.left << pair.right << pair.lines;
}

void TestWorkflowDifferences::aDifferenceIsNamed()
{
    QFETCH(const QJsonObject, left);
    QFETCH(const QJsonObject, right);
    QFETCH(const QStringList, lines);
    QCOMPARE(linesOf(left, right), lines);
}

void TestWorkflowDifferences::aDifferenceTellsItsPlace()
{
    const QList<WorkflowDifference> differences = WorkflowDifferences::between(
        twoCells(kTable, "{'type': 'Karvon', 'properties': [{'name': 'KarvonCentroidTopk', 'value': 4}]}"),
        twoCells(kTable, "{'type': 'Karvon', 'properties': [{'name': 'KarvonCentroidTopk', 'value': 5}]}"),
        false);
    QCOMPARE(differences.size(), 1);
    QCOMPARE(differences.first().kind, Kind::Changed);
    QCOMPARE(differences.first().tab, u"T"_s);
    QCOMPARE(differences.first().column, u"D"_s);
    QCOMPARE(differences.first().row, std::optional<qsizetype>(0));
    QCOMPARE(differences.first().property, u"KarvonCentroidTopk"_s);
}

void TestWorkflowDifferences::theListIsEmptyExactlyWhenTheVerdictIsEqual_data()
{
    QTest::addColumn<QJsonObject>("left");
    QTest::addColumn<QJsonObject>("right");
    const QList<Pair> all = pairs();
    for (const Pair &pair : all)
        QTest::newRow(pair.name.constData()) << pair.left << pair.right;
    for (const Pair &pair : all)
        QTest::newRow((pair.name + ", not").constData()) << pair.left << pair.left;
    QTest::newRow("metadata") << parse("{'metadata': '{}', 'tabs': []}")
                              << parse("{'metadata': '{ }', 'tabs': []}");
    QTest::newRow("metadata that are no text") << parse("{'metadata': 1}") << parse("{'metadata': {}}");
    QTest::newRow("extended metadata")
        << parse("{'extendedMetadata': {'a': [1]}}") << parse("{'extendedMetadata': {'a': [2]}}");
    QTest::newRow("null and nothing") << parse("{'tabs': null}") << parse("{}");
    QTest::newRow("whole and broken number")
        << parse("{'tabs': [{'name': 'T', 'a': 1}]}") << parse("{'tabs': [{'name': 'T', 'a': 1.0}]}");
}

void TestWorkflowDifferences::theListIsEmptyExactlyWhenTheVerdictIsEqual()
{
    QFETCH(const QJsonObject, left);
    QFETCH(const QJsonObject, right);
    for (const bool strict : {false, true}) {
        const bool equal = PropertyEditorJsonUtils::compareWorkflows(left, right, strict);
        QCOMPARE(WorkflowDifferences::between(left, right, strict).isEmpty(), equal);
        QCOMPARE(WorkflowDifferences::between(right, left, strict).isEmpty(), equal);
    }
}

void TestWorkflowDifferences::theOtherWayRoundAddedIsRemoved()
{
    for (const Pair &pair : pairs()) {
        const auto there = WorkflowDifferences::between(pair.left, pair.right, true);
        const auto back = WorkflowDifferences::between(pair.right, pair.left, true);
        const auto count = [](const QList<WorkflowDifference> &list, Kind kind) {
            return std::ranges::count(list, kind, &WorkflowDifference::kind);
        };
        QCOMPARE(count(there, Kind::Added), count(back, Kind::Removed));
        QCOMPARE(count(there, Kind::Removed), count(back, Kind::Added));
        QCOMPARE(count(there, Kind::Changed), count(back, Kind::Changed));
    }
}

void TestWorkflowDifferences::examplesDifferInNothingFromThemselves()
{
    const QDir folder(TestData::examplePath(u"workflows"_s));
    const QStringList files = folder.entryList({u"*.wflw"_s});
    QVERIFY(!files.isEmpty());
    for (const QString &file : files) {
        const QJsonObject document = Documents::parse(TestData::read(folder.filePath(file)));
        QCOMPARE(linesOf(document, document, true), QStringList());
    }
}

void TestWorkflowDifferences::longTablesAndDeepValuesAreCompared()
{
    constexpr int kRows = 20000;
    constexpr int kDepth = 400;
    const auto make = [](int changed) {
        QJsonArray rows;
        for (int i = 0; i < kRows; ++i) {
            rows.append(
                QJsonObject{{u"data"_s, QJsonArray{i % 2 ? i : i + changed}}, {u"children"_s, QJsonArray()}});
        }
        const QJsonObject table{{u"data"_s, QJsonArray{u"Mass"_s}}, {u"children"_s, rows}};
        QJsonValue deep = changed;
        for (int i = 0; i < kDepth; ++i)
            deep = QJsonObject{{u"a"_s, deep}};
        const QJsonArray entries{QJsonObject{{u"name"_s, u"MassTable"_s}, {u"value"_s, table}},
                                 QJsonObject{{u"name"_s, u"Deep"_s}, {u"value"_s, deep}}};
        const QJsonObject cell{{u"type"_s, u"Masses"_s}, {u"properties"_s, entries}};
        return Documents::document({Documents::tab(u"T"_s, {u"C"_s}, {cell})});
    };
    QCOMPARE(WorkflowDifferences::between(make(0), make(1), false).size(), kRows / 2 + 1);
}

void TestWorkflowDifferences::longNamesAreCutInPaths()
{
    const QString name(100'000, u'x');
    const auto differences =
        WorkflowDifferences::between(withTabs({{name, {u"X"_s}}}), withTabs({{name, {u"Y"_s}}}), false);
    QCOMPARE(differences.size(), 2);
    QCOMPARE(differences.first().tab, name);
    QVERIFY(differences.first().path.size() < 1000);
}

ORV_REGISTER_TEST(TestWorkflowDifferences)
#include "TestWorkflowDifferences.moc"
