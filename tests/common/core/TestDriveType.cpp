#include "OrvTest.h"

#include <orv/core/DriveType.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestDriveType : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNetworkDriveHasItsNumber();
    void theLongestMountPointDecides_data();
    void theLongestMountPointDecides();
    void theLaterOfTwoMountsOnOnePlaceDecides();
    void fileSystemsOfOtherMachinesAreTold_data();
    void fileSystemsOfOtherMachinesAreTold();
    void pathsOfWindowsNeedNoMountTable_data();
    void pathsOfWindowsNeedNoMountTable();
    void malformedLinesAreNoMounts();
    void linksAreFollowed();
    void whatDoesNotExistLiesWhereItsFolderLies();
};

namespace {

QByteArray mountLine(const QByteArray &point, const QByteArray &type,
                     const QByteArray &optional = " shared:1")
{
    return "36 35 98:0 / " + point + " rw,noatime" + optional + " - " + type + " source rw\n";
}

} // namespace

void TestDriveType::aNetworkDriveHasItsNumber()
{
    QCOMPARE(int(DriveType::Network), 3);
    QCOMPARE(int(DriveType::Unknown), 0);
}

void TestDriveType::theLongestMountPointDecides_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<DriveType>("type");

    const auto row = [](const QString &path, DriveType type) {
        QTest::newRow(qPrintable(path)) << path << type;
    };
    row(u"/"_s, DriveType::Local);
    row(u"/home/a.raw"_s, DriveType::Local);
    row(u"/mnt/runs"_s, DriveType::Network);
    row(u"/mnt/runs/"_s, DriveType::Network);
    row(u"/mnt/runs/2024/a.raw"_s, DriveType::Network);
    row(u"/mnt/runs/scratch/a.raw"_s, DriveType::Local);
    row(u"/mnt/runs2/a.raw"_s, DriveType::Local);
    row(u"/mnt/runs/scratch/../a.raw"_s, DriveType::Network);
    row(u"/mnt/my runs/a.raw"_s, DriveType::Network);
    row(u"/mnt/\u00e4/a.raw"_s, DriveType::Network);
    row(u"/mnt/b\\s/a.raw"_s, DriveType::Network);
    row(u"runs/a.raw"_s, DriveType::Unknown);
    row(QString(), DriveType::Unknown);
}

void TestDriveType::theLongestMountPointDecides()
{
    QFETCH(QString, path);
    const QByteArray table = mountLine("/mnt/runs/scratch", "xfs") + mountLine("/", "ext4", "") +
                             mountLine("/mnt/runs", "nfs4", " shared:1 master:2") +
                             mountLine("/mnt/my\\040runs", "cifs") + mountLine("/mnt/\xc3\xa4", "nfs") +
                             mountLine("/mnt/b\\134s", "nfs");
    QTEST(driveType(path, table), "type");
}

void TestDriveType::theLaterOfTwoMountsOnOnePlaceDecides()
{
    QCOMPARE(driveType(u"/a/b"_s, mountLine("/a", "autofs") + mountLine("/a", "nfs4")), DriveType::Network);
    QCOMPARE(driveType(u"/a/b"_s, mountLine("/a", "nfs4") + mountLine("/a", "tmpfs")), DriveType::Local);
}

void TestDriveType::fileSystemsOfOtherMachinesAreTold_data()
{
    QTest::addColumn<QByteArray>("fileSystem");
    QTest::addColumn<DriveType>("type");

    for (const char *type :
         {"nfs", "nfs4", "cifs", "smb3", "smbfs", "sshfs", "fuse.sshfs", "davfs", "fuse.davfs2", "9p", "afs",
          "ceph", "fuse.ceph-fuse", "glusterfs", "fuse.glusterfs", "lustre", "fuse.rclone"})
        QTest::newRow(type) << QByteArray(type) << DriveType::Network;
    for (const char *type : {"ext4", "xfs", "btrfs", "tmpfs", "overlay", "vfat", "ntfs3", "fuseblk",
                             "fuse.ntfs-3g", "zfs", "fuse.", "nfsd", "NFS"})
        QTest::newRow(type) << QByteArray(type) << DriveType::Local;
}

void TestDriveType::fileSystemsOfOtherMachinesAreTold()
{
    QFETCH(QByteArray, fileSystem);
    QTEST(driveType(u"/data/a.raw"_s, mountLine("/data", fileSystem)), "type");
}

void TestDriveType::pathsOfWindowsNeedNoMountTable_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<DriveType>("type");

    const auto row = [](const QString &path, DriveType type) {
        QTest::newRow(qPrintable(path)) << path << type;
    };
    row(u"\\\\store\\runs\\a.raw"_s, DriveType::Network);
    row(u"//store/runs/a.raw"_s, DriveType::Network);
    row(u"\\\\?\\UNC\\store\\runs\\a.raw"_s, DriveType::Network);
    row(u"C:\\data\\a.raw"_s, DriveType::Unknown);
    row(u"C:/data/a.raw"_s, DriveType::Unknown);
    row(u"\\\\?\\C:\\data\\a.raw"_s, DriveType::Unknown);
}

void TestDriveType::pathsOfWindowsNeedNoMountTable()
{
    QFETCH(QString, path);
    QTEST(driveType(path, mountLine("/", "ext4")), "type");
#ifdef Q_OS_LINUX
    QTEST(driveType(path), "type");
#endif
}

void TestDriveType::malformedLinesAreNoMounts()
{
    for (const QByteArray &line :
         {QByteArray(), QByteArray("\n\n"), QByteArray("36 35 98:0 / /data rw nfs"), QByteArray("- nfs"),
          QByteArray("36 35 98:0 / /data rw -"), QByteArray("1 2 3 4 5 - nfs")}) {
        QCOMPARE(driveType(u"/data/a.raw"_s, line), DriveType::Unknown);
        QCOMPARE(driveType(u"/data/a.raw"_s, line + '\n' + mountLine("/", "ext4")), DriveType::Local);
    }
}

void TestDriveType::linksAreFollowed()
{
    QTemporaryDir folder;
    const QString link = folder.filePath(u"link"_s);
    QVERIFY(QFile::link(u"/proc/self"_s, link));
    // Whatever file system the folder has, a link lies where its target lies.
    QCOMPARE(driveType(link), driveType(u"/proc"_s));
    QCOMPARE(driveType(link + u"/no/such/file"_s), driveType(u"/proc"_s));
}

void TestDriveType::whatDoesNotExistLiesWhereItsFolderLies()
{
    QTemporaryDir folder;
    const DriveType type = driveType(folder.path());
    QVERIFY(type != DriveType::Unknown);
    QCOMPARE(driveType(folder.filePath(u"x/y/z.raw"_s)), type);
    QCOMPARE(driveType(QString()), DriveType::Unknown);
    QVERIFY(driveType(u"no-such-file"_s) != DriveType::Unknown);
}

ORV_REGISTER_TEST(TestDriveType)

#include "TestDriveType.moc"
