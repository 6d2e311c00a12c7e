#include "LogCapture.h"
#include "OrvTest.h"
#include "ServerFixture.h"
#include "TestFiles.h"

#include <orv/remote/RemoteHandlers.h>
#include <orv/remote/UnifiResourceMetadata.h>
#include <orv/resources/ExternalDataSources.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceManager.h>

#include <QDateTime>
#include <QDirIterator>

using namespace orv;
using namespace Qt::StringLiterals;

using Manner = HttpTestServer::Manner;
using Scheme = ResourceReference::Scheme;

namespace {

const QByteArray kMetadata = "/api/1/files/metadata";
const QByteArray kContent = "/api/1/files/content";

ResourceReferenceSPtr read(const QString &text)
{
    return ResourceReference::fromString(text).valueOr({});
}

HttpTestServer::Answer bytes(const QByteArray &body)
{
    return {.contentType = "application/octet-stream", .body = body};
}

Result<QString> grabbed(const QString &text)
{
    Result<ResourceHandlerSPtr> handler = ResourceManager::retrieve(read(text));
    if (handler.hasError())
        return handler.error();
    return (*handler)->grab();
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next());
    return files;
}

void age(const QString &path, int days)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(
        file.setFileTime(QDateTime::currentDateTimeUtc().addDays(-days), QFileDevice::FileModificationTime));
}

} // namespace

class TestRemoteHandlers : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void existenceIsAsked_data();
    void existenceIsAsked();
    void metadataAreTheServersAnswer();
    void unifiMetadataTellServerAndItem();
    void badUnifiItemsAreRefused();
    void oldUnifiReferencesHaveNoIdentifier();
    void aFileIsFetchedOnce();
    void aNewVersionIsFetchedAgain();
    void withoutAVersionEachHandlerFetches();
    void managedResourcesAndItemsAreFetched();
    void fetchedFilesStayInTheCache_data();
    void fetchedFilesStayInTheCache();
    void filesThatDoNotComeWholeAreNotKept_data();
    void filesThatDoNotComeWholeAreNotKept();
    void aMissingFileIsNamed();
    void theCacheHasABound();
    void unusedFilesMakeRoom();
    void othersFilesInTheCacheFolderStay();
    void aRelativeCacheFolderIsRefused();
    void theCacheIsItsOwnersAlone();
    void externalDataSourcesAreReadWhereTheyAreMounted();
    void unconnectedServersSayWhatToSet();
};

void TestRemoteHandlers::initTestCase()
{
    RemoteHandlers::install();
}

void TestRemoteHandlers::cleanupTestCase()
{
    for (int scheme = 1; scheme <= 5; ++scheme)
        ResourceManager::setHandlerFactory(Scheme(scheme), {});
}

void TestRemoteHandlers::existenceIsAsked_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("query");

    QTest::newRow("file") << u"talvane:/projects/17/qc.tolq"_s << kMetadata
                          << QByteArray("path=/projects/17&name=qc.tolq");
    QTest::newRow("managed") << u"managed:/47%2F11/study"_s << QByteArray("/api/1/resources/metadata")
                             << QByteArray("id=47/11");
    QTest::newRow("item") << u"unifi:/lab/{0b61}/Runs/inj 1"_s << QByteArray("/lab/api/1/items")
                          << QByteArray("id=0b61");
}

void TestRemoteHandlers::existenceIsAsked()
{
    QFETCH(QString, reference);
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, query);
    const LogCapture log;
    ServerFixture fixture;
    const Result<bool> before = ResourceHandlerUtils::exists(read(reference));
    ORV_VERIFY_OK(before);
    QVERIFY(!*before);
    QCOMPARE(fixture.server.requests().value(0).path, path);
    QCOMPARE(fixture.server.requests().value(0).query.toString(QUrl::FullyDecoded).toUtf8(), query);

    fixture.server.setAnswer(path, {.body = "{}"});
    const Result<bool> after = ResourceHandlerUtils::exists(read(reference));
    ORV_VERIFY_OK(after);
    QVERIFY(*after);

    fixture.server.setAnswer(path, {.status = 410});
    QCOMPARE(ResourceHandlerUtils::exists(read(reference)).valueOr(true), false);

    fixture.server.setAnswer(path, {.status = 500});
    QVERIFY(ResourceHandlerUtils::exists(read(reference)).hasError());
    QVERIFY(!ResourceHandlerUtils::validateReference(read(reference)));
}

void TestRemoteHandlers::metadataAreTheServersAnswer()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kMetadata, {.body = R"({"name": "qc.tolq", "size": 7, "owner": "me"})"});
    const Result<QJsonObject> metadata = ResourceManager::retrieveMetadata(read(u"talvane:/a/qc.tolq"_s));
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->value(u"owner"_s).toString(), u"me"_s);
}

void TestRemoteHandlers::unifiMetadataTellServerAndItem()
{
    ServerFixture fixture;
    fixture.server.setAnswer("/lab/api/1/items",
                             {.body = R"({"id": "0b61", "name": "inj 1", "path": "Runs", "method": 3})"});
    const Result<QJsonObject> json =
        ResourceManager::retrieveMetadata(read(u"unifi:/lab/{0b61}/Runs/inj 1"_s));
    ORV_VERIFY_OK(json);
    QCOMPARE(json->value(u"item"_s).toObject().value(u"method"_s).toInt(), 3);
    const Result<UnifiResourceMetadata> metadata = UnifiResourceMetadata::fromJson(*json);
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->server, u"lab"_s);
    QCOMPARE(metadata->item.name, u"inj 1"_s);
}

void TestRemoteHandlers::badUnifiItemsAreRefused()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer("/lab/api/1/items", {.body = R"({"id": "0b61"})"});
    const Result<QJsonObject> json =
        ResourceManager::retrieveMetadata(read(u"unifi:/lab/{0b61}/Runs/inj 1"_s));
    QVERIFY(json.hasError());
    QVERIFY(json.error().errorMessage().contains(u"can't be read"_s));
    QVERIFY(json.error().details().join(u' ').contains(u"\"name\""_s));
}

void TestRemoteHandlers::oldUnifiReferencesHaveNoIdentifier()
{
    const LogCapture log;
    ServerFixture fixture;
    const Result<QJsonObject> json = ResourceManager::retrieveMetadata(read(u"unifi:/lab/Runs/inj 1"_s));
    QVERIFY(json.hasError());
    QVERIFY(json.error().errorMessage().contains(u"without an identifier"_s));
    QVERIFY(fixture.server.requests().isEmpty());
}

void TestRemoteHandlers::aFileIsFetchedOnce()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kMetadata, {.body = R"({"size": 7, "version": "3"})"});
    fixture.server.setAnswer(kContent, bytes("spectra"));
    const ResourceReferenceSPtr reference = read(u"talvane:/projects/17/qc.raw"_s);
    const Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(reference);
    ORV_VERIFY_OK(handler);
    QVERIFY(!(*handler)->isAvailableLocally());
    const Result<QString> path = (*handler)->grab();
    ORV_VERIFY_OK(path);
    QVERIFY((*handler)->isAvailableLocally());
    QVERIFY(path->startsWith(fixture.cache.path()));
    QCOMPARE(QFileInfo(*path).fileName(), u"qc.raw"_s);
    QCOMPARE(TestFiles::bytesOf(*path), "spectra");
    QCOMPARE((*handler)->grab().valueOr({}), *path);
    QCOMPARE(fixture.server.requests().size(), 2);
    QCOMPARE(fixture.server.requests()[1].headers.value("authorization"), "Bearer talvane-secret");

    QCOMPARE(grabbed(reference->text()).valueOr({}), *path);
    QCOMPARE(fixture.server.requests().size(), 3); // the metadata alone
}

void TestRemoteHandlers::aNewVersionIsFetchedAgain()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kMetadata, {.body = R"({"modified": "2024-01-31T10:00:00Z"})"});
    fixture.server.setAnswer(kContent, bytes("old"));
    const QString old = grabbed(u"talvane:/a/qc.raw"_s).valueOr({});
    fixture.server.setAnswer(kMetadata, {.body = R"({"modified": "2024-02-01T10:00:00Z"})"});
    fixture.server.setAnswer(kContent, bytes("new"));
    const QString now = grabbed(u"talvane:/a/qc.raw"_s).valueOr({});
    QCOMPARE(TestFiles::bytesOf(old), "old");
    QCOMPARE(TestFiles::bytesOf(now), "new");
}

void TestRemoteHandlers::withoutAVersionEachHandlerFetches()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kMetadata, {.body = "{}"});
    fixture.server.setAnswer(kContent, bytes("old"));
    QCOMPARE(TestFiles::bytesOf(grabbed(u"talvane:/a/qc.raw"_s).valueOr({})), "old");
    fixture.server.setAnswer(kContent, bytes("newer"));
    QCOMPARE(TestFiles::bytesOf(grabbed(u"talvane:/a/qc.raw"_s).valueOr({})), "newer");
}

void TestRemoteHandlers::managedResourcesAndItemsAreFetched()
{
    ServerFixture fixture;
    fixture.server.setAnswer("/api/1/resources/metadata", {.body = "{}"});
    fixture.server.setAnswer("/api/1/resources/content", bytes("managed"));
    fixture.server.setAnswer("/lab/api/1/items", {.body = R"({"name": "inj 1"})"});
    fixture.server.setAnswer("/lab/api/1/items/content", bytes("item"));
    QCOMPARE(TestFiles::bytesOf(grabbed(u"managed:/4711"_s).valueOr({})), "managed");
    QCOMPARE(TestFiles::bytesOf(grabbed(u"unifi:/lab/{0b61}/Runs/inj 1"_s).valueOr({})), "item");
}

void TestRemoteHandlers::fetchedFilesStayInTheCache_data()
{
    QTest::addColumn<QString>("reference");

    QTest::newRow("dots") << u"managed:/1/.."_s;
    QTest::newRow("dots and slashes") << u"managed:/1/..%2F..%2F..%2Fescaped"_s;
    QTest::newRow("absolute") << u"managed:/1/%2Fescaped"_s;
    QTest::newRow("backslashes") << u"managed:/1/..\\..\\escaped"_s;
    QTest::newRow("drive") << u"managed:/1/C:escaped"_s;
    QTest::newRow("folder up") << u"talvane:/../../escaped"_s;
    QTest::newRow("long name") << u"talvane:/a/%1.tolq"_s.arg(QString(400, u'\u00e4'));
}

void TestRemoteHandlers::fetchedFilesStayInTheCache()
{
    QFETCH(QString, reference);
    ServerFixture fixture;
    for (const char *path : {"/api/1/files/", "/api/1/resources/"}) {
        fixture.server.setAnswer(QByteArray(path) + "metadata", {.body = "{}"});
        fixture.server.setAnswer(QByteArray(path) + "content", bytes("x"));
    }
    const Result<QString> path = grabbed(reference);
    ORV_VERIFY_OK(path);
    const QString folder = fixture.cache.filePath(u"files"_s);
    QVERIFY(QFileInfo(*path).canonicalFilePath().startsWith(QFileInfo(folder).canonicalFilePath() + u'/'));
    QCOMPARE(filesBelow(fixture.cache.path()).size(), 1);
    QCOMPARE(path->endsWith(u".tolq"_s), reference.endsWith(u".tolq"_s));
}

void TestRemoteHandlers::filesThatDoNotComeWholeAreNotKept_data()
{
    QTest::addColumn<QByteArray>("metadata");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("manner");
    QTest::addColumn<QString>("message");

    const QByteArray type = "application/octet-stream";
    const int proper = int(Manner::Proper);
    QTest::newRow("closed midway") << QByteArray("{}") << 200 << type << int(Manner::ClosesMidway)
                                   << u"cut short"_s;
    QTest::newRow("stops midway") << QByteArray("{}") << 200 << type << int(Manner::StopsMidway)
                                  << u"in time"_s;
    QTest::newRow("smaller than told")
        << QByteArray(R"({"size": 8})") << 200 << type << proper << u"cut short"_s;
    QTest::newRow("larger than told")
        << QByteArray(R"({"size": 6})") << 200 << type << proper << u"too large"_s;
    QTest::newRow("size is no count")
        << QByteArray(R"({"size": -1})") << 200 << type << proper << u"\"size\""_s;
    QTest::newRow("size is no number")
        << QByteArray(R"({"size": "7"})") << 200 << type << proper << u"\"size\""_s;
    QTest::newRow("page") << QByteArray("{}") << 200 << QByteArray("text/html") << proper
                          << u"something else"_s;
    QTest::newRow("refused") << QByteArray("{}") << 403 << type << proper << u"refuses"_s;
    QTest::newRow("gone meanwhile") << QByteArray("{}") << 404 << type << proper << u"no such thing"_s;
}

void TestRemoteHandlers::filesThatDoNotComeWholeAreNotKept()
{
    QFETCH(QByteArray, metadata);
    QFETCH(int, status);
    QFETCH(QByteArray, type);
    QFETCH(int, manner);
    QFETCH(QString, message);
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kMetadata, {.body = metadata});
    fixture.server.setAnswer(
        kContent, {.status = status, .contentType = type, .body = "spectra", .manner = Manner(manner)});
    const Result<QString> path = grabbed(u"talvane:/a/qc.raw"_s);
    QVERIFY(path.hasError());
    QVERIFY2(path.error().errorMessage().contains(message), qPrintable(path.error().errorMessage()));
    QCOMPARE(filesBelow(fixture.cache.path()), QStringList());
}

void TestRemoteHandlers::aMissingFileIsNamed()
{
    const LogCapture log;
    ServerFixture fixture;
    const Result<QString> path = grabbed(u"talvane:/a/qc.raw"_s);
    QCOMPARE(path.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(path.error().errorMessage().contains(u"talvane:/a/qc.raw"_s));
    QVERIFY(ResourceManager::retrieveMetadata(read(u"talvane:/a/qc.raw"_s)).hasError());
}

void TestRemoteHandlers::theCacheHasABound()
{
    const LogCapture log;
    ServerFixture fixture;
    const as::ScopedOverride size(u"Servers/CacheSizeMiB"_s, 1);
    fixture.server.setAnswer(kMetadata, {.body = R"({"size": 2000000})"});
    const Result<QString> told = grabbed(u"talvane:/a/qc.raw"_s);
    QVERIFY(told.error().details().join(u' ').contains(u"Servers/CacheSizeMiB"_s));
    QCOMPARE(fixture.server.requests().size(), 1); // the content isn't even asked for

    fixture.server.setAnswer(kMetadata, {.body = "{}"});
    fixture.server.setAnswer(kContent, {.contentType = "application/octet-stream",
                                        .body = QByteArray(65536, 'x'),
                                        .manner = Manner::Endless});
    const Result<QString> untold = grabbed(u"talvane:/a/qc.raw"_s);
    QVERIFY(untold.error().errorMessage().contains(u"too large"_s));
    QCOMPARE(filesBelow(fixture.cache.path()), QStringList());
}

void TestRemoteHandlers::unusedFilesMakeRoom()
{
    const LogCapture log;
    ServerFixture fixture;
    const as::ScopedOverride size(u"Servers/CacheSizeMiB"_s, 1);
    fixture.server.setAnswer(kMetadata, {.body = R"({"size": 400000, "version": "1"})"});
    fixture.server.setAnswer(kContent, bytes(QByteArray(400000, 'x')));
    const QString oldest = grabbed(u"talvane:/a/1.raw"_s).valueOr({});
    const QString younger = grabbed(u"talvane:/a/2.raw"_s).valueOr({});
    QVERIFY(grabbed(u"talvane:/a/3.raw"_s).hasError()); // both may be in use
    age(oldest, 3);
    age(younger, 2);
    ORV_VERIFY_OK(grabbed(u"talvane:/a/3.raw"_s));
    QVERIFY(!QFile::exists(oldest));
    QVERIFY(QFile::exists(younger));
    ORV_VERIFY_OK(grabbed(u"talvane:/a/2.raw"_s)); // used again
    QVERIFY(grabbed(u"talvane:/a/4.raw"_s).hasError());
    QVERIFY(QFile::exists(younger));
}

void TestRemoteHandlers::othersFilesInTheCacheFolderStay()
{
    ServerFixture fixture;
    const as::ScopedOverride size(u"Servers/CacheSizeMiB"_s, 1);
    const QString folder = fixture.cache.filePath(u"files/my data"_s);
    QVERIFY(QDir().mkpath(folder));
    TestFiles::makeFile(folder + u"/a.raw"_s, QByteArray(2000000, 'x'));
    age(folder + u"/a.raw"_s, 100);
    fixture.server.setAnswer(kMetadata, {.body = "{}"});
    fixture.server.setAnswer(kContent, bytes(QByteArray(900000, 'x')));
    ORV_VERIFY_OK(grabbed(u"talvane:/a/1.raw"_s));
    QVERIFY(QFile::exists(folder + u"/a.raw"_s));
}

void TestRemoteHandlers::aRelativeCacheFolderIsRefused()
{
    const LogCapture log;
    ServerFixture fixture;
    const as::ScopedOverride folder(u"Servers/CacheFolder"_s, u"files"_s);
    fixture.server.setAnswer(kMetadata, {.body = "{}"});
    const Result<QString> path = grabbed(u"talvane:/a/1.raw"_s);
    QVERIFY(path.error().details().join(u' ').contains(u"Servers/CacheFolder"_s));
}

void TestRemoteHandlers::theCacheIsItsOwnersAlone()
{
#ifdef Q_OS_UNIX
    ServerFixture fixture;
    fixture.server.setAnswer(kMetadata, {.body = "{}"});
    fixture.server.setAnswer(kContent, bytes("x"));
    ORV_VERIFY_OK(grabbed(u"talvane:/a/1.raw"_s));
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!(QFile::permissions(fixture.cache.filePath(u"files"_s)) & others));
#endif
}

void TestRemoteHandlers::externalDataSourcesAreReadWhereTheyAreMounted()
{
    const LogCapture log;
    const QTemporaryDir mount;
    QVERIFY(QDir(mount.path()).mkdir(u"2024"_s));
    TestFiles::makeFile(mount.filePath(u"2024/a.raw"_s), "spectra");
    const as::ScopedOverride setting(ExternalDataSources::settingsKey(u"archive"_s), mount.path());
    QCOMPARE(grabbed(u"eds:/archive/2024/a.raw"_s).valueOr({}), mount.filePath(u"2024/a.raw"_s));
    QVERIFY(ResourceManager::getHandler(read(u"eds:/archive/2024/a.raw"_s)).value()->isAvailableLocally());
    QVERIFY(ResourceHandlerUtils::checkExists(read(u"eds:/archive/2024/a.raw"_s)));
    QVERIFY(!ResourceHandlerUtils::checkExists(read(u"eds:/archive/2024/b.raw"_s)));
    const Result<QJsonObject> metadata =
        ResourceManager::retrieveMetadata(read(u"eds:/archive/2024/a.raw"_s));
    ORV_VERIFY_OK(metadata);
    QCOMPARE(metadata->value(u"size"_s).toInt(), 7);
    QVERIFY(grabbed(u"eds:/other/2024/a.raw"_s).hasError());
    QVERIFY(ResourceManager::retrieveMetadata(read(u"eds:/other/2024/a.raw"_s)).hasError());
    QVERIFY(ResourceHandlerUtils::exists(read(u"eds:/other/2024/a.raw"_s)).hasError());
    QVERIFY(!ResourceManager::getHandler(read(u"eds:/other/2024/a.raw"_s)).value()->isAvailableLocally());
}

void TestRemoteHandlers::unconnectedServersSayWhatToSet()
{
    const LogCapture log;
    const Result<bool> talvane = ResourceHandlerUtils::exists(read(u"talvane:/a/qc.raw"_s));
    QVERIFY(talvane.error().details().join(u' ').contains(u"Talvane/Address"_s));
    const Result<bool> unifi = ResourceHandlerUtils::exists(read(u"unifi:/lab/{1}/Runs/x"_s));
    QVERIFY(unifi.error().details().join(u' ').contains(u"UNIFI/Address"_s));
}

ORV_REGISTER_TEST(TestRemoteHandlers)

#include "TestRemoteHandlers.moc"
