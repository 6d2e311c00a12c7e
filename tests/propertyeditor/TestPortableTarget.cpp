#include "CurrentVersion.h"
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleTree.h"
#include "TableCells.h"

#include <orv/propertyeditor/workflow/PortableTarget.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowReferences.h>

#include <QDir>
#include <QFile>

using namespace orv;
using namespace Qt::StringLiterals;

class TestPortableTarget : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theOldFolderStaysUntilTheNewOneIsWhole();
    void aPlaceThatIsFreeIsTaken();
    void ofALinkTheLinkAloneGoes();
    void whatAPortableFolderHoldsMayGo();
    void foreignFilesStay_data();
    void foreignFilesStay();
    void documentsOfUnknownAgeStay_data();
    void documentsOfUnknownAgeStay();
    void pathsOfAllKindsAreToldOnce();
    void relativePathsBecomeAbsolute();

private:
    /// A document whose one sample refers to \a path.
    static QByteArray document(const QString &path, const QJsonValue &version = u"5.47.0"_s)
    {
        const QJsonObject sample{{u"SampleName"_s, u"s"_s}, {u"SamplePath"_s, path}};
        const QJsonArray settings{
            TableCells::entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, QJsonArray{sample}}})};
        QJsonObject json = Documents::document(
            {Documents::tab(u"Tab"_s, {u"Samples"_s}, {TableCells::cell(u"Samples"_s, settings)})});
        const QJsonDocument metadata(QJsonObject{{u"version"_s, version}});
        json.insert(u"metadata"_s, QString::fromUtf8(metadata.toJson(QJsonDocument::Compact)));
        return QJsonDocument(json).toJson();
    }

    void addStaged(const PortableTarget &target, const QByteArray &bytes)
    {
        QVERIFY(QDir().mkpath(target.stagedFolder()));
        QFile file(target.stagedFolder() + u"/new"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    [[nodiscard]] QStringList names(const QString &folder) const
    {
        return QDir(m_tree.at(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    SampleTree m_tree;
};

void TestPortableTarget::theOldFolderStaysUntilTheNewOneIsWhole()
{
    m_tree.add(u"one/a.wflwp/old"_s, "old");
    {
        PortableTarget target(m_tree.at(u"one/a.wflwp"_s));
        ORV_VERIFY_OK(target.prepare());
        QCOMPARE(QFileInfo(target.stagedFolder()).fileName(), u"a.wflwp"_s);
        addStaged(target, "half");
    }
    QCOMPARE(names(u"one"_s), QStringList{u"a.wflwp"_s});
    QCOMPARE(names(u"one/a.wflwp"_s), QStringList{u"old"_s});

    PortableTarget target(m_tree.at(u"one/a.wflwp"_s));
    ORV_VERIFY_OK(target.prepare());
    addStaged(target, "whole");
    QCOMPARE(target.asInPlace(target.stagedFolder() + u"/new"_s), m_tree.at(u"one/a.wflwp/new"_s));
    ORV_VERIFY_OK(target.commit());
    QCOMPARE(names(u"one"_s), QStringList{u"a.wflwp"_s});
    QCOMPARE(names(u"one/a.wflwp"_s), QStringList{u"new"_s});
}

void TestPortableTarget::aPlaceThatIsFreeIsTaken()
{
    PortableTarget target(m_tree.at(u"two/deep/a.wflwp"_s));
    ORV_VERIFY_OK(target.prepare());
    addStaged(target, "whole");
    ORV_VERIFY_OK(target.commit());
    QCOMPARE(names(u"two/deep"_s), QStringList{u"a.wflwp"_s});
}

void TestPortableTarget::ofALinkTheLinkAloneGoes()
{
    m_tree.add(u"three/elsewhere/foreign"_s, "x");
    QVERIFY(QFile::link(m_tree.at(u"three/elsewhere"_s), m_tree.at(u"three/a.wflwp"_s)));
    ORV_VERIFY_OK(PortableTarget::checkReplaceable(m_tree.at(u"three/a.wflwp"_s)));
    PortableTarget target(m_tree.at(u"three/a.wflwp"_s));
    ORV_VERIFY_OK(target.prepare());
    addStaged(target, "whole");
    ORV_VERIFY_OK(target.commit());
    QCOMPARE(names(u"three/elsewhere"_s), QStringList{u"foreign"_s});
    QVERIFY(!QFileInfo(m_tree.at(u"three/a.wflwp"_s)).isSymLink());
}

void TestPortableTarget::whatAPortableFolderHoldsMayGo()
{
    const QString folder = m_tree.at(u"four/a.wflwp"_s);
    ORV_VERIFY_OK(PortableTarget::checkReplaceable(folder));
    QVERIFY(QDir().mkpath(folder));
    ORV_VERIFY_OK(PortableTarget::checkReplaceable(folder));
    m_tree.add(u"four/a.wflwp/a.wflw"_s, document(u"samples/run.wiff"_s));
    m_tree.add(u"four/a.wflwp/samples/run.wiff"_s, "data");
    m_tree.add(u"four/a.wflwp/samples/run.wiff.scan"_s, "data");
    ORV_VERIFY_OK(PortableTarget::checkReplaceable(folder));
    m_tree.add(u"four/b.wflwp/a.wflw"_s, document(u"samples/run.d"_s));
    m_tree.add(u"four/b.wflwp/samples/run.d/analysis.baf"_s, "data");
    ORV_VERIFY_OK(PortableTarget::checkReplaceable(m_tree.at(u"four/b.wflwp"_s)));
}

void TestPortableTarget::foreignFilesStay_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QStringList &files, const QString &names) {
        QTest::newRow(name) << files << u"It holds what is no part of a portable workflow: %1."_s.arg(names);
    };
    row("beside the document", {u"a.wflw"_s, u"thesis.doc"_s}, u"thesis.doc"_s);
    row("without a document", {u"x"_s, u"y"_s}, u"x, y"_s);
    row("many", {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}, u"1, 2, 3 and 2 more files"_s);
    row("below a folder", {u"a.wflw"_s, u"samples/run.raw"_s, u"samples/mine.txt"_s}, u"samples/mine.txt"_s);
    row("hidden", {u"a.wflw"_s, u".git/config"_s}, u".git/config"_s);
}

void TestPortableTarget::foreignFilesStay()
{
    QFETCH(QStringList, files);
    QFETCH(QString, reason);
    const QString folder = QString::fromLatin1(QTest::currentDataTag()) + u".wflwp"_s;
    for (const QString &file : files)
        m_tree.add(folder + u'/' + file, file == u"a.wflw"_s ? document(u"samples/run.raw"_s) : "data");
    const Error error = PortableTarget::checkReplaceable(m_tree.at(folder));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), u"The folder %1 isn't replaced."_s.arg(m_tree.at(folder)));
    QCOMPARE(error.details().value(0), reason);
    QCOMPARE(error.details().value(1), u"Name another folder, or move away what is in this one."_s);
}

void TestPortableTarget::documentsOfUnknownAgeStay_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("newer") << document({}, u"5.48.0"_s) << u"Its document has the newer version 5.48.0."_s;
    QTest::newRow("no version") << document({}, u"v5"_s) << u"The document's version \"v5\" is no version."_s;
    QTest::newRow("broken") << QByteArray("{") << u"Its document can't be read: unterminated object"_s;
}

void TestPortableTarget::documentsOfUnknownAgeStay()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const QString folder = QString::fromLatin1(QTest::currentDataTag()) + u".wflwp"_s;
    m_tree.add(folder + u"/a.wflw"_s, text);
    const Error error = PortableTarget::checkReplaceable(m_tree.at(folder));
    QCOMPARE(error.details().value(0), reason);
}

void TestPortableTarget::pathsOfAllKindsAreToldOnce()
{
    const QJsonObject sample{{u"SamplePath"_s, u"data/run #1%20.raw"_s},
                             {u"Traces"_s, QJsonArray{u"/t/uv.csv"_s, u"data/run #1%20.raw"_s}}};
    const QJsonArray samples{
        TableCells::entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, QJsonArray{sample}}})};
    const QJsonArray settings{
        TableCells::entry(u"KarvonGlycanText"_s, QJsonObject{{u"glycans"_s, u"[file:///n.txt]"_s}}),
        TableCells::entry(u"ReportConfiguration"_s, u"../report.json"_s),
        TableCells::entry(u"KarvonAdvancedConfiguration"_s, u"text"_s)};
    const QJsonObject json = Documents::document(
        {Documents::tab(u"A"_s, {u"Samples"_s}, {TableCells::cell(u"Samples"_s, samples)}),
         Documents::tab(u"B"_s, {u"Search"_s}, {TableCells::cell(u"Karvon"_s, settings)})});
    QStringList paths = WorkflowReferences::localPaths(json, QUrl::fromLocalFile(u"/w/f/"_s));
    paths.sort();
    QCOMPARE(paths, (QStringList{u"/n.txt"_s, u"/t/uv.csv"_s, u"/w/f/data/run #1%20.raw"_s, u"/w/f/n.txt"_s,
                                 u"/w/report.json"_s}));
}

void TestPortableTarget::relativePathsBecomeAbsolute()
{
    const auto document = [](const QString &file, const QString &report) {
        const QJsonObject sample{
            {u"SampleName"_s, u"a"_s}, {u"SamplePath"_s, file}, {u"Traces"_s, QJsonArray{u"/t/uv.csv"_s}}};
        const QJsonArray samples{
            TableCells::entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, QJsonArray{sample}}})};
        const QJsonArray settings{TableCells::entry(u"ReportConfiguration"_s, report),
                                  TableCells::entry(u"KarvonAdvancedConfiguration"_s, u"data/text"_s)};
        return Documents::document(
            {Documents::tab(u"A"_s, {u"Samples"_s}, {TableCells::cell(u"Samples"_s, samples)}),
             Documents::tab(u"B"_s, {u"Search"_s}, {TableCells::cell(u"Karvon"_s, settings)})});
    };
    const QJsonObject relative = document(u"data/run #1%20.raw"_s, u"../report.json"_s);
    QCOMPARE(WorkflowReferences::withAbsolutePaths(relative, QUrl::fromLocalFile(u"/w/f/"_s)),
             document(u"/w/f/data/run #1%20.raw"_s, u"/w/report.json"_s));
    QCOMPARE(WorkflowReferences::withAbsolutePaths(relative, {}), relative);
}

ORV_REGISTER_TEST(TestPortableTarget)

#include "TestPortableTarget.moc"
