#include "OrvTest.h"
#include "RawDatabase.h"

#include <orv/core/FileUtils.h>
#include <orv/project/DocumentDatabaseHandler.h>
#include <orv/project/ProjectCreationOptionsDao.h>
#include <orv/project/ProjectFile.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

const QString kName = u"documentDatabaseConnection"_s;

std::unique_ptr<DocumentDatabaseHandler> opened(const QString &path)
{
    auto project = DocumentDatabaseHandler::open(kName, path);
    if (!project)
        qFatal("%s", OrvTests::describe(project).constData());
    return std::move(project.value());
}

} // namespace

class TestDocumentDatabase : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dir = std::make_unique<QTemporaryDir>(); }

    void theKeyOfTheWorkflowIsFixed();
    void everySchemaVersionIsRead_data();
    void everySchemaVersionIsRead();
    void aProjectOfTheFirstFormMayNotTellItsVersion();
    void aNewerFormIsReadWhileItHasTheColumns();
    void aFormWithoutTheColumnsIsToldSo_data();
    void aFormWithoutTheColumnsIsToldSo();
    void aProjectWithoutOptionsHasNoTable();
    void keysAreComparedExactly();
    void oldFormsGiveAllRowsOfAKey_data();
    void oldFormsGiveAllRowsOfAKey();
    void valuesMayBeTextsOrBytes();
    void hugeValuesAreRefused_data();
    void hugeValuesAreRefused();
    void aFileThatIsNoProjectIsRefused();
    void aProjectMayBeOpenSeveralTimes();

    void aKeyStandsOnceInTheFormOfToday();
    void anUnknownFormIsNotWritten();
    void anExistingFileIsNotReplaced();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestDocumentDatabase::theKeyOfTheWorkflowIsFixed()
{
    QCOMPARE(QString(kMirelProjectCreationOptions), u"MirelProjectCreationOptions"_s);
}

void TestDocumentDatabase::everySchemaVersionIsRead_data()
{
    QTest::addColumn<int>("version");

    for (int version = 1; version <= ProjectFile::kCurrentSchemaVersion; ++version)
        QTest::addRow("%d", version) << version;
}

void TestDocumentDatabase::everySchemaVersionIsRead()
{
    QFETCH(int, version);
    const QList<ProjectCreationOption> options{{kMirelProjectCreationOptions, "{\"größe\": 1}"},
                                               {u"Other"_s, {}}};
    ORV_VERIFY_OK(ProjectFile::create(at(u"a.dravik"_s), options, version));
    const auto project = opened(at(u"a.dravik"_s));
    QCOMPARE(project->fileName(), at(u"a.dravik"_s));
    QCOMPARE(project->schemaVersion().value(), version);
    QVERIFY(project->connection().name().startsWith(kName));
    const ProjectCreationOptionsDao dao(*project);
    QVERIFY(dao.tableExists().value());
    for (const ProjectCreationOption &option : options) {
        QVERIFY(dao.keyExists(option.key).value());
        QCOMPARE(dao.readOption(option.key).value(), QList{option});
    }
    QVERIFY(!dao.keyExists(u"Nothing"_s).value());
    QVERIFY(dao.readOption(u"Nothing"_s).value().isEmpty());
}

void TestDocumentDatabase::aProjectOfTheFirstFormMayNotTellItsVersion()
{
    ORV_VERIFY_OK(ProjectFile::create(at(u"a.dravik"_s), {{u"A"_s, "1"}}, 1));
    RawDatabase(at(u"a.dravik"_s)).run(u"PRAGMA user_version = 0"_s);
    QCOMPARE(opened(at(u"a.dravik"_s))->schemaVersion().value(), 1);
}

void TestDocumentDatabase::aNewerFormIsReadWhileItHasTheColumns()
{
    ORV_VERIFY_OK(ProjectFile::create(at(u"a.dravik"_s), {{u"A"_s, "1"}}));
    {
        RawDatabase writer(at(u"a.dravik"_s));
        writer.run(u"PRAGMA user_version = 9"_s);
        writer.run(u"ALTER TABLE ProjectCreationOptions ADD COLUMN Author TEXT"_s);
    }
    const auto project = opened(at(u"a.dravik"_s));
    QCOMPARE(project->schemaVersion().value(), 9);
    const auto rows = ProjectCreationOptionsDao(*project).readOption(u"A"_s);
    ORV_VERIFY_OK(rows);
    QCOMPARE(rows->size(), 1);
}

void TestDocumentDatabase::aFormWithoutTheColumnsIsToldSo_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("remedy");

    QTest::newRow("newer") << 9 << u"newer version"_s;
    QTest::newRow("known") << 3 << u"Restore the file"_s;
}

void TestDocumentDatabase::aFormWithoutTheColumnsIsToldSo()
{
    QFETCH(int, version);
    {
        RawDatabase writer(at(u"a.dravik"_s));
        writer.run(u"CREATE TABLE ProjectCreationOptions (Key TEXT, Blob BLOB)"_s);
        writer.run(u"PRAGMA user_version = %1"_s.arg(version));
    }
    const auto project = opened(at(u"a.dravik"_s));
    const ProjectCreationOptionsDao dao(*project);
    QVERIFY(dao.tableExists().value());
    for (const Error &error : {dao.keyExists(u"A"_s).error(), dao.readOption(u"A"_s).error()}) {
        QCOMPARE(error.code(), ErrorCode::MalformedStructure);
        QVERIFY(error.errorMessage().contains(at(u"a.dravik"_s)));
        QVERIFY(error.details().constFirst().contains(u"Value"_s));
        QFETCH(QString, remedy);
        QVERIFY2(error.details().constLast().contains(remedy), qPrintable(error.details().constLast()));
    }
}

void TestDocumentDatabase::aProjectWithoutOptionsHasNoTable()
{
    RawDatabase(at(u"a.dravik"_s)).run(u"CREATE TABLE Peaks (Mz REAL)"_s);
    const auto project = opened(at(u"a.dravik"_s));
    QVERIFY(!ProjectCreationOptionsDao(*project).tableExists().value());
}

void TestDocumentDatabase::keysAreComparedExactly()
{
    RawDatabase(at(u"a.dravik"_s))
        .run(u"CREATE TABLE ProjectCreationOptions (Key TEXT COLLATE NOCASE, Value TEXT)"_s);
    RawDatabase(at(u"a.dravik"_s)).run(u"INSERT INTO ProjectCreationOptions VALUES ('abc', '1')"_s);
    const auto project = opened(at(u"a.dravik"_s));
    const ProjectCreationOptionsDao dao(*project);
    QVERIFY(dao.keyExists(u"abc"_s).value());
    for (const QString &key : {u"ABC"_s, u"ab%"_s, u"abc "_s, u"' OR 1"_s, QString()}) {
        QVERIFY2(!dao.keyExists(key).value(), qPrintable(key));
        QVERIFY(dao.readOption(key).value().isEmpty());
    }
}

void TestDocumentDatabase::oldFormsGiveAllRowsOfAKey_data()
{
    QTest::addColumn<int>("version");

    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void TestDocumentDatabase::oldFormsGiveAllRowsOfAKey()
{
    QFETCH(int, version);
    ORV_VERIFY_OK(
        ProjectFile::create(at(u"a.dravik"_s), {{u"A"_s, "1"}, {u"B"_s, "2"}, {u"A"_s, "3"}}, version));
    const auto project = opened(at(u"a.dravik"_s));
    const auto rows = ProjectCreationOptionsDao(*project).readOption(u"A"_s);
    ORV_VERIFY_OK(rows);
    QCOMPARE(*rows, (QList<ProjectCreationOption>{{u"A"_s, "1"}, {u"A"_s, "3"}}));
}

void TestDocumentDatabase::valuesMayBeTextsOrBytes()
{
    {
        RawDatabase writer(at(u"a.dravik"_s));
        writer.run(u"PRAGMA encoding = 'UTF-16'"_s);
        writer.run(u"CREATE TABLE ProjectCreationOptions (Key, Value)"_s);
        const QString statement = u"INSERT INTO ProjectCreationOptions VALUES (?, ?)"_s;
        writer.run(statement, {u"text"_s, u"ä"_s});
        writer.run(statement, {u"bytes"_s, "\xC3\xA4"_ba});
        writer.run(statement, {u"null"_s, QVariant()});
    }
    const auto project = opened(at(u"a.dravik"_s));
    const ProjectCreationOptionsDao dao(*project);
    QCOMPARE(dao.readOption(u"text"_s).value().constFirst().value, "\xC3\xA4"_ba);
    QCOMPARE(dao.readOption(u"bytes"_s).value().constFirst().value, "\xC3\xA4"_ba);
    QCOMPARE(dao.readOption(u"null"_s).value().constFirst().value, QByteArray());
}

void TestDocumentDatabase::hugeValuesAreRefused_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<qint64>("size");

    QTest::newRow("one") << 1 << FileUtils::kMaxFileSize + 1;
    QTest::newRow("several together") << 3 << FileUtils::kMaxFileSize / 2;
}

void TestDocumentDatabase::hugeValuesAreRefused()
{
    QFETCH(int, rows);
    QFETCH(qint64, size);
    {
        RawDatabase writer(at(u"a.dravik"_s));
        writer.run(u"CREATE TABLE ProjectCreationOptions (Key TEXT, Value BLOB)"_s);
        for (int i = 0; i < rows; ++i)
            writer.run(u"INSERT INTO ProjectCreationOptions VALUES ('A', zeroblob(?))"_s, {size});
    }
    const auto project = opened(at(u"a.dravik"_s));
    const ProjectCreationOptionsDao dao(*project);
    QVERIFY(dao.keyExists(u"A"_s).value());
    const auto options = dao.readOption(u"A"_s);
    QVERIFY(options.hasError());
    QCOMPARE(options.error().code(), ErrorCode::InvalidContent);
    QVERIFY(options.error().errorMessage().contains(at(u"a.dravik"_s)));
    QCOMPARE(options.error().details().size(), 2);
}

void TestDocumentDatabase::aFileThatIsNoProjectIsRefused()
{
    const auto missing = DocumentDatabaseHandler::open(kName, at(u"missing.dravik"_s));
    QVERIFY(missing.hasError());
    QCOMPARE(missing.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(!QFile::exists(at(u"missing.dravik"_s)));
}

void TestDocumentDatabase::aProjectMayBeOpenSeveralTimes()
{
    ORV_VERIFY_OK(ProjectFile::create(at(u"a.dravik"_s), {{u"A"_s, "1"}}));
    auto first = opened(at(u"a.dravik"_s));
    const auto second = opened(at(u"a.dravik"_s));
    first.reset();
    QVERIFY(ProjectCreationOptionsDao(*second).keyExists(u"A"_s).value());
}

void TestDocumentDatabase::aKeyStandsOnceInTheFormOfToday()
{
    const Error error = ProjectFile::create(at(u"a.dravik"_s), {{u"A"_s, "1"}, {u"A"_s, "2"}});
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY(error.errorMessage().endsWith(u": A"_s));
    QVERIFY(!QFile::exists(at(u"a.dravik"_s)));
}

void TestDocumentDatabase::anUnknownFormIsNotWritten()
{
    for (const int version : {0, 4}) {
        QCOMPARE(ProjectFile::create(at(u"a.dravik"_s), {}, version).code(), ErrorCode::InvalidContent);
        QVERIFY(!QFile::exists(at(u"a.dravik"_s)));
    }
}

void TestDocumentDatabase::anExistingFileIsNotReplaced()
{
    ORV_VERIFY_OK(ProjectFile::create(at(u"a.dravik"_s), {{u"A"_s, "1"}}));
    QCOMPARE(ProjectFile::create(at(u"a.dravik"_s), {}).code(), ErrorCode::InvalidContent);
    QVERIFY(ProjectCreationOptionsDao(*opened(at(u"a.dravik"_s))).keyExists(u"A"_s).value());
}

ORV_REGISTER_TEST(TestDocumentDatabase)
#include "TestDocumentDatabase.moc"
