#include "LogCapture.h"
#include "OrvTest.h"
#include "TestFiles.h"

#include <orv/core/FileUtils.h>

#include <QFileInfo>

#include <filesystem>

using namespace orv;
using namespace TestFiles;
using namespace Qt::StringLiterals;

class TestWriteFile : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void cleanup();

    void aNewFileIsWritten_data();
    void aNewFileIsWritten();
    void anOldFileIsReplacedWhole();
    void permissionsOfTheOldFileStay();
    void aLinkStaysALink();
    void chainsOfLinksStay_data();
    void chainsOfLinksStay();
    void linksInACircleStay();
    void unwritableTargetsAreRefused_data();
    void unwritableTargetsAreRefused();
    void anEmptyNameIsRefused();
    void aPipeIsNotReplaced();
    void aNameOfSeveralBecomesAFileOfItsOwn();
    void aFileInAFolderWithoutPermissionIsWrittenInPlace_data();
    void aFileInAFolderWithoutPermissionIsWrittenInPlace();
    void aFolderWithoutPermissionIsRefused();
    void theLongestNameIsWritten_data();
    void theLongestNameIsWritten();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }
    /// With the writer that the row names; both keep the same promises.
    static QFileDevice::FileError write(const QString &path, const QByteArray &bytes,
                                        QString *errorText = nullptr)
    {
        QFETCH_GLOBAL(bool, isReproducible);
        return isReproducible ? FileUtils::writeReproducibleFile(path, bytes, errorText)
                              : FileUtils::writeToFile(path, bytes, errorText);
    }
    [[nodiscard]] QStringList names() const { return namesIn(m_dir->path()); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestWriteFile::initTestCase_data()
{
    QTest::addColumn<bool>("isReproducible");
    QTest::newRow("flushed") << false;
    QTest::newRow("left to the system") << true;
}

void TestWriteFile::cleanup()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void TestWriteFile::aNewFileIsWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << u"a.wflw"_s << ""_ba;
    QTest::newRow("small") << u"a.wflw"_s << "{}"_ba;
    QTest::newRow("large") << u"a.wflw"_s << QByteArray(1000000, 'x');
    QTest::newRow("odd name") << u"a #%20\u00e4?.wflw"_s << "{}"_ba;
}

void TestWriteFile::aNewFileIsWritten()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QString errorText = u"untouched"_s;
    QCOMPARE(write(at(name), bytes, &errorText), QFileDevice::NoError);
    QCOMPARE(errorText, u"untouched"_s);
    QCOMPARE(bytesOf(at(name)), bytes);
    QCOMPARE(names(), QStringList(name));
}

void TestWriteFile::anOldFileIsReplacedWhole()
{
    makeFile(at(u"a.wflw"_s), "much longer than the new text");
    QCOMPARE(write(at(u"a.wflw"_s), "new"), QFileDevice::NoError);
    QCOMPARE(bytesOf(at(u"a.wflw"_s)), "new"_ba);
    QCOMPARE(names(), QStringList(u"a.wflw"_s));
}

void TestWriteFile::permissionsOfTheOldFileStay()
{
    makeFile(at(u"a.wflw"_s), "old");
    const QFile::Permissions shared =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup;
    QVERIFY(QFile::setPermissions(at(u"a.wflw"_s), shared));
    QCOMPARE(write(at(u"a.wflw"_s), "new"), QFileDevice::NoError);
    QCOMPARE(QFile::permissions(at(u"a.wflw"_s)) & ~QFile::Permissions(QFile::ReadUser | QFile::WriteUser),
             shared);
}

void TestWriteFile::aLinkStaysALink()
{
    QVERIFY(QDir(m_dir->path()).mkdir(u"folder"_s));
    makeFile(at(u"folder/target.wflw"_s), "old");
    QVERIFY(QFile::link(u"folder/target.wflw"_s, at(u"link.wflw"_s)));
    QCOMPARE(write(at(u"link.wflw"_s), "new"), QFileDevice::NoError);
    QVERIFY(QFileInfo(at(u"link.wflw"_s)).isSymLink());
    QCOMPARE(bytesOf(at(u"folder/target.wflw"_s)), "new"_ba);
}

void TestWriteFile::chainsOfLinksStay_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("usual name") << u"target.wflw"_s << true;
    QTest::newRow("long name") << QString(250, u'n') << true;
    QTest::newRow("dangling, long name") << QString(250, u'n') << false;
}

void TestWriteFile::chainsOfLinksStay()
{
    QFETCH(const QString, target);
    QFETCH(const bool, isThere);
    QVERIFY(QDir(m_dir->path()).mkdir(u"folder"_s));
    if (isThere)
        makeFile(at(u"folder/"_s + target), "old");
    QVERIFY(QFile::link(at(u"folder/"_s + target), at(u"folder/middle"_s)));
    QVERIFY(QFile::link(u"folder/middle"_s, at(u"first"_s)));
    QCOMPARE(write(at(u"first"_s), "new"), QFileDevice::NoError);
    QVERIFY(QFileInfo(at(u"first"_s)).isSymLink());
    QVERIFY(QFileInfo(at(u"folder/middle"_s)).isSymLink());
    QVERIFY(!QFileInfo(at(u"folder/"_s + target)).isSymLink());
    QCOMPARE(bytesOf(at(u"folder/"_s + target)), "new"_ba);
}

void TestWriteFile::linksInACircleStay()
{
    const QString name(250, u'n');
    QVERIFY(QFile::link(at(name), at(name)));
    QVERIFY(write(at(name), "new") != QFileDevice::NoError);
    QVERIFY(QFileInfo(at(name)).isSymLink());
}

void TestWriteFile::unwritableTargetsAreRefused_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing folder") << u"missing/a.wflw"_s;
    QTest::newRow("a file as a folder") << u"file/a.wflw"_s;
    QTest::newRow("folder") << u"folder"_s;
    QTest::newRow("link to a folder") << u"folder-link"_s;
    QTest::newRow("overlong name") << QString(300, u'x');
}

void TestWriteFile::unwritableTargetsAreRefused()
{
    makeFile(at(u"file"_s), "old");
    QVERIFY(QDir(m_dir->path()).mkdir(u"folder"_s));
    QVERIFY(QFile::link(at(u"folder"_s), at(u"folder-link"_s)));
    const QStringList before = names();

    QFETCH(QString, name);
    QString errorText;
    QVERIFY(write(at(name), "new", &errorText) != QFileDevice::NoError);
    QVERIFY(!errorText.isEmpty());
    QVERIFY(write(at(name), "new", nullptr) != QFileDevice::NoError);
    QCOMPARE(names(), before);
    QCOMPARE(bytesOf(at(u"file"_s)), "old"_ba);
}

void TestWriteFile::anEmptyNameIsRefused()
{
    QString errorText;
    QVERIFY(write(QString(), "new", &errorText) != QFileDevice::NoError);
    QVERIFY(!errorText.isEmpty());
}

void TestWriteFile::aPipeIsNotReplaced()
{
    if (!makeFifo(at(u"pipe"_s)))
        QSKIP("The file system has no pipes");
    QString errorText;
    QVERIFY(write(at(u"pipe"_s), "new", &errorText) != QFileDevice::NoError);
    QVERIFY2(errorText.contains(u"pipe"_s), qPrintable(errorText));
    QVERIFY(QFileInfo::exists(at(u"pipe"_s)));
    QVERIFY(!QFileInfo(at(u"pipe"_s)).isFile());
}

void TestWriteFile::aNameOfSeveralBecomesAFileOfItsOwn()
{
    makeFile(at(u"a.wflw"_s), "old");
    std::filesystem::create_hard_link(QFileInfo(at(u"a.wflw"_s)).filesystemFilePath(),
                                      QFileInfo(at(u"b.wflw"_s)).filesystemFilePath());
    const LogCapture log;
    QCOMPARE(FileUtils::writeToFile(at(u"a.wflw"_s), "new"), QFileDevice::NoError);
    QCOMPARE(bytesOf(at(u"a.wflw"_s)), "new"_ba);
    QCOMPARE(bytesOf(at(u"b.wflw"_s)), "old"_ba);
    QCOMPARE(
        log.warnings(),
        QStringList(u"%1 is one of 2 names (hard links) of a file. It becomes a file of its own; the other "
                    "names keep what was there."_s.arg(at(u"a.wflw"_s))));
}

void TestWriteFile::aFileInAFolderWithoutPermissionIsWrittenInPlace_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("longer") << QByteArray(20000, 'n');
    QTest::newRow("shorter") << "n"_ba;
    QTest::newRow("empty") << ""_ba;
}

void TestWriteFile::aFileInAFolderWithoutPermissionIsWrittenInPlace()
{
    QFETCH(QByteArray, bytes);
    makeFile(at(u"a.wflw"_s), QByteArray(1000, 'o'));
    QVERIFY(QFile::setPermissions(at(u"a.wflw"_s), QFile::Permissions(0x6666)));
    QVERIFY(QFile::setPermissions(m_dir->path(), QFile::Permissions(0x5555)));
    const QString path = at(u"a.wflw"_s);
    const int outcome = inChildProcess([&path, &bytes] {
        if (!becomeNobody())
            return Undone;
        const LogCapture log;
        if (FileUtils::writeToFile(path, bytes) != QFileDevice::NoError)
            return Refused;
        return log.warnings().join(u'|').contains(u"is written in place"_s) ? Succeeded : WrongError;
    });
    QVERIFY(QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7755)));
    if (outcome == kChildNotSupported || outcome == Undone)
        QSKIP("Permissions don't bind this user, and no other user can be taken");
    QCOMPARE(outcome, int(Succeeded));
    QCOMPARE(bytesOf(path), bytes);
}

void TestWriteFile::aFolderWithoutPermissionIsRefused()
{
    makeFile(at(u"a.wflw"_s), "old");
    QVERIFY(QFile::setPermissions(at(u"a.wflw"_s), QFile::Permissions(0x4444)));
    QVERIFY(QFile::setPermissions(m_dir->path(), QFile::Permissions(0x5555)));
    const QString path = at(u"a.wflw"_s);
    const int outcome = inChildProcess([&path] {
        if (!becomeNobody())
            return Undone;
        QString errorText;
        if (write(path, "new", &errorText) == QFileDevice::NoError)
            return Succeeded;
        return errorText.isEmpty() ? WrongError : Refused;
    });
    QVERIFY(QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7755)));
    if (outcome == kChildNotSupported || outcome == Undone)
        QSKIP("Permissions don't bind this user, and no other user can be taken");
    QCOMPARE(outcome, int(Refused));
    QCOMPARE(bytesOf(path), "old"_ba);
}

void TestWriteFile::theLongestNameIsWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Latin") << QString(250, u'n') + u".wflw"_s;
    QTest::newRow("Greek") << QString(125, u'\u03b1') + u".wflw"_s;
    QTest::newRow("the longest with a name beside it") << QString(243, u'n') + u".wflw"_s;
}

void TestWriteFile::theLongestNameIsWritten()
{
    QFETCH(const QString, name);
    const QString path = at(name);
    for (const QByteArray &bytes : {"new"_ba, "newer"_ba}) {
        QString errorText;
        QCOMPARE(write(path, bytes, &errorText), QFileDevice::NoError);
        QCOMPARE(errorText, QString());
        QCOMPARE(bytesOf(path), bytes);
        QCOMPARE(FileUtils::writeReproducibleFile(path, bytes + "!", &errorText), QFileDevice::NoError);
        QCOMPARE(bytesOf(path), bytes + "!");
    }
    QCOMPARE(names(), QStringList(name));
}

void TestWriteFile::aFullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isWritten");

    QTest::newRow("fits") << 4096 << true;
    QTest::newRow("one byte too many") << 4097 << false;
    QTest::newRow("within one buffer") << 8000 << false;
    QTest::newRow("more than a buffer") << 1000000 << false;
}

void TestWriteFile::aFullDiskLeavesTheOldFile()
{
    makeFile(at(u"a.wflw"_s), "old");
    QFETCH(int, size);
    const QString path = at(u"a.wflw"_s);
    const QByteArray bytes(size, 'x');
    const int outcome = inChildProcess([&path, &bytes] {
        if (!limitFileSize(4096))
            return Undone;
        QString errorText;
        if (write(path, bytes, &errorText) == QFileDevice::NoError)
            return Succeeded;
        return errorText.isEmpty() ? WrongError : Refused;
    });
    if (outcome == kChildNotSupported || outcome == Undone)
        QSKIP("The system has no limit of file sizes");
    QFETCH(bool, isWritten);
    QCOMPARE(outcome, int(isWritten ? Succeeded : Refused));
    QCOMPARE(bytesOf(path), isWritten ? bytes : "old"_ba);
    QCOMPARE(names(), QStringList(u"a.wflw"_s));
}

ORV_REGISTER_TEST(TestWriteFile)

#include "TestWriteFile.moc"
