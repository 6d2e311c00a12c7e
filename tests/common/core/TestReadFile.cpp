#include "OrvTest.h"
#include "TestFiles.h"

#include <orv/core/FileUtils.h>

#include <QFileInfo>

#include <limits>

using namespace orv;
using namespace TestFiles;
using namespace Qt::StringLiterals;

class TestReadFile : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void wholeFilesAreRead_data();
    void wholeFilesAreRead();
    void aLinkIsFollowed();
    void aFileWithoutASizeIsReadToItsEnd();
    void whatIsNoReadableFileIsRefused_data();
    void whatIsNoReadableFileIsRefused();
    void anEmptyNameIsRefused();
    void aPipeIsRefusedAtOnce();
    void aFileWithoutPermissionIsRefused();
    void filesAboveTheLimitAreRefused_data();
    void filesAboveTheLimitAreRefused();
    void aFileThatGivesMoreThanItsSizeStaysBelowTheLimit();
    void aLargeLimitCostsNothing();
    void aBeginningIsReadAlone_data();
    void aBeginningIsReadAlone();
    void aBeginningOfNoFileIsRefused();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestReadFile::cleanup()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void TestReadFile::wholeFilesAreRead_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << ""_ba;
    QTest::newRow("text") << "{}\n"_ba;
    QTest::newRow("null bytes and line ends") << QByteArray("\0\r\n\xFF", 4);
    QTest::newRow("larger than a buffer") << QByteArray(300000, 'x');
}

void TestReadFile::wholeFilesAreRead()
{
    QFETCH(QByteArray, bytes);
    makeFile(at(u"file"_s), bytes);
    const Result<QByteArray> read = FileUtils::readFile(at(u"file"_s));
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, bytes);
}

void TestReadFile::aLinkIsFollowed()
{
    makeFile(at(u"file"_s), "{}");
    QVERIFY(QFile::link(at(u"file"_s), at(u"link"_s)));
    const Result<QByteArray> read = FileUtils::readFile(at(u"link"_s));
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, "{}"_ba);
}

void TestReadFile::aFileWithoutASizeIsReadToItsEnd()
{
    const QString path = u"/proc/self/environ"_s;
    const QByteArray expected = bytesOf(path);
    if (expected.isEmpty() || QFileInfo(path).size() != 0)
        QSKIP("The system has no files that tell no size");
    const Result<QByteArray> read = FileUtils::readFile(path);
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, expected);
}

void TestReadFile::whatIsNoReadableFileIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("detail");

    QTest::newRow("missing") << u"missing.wflw"_s << QString();
    QTest::newRow("in a missing folder") << u"missing/a.wflw"_s << QString();
    QTest::newRow("below a file") << u"file/a.wflw"_s << QString();
    QTest::newRow("folder") << u"folder"_s << u"It is a folder"_s;
    QTest::newRow("folder that looks like a file") << u"folder.wflw/"_s << u"It is a folder"_s;
    QTest::newRow("link to a folder") << u"folder-link"_s << u"It is a folder"_s;
    QTest::newRow("dangling link") << u"dangling"_s << QString();
    QTest::newRow("link to itself") << u"loop"_s << QString();
    QTest::newRow("overlong name") << QString(5000, u'x') << QString();
}

void TestReadFile::whatIsNoReadableFileIsRefused()
{
    makeFile(at(u"file"_s), "{}");
    QVERIFY(QDir(m_dir->path()).mkdir(u"folder"_s) && QDir(m_dir->path()).mkdir(u"folder.wflw"_s));
    QVERIFY(QFile::link(at(u"folder"_s), at(u"folder-link"_s)));
    QVERIFY(QFile::link(at(u"nothing"_s), at(u"dangling"_s)));
    QVERIFY(QFile::link(at(u"loop"_s), at(u"loop"_s)));

    QFETCH(QString, name);
    QFETCH(QString, detail);
    const Result<QByteArray> read = FileUtils::readFile(at(name));
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::CannotOpenFile);
    QCOMPARE(read.error().errorMessage(), u"Could not open the file: "_s + at(name));
    QCOMPARE(read.error().details().size(), 1);
    const QString reason = read.error().details().first();
    QVERIFY(!reason.isEmpty());
    QVERIFY2(reason.startsWith(detail), qPrintable(reason));
}

void TestReadFile::anEmptyNameIsRefused()
{
    const Result<QByteArray> read = FileUtils::readFile(QString());
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(read.error().details().first().contains(u"empty"_s));
}

void TestReadFile::aPipeIsRefusedAtOnce()
{
    if (!makeFifo(at(u"pipe"_s)))
        QSKIP("The file system has no pipes");
    const Result<QByteArray> read = FileUtils::readFile(at(u"pipe"_s));
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(read.error().details().first().contains(u"pipe"_s));
}

void TestReadFile::aFileWithoutPermissionIsRefused()
{
    makeFile(at(u"secret"_s), "{}");
    QVERIFY(QFile::setPermissions(at(u"secret"_s), {}));
    QVERIFY(QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7755)));
    const QString path = at(u"secret"_s);
    const int outcome = inChildProcess([&path] {
        if (!becomeNobody())
            return Undone;
        const Result<QByteArray> read = FileUtils::readFile(path);
        if (!read.hasError())
            return Succeeded;
        return read.error().code() == ErrorCode::CannotOpenFile && !read.error().details().isEmpty()
                   ? Refused
                   : WrongError;
    });
    if (outcome == kChildNotSupported || outcome == Undone)
        QSKIP("Permissions don't bind this user, and no other user can be taken");
    QCOMPARE(outcome, int(Refused));
}

void TestReadFile::filesAboveTheLimitAreRefused_data()
{
    QTest::addColumn<qint64>("limit");
    QTest::addColumn<bool>("isRead");

    QTest::newRow("far below") << qint64(1000) << true;
    QTest::newRow("exactly") << qint64(10) << true;
    QTest::newRow("one above") << qint64(9) << false;
    QTest::newRow("nothing allowed") << qint64(0) << false;
}

void TestReadFile::filesAboveTheLimitAreRefused()
{
    makeFile(at(u"file"_s), "0123456789");
    QFETCH(qint64, limit);
    const Result<QByteArray> read = FileUtils::readFile(at(u"file"_s), limit);
    QTEST(!read.hasError(), "isRead");
    if (!read.hasError())
        return;
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    QVERIFY(read.error().errorMessage().contains(at(u"file"_s)));
    QVERIFY(read.error().errorMessage().contains(u"10 bytes"_s));
}

void TestReadFile::aFileThatGivesMoreThanItsSizeStaysBelowTheLimit()
{
    const QString path = u"/proc/self/environ"_s;
    if (bytesOf(path).size() < 5 || QFileInfo(path).size() != 0)
        QSKIP("The system has no files that tell no size");
    const Result<QByteArray> read = FileUtils::readFile(path, 4);
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
}

void TestReadFile::aLargeLimitCostsNothing()
{
    makeFile(at(u"file"_s), "{}");
    const Result<QByteArray> read = FileUtils::readFile(at(u"file"_s), std::numeric_limits<qint64>::max());
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, "{}"_ba);
    QVERIFY(read->capacity() < 100000);
}

void TestReadFile::aBeginningIsReadAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("beginning");

    QTest::newRow("empty") << ""_ba
                           << ""_ba;
    QTest::newRow("shorter") << "ab"_ba
                             << "ab"_ba;
    QTest::newRow("longer") << "abcd"_ba
                            << "abc"_ba;
}

void TestReadFile::aBeginningIsReadAlone()
{
    QFETCH(QByteArray, bytes);
    makeFile(at(u"file"_s), bytes);
    const Result<QByteArray> read = FileUtils::readBeginning(at(u"file"_s), 3);
    ORV_VERIFY_OK(read);
    QTEST(*read, "beginning");
}

void TestReadFile::aBeginningOfNoFileIsRefused()
{
    for (const QString &path : {at(u"missing"_s), m_dir->path(), QString()}) {
        const Result<QByteArray> read = FileUtils::readBeginning(path, 3);
        QVERIFY(read.hasError());
        QCOMPARE(read.error().code(), ErrorCode::CannotOpenFile);
    }
}

ORV_REGISTER_TEST(TestReadFile)

#include "TestReadFile.moc"
