#include "OrvTest.h"

#include <orv/project/ProjectCreationStatusFile.h>

using namespace orv;
using namespace Qt::StringLiterals;

using JobState = ProjectCreationStatusFile::JobState;

class TestProjectCreationStatusFile : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dir = std::make_unique<QTemporaryDir>(); }

    void itLiesInItsFolder();
    void aStatusIsReadBack();
    void anEmptyObjectHasNotStarted();
    void everySignOfProcessingCounts_data();
    void everySignOfProcessingCounts();
    void whatIsNoStatusIsRefused_data();
    void whatIsNoStatusIsRefused();
    void aMissingFileCannotBeOpened();
    void aFileThatCannotBeWrittenIsAnError();

private:
    [[nodiscard]] QString path() const { return ProjectCreationStatusFile::statusFilePath(m_dir->path()); }
    void writeText(const QByteArray &text) const;

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestProjectCreationStatusFile::writeText(const QByteArray &text) const
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

void TestProjectCreationStatusFile::itLiesInItsFolder()
{
    QCOMPARE(ProjectCreationStatusFile::statusFilePath(u"/a/b"_s), u"/a/b/creation_status.json"_s);
}

void TestProjectCreationStatusFile::aStatusIsReadBack()
{
    ProjectCreationStatusFile status;
    status.setJobs({{u"a"_s, JobState::Queued},
                    {u"b"_s, JobState::Running},
                    {u"c"_s, JobState::Done},
                    {u"d"_s, JobState::Failed}});
    status.setProcessingStarted(QDateTime::fromString(u"2024-01-31T10:20:30.456Z"_s, Qt::ISODateWithMs));
    status.setProgressPercent(40);
    ORV_VERIFY_OK(status.write(path()));
    const auto read = ProjectCreationStatusFile::read(path());
    ORV_VERIFY_OK(read);
    QVERIFY(*read == status);
    QCOMPARE(read->jobs().size(), 4);
}

void TestProjectCreationStatusFile::anEmptyObjectHasNotStarted()
{
    writeText("{\"unknown\": 1}");
    const auto read = ProjectCreationStatusFile::read(path());
    ORV_VERIFY_OK(read);
    QVERIFY(!read->hasStartedProcessing());
    ORV_VERIFY_OK(ProjectCreationStatusFile().write(path()));
    QVERIFY(!ProjectCreationStatusFile::read(path()).value().hasStartedProcessing());
}

void TestProjectCreationStatusFile::everySignOfProcessingCounts_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("job") << R"({"jobs": [{"name": "a", "state": "queued"}]})"_ba;
    QTest::newRow("moment") << R"({"processingStarted": "2024-01-31T10:20:30Z"})"_ba;
    QTest::newRow("progress") << R"({"progressPercent": 1})"_ba;
}

void TestProjectCreationStatusFile::everySignOfProcessingCounts()
{
    QFETCH(QByteArray, text);
    writeText(text);
    const auto read = ProjectCreationStatusFile::read(path());
    ORV_VERIFY_OK(read);
    QVERIFY(read->hasStartedProcessing());
}

void TestProjectCreationStatusFile::whatIsNoStatusIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("detail");

    QTest::newRow("empty") << ""_ba << QString();
    QTest::newRow("no JSON") << "{"_ba << QString();
    QTest::newRow("no object") << "[]"_ba << QString();
    QTest::newRow("jobs") << R"({"jobs": 1})"_ba << u"\"jobs\""_s;
    QTest::newRow("jobs null") << R"({"jobs": null})"_ba << u"\"jobs\""_s;
    QTest::newRow("job") << R"({"jobs": ["a"]})"_ba << u"\"state\""_s;
    QTest::newRow("state") << R"({"jobs": [{"name": "a", "state": "x"}]})"_ba << u"\"state\""_s;
    QTest::newRow("name") << R"({"jobs": [{"state": "done"}]})"_ba << u"\"name\""_s;
    QTest::newRow("moment") << R"({"processingStarted": "soon"})"_ba << u"\"processingStarted\""_s;
    QTest::newRow("moment type") << R"({"processingStarted": 5})"_ba << u"\"processingStarted\""_s;
    QTest::newRow("progress below") << R"({"progressPercent": -1})"_ba << u"\"progressPercent\""_s;
    QTest::newRow("progress above") << R"({"progressPercent": 101})"_ba << u"\"progressPercent\""_s;
    QTest::newRow("progress in parts") << R"({"progressPercent": 1.5})"_ba << u"\"progressPercent\""_s;
}

void TestProjectCreationStatusFile::whatIsNoStatusIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, detail);
    writeText(text);
    const auto read = ProjectCreationStatusFile::read(path());
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    const QString details = read.error().details().join(u' ');
    QVERIFY2(details.contains(detail) && details.contains(path()), qPrintable(details));
}

void TestProjectCreationStatusFile::aMissingFileCannotBeOpened()
{
    const auto read = ProjectCreationStatusFile::read(path());
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::CannotOpenFile);
}

void TestProjectCreationStatusFile::aFileThatCannotBeWrittenIsAnError()
{
    const Error error = ProjectCreationStatusFile().write(m_dir->filePath(u"missing/status"_s));
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QVERIFY(!error.details().isEmpty());
}

ORV_REGISTER_TEST(TestProjectCreationStatusFile)
#include "TestProjectCreationStatusFile.moc"
