#include "OrvTest.h"

#include <orv/project/ProjectCreationUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestProjectCreationUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dir = std::make_unique<QTemporaryDir>(); }

    void foldersAreNamedByMoment();
    void theYoungestFolderIsFound_data();
    void theYoungestFolderIsFound();
    void aFileIsNoFolder();
    void aNewFolderIsTheYoungest();
    void foldersOfOneMomentDiffer();
    void aFolderThatCannotBeMadeIsAnError();

private:
    [[nodiscard]] QDir dir() const { return QDir(m_dir->path()); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestProjectCreationUtils::foldersAreNamedByMoment()
{
    const QDateTime moment = QDateTime::fromString(u"2024-01-31T12:20:30.456+02:00"_s, Qt::ISODateWithMs);
    QCOMPARE(ProjectCreationUtils::tempFolderName(u"a.b"_s, moment), u"a.b.tmp-20240131T102030456Z"_s);
}

void TestProjectCreationUtils::theYoungestFolderIsFound_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("last");

    const QString oldest = u"a.tmp-20230131T102030456Z"_s;
    const QString youngest = u"a.tmp-20240131T102030456Z"_s;
    QTest::newRow("none") << QStringList() << u"a"_s << QString();
    QTest::newRow("one") << QStringList{oldest} << u"a"_s << oldest;
    QTest::newRow("made first") << QStringList{youngest, oldest} << u"a"_s << youngest;
    QTest::newRow("made last") << QStringList{oldest, youngest} << u"a"_s << youngest;
    QTest::newRow("of another project")
        << QStringList{oldest, u"ab.tmp-20240131T102030456Z"_s, u"b.tmp-20240131T102030456Z"_s} << u"a"_s
        << oldest;
    QTest::newRow("no moment") << QStringList{oldest, u"a.tmp-x"_s, u"a.tmp-99999999T999999999Z"_s,
                                              u"a.tmp-"_s}
                               << u"a"_s << oldest;
    QTest::newRow("name with wildcards") << QStringList{u"[a]*.tmp-20240131T102030456Z"_s, youngest}
                                         << u"[a]*"_s << u"[a]*.tmp-20240131T102030456Z"_s;
    QTest::newRow("hidden name") << QStringList{u".a.tmp-20240131T102030456Z"_s} << u".a"_s
                                 << u".a.tmp-20240131T102030456Z"_s;
}

void TestProjectCreationUtils::theYoungestFolderIsFound()
{
    QFETCH(QStringList, folders);
    QFETCH(QString, name);
    QFETCH(QString, last);
    for (const QString &folder : folders)
        QVERIFY(dir().mkdir(folder));
    QCOMPARE(ProjectCreationUtils::lastTempFolder(dir(), name),
             last.isEmpty() ? QString() : dir().absoluteFilePath(last));
}

void TestProjectCreationUtils::aFileIsNoFolder()
{
    QFile file(dir().filePath(u"a.tmp-20240131T102030456Z"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(ProjectCreationUtils::lastTempFolder(dir(), u"a"_s), QString());
}

void TestProjectCreationUtils::aNewFolderIsTheYoungest()
{
    QVERIFY(dir().mkdir(u"a.tmp-20240131T102030456Z"_s));
    const auto folder = ProjectCreationUtils::createTempFolder(dir(), u"a"_s);
    ORV_VERIFY_OK(folder);
    QVERIFY(QDir::isAbsolutePath(*folder) && QDir(*folder).exists());
    QCOMPARE(ProjectCreationUtils::lastTempFolder(dir(), u"a"_s), *folder);
}

void TestProjectCreationUtils::foldersOfOneMomentDiffer()
{
    QSet<QString> folders;
    for (int i = 0; i < 20; ++i) {
        const auto folder = ProjectCreationUtils::createTempFolder(dir(), u"a"_s);
        ORV_VERIFY_OK(folder);
        folders.insert(*folder);
    }
    QCOMPARE(folders.size(), 20);
}

void TestProjectCreationUtils::aFolderThatCannotBeMadeIsAnError()
{
    const auto folder = ProjectCreationUtils::createTempFolder(QDir(dir().filePath(u"missing"_s)), u"a"_s);
    QVERIFY(folder.hasError());
    QCOMPARE(folder.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(folder.error().details().constFirst().contains(u"a"_s));
}

ORV_REGISTER_TEST(TestProjectCreationUtils)
#include "TestProjectCreationUtils.moc"
