#include "OrvTest.h"

#include <orv/core/FileNameUtils.h>
#include <orv/core/FilePathUtils.h>
#include <orv/core/PathUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestPaths : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void extensionsAreThoseOfTheLastName_data();
    void extensionsAreThoseOfTheLastName();
    void foldersAndFilesAreToldApart_data();
    void foldersAndFilesAreToldApart();
    void aFreeNameIsKept_data();
    void aFreeNameIsKept();
    void aTakenNameIsNumbered_data();
    void aTakenNameIsNumbered();
    void numbersThatAreTakenTooAreSkipped();
    void namesThatASystemTakesForOneAreTaken_data();
    void namesThatASystemTakesForOneAreTaken();
    void numberedNamesAreNoLongerThanNamesMayBe_data();
    void numberedNamesAreNoLongerThanNamesMayBe();
    void theLongPathRulesOfWindowsHoldEverywhere_data();
    void theLongPathRulesOfWindowsHoldEverywhere();
    void windowsPathsAreTold_data();
    void windowsPathsAreTold();
    void namesAreMadeOfTexts_data();
    void namesAreMadeOfTexts();
};

void TestPaths::extensionsAreThoseOfTheLastName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("has");

    const auto row = [](const QString &path, const QString &extension, bool has) {
        QTest::addRow("\"%s\" and \"%s\"", qPrintable(path), qPrintable(extension))
            << path << extension << has;
    };
    row(u"a.wflw"_s, u"wflw"_s, true);
    row(u"/folder/a.WFLW"_s, u"wflw"_s, true);
    row(u"a.wflw"_s, u"WfLw"_s, true);
    row(u"a.wiff.scan"_s, u"wiff.scan"_s, true);
    row(u"a.wiff.scan"_s, u"scan"_s, true);
    row(u"sample.raw/"_s, u"raw"_s, true);
    row(u"C:\\data\\sample.d\\"_s, u"d"_s, true);
    row(u".wflw"_s, u"wflw"_s, true);
    row(u"a.\u00c4"_s, u"\u00e4"_s, true);
    row(u"a.wiff.scan"_s, u"wiff"_s, false);
    row(u"a.wflwp"_s, u"wflw"_s, false);
    row(u"awflw"_s, u"wflw"_s, false);
    row(u"wflw"_s, u"wflw"_s, false);
    row(u"a.wflw"_s, u".wflw"_s, false);
    row(u"a.wflw"_s, QString(), false);
    row(u"a."_s, QString(), false);
    row(QString(), u"wflw"_s, false);
    row(u"/"_s, u"wflw"_s, false);
    row(u"folder.wflw/a"_s, u"wflw"_s, false);
    row(u"a.wflw "_s, u"wflw"_s, false);
}

void TestPaths::extensionsAreThoseOfTheLastName()
{
    QFETCH(QString, path);
    QFETCH(QString, extension);
    QTEST(PathUtils::hasExtension(path, extension), "has");
}

void TestPaths::foldersAndFilesAreToldApart_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<bool>("isFile");

    QTest::newRow("folder") << u"folder"_s << true << false;
    QTest::newRow("folder with separator") << u"folder/"_s << true << false;
    QTest::newRow("link to folder") << u"folder-link"_s << true << false;
    QTest::newRow("file") << u"file"_s << false << true;
    QTest::newRow("link to file") << u"file-link"_s << false << true;
    QTest::newRow("dangling link") << u"dangling"_s << false << false;
    QTest::newRow("missing") << u"missing"_s << false << false;
    QTest::newRow("below a file") << u"file/x"_s << false << false;
}

void TestPaths::foldersAndFilesAreToldApart()
{
    const QTemporaryDir dir;
    QFile file(dir.filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(dir.path()).mkdir(u"folder"_s));
    QVERIFY(QFile::link(dir.filePath(u"folder"_s), dir.filePath(u"folder-link"_s)));
    QVERIFY(QFile::link(dir.filePath(u"file"_s), dir.filePath(u"file-link"_s)));
    QVERIFY(QFile::link(dir.filePath(u"nothing"_s), dir.filePath(u"dangling"_s)));

    QFETCH(QString, name);
    const QString path = dir.filePath(name);
    QTEST(PathUtils::isDirectory(path), "isFolder");
    QTEST(PathUtils::isExistingDir(path), "isFolder");
    QTEST(PathUtils::isExistingFile(path), "isFile");
}

void TestPaths::aFreeNameIsKept_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("name");

    QTest::newRow("file") << u"/data/a.fasta"_s << u"a.fasta"_s;
    QTest::newRow("name alone") << u"a.fasta"_s << u"a.fasta"_s;
    QTest::newRow("folder of a sample") << u"/data/run 7.raw/"_s << u"run 7.raw"_s;
    QTest::newRow("no extension") << u"/data/a"_s << u"a"_s;
    QTest::newRow("hidden") << u"/data/.a"_s << u".a"_s;
}

void TestPaths::aFreeNameIsKept()
{
    const QTemporaryDir dir;
    QFETCH(QString, source);
    QFETCH(QString, name);
    QCOMPARE(FileNameUtils::generateUniqueDestination(source, dir.path()), dir.filePath(name));
    QVERIFY(QDir(dir.path()).isEmpty());
}

void TestPaths::aTakenNameIsNumbered_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("name");

    QTest::newRow("file") << u"/data/a.fasta"_s << u"a.fasta"_s << u"a (2).fasta"_s;
    QTest::newRow("two extensions") << u"/data/a.wiff.scan"_s << u"a.wiff.scan"_s << u"a.wiff (2).scan"_s;
    QTest::newRow("folder of a sample") << u"/data/run 7.raw/"_s << u"run 7.raw"_s << u"run 7 (2).raw"_s;
    QTest::newRow("no extension") << u"/data/a"_s << u"a"_s << u"a (2)"_s;
    QTest::newRow("hidden") << u"/data/.a"_s << u".a"_s << u".a (2)"_s;
    QTest::newRow("hidden with an extension") << u"/data/.a.txt"_s << u".a.txt"_s << u".a (2).txt"_s;
    QTest::newRow("numbered before") << u"/data/a (2).txt"_s << u"a (2).txt"_s << u"a (2) (2).txt"_s;
    QTest::newRow("place markers in the name")
        << u"/data/%1 %2.txt"_s << u"%1 %2.txt"_s << u"%1 %2 (2).txt"_s;
}

void TestPaths::aTakenNameIsNumbered()
{
    QFETCH(QString, source);
    QFETCH(QString, taken);
    QFETCH(QString, name);
    const auto destination = [&source](const QTemporaryDir &dir) {
        return FileNameUtils::generateUniqueDestination(source, dir.path());
    };
    const QTemporaryDir withFile;
    QFile file(withFile.filePath(taken));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(destination(withFile), withFile.filePath(name));

    const QTemporaryDir withFolder;
    QVERIFY(QDir(withFolder.path()).mkdir(taken));
    QCOMPARE(destination(withFolder), withFolder.filePath(name));

    const QTemporaryDir withDanglingLink;
    QVERIFY(QFile::link(u"/nowhere/at/all"_s, withDanglingLink.filePath(taken)));
    QCOMPARE(destination(withDanglingLink), withDanglingLink.filePath(name));
}

void TestPaths::numbersThatAreTakenTooAreSkipped()
{
    const QTemporaryDir dir;
    for (const QString &name : {u"a.txt"_s, u"a (2).txt"_s, u"a (3).txt"_s})
        QVERIFY(QDir(dir.path()).mkdir(name));
    QCOMPARE(FileNameUtils::generateUniqueDestination(u"a.txt"_s, dir.path()), dir.filePath(u"a (4).txt"_s));
}

void TestPaths::namesThatASystemTakesForOneAreTaken_data()
{
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("name");
    QTest::newRow("case") << u"Report.TXT"_s << u"report.txt"_s << u"report (2).txt"_s;
    QTest::newRow("letters with marks") << u"e\u0301.txt"_s << u"\u00e9.txt"_s << u"\u00e9 (2).txt"_s;
}

void TestPaths::namesThatASystemTakesForOneAreTaken()
{
    QFETCH(QString, taken);
    QFETCH(QString, source);
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(taken));
    QFETCH(QString, name);
    QCOMPARE(FileNameUtils::generateUniqueDestination(source, dir.path()), dir.filePath(name));
    const QTemporaryDir other;
    QCOMPARE(FileNameUtils::generateUniqueDestination(source, other.path(), {taken}), other.filePath(name));
}

void TestPaths::numberedNamesAreNoLongerThanNamesMayBe_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("name");
    QTest::newRow("letters of one byte")
        << QString(251, u'a') + u".txt"_s << QString(247, u'a') + u" (2).txt"_s;
    QTest::newRow("letters of two") << QString(125, u'µ') + u".json"_s << QString(123, u'µ') + u" (2).json"_s;
    QTest::newRow("extension of 255 bytes")
        << u"a."_s + QString(253, u'x') << u" (2)."_s + QString(253, u'x');
}

void TestPaths::numberedNamesAreNoLongerThanNamesMayBe()
{
    QFETCH(QString, source);
    QFETCH(QString, name);
    const QTemporaryDir dir;
    QCOMPARE(FileNameUtils::generateUniqueDestination(source, dir.path(), {source}), dir.filePath(name));
}

void TestPaths::theLongPathRulesOfWindowsHoldEverywhere_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isLong");
    QTest::addColumn<bool>("hasPrefix");

    QTest::newRow("empty") << QString() << false << false;
    QTest::newRow("260 characters") << QString(260, u'x') << false << false;
    QTest::newRow("261 characters") << QString(261, u'x') << true << false;
    QTest::newRow("prefix") << uR"(\\?\C:\a)"_s << false << true;
    QTest::newRow("prefix with slashes") << u"//?/C:/a"_s << false << true;
    QTest::newRow("prefix inside") << uR"(C:\\?\a)"_s << false << false;
    QTest::newRow("network share") << uR"(\\server\share)"_s << false << false;
    QTest::newRow("cut prefix") << uR"(\\?)"_s << false << false;
}

void TestPaths::theLongPathRulesOfWindowsHoldEverywhere()
{
    QFETCH(QString, path);
    QTEST(FilePathUtils::isWinLongPath(path), "isLong");
    QTEST(FilePathUtils::hasWinLongPathPrefix(path), "hasPrefix");
    QCOMPARE(FilePathUtils::winMaxPathLength(), 260);
}

void TestPaths::windowsPathsAreTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("withoutPrefix");
    QTest::addColumn<bool>("hasDriveLetter");
    QTest::addColumn<bool>("isUnc");

    const auto row = [](const QString &path, const QString &withoutPrefix, bool hasDriveLetter, bool isUnc) {
        QTest::newRow(qPrintable(path)) << path << withoutPrefix << hasDriveLetter << isUnc;
    };
    row(u"C:\\a"_s, u"C:\\a"_s, true, false);
    row(u"c:/a"_s, u"c:/a"_s, true, false);
    row(u"C:"_s, u"C:"_s, true, false);
    row(u"C:a"_s, u"C:a"_s, false, false);
    row(u"1:/a"_s, u"1:/a"_s, false, false);
    row(u"\u00e4:/a"_s, u"\u00e4:/a"_s, false, false);
    row(u"/a"_s, u"/a"_s, false, false);
    row(u"a"_s, u"a"_s, false, false);
    row(QString(), QString(), false, false);
    row(u"\\\\server\\share"_s, u"\\\\server\\share"_s, false, true);
    row(u"//server/share"_s, u"//server/share"_s, false, true);
    row(u"\\\\server"_s, u"\\\\server"_s, false, true);
    row(u"///a"_s, u"///a"_s, false, false);
    row(u"/\\a"_s, u"/\\a"_s, false, false);
    row(u"//"_s, u"//"_s, false, false);
    row(u"\\\\.\\pipe\\a"_s, u"\\\\.\\pipe\\a"_s, false, false);
    row(u"\\\\.server\\a"_s, u"\\\\.server\\a"_s, false, true);
    row(u"\\\\?\\C:\\a"_s, u"C:\\a"_s, true, false);
    row(u"//?/C:/a"_s, u"C:/a"_s, true, false);
    row(u"\\\\?\\UNC\\server\\a"_s, u"\\\\server\\a"_s, false, true);
    row(u"//?/unc/server/a"_s, u"//server/a"_s, false, true);
    row(u"\\\\?\\UNCLE\\a"_s, u"UNCLE\\a"_s, false, false);
    row(u"\\\\?\\"_s, QString(), false, false);
}

void TestPaths::windowsPathsAreTold()
{
    QFETCH(QString, path);
    QTEST(FilePathUtils::withoutWinLongPathPrefix(path), "withoutPrefix");
    QTEST(FilePathUtils::hasDriveLetter(path), "hasDriveLetter");
    QTEST(FilePathUtils::isUncPath(path), "isUnc");
}

void TestPaths::namesAreMadeOfTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"mAb 4 weeks 40 \u00b0C"_s << u"mAb 4 weeks 40 \u00b0C"_s;
    QTest::newRow("separators") << u"../a/b\\c"_s << u".._a_b_c"_s;
    QTest::newRow("what Windows reserves") << u"a:b*c?d\"e<f>g|h"_s << u"a_b_c_d_e_f_g_h"_s;
    QTest::newRow("control characters") << u"a\nb\tc"_s << u"a_b_c"_s;
    QTest::newRow("end") << u"a. ."_s << u"a___"_s;
    QTest::newRow("dots") << u".."_s << u"__"_s;
    QTest::newRow("empty") << u""_s << u"_"_s;
}

void TestPaths::namesAreMadeOfTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QCOMPARE(FileNameUtils::nameFromText(text), name);
}

ORV_REGISTER_TEST(TestPaths)

#include "TestPaths.moc"
