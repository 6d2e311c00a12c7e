#include "OrvTest.h"
#include "RawDatabase.h"
#include "TestFiles.h"

#include <orv/core/SqliteConnection.h>

#include <QThread>

using namespace orv;
using namespace TestFiles;
using namespace Qt::StringLiterals;

namespace {

const QString kPurpose = u"testConnection"_s;

Error makeNumbers(const QString &path, int count = 3)
{
    return SqliteConnection::createFile(path, [count](SqliteConnection &connection) -> Error {
        ORV_RETURN_IF_ERROR(connection.execute(u"CREATE TABLE Numbers (Number INTEGER, Name TEXT)"_s));
        for (int i = 1; i <= count; ++i)
            ORV_RETURN_IF_ERROR(
                connection.execute(u"INSERT INTO Numbers VALUES (?, ?)"_s, {i, QString(200, u'x')}));
        return Error::NoError;
    });
}

qlonglong countIn(const SqliteConnection &connection)
{
    const auto rows = connection.rows(u"SELECT COUNT(*) FROM Numbers"_s);
    return rows ? rows->constFirst().constFirst().toLongLong() : -1;
}

qlonglong countIn(const QString &path)
{
    const auto connection = SqliteConnection::open(kPurpose, path);
    return connection ? countIn(*connection.value()) : -1;
}

} // namespace

class TestSqliteConnection : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dir = std::make_unique<QTemporaryDir>(); }

    void aNewFileIsReadBack();
    void aNewFileTakesNoOthersPlace();
    void aFailedFillingLeavesNothing();
    void aFileThatCannotBeWrittenIsAnError();
    void whatIsNoDatabaseIsRefused_data();
    void whatIsNoDatabaseIsRefused();
    void aFileCutShortIsDamaged_data();
    void aFileCutShortIsDamaged();
    void damagedPagesAreAnErrorAmongRows();
    void aFileInUseIsToldSo();
    void readingWaitsForNoneButShortly();
    void anInterruptedWriteIsToldSo();
    void readingLeavesNoTrace_data();
    void readingLeavesNoTrace();
    void whatIsInTheLogOfAWriterIsSeen();
    void readersCannotWrite();
    void namesOfFilesAreNoUris_data();
    void namesOfFilesAreNoUris();
    void aLinkLeadsToItsFile();
    void connectionsHaveNamesOfTheirOwn();
    void connectionsOfManyThreadsAreIndependent();
    void closedConnectionsAreForgotten();
    void faultyStatementsAreErrors();
    void tablesAreFound_data();
    void tablesAreFound();
    void columnsAreListed();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestSqliteConnection::aNewFileIsReadBack()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    const auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    QCOMPARE(connection.value()->path(), at(u"a.db"_s));
    const auto rows = connection.value()->rows(
        u"SELECT Number, LENGTH(Name) FROM Numbers WHERE Number > ? ORDER BY Number"_s, {1});
    ORV_VERIFY_OK(rows);
    QCOMPARE(*rows, (QList<QVariantList>{{2, 200}, {3, 200}}));
}

void TestSqliteConnection::aNewFileTakesNoOthersPlace()
{
    makeFile(at(u"a.db"_s), "mine");
    const Error error = makeNumbers(at(u"a.db"_s));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), u"The file exists already: "_s + at(u"a.db"_s));
    QVERIFY(!error.details().isEmpty());
    QCOMPARE(bytesOf(at(u"a.db"_s)), "mine"_ba);
}

void TestSqliteConnection::aFailedFillingLeavesNothing()
{
    const Error error = SqliteConnection::createFile(at(u"a.db"_s), [](SqliteConnection &connection) {
        ORV_RETURN_IF_ERROR(connection.execute(u"CREATE TABLE A (B)"_s));
        return Error(ErrorCode::InvalidContent, u"not so"_s);
    });
    QCOMPARE(error.errorMessage(), u"not so"_s);
    QCOMPARE(namesIn(m_dir->path()), QStringList());
}

void TestSqliteConnection::aFileThatCannotBeWrittenIsAnError()
{
    const Error error = makeNumbers(at(u"missing/a.db"_s));
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QCOMPARE(error.errorMessage(), u"Could not write the file: "_s + at(u"missing/a.db"_s));
    QVERIFY(!error.details().isEmpty());
}

void TestSqliteConnection::whatIsNoDatabaseIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ErrorCode>("code");
    QTest::addColumn<QString>("detail");

    QTest::newRow("missing") << u"missing"_s << ErrorCode::CannotOpenFile << QString();
    QTest::newRow("folder") << u"."_s << ErrorCode::CannotOpenFile << u"folder"_s;
    QTest::newRow("pipe") << u"pipe"_s << ErrorCode::CannotOpenFile << u"pipe"_s;
    QTest::newRow("empty") << u"empty"_s << ErrorCode::MalformedStructure << u"empty"_s;
    QTest::newRow("text") << u"text"_s << ErrorCode::MalformedStructure << u"no SQLite database"_s;
    QTest::newRow("header alone") << u"short"_s << ErrorCode::MalformedStructure << u"after 20 bytes"_s;
    QTest::newRow("nonsense behind the header") << u"rubbish"_s << ErrorCode::MalformedStructure << QString();
}

void TestSqliteConnection::whatIsNoDatabaseIsRefused()
{
    const QByteArray header("SQLite format 3\0", 16);
    makeFile(at(u"empty"_s), "");
    makeFile(at(u"text"_s), QByteArray(5000, 'x'));
    makeFile(at(u"short"_s), header + "abcd");
    makeFile(at(u"rubbish"_s), header + QByteArray(5000, '\x7f'));
    QVERIFY(makeFifo(at(u"pipe"_s)));
    QFETCH(QString, name);
    const QStringList before = namesIn(m_dir->path());

    auto connection = SqliteConnection::open(kPurpose, at(name));
    const Error error =
        connection ? Error(connection.value()->hasTable(u"Numbers"_s).error()) : connection.error();
    QVERIFY(error.hasError());
    QTEST(error.code(), "code");
    QVERIFY2(error.errorMessage().endsWith(u": "_s + at(name)), qPrintable(error.errorMessage()));
    QFETCH(QString, detail);
    QVERIFY2(!error.details().isEmpty() && error.details().join(u' ').contains(detail),
             qPrintable(error.details().join(u'|')));
    QCOMPARE(namesIn(m_dir->path()), before);
}

void TestSqliteConnection::aFileCutShortIsDamaged_data()
{
    QTest::addColumn<int>("size");

    QTest::newRow("in the first page") << 600;
    QTest::newRow("behind the first page") << 4096;
    QTest::newRow("in the rows") << 10000;
}

void TestSqliteConnection::aFileCutShortIsDamaged()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s), 500));
    QFETCH(int, size);
    QVERIFY(QFile::resize(at(u"a.db"_s), size));

    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    const Error error =
        connection ? connection.value()->rows(u"SELECT * FROM Numbers"_s).error() : connection.error();
    QVERIFY(error.hasError());
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), u"Could not read the database: "_s + at(u"a.db"_s));
    QVERIFY2(error.details().constLast().contains(u"Restore it from a copy"_s),
             qPrintable(error.details().join(u'|')));
}

void TestSqliteConnection::damagedPagesAreAnErrorAmongRows()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s), 500));
    QByteArray bytes = bytesOf(at(u"a.db"_s));
    const qsizetype lastPage = bytes.size() - 4096;
    bytes.replace(lastPage, 4096, QByteArray(4096, '\x55'));
    makeFile(at(u"a.db"_s), bytes);

    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    const auto rows = connection.value()->rows(u"SELECT * FROM Numbers"_s);
    QVERIFY(rows.hasError());
    QCOMPARE(rows.error().code(), ErrorCode::MalformedStructure);
}

void TestSqliteConnection::aFileInUseIsToldSo()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    {
        RawDatabase writer(at(u"a.db"_s));
        writer.run(u"BEGIN EXCLUSIVE"_s);
        auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
        const Error error =
            connection ? Error(connection.value()->hasTable(u"Numbers"_s).error()) : connection.error();
        QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
        QVERIFY2(error.details().constLast().startsWith(u"Another program is using it."_s),
                 qPrintable(error.details().join(u'|')));
        writer.run(u"ROLLBACK"_s);
    }
    QCOMPARE(countIn(at(u"a.db"_s)), 3);
}

void TestSqliteConnection::readingWaitsForNoneButShortly()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    std::unique_ptr<QThread> writer(QThread::create([path = at(u"a.db"_s)] {
        RawDatabase database(path);
        database.run(u"BEGIN EXCLUSIVE"_s);
        database.run(u"INSERT INTO Numbers VALUES (4, 'four')"_s);
        QThread::msleep(100);
        database.run(u"COMMIT"_s);
    }));
    writer->start();
    while (writer->isRunning())
        QVERIFY(countIn(*connection.value()) >= 3);
    writer->wait();
    QCOMPARE(countIn(*connection.value()), 4);
}

void TestSqliteConnection::anInterruptedWriteIsToldSo()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s), 2000));
    {
        // A journal that was written to the disk before the pages of the file were: what a crash leaves.
        RawDatabase writer(at(u"a.db"_s));
        writer.run(u"PRAGMA cache_size = 2"_s);
        writer.run(u"BEGIN IMMEDIATE"_s);
        writer.run(u"UPDATE Numbers SET Name = 'changed'"_s);
        QVERIFY(QFile::copy(at(u"a.db"_s), at(u"b.db"_s)));
        QVERIFY(QFile::copy(at(u"a.db-journal"_s), at(u"b.db-journal"_s)));
        writer.run(u"ROLLBACK"_s);
    }
    const QByteArray before = bytesOf(at(u"b.db"_s));
    auto connection = SqliteConnection::open(kPurpose, at(u"b.db"_s));
    const Error error =
        connection ? Error(connection.value()->hasTable(u"Numbers"_s).error()) : connection.error();
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QVERIFY2(error.details().constLast().contains(u"interrupted"_s), qPrintable(error.details().join(u'|')));
    QCOMPARE(bytesOf(at(u"b.db"_s)), before);
    QVERIFY(QFile::exists(at(u"b.db-journal"_s)));
}

void TestSqliteConnection::readingLeavesNoTrace_data()
{
    QTest::addColumn<QString>("mode");

    QTest::newRow("journal") << u"delete"_s;
    QTest::newRow("write-ahead log") << u"wal"_s;
}

void TestSqliteConnection::readingLeavesNoTrace()
{
    QFETCH(QString, mode);
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    RawDatabase(at(u"a.db"_s)).run(u"PRAGMA journal_mode = "_s + mode);
    const QByteArray before = bytesOf(at(u"a.db"_s));
    QCOMPARE(namesIn(m_dir->path()), QStringList{u"a.db"_s});

    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    QCOMPARE(countIn(*connection.value()), 3);
    QCOMPARE(namesIn(m_dir->path()), QStringList{u"a.db"_s});
    connection.value().reset();
    QCOMPARE(namesIn(m_dir->path()), QStringList{u"a.db"_s});
    QCOMPARE(bytesOf(at(u"a.db"_s)), before);
}

void TestSqliteConnection::whatIsInTheLogOfAWriterIsSeen()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    QVERIFY(QFile::link(at(u"a.db"_s), at(u"link.db"_s)));
    RawDatabase writer(at(u"a.db"_s));
    writer.run(u"PRAGMA journal_mode = wal"_s);
    writer.run(u"INSERT INTO Numbers VALUES (4, 'four')"_s);
    const QStringList before = namesIn(m_dir->path());
    QCOMPARE(countIn(at(u"a.db"_s)), 4);
    QCOMPARE(countIn(at(u"link.db"_s)), 4);
    QCOMPARE(namesIn(m_dir->path()), before);
}

void TestSqliteConnection::readersCannotWrite()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    const QByteArray before = bytesOf(at(u"a.db"_s));
    QVERIFY(connection.value()->execute(u"DELETE FROM Numbers"_s).hasError());
    QVERIFY(connection.value()->execute(u"CREATE TABLE A (B)"_s).hasError());
    QCOMPARE(bytesOf(at(u"a.db"_s)), before);
}

void TestSqliteConnection::namesOfFilesAreNoUris_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("query") << u"a.db?mode=rwc"_s;
    QTest::newRow("fragment") << u"a#1.db"_s;
    QTest::newRow("code") << u"a%41.db"_s;
    QTest::newRow("blank and umlaut") << u"größe 1.db"_s;
    QTest::newRow("semicolon") << u"a;QSQLITE_OPEN_READONLY.db"_s;
    QTest::newRow("scheme") << u"file:a.db"_s;
}

void TestSqliteConnection::namesOfFilesAreNoUris()
{
    QFETCH(QString, name);
    ORV_VERIFY_OK(makeNumbers(at(name)));
    QCOMPARE(countIn(at(name)), 3);
    QCOMPARE(namesIn(m_dir->path()), QStringList{name});
}

void TestSqliteConnection::aLinkLeadsToItsFile()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    QVERIFY(QFile::link(at(u"a.db"_s), at(u"link.db"_s)));
    QCOMPARE(countIn(at(u"link.db"_s)), 3);
}

void TestSqliteConnection::connectionsHaveNamesOfTheirOwn()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    auto first = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    auto second = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(first);
    ORV_VERIFY_OK(second);
    QVERIFY(first.value()->name().startsWith(kPurpose));
    QVERIFY(first.value()->name() != second.value()->name());
    first.value().reset();
    QCOMPARE(countIn(*second.value()), 3);
}

void TestSqliteConnection::connectionsOfManyThreadsAreIndependent()
{
    constexpr int kThreads = 4;
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    std::vector<std::unique_ptr<QThread>> threads;
    std::array<int, kThreads> good{};
    for (int &count : good) {
        threads.emplace_back(QThread::create([&count, path = at(u"a.db"_s)] {
            for (int i = 0; i < 20; ++i)
                count += countIn(path) == 3 ? 1 : 0;
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        thread->wait();
    for (const int count : good)
        QCOMPARE(count, 20);
}

void TestSqliteConnection::closedConnectionsAreForgotten()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    makeFile(at(u"text"_s), QByteArray(5000, 'x'));
    const QStringList before = QSqlDatabase::connectionNames();
    QCOMPARE(countIn(at(u"a.db"_s)), 3);
    QVERIFY(SqliteConnection::open(kPurpose, at(u"text"_s)).hasError());
    QCOMPARE(QSqlDatabase::connectionNames(), before);
}

void TestSqliteConnection::faultyStatementsAreErrors()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    const auto rows = connection.value()->rows(u"SELECT Weight FROM Numbers"_s);
    QVERIFY(rows.hasError());
    QCOMPARE(rows.error().code(), ErrorCode::MalformedStructure);
    QVERIFY2(rows.error().details().constFirst().contains(u"Weight"_s),
             qPrintable(rows.error().details().join(u'|')));
    QCOMPARE(rows.error().details().size(), 2);
}

void TestSqliteConnection::tablesAreFound_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("is");

    QTest::newRow("table") << u"Numbers"_s << true;
    QTest::newRow("another case") << u"numbers"_s << true;
    QTest::newRow("view") << u"Views"_s << false;
    QTest::newRow("virtual") << u"Texts"_s << false;
    QTest::newRow("computed") << u"Computed"_s << false;
    QTest::newRow("computed once") << u"Stored"_s << true;
    QTest::newRow("none") << u"Nothing"_s << false;
    QTest::newRow("quote") << u"'; DROP TABLE Numbers"_s << false;
}

void TestSqliteConnection::tablesAreFound()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    {
        RawDatabase writer(at(u"a.db"_s));
        writer.run(u"CREATE VIEW Views AS SELECT * FROM Numbers"_s);
        writer.run(u"CREATE VIRTUAL TABLE Texts USING fts5(Word)"_s);
        writer.run(u"CREATE TABLE Computed (A, B GENERATED ALWAYS AS (hex(zeroblob(400000000))) VIRTUAL)"_s);
        writer.run(u"CREATE TABLE Stored (A, B GENERATED ALWAYS AS (A + 1) STORED)"_s);
    }
    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    QFETCH(QString, name);
    const Result<bool> has = connection.value()->hasTable(name);
    ORV_VERIFY_OK(has);
    QTEST(*has, "is");
}

void TestSqliteConnection::columnsAreListed()
{
    ORV_VERIFY_OK(makeNumbers(at(u"a.db"_s)));
    auto connection = SqliteConnection::open(kPurpose, at(u"a.db"_s));
    ORV_VERIFY_OK(connection);
    QCOMPARE(connection.value()->columns(u"Numbers"_s).value(), (QStringList{u"Number"_s, u"Name"_s}));
    QCOMPARE(connection.value()->columns(u"Nothing"_s).value(), QStringList());
}

ORV_REGISTER_TEST(TestSqliteConnection)
#include "TestSqliteConnection.moc"
