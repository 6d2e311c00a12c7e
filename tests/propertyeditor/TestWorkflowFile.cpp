// A workflow file as hosts meet it: opened, judged, upgraded, checked and saved.
#include "LogCapture.h"
#include "OrvTest.h"
#include "TestFiles.h"
#include "ValidatorRun.h"

#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/validators/WorkflowFile.h>

#include <QTemporaryDir>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;
using FileState = WflwMetaData::WflwState;

namespace {

/// A search with a setting out of its range, and one that no catalogue knows.
QJsonObject searchOf(const QString &version)
{
    QJsonObject search = settings(u"Karvon"_s, {{PropertyId::KarvonCentroidTopk, -5}});
    QJsonArray entries = search.value(u"properties"_s).toArray();
    entries.append(QJsonObject{{u"name"_s, u"Bygone"_s}, {u"value"_s, 7}});
    search.insert(u"properties"_s, entries);
    return ProjectFixtures::document({samplesCell({{u"a"_s, u"runs/a.raw"_s, {}, {}}}), search},
                                     {{u"version"_s, version}});
}

/// Without anything that gets lost.
QJsonObject plainDocument(const QString &version)
{
    return ProjectFixtures::document({samplesCell({{u"a"_s, u"runs/a.raw"_s, {}, {}}}), step(u"Karvon"_s)},
                                     {{u"version"_s, version}, {u"name"_s, u"Plain"_s}});
}

QStringList pathsOf(const QList<Loss> &losses)
{
    QStringList paths;
    for (const Loss &loss : losses)
        paths.append(loss.path);
    return paths;
}

} // namespace

class TestWorkflowFile : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsReadAndJudged();
    void aPortableFolderMeansItsDocument();
    void whatCannotBeReadIsRefused_data();
    void whatCannotBeReadIsRefused();
    void moreThanCanBeHeldIsRefused();
    void textFromElsewhereCountsFromItsFolder();
    void textThatIsNoWorkflowIsRefused();
    void oddDocumentsAreOpenedAndTellTheirFault_data();
    void oddDocumentsAreOpenedAndTellTheirFault();
    void aNewerDocumentSaysSo();
    void aLoadTellsWhatItDrops();
    void aStrictLoadRefusesUnknownCells();
    void anUpgradeStaysInMemory();
    void anUpgradeThatFailsChangesNothing();
    void aCurrentDocumentIsNotChanged();
    void aCheckTellsPlacesOfTheFile();
    void aCheckByAnUnknownNameIsRefused();
    void whatIsLostIsNotWrittenOverTheOnlyCopy();
    void whatWasMendedIsNotWrittenOverTheOnlyCopy();
    void aChangedTreeIsTakenAndSaved();
    void lossesOfTheTreeCount();
    void anUnevenTreeIsNotTaken();
    void aNewerDocumentIsNotWrittenOver_data();
    void aNewerDocumentIsNotWrittenOver();
    void whatIsNoWorkflowIsReplaced();
    void aDocumentWithoutTextIsWritten();
    void whatCannotBeWrittenIsTold();

private:
    QString makeWorkflow(const QString &name, const QJsonObject &document) const
    {
        const QString path = m_folder.filePath(name);
        TestFiles::makeFile(path, Documents::toBytes(document));
        return path;
    }

    QTemporaryDir m_folder;
};

void TestWorkflowFile::aFileIsReadAndJudged()
{
    const QJsonObject document = plainDocument(u"5.46.0"_s);
    const QString path = makeWorkflow(u"read.wflw"_s, document);
    const Result<WorkflowFile> file = WorkflowFile::open(path);
    ORV_VERIFY_OK(file);
    QCOMPARE(file->path(), path);
    QCOMPARE(file->folderUrl().toLocalFile(), m_folder.path() + u'/');
    QCOMPARE(file->text(), TestFiles::bytesOf(path));
    QCOMPARE(file->document(), document);
    QCOMPARE(file->version(), QVersionNumber(5, 46, 0));
    QCOMPARE(file->state(), FileState::NeedsUpgrade);
    QVERIFY(!file->isNewer());
    ORV_VERIFY_OK(file->fault());
    QVERIFY(file->lost().isEmpty());
}

void TestWorkflowFile::aPortableFolderMeansItsDocument()
{
    const QString folder = m_folder.filePath(u"portable.wflwp"_s);
    QVERIFY(QDir().mkpath(folder));
    makeWorkflow(u"portable.wflwp/workflow.wflw"_s, plainDocument(u"5.46.0"_s));
    Result<WorkflowFile> file = WorkflowFile::open(folder);
    ORV_VERIFY_OK(file);
    QCOMPARE(file->path(), folder + u"/workflow.wflw"_s);
    QCOMPARE(file->folderUrl().toLocalFile(), folder + u'/');
    file->upgrade({.accessSampleData = false});
    ORV_VERIFY_OK(file->save(folder));
    QCOMPARE(WorkflowFile::open(folder)->version(), currentVersion());
}

void TestWorkflowFile::whatCannotBeReadIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<ErrorCode>("code");
    const QString noWorkflow = u"The file is no workflow: "_s;
    QTest::newRow("missing") << QByteArray() << u"Could not open the file: "_s << ErrorCode::CannotOpenFile;
    QTest::newRow("no JSON") << QByteArray("tabs") << noWorkflow << ErrorCode::InvalidContent;
    QTest::newRow("array") << QByteArray("[]") << noWorkflow << ErrorCode::InvalidContent;
    QTest::newRow("key twice") << QByteArray("{\"tabs\": [],\n \"tabs\": []}") << noWorkflow
                               << ErrorCode::InvalidContent;
}

void TestWorkflowFile::whatCannotBeReadIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QFETCH(ErrorCode, code);
    const QString path = m_folder.filePath(u"unreadable.wflw"_s);
    QFile::remove(path);
    if (!text.isEmpty())
        TestFiles::makeFile(path, text);
    const Result<WorkflowFile> file = WorkflowFile::open(path);
    QVERIFY(file.hasError());
    QCOMPARE(file.error().code(), code);
    QCOMPARE(file.error().errorMessage(), message + path);
    QVERIFY(!file.error().details().isEmpty());
}

void TestWorkflowFile::moreThanCanBeHeldIsRefused()
{
    const QString path = m_folder.filePath(u"large.wflw"_s);
    QFile large(path);
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(FileUtils::kMaxFileSize + 1));
    large.close();
    const Result<WorkflowFile> file = WorkflowFile::open(path);
    QVERIFY(file.hasError());
    QCOMPARE(file.error().code(), ErrorCode::InvalidContent);
    QVERIFY(QFile::remove(path));
}

void TestWorkflowFile::textFromElsewhereCountsFromItsFolder()
{
    const LogCapture log;
    const QByteArray text = Documents::toBytes(plainDocument(currentVersionText()));
    const Result<WorkflowFile> file = WorkflowFile::fromText(text, QUrl(u"file:///nowhere/"_s));
    ORV_VERIFY_OK(file);
    QVERIFY(file->path().isEmpty());
    QCOMPARE(file->text(), text);
    const Result<WorkflowCheckReport> report = file->check({u"Files"_s});
    ORV_VERIFY_OK(report);
    QVERIFY(report->findings.constFirst().hint.contains(u"\"/nowhere/runs/a.raw\""_s));
}

void TestWorkflowFile::textThatIsNoWorkflowIsRefused()
{
    const Result<WorkflowFile> file = WorkflowFile::fromText("{\"tabs\": [],}", {});
    QVERIFY(file.hasError());
    QCOMPARE(file.error().errorMessage(), u"The text is no workflow."_s);
    QVERIFY(file.error().details().join(u' ').contains(u"Line 1"_s));
}

void TestWorkflowFile::oddDocumentsAreOpenedAndTellTheirFault_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<ErrorCode>("code");
    QTest::newRow("a number for a cell")
        << Documents::document({Documents::tab(u"Search"_s, {u"A"_s}, {step(u"Karvon"_s), 5})})
        << ErrorCode::MalformedStructure;
    QJsonObject twice = Documents::document({Documents::tab(u"Search"_s, {u"A"_s}, {step(u"Karvon"_s)})});
    twice.insert(u"metadata"_s, u"{\"name\": \"a\", \"name\": \"b\"}"_s);
    QTest::newRow("metadata twice") << twice << ErrorCode::InvalidContent;
}

void TestWorkflowFile::oddDocumentsAreOpenedAndTellTheirFault()
{
    QFETCH(QJsonObject, document);
    QFETCH(ErrorCode, code);
    const LogCapture log;
    const Result<WorkflowFile> file = WorkflowFile::open(makeWorkflow(u"odd.wflw"_s, document));
    ORV_VERIFY_OK(file);
    QCOMPARE(file->fault().code(), code);
    QVERIFY(file->load().hasError());
}

void TestWorkflowFile::aNewerDocumentSaysSo()
{
    const Result<WorkflowFile> file =
        WorkflowFile::open(makeWorkflow(u"newer.wflw"_s, plainDocument(u"6.0.0"_s)));
    ORV_VERIFY_OK(file);
    QVERIFY(file->isNewer());
    QStringList reasons;
    QCOMPARE(file->state(&reasons), FileState::NotSupported);
    QCOMPARE(file->state(), FileState::NotSupported);
    QVERIFY(!reasons.isEmpty());
}

void TestWorkflowFile::aLoadTellsWhatItDrops()
{
    const LogCapture log;
    QJsonObject document = searchOf(currentVersionText());
    const Result<WorkflowFile> file = WorkflowFile::open(makeWorkflow(u"losses.wflw"_s, document));
    ORV_VERIFY_OK(file);
    const Result<LoadedContent> loaded = file->load();
    ORV_VERIFY_OK(loaded);
    QCOMPARE(pathsOf(loaded->lost), QStringList{u"/tabs/0/cells/1/properties/1"_s});
    QCOMPARE(loaded->content->group(0)->subGroup(1)->count(), 1);
    QCOMPARE(loaded->content->baseUrl(), file->folderUrl());
    QVERIFY(file->lost().isEmpty());
}

void TestWorkflowFile::aStrictLoadRefusesUnknownCells()
{
    const LogCapture log;
    const WorkflowFile file({ProjectFixtures::document({step(u"Novelty"_s)}), {}});
    const Result<LoadedContent> loaded = file.load();
    ORV_VERIFY_OK(loaded);
    QVERIFY(loaded->content->baseUrl().isEmpty());
    const Result<LoadedContent> strict = file.load(ValidationOptions());
    QVERIFY(strict.hasError());
    QVERIFY(strict.error().errorMessage().contains(u"\"Novelty\""_s));
}

void TestWorkflowFile::anUpgradeStaysInMemory()
{
    const LogCapture log;
    const QString path = makeWorkflow(u"old.wflw"_s, searchOf(u"5.40.0"_s));
    const QByteArray before = TestFiles::bytesOf(path);
    Result<WorkflowFile> file = WorkflowFile::open(path);
    ORV_VERIFY_OK(file);
    const WorkflowUpgradeReport report = file->upgrade({.accessSampleData = false, .user = u"reviewer"_s});
    ORV_VERIFY_OK(report.error);
    QVERIFY(report.isChanged);
    QCOMPARE(file->text(), report.upgraded);
    QCOMPARE(file->version(), currentVersion());
    QCOMPARE(file->state(), FileState::UpToDate);
    QVERIFY(file->text().contains("reviewer"));
    QCOMPARE(pathsOf(file->lost()), QStringList{u"/tabs/0/cells/1/properties/1"_s});
    QCOMPARE(TestFiles::bytesOf(path), before);
}

void TestWorkflowFile::anUpgradeThatFailsChangesNothing()
{
    const LogCapture log;
    const QJsonObject document = ProjectFixtures::document(
        {samplesCell({}), step(u"Senthia"_s)},
        {{u"version"_s, u"5.25.0"_s}, {u"workflowType"_s, workflowTypeToString(WorkflowType::IntactMass)}});
    WorkflowFile file({document, Documents::toBytes(document)});
    const WorkflowUpgradeReport report = file.upgrade();
    QCOMPARE(report.error.errorMessage(),
             u"Workflow does not contain the expected trace peak option presets."_s);
    QCOMPARE(file.document(), document);
    QCOMPARE(file.text(), Documents::toBytes(document));
    QVERIFY(file.check().hasError());
}

void TestWorkflowFile::aCurrentDocumentIsNotChanged()
{
    const QJsonObject document = searchOf(currentVersionText());
    WorkflowFile file({document, Documents::toBytes(document)});
    const WorkflowUpgradeReport report = file.upgrade();
    ORV_VERIFY_OK(report.error);
    QVERIFY(!report.isChanged);
    QCOMPARE(file.text(), Documents::toBytes(document));
    QVERIFY(file.lost().isEmpty());
}

void TestWorkflowFile::aCheckTellsPlacesOfTheFile()
{
    const LogCapture log;
    const QString path = makeWorkflow(u"checked.wflw"_s, searchOf(u"5.40.0"_s));
    const Result<WorkflowFile> file = WorkflowFile::open(path);
    ORV_VERIFY_OK(file);
    const Result<WorkflowCheckReport> report = file->check({u"Builtin"_s, u"Files"_s});
    ORV_VERIFY_OK(report);
    QVERIFY(!report->isValid);
    QCOMPARE(pathsOf(report->lost), QStringList{u"/tabs/0/cells/1/properties/1"_s});
    const auto range = std::ranges::find(report->findings, u"Builtin/range"_s, &LocatedFinding::rule);
    QVERIFY(range != report->findings.end());
    QCOMPARE(range->pointer, u"/tabs/0/cells/1/properties/0/value"_s);
    QVERIFY(range->line);
    QVERIFY(TestFiles::bytesOf(path).split('\n').at(*range->line - 1).contains("\"value\": -5"));
    const QString sample = m_folder.filePath(u"runs/a.raw"_s);
    QVERIFY(std::ranges::any_of(report->findings, [&sample](const LocatedFinding &finding) {
        return finding.hint.contains(sample);
    }));
}

void TestWorkflowFile::aCheckByAnUnknownNameIsRefused()
{
    const WorkflowFile file({plainDocument(currentVersionText()), {}});
    const Result<WorkflowCheckReport> report = file.check({u"Vendors"_s});
    QVERIFY(report.hasError());
    QCOMPARE(report.error().errorMessage(), u"There is no validator \"Vendors\"."_s);
}

void TestWorkflowFile::whatIsLostIsNotWrittenOverTheOnlyCopy()
{
    const LogCapture log;
    const QString path = makeWorkflow(u"only.wflw"_s, searchOf(u"5.40.0"_s));
    const QByteArray before = TestFiles::bytesOf(path);
    Result<WorkflowFile> file = WorkflowFile::open(path);
    ORV_VERIFY_OK(file);
    file->upgrade({.accessSampleData = false});
    // By another name, too.
    for (const QString &name : {path, m_folder.filePath(u"./only.wflw"_s)}) {
        const Error refusal = file->save(name);
        QCOMPARE(refusal.code(), ErrorCode::InvalidContent);
        QCOMPARE(refusal.errorMessage(), u"Something of the workflow would be lost: "_s + name);
        QVERIFY(refusal.details().constFirst().startsWith(u"/tabs/0/cells/1/properties/1: "_s));
        QCOMPARE(refusal.details().constLast(), u"Save to another file, or accept the losses."_s);
        QCOMPARE(TestFiles::bytesOf(path), before);
    }
    const QString other = m_folder.filePath(u"other.wflw"_s);
    ORV_VERIFY_OK(file->save(other));
    QCOMPARE(TestFiles::bytesOf(other), file->text());
    ORV_VERIFY_OK(file->save(path, WorkflowFile::Losses::Accepted));
    QCOMPARE(TestFiles::bytesOf(path), file->text());
}

void TestWorkflowFile::whatWasMendedIsNotWrittenOverTheOnlyCopy()
{
    const LogCapture log;
    QJsonObject document = plainDocument(u"5.46.0"_s);
    document.insert(u"tabs"_s, QJsonArray{document.value(u"tabs"_s)[0], 5});
    const QString path = makeWorkflow(u"mended.wflw"_s, document);
    Result<WorkflowFile> file = WorkflowFile::open(path);
    ORV_VERIFY_OK(file);
    QVERIFY(file->upgrade({.accessSampleData = false}).isChanged);
    ORV_VERIFY_OK(file->fault());
    const Error refusal = file->save(path);
    QCOMPARE(refusal.code(), ErrorCode::MalformedStructure);
    QVERIFY(refusal.errorMessage().startsWith(u"A tab must be "_s));
    QCOMPARE(TestFiles::bytesOf(path), Documents::toBytes(document));
    ORV_VERIFY_OK(file->save(m_folder.filePath(u"mended-2.wflw"_s)));
}

void TestWorkflowFile::aChangedTreeIsTakenAndSaved()
{
    const LogCapture log;
    const QString path = makeWorkflow(u"changed.wflw"_s, plainDocument(currentVersionText()));
    Result<WorkflowFile> file = WorkflowFile::open(path);
    ORV_VERIFY_OK(file);
    const Result<LoadedContent> loaded = file->load();
    ORV_VERIFY_OK(loaded);
    loaded->content->setWorkflowName(u"Second run"_s);
    ORV_VERIFY_OK(file->assign(*loaded->content, loaded->lost));
    ORV_VERIFY_OK(file->save(path));
    const Result<WorkflowFile> saved = WorkflowFile::open(path);
    ORV_VERIFY_OK(saved);
    QCOMPARE(saved->document(), file->document());
    QCOMPARE(saved->load()->content->name(), u"Second run"_s);
}

void TestWorkflowFile::lossesOfTheTreeCount()
{
    const LogCapture log;
    const QString path = makeWorkflow(u"tree.wflw"_s, searchOf(currentVersionText()));
    Result<WorkflowFile> file = WorkflowFile::open(path);
    ORV_VERIFY_OK(file);
    const Result<LoadedContent> loaded = file->load();
    ORV_VERIFY_OK(loaded);
    ORV_VERIFY_OK(file->assign(*loaded->content, loaded->lost));
    QCOMPARE(file->lost().size(), 1);
    QVERIFY(file->save(path).hasError());
    ORV_VERIFY_OK(file->save(path, WorkflowFile::Losses::Accepted));
}

void TestWorkflowFile::anUnevenTreeIsNotTaken()
{
    const LogCapture log;
    const QJsonObject document =
        Documents::document({Documents::tab(u"Search"_s, {u"A"_s, u"B"_s}, {step(u"Karvon"_s)})});
    WorkflowFile file({document, Documents::toBytes(document)});
    const Result<LoadedContent> loaded = file.load();
    ORV_VERIFY_OK(loaded);
    const Error refusal = file.assign(*loaded->content, {});
    QCOMPARE(refusal.code(), ErrorCode::MalformedStructure);
    QVERIFY(refusal.errorMessage().contains(u"\"Search\""_s));
    QCOMPARE(file.document(), document);
}

void TestWorkflowFile::aNewerDocumentIsNotWrittenOver_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QByteArray>("text");
    const auto textOf = [](const QString &version) { return Documents::toBytes(plainDocument(version)); };
    QTest::newRow("major") << u"6.0.0"_s << textOf(u"6.0.0"_s);
    QTest::newRow("patch") << nextPatch().toString() << textOf(nextPatch().toString());
    QByteArray twice = textOf(u"6.0.0"_s);
    twice.replace(twice.lastIndexOf('}'), 1, ", \"novelty\": 1, \"novelty\": 2}");
    QTest::newRow("with a key twice") << u"6.0.0"_s << twice;
}

void TestWorkflowFile::aNewerDocumentIsNotWrittenOver()
{
    QFETCH(QString, version);
    QFETCH(QByteArray, text);
    const QString target = m_folder.filePath(u"target.wflw"_s);
    TestFiles::makeFile(target, text);
    const WorkflowFile file({plainDocument(currentVersionText()), "{}"});
    const Error refusal = file.save(target, WorkflowFile::Losses::Accepted);
    QCOMPARE(refusal.code(), ErrorCode::InvalidContent);
    QCOMPARE(refusal.errorMessage(),
             u"The workflow has the newer version %1 and is not written over: %2"_s.arg(version, target));
    QCOMPARE(refusal.details(), QStringList{u"Save to another file, or use the software that wrote it."_s});
    QCOMPARE(TestFiles::bytesOf(target), text);
}

void TestWorkflowFile::whatIsNoWorkflowIsReplaced()
{
    const QString path = m_folder.filePath(u"notes.txt"_s);
    TestFiles::makeFile(path, "no JSON");
    const Result<WorkflowFile> file = WorkflowFile::fromText("{\"tabs\": []}", {});
    ORV_VERIFY_OK(file);
    ORV_VERIFY_OK(file->save(path));
    QCOMPARE(TestFiles::bytesOf(path), "{\"tabs\": []}");
}

void TestWorkflowFile::aDocumentWithoutTextIsWritten()
{
    const QJsonObject document = plainDocument(currentVersionText());
    const QString path = m_folder.filePath(u"written.wflw"_s);
    ORV_VERIFY_OK(WorkflowFile({document, {}}).save(path));
    QCOMPARE(Documents::parse(TestFiles::bytesOf(path)), document);
}

void TestWorkflowFile::whatCannotBeWrittenIsTold()
{
    const Result<WorkflowFile> file = WorkflowFile::fromText("{\"tabs\": []}", {});
    ORV_VERIFY_OK(file);
    const QString missing = m_folder.filePath(u"missing/a.wflw"_s);
    const Error unwritten = file->save(missing);
    QCOMPARE(unwritten.code(), ErrorCode::CannotOpenFile);
    QCOMPARE(unwritten.errorMessage(), u"Could not write the file: "_s + missing);
    QCOMPARE(unwritten.details().size(), 2);
    QCOMPARE(file->save(m_folder.path()).code(), ErrorCode::CannotOpenFile);
    QCOMPARE(file->save(QString()).code(), ErrorCode::CannotOpenFile);
}

ORV_REGISTER_TEST(TestWorkflowFile)
#include "TestWorkflowFile.moc"
