#include "OrvTest.h"
#include "SampleTree.h"

#include <orv/core_ms/Ulvar2Dao.h>

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <thread>

using namespace orv;
using namespace orv::ulvar2;
using namespace Qt::StringLiterals;

namespace {

/// A database made by these statements.
void makeDatabase(const QString &path, const QStringList &statements)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"maker"_s);
        database.setDatabaseName(path);
        QVERIFY2(database.open(), qPrintable(database.lastError().text()));
        QSqlQuery query(database);
        for (const QString &statement : statements)
            QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    }
    QSqlDatabase::removeDatabase(u"maker"_s);
}

const QString kTable = u"CREATE TABLE Info (Key TEXT NOT NULL, Value TEXT)"_s;

} // namespace

class TestUlvar2Dao : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void recordsAreReadInOrder();
    void theFileIsNeverWritten();
    void anotherFileMayBeOpened();
    void severalFilesAreOpenAtOnce();
    void anyThreadMayRead();
    void whatCannotBeOpenedIsTold_data();
    void whatCannotBeOpenedIsTold();
    void otherDatabasesAreRefused_data();
    void otherDatabasesAreRefused();
    void aFileCutShortIsRefused();
    void tooMuchIsRefused();
    void nothingOpenIsTold();
};

void TestUlvar2Dao::recordsAreReadInOrder()
{
    const SampleTree tree;
    const QString path = tree.at(u"Größe #1 %41?.ulvar2"_s);
    makeDatabase(path, {kTable, u"INSERT INTO Info VALUES ('b', '2'), ('IsCreatedByOrvMergeFiles', 'TRUE'), "
                                "('b', NULL), ('c', 3), ('ä', 'x\ny')"_s});
    Ulvar2Dao dao;
    ORV_VERIFY_OK(dao.open(path));
    const Result<QList<InfoRecord>> infos = dao.readInfos();
    ORV_VERIFY_OK(infos);
    QCOMPARE(*infos, (QList<InfoRecord>{{u"b"_s, u"2"_s},
                                        {QString(kIsCreatedByOrvMergeFilesKey), u"TRUE"_s},
                                        {u"b"_s, QString()},
                                        {u"c"_s, u"3"_s},
                                        {u"ä"_s, u"x\ny"_s}}));
}

void TestUlvar2Dao::theFileIsNeverWritten()
{
    const SampleTree tree;
    const QString path = tree.at(u"a.ulvar2"_s);
    makeDatabase(path, {kTable});
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    const QDateTime before = QFileInfo(path).lastModified();
    {
        Ulvar2Dao dao;
        ORV_VERIFY_OK(dao.open(path));
        const Result<QList<InfoRecord>> infos = dao.readInfos();
        ORV_VERIFY_OK(infos);
        QVERIFY(infos->isEmpty());
    }
    QCOMPARE(QFileInfo(path).lastModified(), before);
    QCOMPARE(QDir(tree.at(QString())).entryList(QDir::Files | QDir::Hidden), QStringList{u"a.ulvar2"_s});
}

void TestUlvar2Dao::anotherFileMayBeOpened()
{
    const SampleTree tree;
    makeDatabase(tree.at(u"a"_s), {kTable, u"INSERT INTO Info VALUES ('a', '')"_s});
    makeDatabase(tree.at(u"b"_s), {kTable, u"INSERT INTO Info VALUES ('b', '')"_s});
    Ulvar2Dao dao;
    ORV_VERIFY_OK(dao.open(tree.at(u"a"_s)));
    ORV_VERIFY_OK(dao.open(tree.at(u"b"_s)));
    QCOMPARE(dao.readInfos()->first().key, u"b"_s);
    QVERIFY(dao.open(tree.at(u"missing"_s)).hasError());
    QVERIFY(dao.readInfos().hasError());
}

void TestUlvar2Dao::severalFilesAreOpenAtOnce()
{
    const SampleTree tree;
    makeDatabase(tree.at(u"a"_s), {kTable, u"INSERT INTO Info VALUES ('a', '')"_s});
    makeDatabase(tree.at(u"b"_s), {kTable, u"INSERT INTO Info VALUES ('b', '')"_s});
    Ulvar2Dao a;
    Ulvar2Dao b;
    ORV_VERIFY_OK(a.open(tree.at(u"a"_s)));
    ORV_VERIFY_OK(b.open(tree.at(u"b"_s)));
    QCOMPARE(a.readInfos()->first().key, u"a"_s);
    QCOMPARE(b.readInfos()->first().key, u"b"_s);
}

void TestUlvar2Dao::anyThreadMayRead()
{
    const SampleTree tree;
    const QString path = tree.at(u"a"_s);
    makeDatabase(path, {kTable, u"INSERT INTO Info VALUES ('a', '')"_s});
    std::atomic<int> good = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&good, &path] {
            Ulvar2Dao dao;
            good += !dao.open(path).hasError() && dao.readInfos().valueOr({}).size() == 1 ? 1 : 0;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(good.load(), 4);
}

void TestUlvar2Dao::whatCannotBeOpenedIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<ErrorCode>("code");
    QTest::newRow("missing") << u"missing"_s << QByteArray() << ErrorCode::CannotOpenFile;
    QTest::newRow("folder") << u"folder/"_s << QByteArray() << ErrorCode::CannotOpenFile;
    QTest::newRow("empty") << u"a"_s << ""_ba << ErrorCode::InvalidContent;
    QTest::newRow("text") << u"a"_s << "BEGIN IONS\nEND IONS\n"_ba << ErrorCode::InvalidContent;
}

void TestUlvar2Dao::whatCannotBeOpenedIsTold()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(ErrorCode, code);
    const SampleTree tree;
    if (name != u"missing"_s)
        tree.add(name, bytes);
    Ulvar2Dao dao;
    const Error error = dao.open(tree.at(name));
    QCOMPARE(error.code(), code);
    QVERIFY(error.errorMessage().contains(tree.at(name)));
    QVERIFY(!error.details().isEmpty());
    QVERIFY(!QFileInfo::exists(tree.at(u"missing"_s)));
}

void TestUlvar2Dao::otherDatabasesAreRefused_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::newRow("no table") << QStringList{u"CREATE TABLE Other (a)"_s};
    QTest::newRow("other columns") << QStringList{u"CREATE TABLE Info (a, b)"_s};
    QTest::newRow("an endless view") << QStringList{
        u"CREATE VIEW Info AS WITH RECURSIVE n(Key, Value) AS (SELECT 1, 1 UNION ALL SELECT Key "
        "+ 1, 1 FROM n) SELECT Key, Value FROM n WHERE Key < 0"_s};
    QTest::newRow("a computed column") << QStringList{
        u"CREATE TABLE Info (Key TEXT, Value TEXT GENERATED ALWAYS AS (hex(zeroblob(400000000))) VIRTUAL)"_s,
        u"INSERT INTO Info (Key) VALUES ('a')"_s};
}

void TestUlvar2Dao::otherDatabasesAreRefused()
{
    QFETCH(QStringList, statements);
    const SampleTree tree;
    makeDatabase(tree.at(u"a"_s), statements);
    Ulvar2Dao dao;
    ORV_VERIFY_OK(dao.open(tree.at(u"a"_s)));
    const Result<QList<InfoRecord>> infos = dao.readInfos();
    QVERIFY(infos.hasError());
    QCOMPARE(infos.error().code(), ErrorCode::InvalidContent);
    QVERIFY(infos.error().errorMessage().contains(tree.at(u"a"_s)));
}

void TestUlvar2Dao::aFileCutShortIsRefused()
{
    const SampleTree tree;
    const QString path = tree.at(u"a"_s);
    makeDatabase(path,
                 {kTable, u"INSERT INTO Info WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                          "LIMIT 5000) SELECT 'key' || i, 'value' FROM n"_s});
    QVERIFY(QFile::resize(path, QFileInfo(path).size() / 2));
    Ulvar2Dao dao;
    const Error error = dao.open(path);
    QVERIFY(error.hasError() || dao.readInfos().hasError());
}

void TestUlvar2Dao::tooMuchIsRefused()
{
    const SampleTree tree;
    const QString many =
        u"INSERT INTO Info WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT %1) "
        "SELECT i, i FROM n"_s;
    makeDatabase(tree.at(u"most"_s), {kTable, many.arg(Ulvar2Dao::kMostInfos)});
    makeDatabase(tree.at(u"more"_s), {kTable, many.arg(Ulvar2Dao::kMostInfos + 1)});
    makeDatabase(tree.at(u"long"_s),
                 {kTable, u"INSERT INTO Info VALUES ('a', printf('%.*c', 65536, 'x'))"_s});
    makeDatabase(tree.at(u"longer"_s),
                 {kTable, u"INSERT INTO Info VALUES ('a', printf('%.*c', 65537, 'x'))"_s});
    const auto isRead = [&tree](const QString &name) {
        Ulvar2Dao dao;
        return !dao.open(tree.at(name)).hasError() && !dao.readInfos().hasError();
    };
    QVERIFY(isRead(u"most"_s));
    QVERIFY(!isRead(u"more"_s));
    QVERIFY(isRead(u"long"_s));
    QVERIFY(!isRead(u"longer"_s));
}

void TestUlvar2Dao::nothingOpenIsTold()
{
    const Ulvar2Dao dao;
    QCOMPARE(dao.readInfos().error().code(), ErrorCode::CannotOpenFile);
}

ORV_REGISTER_TEST(TestUlvar2Dao)

#include "TestUlvar2Dao.moc"
