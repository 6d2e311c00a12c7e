#include "CurrentVersion.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "ProjectFixtures.h"
#include "RawDatabase.h"

#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace ProjectFixtures;
using namespace Qt::StringLiterals;

namespace {

using Utils = PropertyEditorUtils;

QJsonObject metadataOf(WorkflowType type)
{
    QJsonObject metadata;
    WflwMetaData::setWorkflowType(type, &metadata);
    return metadata;
}

QJsonObject trace(int type)
{
    return {{u"type"_s, type}, {u"channelName"_s, u"c"_s}, {u"channelId"_s, u"1"_s}};
}

/// "oligo,hrim,intabio,ostrale", as far as they hold.
QString kindsOf(const auto &project)
{
    QStringList kinds;
    if (Utils::isDigestedOligoProject(project))
        kinds += u"oligo"_s;
    if (Utils::isHrimProject(project))
        kinds += u"hrim"_s;
    if (Utils::isIntaBioProject(project))
        kinds += u"intabio"_s;
    if (Utils::isOstraleProject(project))
        kinds += u"ostrale"_s;
    return kinds.join(u',');
}

} // namespace

/// The workflow that is saved in a project.
class TestDocumentWorkflow : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dir = std::make_unique<QTemporaryDir>(); }

    void kindsAreToldByTheWorkflow_data();
    void kindsAreToldByTheWorkflow();
    void aProjectThatCannotBeReadIsOfNoKind();
    void filesOfSamplesAreListed();
    void everySchemaVersionGivesTheWorkflow_data();
    void everySchemaVersionGivesTheWorkflow();
    void whatKeepsTheWorkflowBackIsAnError_data();
    void whatKeepsTheWorkflowBackIsAnError();
    void aFileThatIsNoProjectIsAnError_data();
    void aFileThatIsNoProjectIsAnError();
    void aHugeWorkflowIsRefused();
    void versionsAreJudged_data();
    void versionsAreJudged();
    void olderWorkflowsAreUpgraded_data();
    void olderWorkflowsAreUpgraded();
    void aFailedUpgradeIsTold();
    void readingChangesNothing();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }
    [[nodiscard]] QString project() const { return at(u"a.dravik"_s); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestDocumentWorkflow::kindsAreToldByTheWorkflow_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<QString>("kinds");

    for (const WorkflowType type : availableWorkflowTypes()) {
        const int number = int(type);
        const QString kind = number == 28                  ? u"oligo"_s
                             : number >= 8 && number <= 10 ? u"hrim"_s
                             : number == 11                ? u"intabio"_s
                             : number == 24                ? u"ostrale"_s
                                                           : QString();
        QTest::addRow("type %d", number) << document({step(u"Karvon"_s)}, metadataOf(type)) << kind;
    }
    QTest::newRow("IntaBio trace") << document({samplesCell({}, {trace(1)}),
                                                samplesCell({}, {trace(3), trace(8)})})
                                   << u"intabio"_s;
    QTest::newRow("other traces") << document({samplesCell({}, {trace(7), trace(9)})}) << QString();
    QTest::newRow("IntaBio trace of an oligo map")
        << document({samplesCell({}, {trace(8)})}, metadataOf(WorkflowType::DigestedOligo))
        << u"oligo,intabio"_s;
    QTest::newRow("Ostrale column") << document({step(u"Karvon"_s), step(u"Ostrale"_s)}) << u"ostrale"_s;
    QTest::newRow("Ostrale column of an ion mobility map")
        << document({step(u"Ostrale"_s)}, metadataOf(WorkflowType::HrimCompoundMap)) << u"hrim,ostrale"_s;
}

void TestDocumentWorkflow::kindsAreToldByTheWorkflow()
{
    QFETCH(QJsonObject, document);
    Content content;
    load(&content, document);
    QTEST(kindsOf(content), "kinds");
    makeProject(project(), document);
    QTEST(kindsOf(project()), "kinds");
}

void TestDocumentWorkflow::aProjectThatCannotBeReadIsOfNoKind()
{
    const LogCapture log;
    QCOMPARE(kindsOf(at(u"missing.ostrale"_s)), QString());
    QCOMPARE(log.warnings().size(), 4);
    QVERIFY(log.warnings().constFirst().contains(at(u"missing.ostrale"_s)));
}

void TestDocumentWorkflow::filesOfSamplesAreListed()
{
    makeProject(project(), document({samplesCell({{u"a"_s, u"/data/a.raw"_s, {u"t.csv"_s}, {u"r.karvrslt"_s}},
                                                  {u"none"_s, {}, {}, {}},
                                                  {u"b"_s, u"managed:/1/b"_s, {}, {}},
                                                  {u"again"_s, u"/data/a.raw"_s, {}, {}}})}));
    const auto files = Utils::msFilesFromDocumentWorkflow(project());
    ORV_VERIFY_OK(files);
    QStringList texts = ResourceReferenceUtils::toStringList(*files);
    texts.removeAll(QString());
    QCOMPARE(texts, (QStringList{u"/data/a.raw"_s, u"managed:/1/b"_s, u"/data/a.raw"_s}));
}

void TestDocumentWorkflow::everySchemaVersionGivesTheWorkflow_data()
{
    QTest::addColumn<int>("version");

    for (int version = 1; version <= ProjectFile::kCurrentSchemaVersion; ++version)
        QTest::addRow("%d", version) << version;
}

void TestDocumentWorkflow::everySchemaVersionGivesTheWorkflow()
{
    QFETCH(int, version);
    const QJsonObject workflow = document({samplesCell({{u"ä"_s, u"/größe.raw"_s, {}, {}}})});
    ORV_VERIFY_OK(ProjectFile::create(
        project(), {{kMirelProjectCreationOptions, Documents::toBytes(workflow)}}, version));
    const auto files = Utils::msFilesFromDocumentWorkflow(project());
    ORV_VERIFY_OK(files);
    QCOMPARE(ResourceReferenceUtils::toStringList(*files), QStringList{u"/größe.raw"_s});
}

void TestDocumentWorkflow::whatKeepsTheWorkflowBackIsAnError_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");

    const QString notSaved = u"Workflow is not saved in the project database."_s;
    const QString table = u"CREATE TABLE ProjectCreationOptions (Key TEXT, Value TEXT)"_s;
    const QString row = u"INSERT INTO ProjectCreationOptions VALUES ('MirelProjectCreationOptions', '%1')"_s;
    QTest::newRow("no table") << QStringList{u"CREATE TABLE Peaks (Mz REAL)"_s} << 2 << notSaved;
    QTest::newRow("no key") << QStringList{table,
                                           u"INSERT INTO ProjectCreationOptions VALUES ('Other', '{}')"_s}
                            << 2 << notSaved;
    QTest::newRow("view in place of the table")
        << QStringList{u"CREATE VIEW ProjectCreationOptions AS SELECT 'MirelProjectCreationOptions' AS Key"_s}
        << 2 << notSaved;
    QTest::newRow("two rows")
        << QStringList{table, row.arg(u"{}"_s), row.arg(u"{}"_s)} << 1
        << u"Unable to load the workflow, multiple MirelProjectCreationOptions keys found."_s;
    QTest::newRow("empty value") << QStringList{table, row.arg(QString())} << 2 << QString();
    QTest::newRow("no JSON") << QStringList{table, row.arg(u"{"_s)} << 2 << QString();
    QTest::newRow("no object") << QStringList{table, row.arg(u"[]"_s)} << 2 << QString();
    QTest::newRow("no workflow") << QStringList{table, row.arg(u"{}"_s)} << 2 << QString();
    QTest::newRow("other columns")
        << QStringList{u"CREATE TABLE ProjectCreationOptions (Name TEXT, Blob BLOB)"_s} << 1 << QString();
}

void TestDocumentWorkflow::whatKeepsTheWorkflowBackIsAnError()
{
    QFETCH(QStringList, statements);
    QFETCH(int, code);
    QFETCH(QString, message);
    {
        RawDatabase writer(project());
        for (const QString &statement : statements)
            writer.run(statement);
    }
    const LogCapture log; // the tree warns of what it can't hold
    const auto files = Utils::msFilesFromDocumentWorkflow(project());
    QVERIFY(files.hasError());
    QCOMPARE(int(files.error().code()), code);
    if (!message.isEmpty())
        QCOMPARE(files.error().errorMessage(), message);
    const QStringList texts = files.error().errorMessages() + files.error().details();
    QVERIFY2(texts.join(u' ').contains(project()), qPrintable(texts.join(u'|')));
    QVERIFY(!files.error().details().isEmpty());
}

void TestDocumentWorkflow::aFileThatIsNoProjectIsAnError_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");

    QTest::newRow("missing") << u"missing.dravik"_s << 4;
    QTest::newRow("folder") << u"."_s << 4;
    QTest::newRow("text") << u"text.dravik"_s << 1;
    QTest::newRow("empty") << u"empty.dravik"_s << 1;
    QTest::newRow("cut short") << u"cut.dravik"_s << 1;
    QTest::newRow("in use") << u"used.dravik"_s << 4;
}

void TestDocumentWorkflow::aFileThatIsNoProjectIsAnError()
{
    QCOMPARE(FileUtils::writeToFile(at(u"text.dravik"_s), QByteArray(999, 'x')), QFileDevice::NoError);
    QCOMPARE(FileUtils::writeToFile(at(u"empty.dravik"_s), {}), QFileDevice::NoError);
    makeProject(at(u"cut.dravik"_s), document({samplesCell({})}));
    QVERIFY(QFile::resize(at(u"cut.dravik"_s), 5000));
    makeProject(at(u"used.dravik"_s), document({samplesCell({})}));
    RawDatabase user(at(u"used.dravik"_s));
    user.run(u"BEGIN EXCLUSIVE"_s);

    QFETCH(QString, name);
    const auto files = Utils::msFilesFromDocumentWorkflow(at(name));
    QVERIFY(files.hasError());
    QTEST(int(files.error().code()), "code");
    QVERIFY(files.error().errorMessage().contains(at(name)));
    QVERIFY(!files.error().details().isEmpty());
}

void TestDocumentWorkflow::aHugeWorkflowIsRefused()
{
    {
        RawDatabase writer(project());
        writer.run(u"CREATE TABLE ProjectCreationOptions (Key TEXT, Value BLOB)"_s);
        writer.run(u"INSERT INTO ProjectCreationOptions VALUES (?, zeroblob(?))"_s,
                   {QString(kMirelProjectCreationOptions), FileUtils::kMaxFileSize + 1});
    }
    const auto files = Utils::msFilesFromDocumentWorkflow(project());
    QVERIFY(files.hasError());
    QCOMPARE(files.error().code(), ErrorCode::InvalidContent);
}

void TestDocumentWorkflow::versionsAreJudged_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detail");

    const QString incompatible = u"Incompatible workflow version: %1"_s;
    QTest::newRow("current") << currentVersionText() << 0 << QString() << QString();
    QTest::newRow("newer in its minor version") << u"5.99.0"_s << 0 << QString() << QString();
    QTest::newRow("older") << u"5.46.0"_s << 0 << QString() << QString();
    QTest::newRow("special") << u"3"_s << 1 << QString() << QString();
    QTest::newRow("newer") << u"6.0.0"_s << 0 << incompatible.arg(u"6.0.0"_s) << u"up to 5.x.x"_s;
    QTest::newRow("deprecated on the server")
        << u"5.9.0"_s << 1 << incompatible.arg(u"5.9.0"_s) << u"deprecated"_s;
}

void TestDocumentWorkflow::versionsAreJudged()
{
    QFETCH(QString, version);
    QFETCH(int, mode);
    QFETCH(QString, message);
    QFETCH(QString, detail);
    makeProject(project(), document({samplesCell({})}, {{u"version"_s, version}, {u"contentMode"_s, mode}}));
    const auto files = Utils::msFilesFromDocumentWorkflow(project());
    QCOMPARE(files.error().errorMessage(), message);
    QCOMPARE(files.error().code(), message.isEmpty() ? ErrorCode::NoError : ErrorCode::MalformedStructure);
    QVERIFY2(files.error().details().join(u' ').contains(detail),
             qPrintable(files.error().details().join(u'|')));
}

void TestDocumentWorkflow::olderWorkflowsAreUpgraded_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("isUpgraded");
    // From 5.12.0 on the icon no longer tells what a workflow is.
    QTest::newRow("by its icon") << u"5.11.0"_s << true;
    QTest::newRow("of unknown type") << u"5.12.0"_s << false;
}

void TestDocumentWorkflow::olderWorkflowsAreUpgraded()
{
    QFETCH(QString, version);
    const QString icon = workflowTypeIconName(WorkflowType::HrimCompoundMap);
    makeProject(project(), document({samplesCell({})}, {{u"version"_s, version}, {u"icon"_s, icon}}));
    QTEST(Utils::isHrimProject(project()), "isUpgraded");
}

void TestDocumentWorkflow::aFailedUpgradeIsTold()
{
    const QString type = workflowTypeToString(WorkflowType::IntactMass);
    makeProject(project(),
                document({samplesCell({})}, {{u"version"_s, u"5.26.0"_s}, {u"workflowType"_s, type}}));
    const auto files = Utils::msFilesFromDocumentWorkflow(project());
    QCOMPARE(files.error().errorMessage(),
             u"Workflow does not contain the expected trace peak option presets."_s);
    const QString details = files.error().details().join(u' ');
    QVERIFY2(details.contains(u"5.27.0"_s) && details.contains(project()), qPrintable(details));
}

void TestDocumentWorkflow::readingChangesNothing()
{
    makeProject(project(), document({samplesCell({})}));
    const QByteArray before = FileUtils::readFile(project()).value();
    ORV_VERIFY_OK(Utils::msFilesFromDocumentWorkflow(project()));
    QCOMPARE(FileUtils::readFile(project()).value(), before);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"a.dravik"_s});
}

ORV_REGISTER_TEST(TestDocumentWorkflow)
#include "TestDocumentWorkflow.moc"
