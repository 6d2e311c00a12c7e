#include "OrvTest.h"
#include "TestFiles.h"

#include <orv/core/FileUtils.h>

#include <QFileInfo>

using namespace orv;
using namespace TestFiles;
using namespace Qt::StringLiterals;
using Side = FileUtils::CopyFailure::Side;

class TestCopyFile : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void bytesAndPermissionsAreCopied_data();
    void bytesAndPermissionsAreCopied();
    void aCopyOfAReadOnlyFileCanBeRemoved();
    void progressGrowsToTheSizeOfTheFile();
    void sourcesThatCannotBeReadAreRefused_data();
    void sourcesThatCannotBeReadAreRefused();
    void nothingIsWrittenOver();
    void aFullDiskLeavesNothing();
    void aFileWithoutSizeIsCopiedWhole();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestCopyFile::cleanup()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void TestCopyFile::bytesAndPermissionsAreCopied_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("small") << "{}"_ba;
    QTest::newRow("more than a chunk") << QByteArray(9'000'001, 'x');
}

void TestCopyFile::bytesAndPermissionsAreCopied()
{
    QFETCH(QByteArray, bytes);
    makeFile(at(u"a"_s), bytes);
    const QFileDevice::Permissions permissions =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner | QFileDevice::ReadGroup;
    QVERIFY(QFile::setPermissions(at(u"a"_s), permissions));
    QVERIFY(!FileUtils::copyFile(at(u"a"_s), at(u"b"_s)));
    QCOMPARE(bytesOf(at(u"b"_s)), bytes);
    QCOMPARE(QFile::permissions(at(u"b"_s)), QFile::permissions(at(u"a"_s)));
}

void TestCopyFile::aCopyOfAReadOnlyFileCanBeRemoved()
{
    makeFile(at(u"a"_s), "x");
    QVERIFY(QFile::setPermissions(at(u"a"_s), QFileDevice::ReadOwner));
    QVERIFY(!FileUtils::copyFile(at(u"a"_s), at(u"b"_s)));
    QVERIFY(QFile::permissions(at(u"b"_s)).testFlag(QFileDevice::WriteOwner));
}

void TestCopyFile::progressGrowsToTheSizeOfTheFile()
{
    constexpr qint64 kSize = 9'000'001;
    makeFile(at(u"a"_s), QByteArray(kSize, 'x'));
    QList<qint64> steps{0};
    const auto progress = [&steps](qint64 done, qint64 total) {
        QVERIFY(done >= steps.constLast() && done <= total);
        QCOMPARE(total, kSize);
        steps.append(done);
    };
    QVERIFY(!FileUtils::copyFile(at(u"a"_s), at(u"b"_s), progress));
    QCOMPARE(steps.constLast(), kSize);
}

void TestCopyFile::sourcesThatCannotBeReadAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"missing"_s;
    QTest::newRow("folder") << u"folder"_s;
    QTest::newRow("pipe") << u"pipe"_s;
    QTest::newRow("link to nothing") << u"link"_s;
    QTest::newRow("no name") << QString();
}

void TestCopyFile::sourcesThatCannotBeReadAreRefused()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_dir->path()).mkdir(u"folder"_s));
    QVERIFY(makeFifo(at(u"pipe"_s)));
    QVERIFY(QFile::link(at(u"missing"_s), at(u"link"_s)));
    const auto failure = FileUtils::copyFile(name.isEmpty() ? name : at(name), at(u"b"_s));
    QVERIFY(failure);
    QCOMPARE(failure->side, Side::Source);
    QVERIFY(!failure->reason.isEmpty());
    QVERIFY(!QFileInfo::exists(at(u"b"_s)));
}

void TestCopyFile::nothingIsWrittenOver()
{
    makeFile(at(u"a"_s), "new");
    makeFile(at(u"b"_s), "old");
    for (const QString &destination : {at(u"b"_s), at(u"no/such/folder"_s), m_dir->path()}) {
        const auto failure = FileUtils::copyFile(at(u"a"_s), destination);
        QVERIFY(failure);
        QCOMPARE(failure->side, Side::Destination);
        QVERIFY(!failure->reason.isEmpty());
    }
    QCOMPARE(bytesOf(at(u"b"_s)), "old"_ba);
}

void TestCopyFile::aFullDiskLeavesNothing()
{
    makeFile(at(u"a"_s), QByteArray(100'000, 'x'));
    const int outcome = inChildProcess([this] {
        if (!limitFileSize(50'000))
            return Undone;
        const auto failure = FileUtils::copyFile(at(u"a"_s), at(u"b"_s));
        if (!failure)
            return Succeeded;
        return failure->side == Side::Destination && !failure->reason.isEmpty() ? Refused : WrongError;
    });
    if (outcome == kChildNotSupported || outcome == Undone)
        QSKIP("The size of files can't be limited");
    QCOMPARE(outcome, int(Refused));
    QCOMPARE(namesIn(m_dir->path()), QStringList{u"a"_s});
}

void TestCopyFile::aFileWithoutSizeIsCopiedWhole()
{
    const QString path = u"/proc/self/environ"_s;
    if (bytesOf(path).isEmpty() || QFileInfo(path).size() != 0)
        QSKIP("The system has no files that tell no size");
    QVERIFY(!FileUtils::copyFile(path, at(u"b"_s)));
    QCOMPARE(bytesOf(at(u"b"_s)), bytesOf(path));
}

ORV_REGISTER_TEST(TestCopyFile)
#include "TestCopyFile.moc"
