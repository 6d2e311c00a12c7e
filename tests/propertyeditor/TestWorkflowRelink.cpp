// References of a document that follow files which have moved.
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "TableCells.h"
#include "TestData.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/workflow/WorkflowRelink.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace orv;
using namespace Qt::StringLiterals;
using Rules = QList<WorkflowRelinkRule>;

namespace {

const QUrl kFolder(u"file:///nowhere/flow/"_s);

QJsonObject relinkedSetting(PropertyId id, const QJsonValue &value)
{
    return TableCells::entry(PropertiesNames::internalNameForType(id), value);
}

/// A document of one cell.
QJsonObject documentOf(const QString &type, const QJsonArray &entries)
{
    return Documents::document({Documents::tab(u"Tab"_s, {u"Column"_s}, {TableCells::cell(type, entries)})});
}

QJsonObject documentWith(PropertyId id, const QJsonValue &value, const QString &type = u"Karvon"_s)
{
    return documentOf(type, {relinkedSetting(id, value)});
}

QJsonValue valueIn(const QJsonObject &document)
{
    return document[u"tabs"_s][0][u"cells"_s][0][u"properties"_s][0][u"value"_s];
}

WorkflowRelinkReport relinked(const QJsonObject &document, const Rules &rules, const QUrl &folder = kFolder)
{
    const Result<WorkflowRelinkReport> report = WorkflowRelink::run(document, rules, folder);
    if (report.hasError())
        qFatal("%s", qPrintable(report.error().errorMessage()));
    return *report;
}

/// What one text becomes by one rule.
QString moved(const QString &text, const QString &from, const QString &to)
{
    return valueIn(relinked(documentWith(PropertyId::KarvonLayout, text), {{from, to}}).document).toString();
}

QJsonObject sampleTable(const QJsonArray &samples)
{
    return documentWith(PropertyId::SamplesTable, QJsonObject{{u"Samples"_s, samples}}, u"Samples"_s);
}

} // namespace

class TestWorkflowRelink : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void wholeNamesOfAPathMove_data();
    void wholeNamesOfAPathMove();
    void theLongestRuleWinsAndOnlyOne();
    void rulesWithoutTextAreRefused_data();
    void rulesWithoutTextAreRefused();
    void samplesMoveWithAllThatIsTheirs();
    void samplesOfOldDocumentsMove();
    void sequenceDatabasesMove();
    void glycanDatabasesMove_data();
    void glycanDatabasesMove();
    void rowsOfGlycansMove();
    void theLibraryOfExpertsMoves();
    void textsOfOtherSettingsMoveByAbsoluteRulesAlone();
    void whatDoesNotMoveStaysAsItIs();
    void existenceIsTold();
    void placesAreTold();
    void documentsOfNoSenseStayAsTheyAre();
};

void TestWorkflowRelink::wholeNamesOfAPathMove_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("expected");
    QTest::newRow("beginning") << u"/data/lot 1/a.raw"_s << u"/data"_s << u"/mnt"_s << u"/mnt/lot 1/a.raw"_s;
    QTest::newRow("whole") << u"/data/a.raw"_s << u"/data/a.raw"_s << u"/mnt/b.raw"_s << u"/mnt/b.raw"_s;
    QTest::newRow("separators at the ends")
        << u"/data/a.raw"_s << u"/data/"_s << u"/mnt/"_s << u"/mnt/a.raw"_s;
    QTest::newRow("part of a name") << u"/database/a.raw"_s << u"/data"_s << u"/mnt"_s
                                    << u"/database/a.raw"_s;
    QTest::newRow("in the middle") << u"/old/data/a.raw"_s << u"data"_s << u"/mnt"_s << u"/old/data/a.raw"_s;
    QTest::newRow("case counts") << u"/Data/a.raw"_s << u"/data"_s << u"/mnt"_s << u"/Data/a.raw"_s;
    QTest::newRow("but for drives") << u"d:\\data\\a.raw"_s << u"D:\\data"_s << u"E:\\new"_s
                                    << u"E:\\new\\a.raw"_s;
    QTest::newRow("names on drives") << u"D:\\Data\\a.raw"_s << u"D:\\data"_s << u"E:\\new"_s
                                     << u"D:\\Data\\a.raw"_s;
    QTest::newRow("slashes for backslashes")
        << u"D:\\data\\sub\\a.raw"_s << u"D:/data"_s << u"/mnt"_s << u"/mnt/sub/a.raw"_s;
    QTest::newRow("backslashes for slashes")
        << u"/data/sub/a.raw"_s << u"/data"_s << u"D:\\new"_s << u"D:\\new\\sub\\a.raw"_s;
    QTest::newRow("mixed") << u"D:/data\\sub/a.raw"_s << u"D:\\data/sub"_s << u"/mnt"_s << u"/mnt/a.raw"_s;
    QTest::newRow("backslash in a name")
        << u"/data/a\\b.raw"_s << u"/data"_s << u"/mnt"_s << u"/mnt/a\\b.raw"_s;
    QTest::newRow("drive") << u"D:\\a.raw"_s << u"D:"_s << u"E:"_s << u"E:/a.raw"_s;
    QTest::newRow("share") << u"\\\\srv\\share\\x\\a.raw"_s << u"//srv/share"_s << u"/mnt"_s
                           << u"/mnt/x/a.raw"_s;
    QTest::newRow("to a share") << u"/data/a.raw"_s << u"/data"_s << u"\\\\srv\\share"_s
                                << u"\\\\srv\\share\\a.raw"_s;
    QTest::newRow("root is no share")
        << u"//srv/share/a.raw"_s << u"/"_s << u"/mnt"_s << u"//srv/share/a.raw"_s;
    QTest::newRow("root") << u"/a.raw"_s << u"/"_s << u"/mnt"_s << u"/mnt/a.raw"_s;
    QTest::newRow("relative") << u"runs/a.raw"_s << u"runs"_s << u"../data"_s << u"../data/a.raw"_s;
    QTest::newRow("relative, longer name") << u"runs2/a.raw"_s << u"runs"_s << u"x"_s << u"runs2/a.raw"_s;
    QTest::newRow("in the workflow's own folder") << u"./data/a.raw"_s << u"data"_s << u"d"_s << u"d/a.raw"_s;
    QTest::newRow("own folder in the rule") << u"data/a.raw"_s << u".//data"_s << u"d"_s << u"d/a.raw"_s;
    QTest::newRow("own folder alone") << u"./a.raw"_s << u"."_s << u"d"_s << u"d/a.raw"_s;
    QTest::newRow("own folder in neither") << u"a.raw"_s << u"."_s << u"d"_s << u"a.raw"_s;
    QTest::newRow("rule that keeps all")
        << u"D:\\data\\a.raw"_s << u"D:/data"_s << u"D:/data"_s << u"D:\\data\\a.raw"_s;
    QTest::newRow("server") << u"talvane:/lab/x/a.tolq"_s << u"talvane:/lab"_s << u"talvane:/archive"_s
                            << u"talvane:/archive/x/a.tolq"_s;
    QTest::newRow("file URL") << u"file:///data/lot%201/a.raw"_s << u"/data/lot 1"_s << u"/mnt/lot 2"_s
                              << u"file:///mnt/lot%202/a.raw"_s;
    QTest::newRow("file URL of a drive")
        << u"file:///D:/data/a.raw"_s << u"D:\\data"_s << u"E:/x"_s << u"file:///E:/x/a.raw"_s;
}

void TestWorkflowRelink::wholeNamesOfAPathMove()
{
    QFETCH(QString, text);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, expected);
    QCOMPARE(moved(text, from, to), expected);
}

void TestWorkflowRelink::theLongestRuleWinsAndOnlyOne()
{
    const Rules rules{{u"/data"_s, u"/data/old"_s}, {u"/data/new"_s, u"/data"_s}, {u"/data/new"_s, u"/x"_s}};
    const auto of = [&rules](const QString &text) {
        return valueIn(relinked(documentWith(PropertyId::KarvonLayout, text), rules).document).toString();
    };
    QCOMPARE(of(u"/data/a"_s), u"/data/old/a"_s);
    QCOMPARE(of(u"/data/new/a"_s), u"/data/a"_s);
}

void TestWorkflowRelink::rulesWithoutTextAreRefused_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("from nothing") << QString() << u"/mnt"_s;
    QTest::newRow("to nothing") << u"/data"_s << QString();
}

void TestWorkflowRelink::rulesWithoutTextAreRefused()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    const auto report = WorkflowRelink::run(documentWith(PropertyId::KarvonLayout, u"/data/a"_s),
                                            {{u"/a"_s, u"/b"_s}, {from, to}}, kFolder);
    QVERIFY(report.hasError());
    QCOMPARE(report.error().code(), ErrorCode::InvalidContent);
    QVERIFY(!report.error().details().isEmpty());
}

void TestWorkflowRelink::samplesMoveWithAllThatIsTheirs()
{
    const QJsonObject sample{
        {u"SampleName"_s, u"/data/lot 1"_s},
        {u"SamplePath"_s, u"/data/a.raw"_s},
        {u"Traces"_s, QJsonArray{u"/data/t.csv"_s, u"/other/t.csv"_s}},
        {u"ExtraReferences"_s, QJsonArray{u"/data/r.karvrslt"_s}},
        {u"Condition"_s, u"/data/x"_s},
        {u"FileMetadata"_s, QJsonObject{{u"/data/a.raw"_s, QJsonObject{{u"size"_s, 5}}}}}};
    const auto report = relinked(sampleTable({sample}), {{u"/data"_s, u"/mnt"_s}});
    const QJsonObject expected{
        {u"SampleName"_s, u"/data/lot 1"_s},
        {u"SamplePath"_s, u"/mnt/a.raw"_s},
        {u"Traces"_s, QJsonArray{u"/mnt/t.csv"_s, u"/other/t.csv"_s}},
        {u"ExtraReferences"_s, QJsonArray{u"/mnt/r.karvrslt"_s}},
        {u"Condition"_s, u"/data/x"_s},
        {u"FileMetadata"_s, QJsonObject{{u"/mnt/a.raw"_s, QJsonObject{{u"size"_s, 5}}}}}};
    QCOMPARE(valueIn(report.document)[u"Samples"_s][0].toObject(), expected);
    QCOMPARE(report.relinked.size(), 3);
    QCOMPARE(report.left.size(), 1);
    QCOMPARE(report.left.constFirst().text, u"/other/t.csv"_s);
}

void TestWorkflowRelink::samplesOfOldDocumentsMove()
{
    const QJsonObject sample{{u"FilePath"_s, u"/data/a.raw"_s}, {u"TracesCsv"_s, u"/data/t.csv"_s}};
    QCOMPARE(valueIn(relinked(sampleTable({sample}), {{u"/data"_s, u"/mnt"_s}}).document)[u"Samples"_s][0]
                 .toObject(),
             (QJsonObject{{u"FilePath"_s, u"/mnt/a.raw"_s}, {u"TracesCsv"_s, u"/mnt/t.csv"_s}}));
    const auto rows = [](const QString &folder) {
        const QJsonArray cells{u"/data/lot"_s, folder + u"/a.raw"_s, folder + u"/r.karvrslt"_s};
        return QJsonObject{
            {u"data"_s, QJsonArray{u"SampleName"_s, u"SamplePath"_s, u"Ms2Search"_s}},
            {u"children"_s, QJsonArray{QJsonObject{{u"data"_s, cells}, {u"children"_s, QJsonArray()}}}}};
    };
    QJsonObject entry{{u"name"_s, u"Samples"_s}, {u"value"_s, rows(u"/data"_s)}};
    const auto report = relinked(documentOf(u"Samples"_s, {entry}), {{u"/data"_s, u"/mnt"_s}});
    QCOMPARE(valueIn(report.document).toObject(), rows(u"/mnt"_s));
    QCOMPARE(report.relinked.constFirst().path,
             u"Tab / Column / row 0 / SamplesTable / /data/lot / SamplePath"_s);
}

void TestWorkflowRelink::sequenceDatabasesMove()
{
    const auto table = [](const QString &folder) {
        return QJsonObject{
            {u"sequences"_s, QJsonArray{QJsonObject{{u"id"_s, 1}, {u"fasta"_s, folder + u"/a.fasta"_s}}}}};
    };
    const QJsonObject document =
        documentWith(PropertyId::SequenceDatabases, table(u"D:\\db"_s), u"Database"_s);
    QCOMPARE(valueIn(relinked(document, {{u"D:/db"_s, u"/db"_s}}).document).toObject(), table(u"/db"_s));
    // The single file of old documents.
    const QJsonObject old = documentWith(PropertyId::DatabaseFile, u"D:\\db\\a.fasta"_s, u"Database"_s);
    QCOMPARE(valueIn(relinked(old, {{u"D:/db"_s, u"/db"_s}}).document).toString(), u"/db/a.fasta"_s);
}

void TestWorkflowRelink::glycanDatabasesMove_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("path") << u"% c\n[/data/a.txt]\n[/other/b.txt]\nHex(5) @ N"_s
                          << u"% c\n[/mnt/a.txt]\n[/other/b.txt]\nHex(5) @ N"_s;
    QTest::newRow("URL") << u"[file:///data/a.txt] x"_s << u"[file:///mnt/a.txt] x"_s;
    QTest::newRow("outside of brackets") << u"/data/a.txt"_s << u"/data/a.txt"_s;
}

void TestWorkflowRelink::glycanDatabasesMove()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const Rules rules{{u"/data"_s, u"/mnt"_s}};
    const QJsonObject value{{u"glycans"_s, text}, {u"other"_s, 1}};
    const QJsonObject movedValue{{u"glycans"_s, expected}, {u"other"_s, 1}};
    QCOMPARE(valueIn(relinked(documentWith(PropertyId::KarvonGlycanText, value), rules).document).toObject(),
             movedValue);
    const QString asText = QString::fromUtf8(QJsonDocument(value).toJson());
    const QJsonValue after =
        valueIn(relinked(documentWith(PropertyId::InSilicoGlycans, asText), rules).document);
    QCOMPARE(QJsonDocument::fromJson(after.toString().toUtf8()).object(), movedValue);
    if (text == expected)
        QCOMPARE(after.toString(), asText);
}

void TestWorkflowRelink::rowsOfGlycansMove()
{
    const auto table = [](const QString &text) {
        return QJsonObject{{u"data"_s, QJsonArray{u"Library"_s}},
                           {u"children"_s, QJsonArray{QJsonObject{{u"data"_s, QJsonArray{text}}}}}};
    };
    const QJsonObject document =
        documentWith(PropertyId::GlycanOptions, table(u"[/data/a.txt]"_s), u"GlycanOptions"_s);
    QCOMPARE(valueIn(relinked(document, {{u"/data"_s, u"/mnt"_s}}).document).toObject(),
             table(u"[/mnt/a.txt]"_s));
}

void TestWorkflowRelink::theLibraryOfExpertsMoves()
{
    const QString before =
        u"[Other]\nProjectPath=/data/no.db\n[Library]\nA=1\nProjectPath = \"/data/lib.db\"\nB=/data\n"_s;
    const QString after =
        u"[Other]\nProjectPath=/data/no.db\n[Library]\nA=1\nProjectPath = \"/mnt/lib.db\"\nB=/data\n"_s;
    const auto report =
        relinked(documentWith(PropertyId::AdvancedConfiguration, before), {{u"/data"_s, u"/mnt"_s}});
    QCOMPARE(valueIn(report.document).toString(), after);
    QCOMPARE(report.relinked.constFirst().to, u"/mnt/lib.db"_s);
}

void TestWorkflowRelink::textsOfOtherSettingsMoveByAbsoluteRulesAlone()
{
    const auto of = [](const QString &text, const QString &from) {
        const auto report = relinked(documentWith(PropertyId::Samples, text), {{from, u"/mnt"_s}});
        return valueIn(report.document).toString() + QString::number(report.left.size());
    };
    QCOMPARE(of(u"/data/a"_s, u"/data"_s), u"/mnt/a0"_s);
    QCOMPARE(of(u"data/a"_s, u"data"_s), u"data/a0"_s);
    QCOMPARE(of(u"lot*"_s, u"/data"_s), u"lot*0"_s);
}

void TestWorkflowRelink::whatDoesNotMoveStaysAsItIs()
{
    for (const QString &name : {u"v5.20.0.wflw"_s, u"v3.wflw"_s}) {
        QFile file(TestData::path(u"versions/"_s + name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
        const auto report = relinked(document, {{u"/no/such/folder"_s, u"/mnt"_s}});
        QCOMPARE(report.document, document);
        QVERIFY(report.relinked.isEmpty());
    }
}

void TestWorkflowRelink::existenceIsTold()
{
    const LogCapture log;
    const SampleTree tree;
    tree.addAll({u"new/a.raw"_s, u"kept.raw"_s});
    const auto sample = [](const QString &path) { return QJsonObject{{u"SamplePath"_s, path}}; };
    const QJsonArray samples{sample(u"D:\\old\\a.raw"_s), sample(u"D:\\old\\b.raw"_s), sample(u"kept.raw"_s),
                             sample(u"gone.raw"_s), sample(u"talvane:/lab/a.tolq"_s)};
    const auto report = relinked(sampleTable(samples), {{u"D:\\old"_s, tree.at(u"new"_s)}},
                                 QUrl::fromLocalFile(tree.at({}) + u'/'));
    QCOMPARE(report.relinked.size(), 2);
    QCOMPARE(report.relinked.at(0).exists, std::optional(true));
    QCOMPARE(report.relinked.at(1).exists, std::optional(false));
    QCOMPARE(report.left.size(), 2);
    QCOMPARE(report.left.at(0).text, u"gone.raw"_s);
    QCOMPARE(report.left.at(0).exists, std::optional(false));
    QCOMPARE(report.left.at(1).text, u"talvane:/lab/a.tolq"_s);
    QCOMPARE(report.left.at(1).exists, std::optional<bool>());
}

void TestWorkflowRelink::placesAreTold()
{
    const QJsonObject samples{
        {u"Samples"_s, QJsonArray{QJsonObject{{u"SampleName"_s, u"lot 1"_s},
                                              {u"Traces"_s, QJsonArray{u"/x"_s, u"/data/t.csv"_s}}}}}};
    const auto report =
        relinked(documentWith(PropertyId::SamplesTable, samples, u"Samples"_s), {{u"/data"_s, u"/mnt"_s}});
    const WorkflowRelinkedReference &reference = report.relinked.constFirst();
    QCOMPARE(reference.path, u"Tab / Column / row 0 / SamplesTable / lot 1 / Traces"_s);
    QCOMPARE(reference.pointer, u"/tabs/0/cells/0/properties/0/value/Samples/0/Traces/1"_s);
    QCOMPARE(reference.from, u"/data/t.csv"_s);
    QCOMPARE(reference.to, u"/mnt/t.csv"_s);
}

void TestWorkflowRelink::documentsOfNoSenseStayAsTheyAre()
{
    const QList<QByteArray> texts{
        "{}",
        R"({"tabs": 5})",
        R"({"tabs": [5, {}, {"cells": {"0": {}}}, {"cells": [7, {}]}]})",
        R"({"tabs": [{"cells": [{"properties": [5, {"name": "SamplesTable", "value": {"Samples": [1, {}]}}]}]}]})",
        R"({"tabs": [{"cells": [{"properties": [{"name": "SamplesTable", "value": {"children": [1, {}], "data": [{}]}}]}]}]})",
        R"({"tabs": [{"cells": [{"properties": [{"name": "KarvonGlycanText", "value": [1]}, {"value": null}]}]}]})"};
    for (const QByteArray &text : texts) {
        const QJsonObject document = QJsonDocument::fromJson(text).object();
        QCOMPARE(relinked(document, {{u"/data"_s, u"/mnt"_s}}).document, document);
    }
}

ORV_REGISTER_TEST(TestWorkflowRelink)
#include "TestWorkflowRelink.moc"
