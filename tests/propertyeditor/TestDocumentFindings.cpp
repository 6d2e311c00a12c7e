// What is odd about values as they stand in a document, and what a load hides.
#include "LogCapture.h"
#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/validators/DocumentFindings.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestDocumentFindings : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void controlCharactersInPathsAreFound_data();
    void controlCharactersInPathsAreFound();
    void controlCharactersElsewhereAreNone();
    void withoutADocumentThePathIsTold();
    void numbersWithoutQuotesAreFound_data();
    void numbersWithoutQuotesAreFound();
    void theWholeCheckTellsThemWithTheirLines();
    void namedValidatorsTellTheirOwnAlone();
};

namespace {

/// A document with all kinds of references.
QJsonObject documentWith(const QString &sample, const QString &companion, const QString &layout,
                         const QString &fasta)
{
    return ProjectFixtures::document({ProjectFixtures::samplesCell({{u"a"_s, sample, {}, {companion}}}),
                                      settings(u"Karvon"_s, {{PropertyId::KarvonLayout, layout}}),
                                      settings(u"Database"_s, {{PropertyId::SequenceDatabases, fasta}})});
}

QList<LocatedFinding> findingsIn(const QJsonObject &document)
{
    Content content;
    ProjectFixtures::load(&content, document);
    return DocumentFindings::of(content, document);
}

WorkflowCheckReport reportOn(const QJsonObject &document, const QStringList &validators)
{
    const LogCapture log;
    Content content;
    ProjectFixtures::load(&content, document);
    const Result<WorkflowCheckReport> report =
        WorkflowCheck(validators)
            .run(content, QUrl(u"file:///nowhere/"_s), {document, Documents::toBytes(document)});
    if (report.hasError())
        qFatal("%s", qPrintable(report.error().errorMessage()));
    return *report;
}

} // namespace

void TestDocumentFindings::controlCharactersInPathsAreFound_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QString>("shown");

    const QString odd = u"D:\temp\run1.mzML"_s;
    const QString good = u"/data/a.mzML"_s;
    QTest::newRow("sample") << documentWith(u"D:\temp.raw"_s, good, good, good)
                            << u"/tabs/0/cells/0/properties/0/value/Samples/0/SamplePath"_s
                            << u"D:\\temp.raw"_s;
    QTest::newRow("companion") << documentWith(good, u"D:\new\a.mgf"_s, good, good)
                               << u"/tabs/0/cells/0/properties/0/value/Samples/0/ExtraReferences/0"_s
                               << u"D:\\new\\u0007.mgf"_s;
    QTest::newRow("setting") << documentWith(good, good, odd, good) << u"/tabs/0/cells/1/properties/0/value"_s
                             << u"D:\\temp\\run1.mzML"_s;
    QTest::newRow("sequence database") << documentWith(good, good, good, odd)
                                       << u"/tabs/0/cells/2/properties/0/value"_s << u"D:\\temp\\run1.mzML"_s;
}

void TestDocumentFindings::controlCharactersInPathsAreFound()
{
    QFETCH(QJsonObject, document);
    QFETCH(QString, pointer);
    QFETCH(QString, shown);
    const QList<LocatedFinding> findings = findingsIn(document);
    QCOMPARE(findings.size(), 1);
    const LocatedFinding &finding = findings.constFirst();
    QCOMPARE(finding.rule, u"Text/controlCharacter"_s);
    QCOMPARE(finding.level, Finding::Level::Warning);
    QCOMPARE(finding.message, u"The path \"%1\" holds a control character."_s.arg(shown));
    QVERIFY(finding.hint.contains(u"write \\\\"_s));
    QCOMPARE(finding.pointer, pointer);
    QCOMPARE(finding.tab, u"Tab"_s);
    QCOMPARE(finding.row, std::optional(0));
}

void TestDocumentFindings::controlCharactersElsewhereAreNone()
{
    const QJsonObject document = ProjectFixtures::document(
        {ProjectFixtures::samplesCell({{u"lot 1\nbatch 2"_s, u"/data/a.mzML"_s, {}, {}}}),
         settings(u"Karvon"_s, {{PropertyId::AdvancedConfiguration, u"[A]\nb=1\tc"_s}})});
    QCOMPARE(findingsIn(document).size(), 0);
}

void TestDocumentFindings::withoutADocumentThePathIsTold()
{
    Content content;
    ProjectFixtures::load(&content, documentWith(u"D:\temp.raw"_s, {}, {}, u"/a.fasta"_s));
    const QList<LocatedFinding> findings = DocumentFindings::of(content, {});
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.constFirst().message, u"The path \"D:\\temp.raw\" holds a control character."_s);
    QVERIFY(findings.constFirst().pointer.isEmpty());
}

void TestDocumentFindings::numbersWithoutQuotesAreFound_data()
{
    QTest::addColumn<PropertyId>("id");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("double as a number") << PropertyId::KarvonCentroidWidthVal << QJsonValue(0.015) << true;
    QTest::newRow("double as an integral number")
        << PropertyId::KarvonCentroidWidthVal << QJsonValue(1) << true;
    QTest::newRow("double as text") << PropertyId::KarvonCentroidWidthVal << QJsonValue(u"0.015"_s) << false;
    QTest::newRow("int as a number") << PropertyId::KarvonCentroidTopk << QJsonValue(5) << false;
}

void TestDocumentFindings::numbersWithoutQuotesAreFound()
{
    QFETCH(PropertyId, id);
    QFETCH(QJsonValue, value);
    QFETCH(bool, isFound);
    const QList<LocatedFinding> findings =
        findingsIn(ProjectFixtures::document({settings(u"Karvon"_s, {{id, value}})}));
    QCOMPARE(findings.size(), isFound ? 1 : 0);
    if (!isFound)
        return;
    QCOMPARE(findings.constFirst().rule, u"Text/numberWithoutQuotes"_s);
    QCOMPARE(findings.constFirst().pointer, u"/tabs/0/cells/0/properties/0/value"_s);
    QCOMPARE(findings.constFirst().property, u"KarvonCentroidWidthVal"_s);
    QVERIFY(findings.constFirst().message.startsWith(
        u"The number %1 of the setting \"KarvonCentroidWidthVal\""_s.arg(value.toDouble())));
}

void TestDocumentFindings::theWholeCheckTellsThemWithTheirLines()
{
    const QJsonObject document =
        ProjectFixtures::document({settings(u"Karvon"_s, {{PropertyId::KarvonCentroidWidthVal, 0.015}})});
    const WorkflowCheckReport report = reportOn(document, {});
    const LocatedFinding &finding = report.findings.constLast();
    QCOMPARE(finding.rule, u"Text/numberWithoutQuotes"_s);
    const QList<QByteArray> lines = Documents::toBytes(document).split('\n');
    QVERIFY(finding.line);
    QVERIFY2(lines.at(*finding.line - 1).contains("\"value\": 0.015"),
             lines.at(*finding.line - 1).constData());
}

void TestDocumentFindings::namedValidatorsTellTheirOwnAlone()
{
    const QJsonObject document =
        ProjectFixtures::document({settings(u"Karvon"_s, {{PropertyId::KarvonCentroidWidthVal, 0.015}})});
    QCOMPARE(reportOn(document, {u"Builtin"_s}).findings.size(), 0);
}

ORV_REGISTER_TEST(TestDocumentFindings)

#include "TestDocumentFindings.moc"
