#include "OrvTest.h"
#include "SampleTree.h"
#include "TolqFiles.h"

#include <orv/core_ms/TolqUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ZipEntry metadata(const QByteArray &sample)
{
    return {u"metadata.json"_s, tolqMetadata(sample)};
}

} // namespace

class TestTolqUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theSampleOfAnArchiveIsUnpacked();
    void aSampleMayBeAFolder();
    void theSampleOfAFolderStaysWhereItIs();
    void metadataAreReadFromBothForms();
    void harmfulArchivesAreRefused_data();
    void harmfulArchivesAreRefused();
    void harmfulEntriesBesideTheSampleDontCount();
    void aLyingArchiveUnpacksNoMoreThanItMay();
    void wellPackedSamplesAreUnpacked();
    void damagedArchivesAreRefused();
    void aFolderMustHoldItsSample_data();
    void aFolderMustHoldItsSample();
    void whatCannotBeOpenedIsTold_data();
    void whatCannotBeOpenedIsTold();
    void nothingIsOverwritten();
    void aTargetThatIsNoFolderIsTold();
};

void TestTolqUtils::theSampleOfAnArchiveIsUnpacked()
{
    const SampleTree tree;
    tree.add(u"out/"_s);
    const QByteArray bytes = QByteArray("SQLite format 3\0", 16).repeated(50'000);
    makeZip(tree.at(u"a.tolq"_s),
            {{u"other.txt"_s, "x"}, {u"Größe 1.ulvar2"_s, bytes}, metadata("Größe 1.ulvar2")});
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"out"_s));
    ORV_VERIFY_OK(path);
    QCOMPARE(*path, tree.at(u"out/Größe 1.ulvar2"_s));
    QCOMPARE(bytesOf(*path), bytes);
    QCOMPARE(QDir(tree.at(u"out"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{u"Größe 1.ulvar2"_s});
}

void TestTolqUtils::aSampleMayBeAFolder()
{
    const SampleTree tree;
    tree.add(u"out/"_s);
    makeZip(tree.at(u"a.tolq"_s), {metadata("run.d"),
                                   {u"run.d/"_s, {}, 040755},
                                   {u"run.d/AcqData/MSScan.bin"_s, "scans"},
                                   {u"run.data"_s, "no part of it"}});
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"out"_s));
    ORV_VERIFY_OK(path);
    QCOMPARE(*path, tree.at(u"out/run.d"_s));
    QCOMPARE(bytesOf(*path + u"/AcqData/MSScan.bin"_s), "scans"_ba);
    QVERIFY(!QFileInfo::exists(tree.at(u"out/run.data"_s)));
}

void TestTolqUtils::theSampleOfAFolderStaysWhereItIs()
{
    const SampleTree tree;
    tree.add(u"out/"_s);
    tree.add(u"a.tolq/metadata.json"_s, tolqMetadata("s.mgf"));
    tree.add(u"a.tolq/s.mgf"_s);
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"out"_s));
    ORV_VERIFY_OK(path);
    QCOMPARE(*path, tree.at(u"a.tolq/s.mgf"_s));
    QVERIFY(QDir(tree.at(u"out"_s)).isEmpty());
}

void TestTolqUtils::metadataAreReadFromBothForms()
{
    const SampleTree tree;
    tree.add(u"folder.tolq/metadata.json"_s, tolqMetadata("a.mgf", "1.2"));
    makeZip(tree.at(u"archive.tolq"_s), {{u"metadata.json"_s, tolqMetadata("b.mgf", "1.3")}});
    const Result<TolqMetadata> folder = TolqUtils::readMetadata(tree.at(u"folder.tolq"_s));
    ORV_VERIFY_OK(folder);
    QCOMPARE(folder->sample(), u"a.mgf"_s);
    const Result<TolqMetadata> archive = TolqUtils::readMetadata(tree.at(u"archive.tolq"_s));
    ORV_VERIFY_OK(archive);
    QCOMPARE(archive->version(), QVersionNumber(1, 3));
}

void TestTolqUtils::harmfulArchivesAreRefused_data()
{
    QTest::addColumn<QList<ZipEntry>>("entries");
    QTest::addColumn<QString>("reason");
    using Entries = QList<ZipEntry>;
    QTest::newRow("above") << Entries{metadata("s.d"), {u"s.d/../../evil"_s, "x"}} << u"leads out"_s;
    QTest::newRow("above at the end") << Entries{metadata("s.d"), {u"s.d/.."_s, "x"}} << u"leads out"_s;
    QTest::newRow("here") << Entries{metadata("s.d"), {u"s.d/./x"_s, "x"}} << u"leads out"_s;
    QTest::newRow("two slashes") << Entries{metadata("s.d"), {u"s.d//x"_s, "x"}} << u"leads out"_s;
    QTest::newRow("backslashes") << Entries{metadata("s.d"), {u"s.d/..\\..\\evil"_s, "x"}} << u"leads out"_s;
    QTest::newRow("a drive") << Entries{metadata("s.d"), {u"s.d/C:evil"_s, "x"}} << u"leads out"_s;
    QTest::newRow("too deep") << Entries{metadata("s.d"), {u"s.d/"_s + u"x/"_s.repeated(100) + u"y"_s, "x"}}
                              << u"too deep"_s;
    QTest::newRow("a link") << Entries{metadata("s.mgf"), {u"s.mgf"_s, "/etc/passwd", 0120777}} << u"link"_s;
    QTest::newRow("a link to a folder, then a file in it")
        << Entries{metadata("s.d"), {u"s.d/x"_s, "/tmp", 0120777}, {u"s.d/x/evil"_s, "x"}} << u"link"_s;
    QTest::newRow("encrypted") << Entries{metadata("s.mgf"), {u"s.mgf"_s, "x", 0100644, "secret"}}
                               << u"encrypted"_s;
    QTest::newRow("twice") << Entries{metadata("s.mgf"), {u"s.mgf"_s, "x"}, {u"s.mgf"_s, "y"}} << u"twice"_s;
    QTest::newRow("no sample") << Entries{metadata("s.mgf"), {u"t.mgf"_s, "x"}} << u"missing"_s;
    QTest::newRow("sample in other case") << Entries{metadata("s.mgf"), {u"S.MGF"_s, "x"}} << u"missing"_s;
    QTest::newRow("no metadata") << Entries{{u"s.mgf"_s, "x"}} << u"missing"_s;
    QTest::newRow("a link for metadata")
        << Entries{{u"metadata.json"_s, "s.mgf", 0120777}, {u"s.mgf"_s, "x"}} << u"link"_s;
    QTest::newRow("huge metadata") << Entries{{u"metadata.json"_s, QByteArray(17 << 20, ' ')}}
                                   << u"too large"_s;
}

void TestTolqUtils::harmfulArchivesAreRefused()
{
    QFETCH(QList<ZipEntry>, entries);
    QFETCH(QString, reason);
    const SampleTree tree;
    tree.add(u"deep/out/"_s);
    makeZip(tree.at(u"a.tolq"_s), entries);
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"deep/out"_s));
    QVERIFY(path.hasError());
    QCOMPARE(path.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(path.error().details().join(u' ').contains(reason), OrvTests::describe(path).constData());
    for (const QString &evil : {u"evil"_s, u"deep/evil"_s})
        QVERIFY(!QFileInfo::exists(tree.at(evil)));
}

void TestTolqUtils::harmfulEntriesBesideTheSampleDontCount()
{
    const SampleTree tree;
    tree.add(u"out/"_s);
    makeZip(tree.at(u"a.tolq"_s), {{u"../evil"_s, "x"}, metadata("s.mgf"), {u"s.mgf"_s, "good"}});
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"out"_s));
    ORV_VERIFY_OK(path);
    QCOMPARE(bytesOf(*path), "good"_ba);
    QVERIFY(!QFileInfo::exists(tree.at(u"evil"_s)));
}

void TestTolqUtils::aLyingArchiveUnpacksNoMoreThanItMay()
{
    const SampleTree tree;
    tree.add(u"out/"_s);
    // Seventy megabytes that pack to as many kilobytes.
    makeZip(tree.at(u"a.tolq"_s), {metadata("s.mgf"), {u"s.mgf"_s, QByteArray(70 << 20, '\0')}});
    QVERIFY(QFileInfo(tree.at(u"a.tolq"_s)).size() < 200'000);
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"out"_s));
    QCOMPARE(path.error().code(), ErrorCode::InvalidContent);
    QVERIFY(path.error().details().join(u' ').contains(u"far more"_s));
    QVERIFY(QFileInfo(tree.at(u"out/s.mgf"_s)).size() <= 64 << 20);
}

void TestTolqUtils::wellPackedSamplesAreUnpacked()
{
    const SampleTree tree;
    tree.add(u"out/"_s);
    makeZip(tree.at(u"a.tolq"_s), {metadata("s.mgf"), {u"s.mgf"_s, QByteArray(60 << 20, '\0')}});
    ORV_VERIFY_OK(TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"out"_s)));
}

void TestTolqUtils::damagedArchivesAreRefused()
{
    const SampleTree tree;
    QByteArray noise(5000, '\0');
    for (qsizetype i = 0; i < noise.size(); ++i)
        noise[i] = char((i * 7919 + i * i) >> 3);
    makeZip(tree.at(u"good.tolq"_s), {metadata("s.mgf"), {u"s.mgf"_s, noise}});
    const QByteArray good = bytesOf(tree.at(u"good.tolq"_s));
    int refused = 0;
    for (qsizetype at = 0; at < good.size(); at += 97) {
        // Cut short there, and with another byte there. No harm may be done; the bytes that tell a date or
        // the like may be any.
        for (const QByteArray &bad :
             {good.first(at), QByteArray(good).replace(at, 1, QByteArray(1, char(~good[at])))}) {
            tree.add(u"bad.tolq"_s, bad);
            const QTemporaryDir out;
            const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"bad.tolq"_s), out.path());
            if (path.hasError())
                ++refused;
            else
                QCOMPARE(bytesOf(*path), noise);
        }
    }
    QVERIFY(refused > good.size() / 97);
}

void TestTolqUtils::aFolderMustHoldItsSample_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("no sample") << QString() << false;
    QTest::newRow("a link to a neighbour") << u"real.mgf"_s << true;
    QTest::newRow("a link out") << u"../secret"_s << false;
    QTest::newRow("a link to a folder of a longer name") << u"../a.tolq2/x"_s << false;
    QTest::newRow("a broken link") << u"nothing"_s << false;
}

void TestTolqUtils::aFolderMustHoldItsSample()
{
    QFETCH(QString, target);
    QFETCH(bool, isTaken);
    const SampleTree tree;
    tree.addAll({u"secret"_s, u"a.tolq/real.mgf"_s, u"a.tolq2/x"_s});
    tree.add(u"a.tolq/metadata.json"_s, tolqMetadata("s.mgf"));
    if (!target.isEmpty())
        tree.link(u"a.tolq/s.mgf"_s, target);
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(QString()));
    QCOMPARE(!path.hasError(), isTaken);
    if (!isTaken)
        QCOMPARE(path.error().code(), ErrorCode::InvalidContent);
}

void TestTolqUtils::whatCannotBeOpenedIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ErrorCode>("code");
    QTest::newRow("missing") << u"missing.tolq"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("empty file") << u"empty.tolq"_s << ErrorCode::InvalidContent;
    QTest::newRow("text") << u"text.tolq"_s << ErrorCode::InvalidContent;
    QTest::newRow("empty folder") << u"folder.tolq"_s << ErrorCode::CannotOpenFile;
}

void TestTolqUtils::whatCannotBeOpenedIsTold()
{
    QFETCH(QString, name);
    QFETCH(ErrorCode, code);
    const SampleTree tree;
    tree.add(u"empty.tolq"_s, {});
    tree.add(u"text.tolq"_s, "no archive");
    tree.add(u"folder.tolq/"_s);
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(name), tree.at(QString()));
    QVERIFY(path.hasError());
    QCOMPARE(path.error().code(), code);
    QVERIFY(path.error().errorMessage().contains(tree.at(name)));
}

void TestTolqUtils::nothingIsOverwritten()
{
    const SampleTree tree;
    tree.add(u"out/s.mgf"_s, "mine");
    makeZip(tree.at(u"a.tolq"_s), {metadata("s.mgf"), {u"s.mgf"_s, "theirs"}});
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"out"_s));
    QCOMPARE(path.error().code(), ErrorCode::CannotOpenFile);
    QCOMPARE(bytesOf(tree.at(u"out/s.mgf"_s)), "mine"_ba);
}

void TestTolqUtils::aTargetThatIsNoFolderIsTold()
{
    const SampleTree tree;
    tree.add(u"file"_s);
    makeZip(tree.at(u"a.tolq"_s), {metadata("s.mgf"), {u"s.mgf"_s, "x"}});
    const Result<QString> path = TolqUtils::extractSamplePath(tree.at(u"a.tolq"_s), tree.at(u"file"_s));
    QCOMPARE(path.error().code(), ErrorCode::CannotOpenFile);
}

ORV_REGISTER_TEST(TestTolqUtils)

#include "TestTolqUtils.moc"
