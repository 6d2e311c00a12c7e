#include "LogCapture.h"
#include "OrvTest.h"
#include "ProjectFixtures.h"

#include <orv/core/FileUtils.h>
#include <orv/project/ProjectCreationStatusFile.h>
#include <orv/project/ProjectCreationUtils.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace orv::PropertyEditorJsonUtils;
using namespace ProjectFixtures;
using namespace Qt::StringLiterals;

namespace {

QJsonObject workflow(const QString &file = u"/data/a.raw"_s, const QString &user = u"anna"_s)
{
    return document({samplesCell({{u"a"_s, file, {}, {}}})}, {{u"user"_s, user}});
}

/// A workflow whose settings name a file.
QJsonObject report(const QString &layout)
{
    const QString name = PropertiesNames::internalNameForType(PropertyId::ReportConfiguration);
    return document(
        {QJsonObject{{u"type"_s, u"MultiDocReport"_s},
                     {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, name}, {u"value"_s, layout}}}}}});
}

} // namespace

/// A project that was attempted before.
class TestProjectRetry : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void anAttemptThatStartedIsFound();
    void anotherUsersWorkflowIsTheSame();
    void whatIsMissingMeansNoAttempt_data();
    void whatIsMissingMeansNoAttempt();
    void everySignOfProcessingCounts_data();
    void everySignOfProcessingCounts();
    void theYoungestFolderCounts();
    void relativeFilesAreComparedByTheirPlace();
    void anotherWorkflowIsNoAttemptOfThisOne();
    void aFileIsComparedAsItsDocument();
    void aFileThatCannotBeReadIsEmpty();

private:
    [[nodiscard]] QDir dir() const { return QDir(m_dir->path()); }
    [[nodiscard]] QString failedFolder() const { return dir().filePath(u"p.x.presets.FAILED"_s); }
    void writeWorkflow(const QJsonObject &document) const;
    void writeStatus(const ProjectCreationStatusFile &status) const;
    [[nodiscard]] bool failedBefore(const QJsonObject &document = workflow()) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_tempFolder;
};

/// An attempt as it lies on the disk after it has failed.
void TestProjectRetry::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(dir().mkdir(failedFolder()));
    writeWorkflow(workflow());
    m_tempFolder = ProjectCreationUtils::createTempFolder(dir(), u"p.x"_s).value();
    ProjectCreationStatusFile status;
    status.setJobs({{u"a"_s, ProjectCreationStatusFile::JobState::Failed}});
    writeStatus(status);
}

void TestProjectRetry::writeWorkflow(const QJsonObject &document) const
{
    QCOMPARE(FileUtils::writeToFile(failedFolder() + u"/property_table.wflw"_s, Documents::toBytes(document)),
             QFileDevice::NoError);
}

void TestProjectRetry::writeStatus(const ProjectCreationStatusFile &status) const
{
    ORV_VERIFY_OK(status.write(ProjectCreationStatusFile::statusFilePath(m_tempFolder)));
}

bool TestProjectRetry::failedBefore(const QJsonObject &document) const
{
    Content content;
    load(&content, document);
    return projectFailedBefore(dir(), u"p.x"_s, content);
}

void TestProjectRetry::anAttemptThatStartedIsFound()
{
    QVERIFY(failedBefore());
    Content content;
    load(&content, workflow());
    QVERIFY(!projectFailedBefore(dir(), u"p"_s, content));
}

void TestProjectRetry::anotherUsersWorkflowIsTheSame()
{
    QVERIFY(failedBefore(workflow(u"/data/a.raw"_s, u"berta"_s)));
}

void TestProjectRetry::whatIsMissingMeansNoAttempt_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("warns");

    QTest::newRow("no failed presets") << u"presets"_s << false;
    QTest::newRow("a file in the place of the presets") << u"file"_s << false;
    QTest::newRow("presets of a running attempt") << u"running"_s << false;
    QTest::newRow("no workflow") << u"workflow"_s << true;
    QTest::newRow("no temporary folder") << u"folder"_s << false;
    QTest::newRow("no status") << u"status"_s << true;
    QTest::newRow("a status that can't be read") << u"broken status"_s << true;
}

void TestProjectRetry::whatIsMissingMeansNoAttempt()
{
    QFETCH(QString, what);
    const QString status = ProjectCreationStatusFile::statusFilePath(m_tempFolder);
    if (what == u"presets"_s || what == u"file"_s)
        QVERIFY(QDir(failedFolder()).removeRecursively());
    if (what == u"file"_s)
        QCOMPARE(FileUtils::writeToFile(failedFolder(), "x"), QFileDevice::NoError);
    if (what == u"running"_s)
        QVERIFY(dir().mkdir(u"p.x.presets"_s));
    if (what == u"workflow"_s)
        QVERIFY(QFile::remove(failedFolder() + u"/property_table.wflw"_s));
    if (what == u"folder"_s)
        QVERIFY(QDir(m_tempFolder).removeRecursively());
    if (what == u"status"_s)
        QVERIFY(QFile::remove(status));
    if (what == u"broken status"_s)
        QCOMPARE(FileUtils::writeToFile(status, "{"), QFileDevice::NoError);

    const LogCapture log;
    QVERIFY(!failedBefore());
    QTEST(!log.warnings().isEmpty(), "warns");
}

void TestProjectRetry::everySignOfProcessingCounts_data()
{
    QTest::addColumn<int>("progress");
    QTest::addColumn<bool>("hasMoment");
    QTest::addColumn<bool>("failed");

    QTest::newRow("none") << 0 << false << false;
    QTest::newRow("progress") << 1 << false << true;
    QTest::newRow("moment") << 0 << true << true;
}

void TestProjectRetry::everySignOfProcessingCounts()
{
    QFETCH(int, progress);
    QFETCH(bool, hasMoment);
    ProjectCreationStatusFile status;
    status.setProgressPercent(progress);
    if (hasMoment)
        status.setProcessingStarted(QDateTime::currentDateTimeUtc());
    writeStatus(status);
    QTEST(failedBefore(), "failed");
}

void TestProjectRetry::theYoungestFolderCounts()
{
    const QString later =
        ProjectCreationUtils::tempFolderName(u"p.x"_s, QDateTime::currentDateTimeUtc().addSecs(10));
    QVERIFY(dir().mkdir(later));
    m_tempFolder = dir().filePath(later);
    writeStatus(ProjectCreationStatusFile());
    QVERIFY(!failedBefore());
}

void TestProjectRetry::relativeFilesAreComparedByTheirPlace()
{
    writeWorkflow(report(dir().filePath(u"layout.json"_s)));
    const QString file = dir().filePath(u"w.wflw"_s);
    QCOMPARE(FileUtils::writeToFile(file, Documents::toBytes(report(u"layout.json"_s))),
             QFileDevice::NoError);
    QVERIFY(projectFailedBefore(dir(), u"p.x"_s, file));
    // The same text, but beside the attempt another file.
    writeWorkflow(report(u"layout.json"_s));
    QVERIFY(!projectFailedBefore(dir(), u"p.x"_s, file));
}

void TestProjectRetry::anotherWorkflowIsNoAttemptOfThisOne()
{
    QVERIFY(!failedBefore(workflow(u"/data/b.raw"_s)));
}

void TestProjectRetry::aFileIsComparedAsItsDocument()
{
    const QString file = dir().filePath(u"w.wflw"_s);
    QCOMPARE(FileUtils::writeToFile(file, Documents::toBytes(workflow())), QFileDevice::NoError);
    QVERIFY(projectFailedBefore(dir(), u"p.x"_s, file));
}

void TestProjectRetry::aFileThatCannotBeReadIsEmpty()
{
    const LogCapture log;
    QVERIFY(!projectFailedBefore(dir(), u"p.x"_s, dir().filePath(u"missing.wflw"_s)));
    QCOMPARE(log.warnings().size(), 1);
    // An attempt that left no workflow either was made with the same one, as far as anybody can tell.
    QVERIFY(QFile::remove(failedFolder() + u"/property_table.wflw"_s));
    QVERIFY(projectFailedBefore(dir(), u"p.x"_s, dir().filePath(u"missing.wflw"_s)));
}

ORV_REGISTER_TEST(TestProjectRetry)
#include "TestProjectRetry.moc"
