#include "LogCapture.h"
#include "OrvTest.h"
#include "References.h"

#include <orv/core/Settings.h>
#include <orv/resources/ExternalDataSources.h>
#include <orv/resources/UnifiResourceReference.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestServerReferences : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aMountedSourceHasALocalPath_data();
    void aMountedSourceHasALocalPath();
    void theEnvironmentMountsASource();
    void whatHasNoLocalPathIsRefused_data();
    void whatHasNoLocalPathIsRefused();
    void unifiReferencesAreMade_data();
    void unifiReferencesAreMade();
    void unifiReferencesNeedTheirParts_data();
    void unifiReferencesNeedTheirParts();
};

void TestServerReferences::aMountedSourceHasALocalPath_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("path");

    QTest::newRow("file") << u"eds:/archive/2024/a.raw"_s << u"/mnt/archive 1/2024/a.raw"_s;
    QTest::newRow("top") << u"eds:/archive/a.raw"_s << u"/mnt/archive 1/a.raw"_s;
    QTest::newRow("dots in names") << u"EDS:/archive/a..b/..c.raw"_s << u"/mnt/archive 1/a..b/..c.raw"_s;
    QTest::newRow("same folder") << u"eds:/archive/./2024/a.raw"_s << u"/mnt/archive 1/2024/a.raw"_s;
    QTest::newRow("marks") << u"eds:/archive/20%24/#a?.raw"_s << u"/mnt/archive 1/20%24/#a?.raw"_s;
}

void TestServerReferences::aMountedSourceHasALocalPath()
{
    QFETCH(QString, reference);
    QFETCH(QString, path);
    for (const QString &mount : {u"/mnt/archive 1"_s, u"/mnt/archive 1/"_s}) {
        const as::ScopedOverride setting(u"ExternalDataSources/archive"_s, mount);
        const Result<QString> local = ExternalDataSources::localPath(referenceOf(reference));
        ORV_VERIFY_OK(local);
        QCOMPARE(*local, path);
    }
}

void TestServerReferences::theEnvironmentMountsASource()
{
    qputenv("ORV_EXTERNALDATASOURCES_MY_ARCHIVE", "/mnt/x");
    const Result<QString> local = ExternalDataSources::localPath(referenceOf(u"eds:/my-archive/a.raw"_s));
    qunsetenv("ORV_EXTERNALDATASOURCES_MY_ARCHIVE");
    ORV_VERIFY_OK(local);
    QCOMPARE(*local, u"/mnt/x/a.raw"_s);
}

void TestServerReferences::whatHasNoLocalPathIsRefused_data()
{
    QTest::addColumn<ResourceReferenceSPtr>("reference");
    QTest::addColumn<QString>("reason");

    const QString up = u"leads out of the source"_s;
    const QString other = u"does not refer to an external data source"_s;
    QTest::newRow("null") << ResourceReferenceSPtr() << other;
    QTest::newRow("local") << referenceOf(u"/data/a.raw"_s) << other;
    QTest::newRow("server file") << referenceOf(u"talvane:/a/a.raw"_s) << other;
    QTest::newRow("not mounted") << referenceOf(u"eds:/other/a.raw"_s) << u"\"ExternalDataSources/other\""_s;
    QTest::newRow("mounted at a relative path")
        << referenceOf(u"eds:/relative/a.raw"_s) << u"absolute path"_s;
    QTest::newRow("up") << referenceOf(u"eds:/archive/../a.raw"_s) << up;
    QTest::newRow("up and down") << referenceOf(u"eds:/archive/x/../../etc/passwd"_s) << up;
    QTest::newRow("up at the end") << referenceOf(u"eds:/archive/x/.."_s) << up;
    QTest::newRow("up with backslashes") << referenceOf(u"eds:/archive/..\\..\\a.raw"_s) << up;
}

void TestServerReferences::whatHasNoLocalPathIsRefused()
{
    QFETCH(ResourceReferenceSPtr, reference);
    QFETCH(QString, reason);
    const as::ScopedOverride archive(ExternalDataSources::settingsKey(u"archive"_s), u"/mnt/archive"_s);
    const as::ScopedOverride relative(ExternalDataSources::settingsKey(u"relative"_s), u"mnt/archive"_s);
    const Result<QString> local = ExternalDataSources::localPath(reference);
    QVERIFY(local.hasError());
    QCOMPARE(local.error().code(), ErrorCode::InvalidContent);
    QVERIFY(local.error().details().join(u' ').contains(reason));
}

void TestServerReferences::unifiReferencesAreMade_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << u"0b61"_s << u"Company/Runs"_s << u"inj 1"_s
                           << u"unifi:/lab/{0b61}/Company/Runs/inj 1"_s;
    QTest::newRow("braces") << u"{0b61}"_s << u"Runs"_s << u"inj"_s << u"unifi:/lab/{0b61}/Runs/inj"_s;
    QTest::newRow("slashes at the ends")
        << u"0b61"_s << u"/Runs/"_s << u"inj"_s << u"unifi:/lab/{0b61}/Runs/inj"_s;
    QTest::newRow("slash in the name")
        << u"0b61"_s << u"Runs"_s << u"a/b"_s << u"unifi:/lab/{0b61}/Runs/a%2Fb"_s;
    QTest::newRow("no folder") << u"0b61"_s << QString() << u"inj"_s << u"unifi:/lab/{0b61}//inj"_s;
}

void TestServerReferences::unifiReferencesAreMade()
{
    QFETCH(QString, id);
    QFETCH(QString, path);
    QFETCH(QString, name);
    QFETCH(QString, text);
    const Result<ResourceReferenceSPtr> reference = UnifiResourceReference::create(u"lab"_s, id, path, name);
    ORV_VERIFY_OK(reference);
    QCOMPARE((*reference)->text(), text);
    QCOMPARE((*reference)->parts().id, u"0b61"_s);
    QCOMPARE((*reference)->parts().name, name);
    QVERIFY((*reference)->isScheme(ResourceReference::Scheme::UNIFI));
}

void TestServerReferences::unifiReferencesNeedTheirParts_data()
{
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("missing");

    QTest::newRow("server") << QString() << u"0b61"_s << u"inj"_s << u"server"_s;
    QTest::newRow("server with slash") << u"a/b"_s << u"0b61"_s << u"inj"_s << u"server"_s;
    QTest::newRow("id") << u"lab"_s << QString() << u"inj"_s << u"identifier"_s;
    QTest::newRow("empty braces") << u"lab"_s << u"{}"_s << u"inj"_s << u"identifier"_s;
    QTest::newRow("name") << u"lab"_s << u"0b61"_s << QString() << u"name"_s;
}

void TestServerReferences::unifiReferencesNeedTheirParts()
{
    QFETCH(QString, server);
    QFETCH(QString, id);
    QFETCH(QString, name);
    QFETCH(QString, missing);
    const LogCapture log;
    const Result<ResourceReferenceSPtr> reference =
        UnifiResourceReference::create(server, id, u"Runs"_s, name);
    QVERIFY(reference.hasError());
    QCOMPARE(reference.error().code(), ErrorCode::InvalidContent);
    QVERIFY(reference.error().errorMessage().contains(missing));
}

ORV_REGISTER_TEST(TestServerReferences)

#include "TestServerReferences.moc"
