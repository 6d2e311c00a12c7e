#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"
#include "TestFiles.h"

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QDir>
#include <QFile>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using TableCells::cell;
using TableCells::entry;

namespace {

const auto kFilter = u"ReportConfiguration"_s; // of type 4001
const auto kGlycans = u"KarvonGlycanText"_s;

void write(const QString &path, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(bytes);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
}

QJsonObject reportEntry(const QString &reference)
{
    return {{u"name"_s, kFilter}, {u"value"_s, reference}};
}

QJsonObject glycanEntry(const QString &glycans)
{
    QString stored = glycans;
    stored.replace(u"\\"_s, u"\\\\"_s);
    return {{u"name"_s, kGlycans}, {u"value"_s, QJsonObject{{u"glycans"_s, stored}}}};
}

/// A workflow with a column of searches, one row for each list of settings.
QJsonObject workflow(const QList<QJsonArray> &searches)
{
    QJsonArray cells;
    for (const QJsonArray &settings : searches)
        cells.append(cell(u"Karvon"_s, settings));
    return Documents::document({Documents::tab(u"Search"_s, {u"Search"_s}, cells)});
}

KeyValueItem *searchOf(const Content &content, int row = 0)
{
    return qobject_cast<KeyValueItem *>(content.findAllItems(BaseItemType::Karvon).value(row));
}

QString referenceIn(const Content &content, int row = 0)
{
    return ResourceReferenceUtils::toString(
        ResourceReferenceUtils::fromVariant(searchOf(content, row)->value(kFilter)));
}

QString glycansIn(const Content &content)
{
    return PropertyEditorJsonUtils::storedSerializedGlycans(
        PropertyEditorJsonUtils::variantToObject(searchOf(content)->value(kGlycans)));
}

/// What a portable save said.
class Recorder : public PortableSaveObserver
{
public:
    void copying(const QString &source, qint64 done, qint64 total) override
    {
        Q_UNUSED(source)
        lastDone = done;
        lastTotal = total;
    }
    void copied(const QString & /*source*/, const QString &destination) override
    {
        names.append(QFileInfo(destination).fileName());
    }
    void failed(FileUtils::CopyFailure::Side side) override { sides.append(side); }

    QStringList names;
    QList<FileUtils::CopyFailure::Side> sides;
    qint64 lastDone = -1;
    qint64 lastTotal = -1;
};

} // namespace

class TestWflwUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void cleanup() { prepare(); }
    void filtersNameWorkflows();
    void builtinWorkflowsLieBesideTheProgram();
    void workflowsAreListedByTheirNames();
    void anEmptyPathListsNothing();
    void namesTellWorkflows_data();
    void namesTellWorkflows();
    void thePortableDocumentIsTheFirstThatIsThere();
    void thePortableDocumentToWriteHasTheFoldersName();
    void theTypeOfAWorkflowInAFile();
    void filesAreCopiedBesideTheDocument();
    void aPortableFolderOpensInAnotherPlace();
    void theCallersDocumentKeepsItsReferences();
    void relativeAndAbsoluteReferencesAreFound_data();
    void relativeAndAbsoluteReferencesAreFound();
    void filesOfOneNameGetTwoNames();
    void namesThatDifferInCaseAloneGetTwoNames();
    void longNamesStayWithinTheLimit();
    void aFileWithTheDocumentsNameGetsAnother();
    void anEmptyReferenceLeavesNoFile();
    void referencesToServersAreRefused();
    void whatIsThereIsWiped();
    void aLinkIsRemovedAndNotWhatItLeadsTo();
    void aFolderThatCannotBeMadeIsAnError();
    void aFolderThatCannotBeCleanedIsAnError();
    void aMissingFileEndsTheSave_data();
    void aMissingFileEndsTheSave();
    void anUnreadableFileEndsTheSave();
    void aRepeatedSaveClearsWhatAFailedOneLeft();
    void glycanDatabasesAreCopied();
    void glycanDatabasesAreFoundByUrlOrBesideTheWorkflow();
    void aDatabaseNamedTwiceIsCopiedOnce();
    void glycansWithoutDatabasesStayAsTheyWere();
    void aDatabaseThatIsMissingEndsTheSave();
    void cellsOfUnknownTypesAreKept();
    void aDocumentThatCannotBeWrittenIsLogged();

private:
    void prepare();
    [[nodiscard]] QString path(const QString &name) const { return m_dir->filePath(name); }
    [[nodiscard]] QUrl base() const { return QUrl::fromLocalFile(m_dir->path() + u'/'); }
    bool save(const QJsonObject &document, PortableSaveObserver *observer = nullptr);
    int saveAsNobody(const QJsonObject &document, const QString &text);
    Content reopened();

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
    QString m_error;
};

void TestWflwUtils::prepare()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_folder = path(u"out/study.wflwp"_s);
    m_error.clear();
}

bool TestWflwUtils::save(const QJsonObject &document, PortableSaveObserver *observer)
{
    Content content;
    if (content.assignFromJson(document).hasError())
        qFatal("The test's document is broken");
    return WflwUtils::saveAsPortableWorkflow(content, m_folder, base(), &m_error, observer);
}

/// Whether the save is refused with that text when permissions bind.
int TestWflwUtils::saveAsNobody(const QJsonObject &document, const QString &text)
{
    QFile::setPermissions(m_dir->path(), QFileDevice::Permissions(0x7755));
    const int outcome = inChildProcess([&] {
        LogCapture log;
        if (!becomeNobody())
            return TestFiles::Undone;
        if (save(document))
            return TestFiles::Succeeded;
        return m_error == text ? TestFiles::Refused : TestFiles::WrongError;
    });
    return outcome == kChildNotSupported ? TestFiles::Undone : outcome;
}

Content TestWflwUtils::reopened()
{
    Content content;
    if (content.assignFromFile(WflwUtils::workflowInPortableWorkflow(m_folder)).hasError())
        qFatal("The portable document is broken");
    return content;
}

void TestWflwUtils::filtersNameWorkflows()
{
    QCOMPARE(WflwUtils::workflowFilters().types(),
             (QList<FileType>{MirelFileTypes::WFLW, MirelFileTypes::WFLWP, MirelFileTypes::PTSON}));
    QCOMPARE(WflwUtils::workflowFiltersInDialog().types(),
             (QList<FileType>{MirelFileTypes::WFLW, MirelFileTypes::PTSON}));
    QCOMPARE(&WflwUtils::workflowFilters(), &WflwUtils::workflowFilters());
}

void TestWflwUtils::builtinWorkflowsLieBesideTheProgram()
{
    QCOMPARE(WflwUtils::builtinWorkflowsPath(),
             QCoreApplication::applicationDirPath() + u"/presets/Mirel/workflows"_s);
    QVERIFY(WflwUtils::enumerateBuiltinWorkflows().isEmpty());
}

void TestWflwUtils::workflowsAreListedByTheirNames()
{
    for (const QString &name : {u"a.wflw"_s, u"B.WFLW"_s, u"c.ptson"_s, u"d.txt"_s, u"sub/e.wflw"_s})
        write(path(name), "{}");
    QVERIFY(QDir().mkpath(path(u"f.wflwp"_s)));
    QStringList names;
    for (const QFileInfo &info : WflwUtils::enumerateWorkflows(m_dir->path())) {
        QVERIFY(info.isAbsolute());
        names.append(info.fileName());
    }
    names.sort();
    QCOMPARE(names, (QStringList{u"B.WFLW"_s, u"a.wflw"_s, u"c.ptson"_s, u"f.wflwp"_s}));
}

void TestWflwUtils::anEmptyPathListsNothing()
{
    QVERIFY(WflwUtils::enumerateWorkflows({}).isEmpty());
    QVERIFY(WflwUtils::enumerateWorkflows(path(u"nowhere"_s)).isEmpty());
}

void TestWflwUtils::namesTellWorkflows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isWorkflow");
    QTest::addColumn<bool>("isPortable");
    QTest::newRow("document") << u"/lab/a.wflw"_s << true << false;
    QTest::newRow("capitals") << u"a.WFLW"_s << true << false;
    QTest::newRow("portable") << u"a.b.wflwP"_s << true << true;
    QTest::newRow("portable with a slash") << u"a.wflwp/"_s << true << true;
    QTest::newRow("old") << u"a.ptson"_s << true << false;
    QTest::newRow("other") << u"a.json"_s << false << false;
    QTest::newRow("longer") << u"a.wflwpx"_s << false << false;
    QTest::newRow("none") << u"wflw"_s << false << false;
    QTest::newRow("empty") << QString() << false << false;
}

void TestWflwUtils::namesTellWorkflows()
{
    QFETCH(QString, name);
    QTEST(WflwUtils::isMirelWorkflow(name), "isWorkflow");
    QTEST(WflwUtils::isMirelPortableWorkflow(name), "isPortable");
}

void TestWflwUtils::thePortableDocumentIsTheFirstThatIsThere()
{
    const QString folder = path(u"x.wflwp"_s);
    for (const QString &name : {u"z.wflw"_s, u"b.wflw"_s, u"a.txt"_s})
        write(folder + u'/' + name, "{}");
    QCOMPARE(WflwUtils::workflowInPortableWorkflow(folder), folder + u"/b.wflw"_s);
}

void TestWflwUtils::thePortableDocumentToWriteHasTheFoldersName()
{
    const QString folder = path(u"x.wflwp"_s);
    QCOMPARE(WflwUtils::workflowInPortableWorkflow(folder), folder + u"/x.wflw"_s);
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(WflwUtils::workflowInPortableWorkflow(folder), folder + u"/x.wflw"_s);
}

void TestWflwUtils::theTypeOfAWorkflowInAFile()
{
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(workflow({{}})));
    const WorkflowType type = WorkflowType(28);
    content.setWorkflowType(type);
    QVERIFY(content.save(path(u"typed.wflw"_s)));
    QCOMPARE(WflwUtils::workflowType(path(u"typed.wflw"_s)), type);

    LogCapture log;
    QCOMPARE(WflwUtils::workflowType(path(u"missing.wflw"_s)), WorkflowType(0));
    QVERIFY(!log.lines().isEmpty());
}

void TestWflwUtils::filesAreCopiedBesideTheDocument()
{
    write(path(u"reports/weekly.json"_s), "report");
    Recorder recorder;
    QVERIFY2(save(workflow({{reportEntry(u"reports/weekly.json"_s)}}), &recorder), qPrintable(m_error));
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), (QStringList{u"study.wflw"_s, u"weekly.json"_s}));
    QCOMPARE(read(m_folder + u"/weekly.json"_s), "report");
    QCOMPARE(referenceIn(reopened()), u"weekly.json"_s);
    QCOMPARE(recorder.names, QStringList{u"weekly.json"_s});
    QCOMPARE(recorder.lastDone, 6);
    QCOMPARE(recorder.lastTotal, 6);
    QVERIFY(recorder.sides.isEmpty());
}

void TestWflwUtils::aPortableFolderOpensInAnotherPlace()
{
    write(path(u"weekly.json"_s), "report");
    write(path(u"db/high mannose #1.txt"_s), "glycans");
    QVERIFY(save(
        workflow({{reportEntry(u"weekly.json"_s), glycanEntry(u"[db/high mannose #1.txt] | rare1"_s)}})));
    const QString elsewhere = path(u"elsewhere"_s);
    QVERIFY(QDir().mkpath(elsewhere));
    QVERIFY(QFile::rename(m_folder, elsewhere + u"/study.wflwp"_s));
    QVERIFY(QFile::remove(path(u"weekly.json"_s)));

    Content content;
    ORV_VERIFY_OK(content.assignFromFile(elsewhere + u"/study.wflwp/study.wflw"_s));
    content.setBaseUrl(QUrl::fromLocalFile(elsewhere + u"/study.wflwp/"_s));
    Content absolute;
    ORV_VERIFY_OK(absolute.assignFromJson(
        QJsonDocument::fromJson(content.toJson(PropertyConversionFlag::AbsolutePaths)).object()));
    QCOMPARE(read(referenceIn(absolute)), "report");
    const QString glycans = glycansIn(absolute);
    const QString database = glycans.mid(1, glycans.indexOf(u']') - 1);
    QCOMPARE(read(QUrl(database).toLocalFile()), "glycans");
}

void TestWflwUtils::theCallersDocumentKeepsItsReferences()
{
    write(path(u"weekly.json"_s), "report");
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(workflow({{reportEntry(u"./weekly.json"_s)}})));
    const QByteArray before = content.toJson(PropertyConversionFlag::KeepPaths);
    QVERIFY(WflwUtils::saveAsPortableWorkflow(content, m_folder, base(), &m_error));
    QCOMPARE(content.toJson(PropertyConversionFlag::KeepPaths), before);
}

void TestWflwUtils::relativeAndAbsoluteReferencesAreFound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reference"); // %1 is the folder
    QTest::newRow("relative") << u"a.json"_s << u"a.json"_s;
    QTest::newRow("upwards") << u"a.json"_s << u"sub/../a.json"_s;
    QTest::newRow("absolute") << u"a.json"_s << u"%1/a.json"_s;
    QTest::newRow("URL") << u"a.json"_s << u"file://%1/a.json"_s;
    QTest::newRow("signs of URLs") << u"50% #1 ?.json"_s << u"50% #1 ?.json"_s;
    QTest::newRow("signs of URLs, absolute") << u"50%25 #1 ?.json"_s << u"%1/50%25 #1 ?.json"_s;
    QTest::newRow("blanks at the end") << u"a.json "_s << u"%1/a.json "_s;
    QTest::newRow("other letters") << u"Βericht über µg.json"_s << u"Βericht über µg.json"_s;
}

void TestWflwUtils::relativeAndAbsoluteReferencesAreFound()
{
    QFETCH(QString, file);
    QFETCH(QString, reference);
    write(path(file), "found");
    QVERIFY2(save(workflow({{reportEntry(reference.replace(u"%1"_s, m_dir->path()))}})), qPrintable(m_error));
    QCOMPARE(referenceIn(reopened()), file);
    QCOMPARE(read(m_folder + u'/' + file), "found");
}

void TestWflwUtils::filesOfOneNameGetTwoNames()
{
    write(path(u"a/report.json"_s), "first");
    write(path(u"b/report.json"_s), "second");
    QVERIFY(save(workflow({{reportEntry(u"a/report.json"_s)}, {reportEntry(u"b/report.json"_s)}})));
    const Content content = reopened();
    QCOMPARE(read(m_folder + u'/' + referenceIn(content, 0)), "first");
    QCOMPARE(read(m_folder + u'/' + referenceIn(content, 1)), "second");
}

void TestWflwUtils::namesThatDifferInCaseAloneGetTwoNames()
{
    write(path(u"report.json"_s), "first");
    write(path(u"Report.JSON"_s), "second");
    QVERIFY(save(workflow({{reportEntry(u"report.json"_s)}, {reportEntry(u"Report.JSON"_s)}})));
    const Content content = reopened();
    QVERIFY(referenceIn(content, 0).compare(referenceIn(content, 1), Qt::CaseInsensitive) != 0);
    QCOMPARE(read(m_folder + u'/' + referenceIn(content, 1)), "second");
}

void TestWflwUtils::longNamesStayWithinTheLimit()
{
    const QString name = QString(125, u'µ') + u".json"_s; // 255 bytes
    QCOMPARE(name.toUtf8().size(), 255);
    write(path(u"a/"_s + name), "first");
    write(path(u"b/"_s + name), "second");
    QVERIFY2(save(workflow({{reportEntry(u"a/"_s + name)}, {reportEntry(u"b/"_s + name)}})),
             qPrintable(m_error));
    const Content content = reopened();
    QCOMPARE(referenceIn(content, 0), name);
    QVERIFY(referenceIn(content, 1).endsWith(u" (2).json"_s));
    QCOMPARE(read(m_folder + u'/' + referenceIn(content, 1)), "second");
}

void TestWflwUtils::aFileWithTheDocumentsNameGetsAnother()
{
    write(path(u"study.wflw"_s), "no workflow");
    QVERIFY(save(workflow({{reportEntry(u"study.wflw"_s)}})));
    Content content;
    ORV_VERIFY_OK(content.assignFromFile(m_folder + u"/study.wflw"_s));
    QCOMPARE(referenceIn(content), u"study (2).wflw"_s);
    QCOMPARE(read(m_folder + u"/study (2).wflw"_s), "no workflow");
}

void TestWflwUtils::anEmptyReferenceLeavesNoFile()
{
    QVERIFY(save(workflow({{reportEntry(QString())}})));
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList{u"study.wflw"_s});
    QCOMPARE(referenceIn(reopened()), QString());
}

void TestWflwUtils::referencesToServersAreRefused()
{
    Recorder recorder;
    QVERIFY(!save(workflow({{reportEntry(u"talvane:/projects/17/report.json"_s)}}), &recorder));
    QCOMPARE(m_error, u"URL \"talvane:/projects/17/report.json\" is not valid"_s);
    QCOMPARE(recorder.sides, QList{FileUtils::CopyFailure::Side::Source});
}

void TestWflwUtils::whatIsThereIsWiped()
{
    write(m_folder + u"/sub/unrelated.txt"_s, "old");
    write(m_folder + u"/.hidden"_s, "old");
    QVERIFY(save(workflow({{}})));
    QCOMPARE(QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"study.wflw"_s});

    QVERIFY(QDir(m_folder).removeRecursively());
    write(m_folder, "a file of that name");
    QVERIFY(save(workflow({{}})));
    QVERIFY(QFileInfo::exists(m_folder + u"/study.wflw"_s));
}

void TestWflwUtils::aLinkIsRemovedAndNotWhatItLeadsTo()
{
    write(path(u"precious/data.raw"_s), "kept");
    QVERIFY(QDir().mkpath(path(u"out"_s)));
    QVERIFY(QFile::link(path(u"precious"_s), m_folder));
    m_folder += u'/';
    QVERIFY(save(workflow({{}})));
    QCOMPARE(read(path(u"precious/data.raw"_s)), "kept");
    QVERIFY(!QFileInfo(path(u"out/study.wflwp"_s)).isSymLink());
}

void TestWflwUtils::aFolderThatCannotBeMadeIsAnError()
{
    write(path(u"out"_s), "a file where the folder should be");
    Recorder recorder;
    QVERIFY(!save(workflow({{}}), &recorder));
    QCOMPARE(m_error, u"Failed to create "_s + m_folder);
    QCOMPARE(recorder.sides, QList{FileUtils::CopyFailure::Side::Destination});
}

void TestWflwUtils::aFolderThatCannotBeCleanedIsAnError()
{
    write(m_folder + u"/kept/file"_s, "x");
    const int outcome = saveAsNobody(workflow({{}}), u"Cannot clean "_s + m_folder);
    if (outcome == TestFiles::Undone)
        QSKIP("Permissions don't bind this user, and no other user can be taken");
    QCOMPARE(outcome, int(TestFiles::Refused));
    QVERIFY(QFileInfo::exists(m_folder + u"/kept/file"_s));
}

void TestWflwUtils::aMissingFileEndsTheSave_data()
{
    QTest::addColumn<QString>("reference");
    QTest::newRow("never there") << u"gone.json"_s;
    QTest::newRow("a folder") << u"folder"_s;
    QTest::newRow("a link to nothing") << u"dangling"_s;
}

void TestWflwUtils::aMissingFileEndsTheSave()
{
    QFETCH(QString, reference);
    QVERIFY(QDir().mkpath(path(u"folder"_s)));
    QVERIFY(QFile::link(path(u"vanished.json"_s), path(u"dangling"_s)));
    write(path(u"good.json"_s), "copied");
    Recorder recorder;
    LogCapture log;
    QVERIFY(!save(workflow({{reportEntry(u"good.json"_s)}, {reportEntry(reference)}}), &recorder));
    QCOMPARE(m_error, u"Cannot copy %1 into %2"_s.arg(
                          path(reference), QDir(m_folder).filePath(QFileInfo(reference).fileName())));
    QCOMPARE(recorder.sides, QList{FileUtils::CopyFailure::Side::Source});
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList{u"good.json"_s});
}

void TestWflwUtils::anUnreadableFileEndsTheSave()
{
    write(path(u"secret.json"_s), "x");
    QVERIFY(QFile::setPermissions(path(u"secret.json"_s), {}));
    QVERIFY(QDir().mkpath(path(u"out"_s)));
    QVERIFY(QFile::setPermissions(path(u"out"_s), QFileDevice::Permissions(0x7777)));
    const int outcome =
        saveAsNobody(workflow({{reportEntry(u"secret.json"_s)}}),
                     u"Cannot copy %1 into %2/secret.json"_s.arg(path(u"secret.json"_s), m_folder));
    if (outcome == TestFiles::Undone)
        QSKIP("Permissions don't bind this user, and no other user can be taken");
    QCOMPARE(outcome, int(TestFiles::Refused));
    QVERIFY(QDir(m_folder).isEmpty());
}

void TestWflwUtils::aRepeatedSaveClearsWhatAFailedOneLeft()
{
    write(path(u"good.json"_s), "copied");
    LogCapture log;
    QVERIFY(!save(workflow({{reportEntry(u"good.json"_s)}, {reportEntry(u"gone.json"_s)}})));
    QVERIFY(save(workflow({{}})));
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList{u"study.wflw"_s});
}

void TestWflwUtils::glycanDatabasesAreCopied()
{
    write(path(u"db/n glycans.txt"_s), "N");
    write(path(u"o.txt"_s), "O");
    const QString text = u"HexNAc(2) @ NGlycan | rare1\n[db/n glycans.txt] @ NGlycan\n[%1] | common1\n"_s;
    Recorder recorder;
    QVERIFY2(save(workflow({{glycanEntry(text.arg(path(u"o.txt"_s)))}}), &recorder), qPrintable(m_error));
    QCOMPARE(
        glycansIn(reopened()),
        u"HexNAc(2) @ NGlycan | rare1\n[file:///n%20glycans.txt] @ NGlycan\n[file:///o.txt] | common1\n"_s);
    QCOMPARE(recorder.names, (QStringList{u"n glycans.txt"_s, u"o.txt"_s}));
    QCOMPARE(read(m_folder + u"/n glycans.txt"_s), "N");
}

void TestWflwUtils::glycanDatabasesAreFoundByUrlOrBesideTheWorkflow()
{
    write(path(u"here.txt"_s), "here");
    write(path(u"db/there.txt"_s), "there");
    const QString text = u"[file:///nowhere/here.txt]\n[file://%1]"_s.arg(path(u"db/there.txt"_s));
    QVERIFY2(save(workflow({{glycanEntry(text)}})), qPrintable(m_error));
    QCOMPARE(glycansIn(reopened()), u"[file:///here.txt]\n[file:///there.txt]"_s);
    QCOMPARE(read(m_folder + u"/here.txt"_s), "here");
    QCOMPARE(read(m_folder + u"/there.txt"_s), "there");
}

void TestWflwUtils::aDatabaseNamedTwiceIsCopiedOnce()
{
    // The name is a part of the other text, too, which stays.
    write(path(u"a"_s), "x");
    Recorder recorder;
    QVERIFY(save(workflow({{glycanEntry(u"% a comment\n[a] and [a]\n[]"_s)}}), &recorder));
    QCOMPARE(glycansIn(reopened()), u"% a comment\n[file:///a] and [file:///a]\n[]"_s);
    QCOMPARE(recorder.names, QStringList{u"a"_s});
}

void TestWflwUtils::glycansWithoutDatabasesStayAsTheyWere()
{
    const QString text = u"% C:\\glycans\nHexNAc(2)Hex(5) @ NGlycan | rare1"_s;
    QVERIFY(save(workflow({{glycanEntry(text)}})));
    QCOMPARE(glycansIn(reopened()), text);
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList{u"study.wflw"_s});
}

void TestWflwUtils::aDatabaseThatIsMissingEndsTheSave()
{
    LogCapture log;
    QVERIFY(!save(workflow({{glycanEntry(u"[missing.txt]"_s)}})));
    QVERIFY(m_error.startsWith(u"Cannot copy %1 into"_s.arg(path(u"missing.txt"_s))));
}

void TestWflwUtils::cellsOfUnknownTypesAreKept()
{
    QJsonObject document = workflow({{}});
    QJsonArray tabs = document.value(u"tabs"_s).toArray();
    tabs.append(Documents::tab(
        u"New"_s, {u"New"_s},
        {QJsonObject{{u"type"_s, u"OfTomorrow"_s}, {u"properties"_s, QJsonArray()}, {u"kept"_s, 1}}}));
    document.insert(u"tabs"_s, tabs);
    LogCapture log;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(document, ValidationOption::SkipTypeValidation));
    QVERIFY2(WflwUtils::saveAsPortableWorkflow(content, m_folder, base(), &m_error), qPrintable(m_error));
    QVERIFY(read(m_folder + u"/study.wflw"_s).contains("OfTomorrow"));
}

void TestWflwUtils::aDocumentThatCannotBeWrittenIsLogged()
{
    const int outcome = inChildProcess([this] {
        if (!TestFiles::limitFileSize(10))
            return TestFiles::Undone;
        LogCapture log;
        Recorder recorder;
        if (save(workflow({{}}), &recorder))
            return TestFiles::Succeeded;
        const bool asTold = m_error.isEmpty() && log.warnings().size() == 1 &&
                            log.warnings().constFirst().startsWith(u"Can't write to"_s) &&
                            recorder.sides == QList{FileUtils::CopyFailure::Side::Destination};
        return asTold ? TestFiles::Refused : TestFiles::WrongError;
    });
    if (outcome == kChildNotSupported || outcome == TestFiles::Undone)
        QSKIP("The size of files can't be limited");
    QCOMPARE(outcome, int(TestFiles::Refused));
}

ORV_REGISTER_TEST(TestWflwUtils)
#include "TestWflwUtils.moc"
