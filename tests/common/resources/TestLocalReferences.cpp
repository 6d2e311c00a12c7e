#include "LogCapture.h"
#include "OrvTest.h"
#include "References.h"

#include <orv/resources/LocalResourceReference.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestLocalReferences : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void pathsAreKeptAsTheyAre_data();
    void pathsAreKeptAsTheyAre();
    void fileUrlsBecomePaths_data();
    void fileUrlsBecomePaths();
    void thePathOfAFileUrlIsReadBackAsThatPath();
    void theLastNameIsFoundInPathsOfBothSystems_data();
    void theLastNameIsFoundInPathsOfBothSystems();
    void pathsOfOneFileAreAlike_data();
    void pathsOfOneFileAreAlike();
    void pathsOfTwoFilesDiffer_data();
    void pathsOfTwoFilesDiffer();
    void localReferencesAreToldFromOthers_data();
    void localReferencesAreToldFromOthers();
    void fullPathsHaveSlashes_data();
    void fullPathsHaveSlashes();
    void relativePathsAreTakenFromTheBase_data();
    void relativePathsAreTakenFromTheBase();
};

void TestLocalReferences::pathsAreKeptAsTheyAre_data()
{
    QTest::addColumn<QString>("text");

    for (const QString &text : {u"/data/a.raw"_s,
                                u"/data/sample.d/"_s,
                                u"C:\\data\\a.raw"_s,
                                u"c:/data/a.raw"_s,
                                u"\\\\store\\runs\\a.raw"_s,
                                u"//store/runs/a.raw"_s,
                                u"\\\\?\\C:\\long\\a.raw"_s,
                                u"\\\\?\\UNC\\store\\runs\\a.raw"_s,
                                u"a.raw"_s,
                                u"../data/a.raw"_s,
                                u"..\\data\\a.raw"_s,
                                u"a#b?c%20d e.raw"_s,
                                u" a "_s,
                                u"run: 1.raw"_s,
                                u"~"_s,
                                u"."_s,
                                u"/\u00e4\u4e2d\U0001f9ea e\u0301.raw"_s,
                                u"/a\\b.raw"_s,
                                u"/"_s,
                                u"C:"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void TestLocalReferences::pathsAreKeptAsTheyAre()
{
    QFETCH(QString, text);
    const ResourceReferenceSPtr reference = referenceOf(text);
    QVERIFY(reference);
    QVERIFY(reference->isScheme(ResourceReference::Scheme::LocalFile));
    QCOMPARE(reference->text(), text);
}

void TestLocalReferences::fileUrlsBecomePaths_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("path");

    const auto row = [](const QString &url, const QString &path) {
        QTest::newRow(qPrintable(url)) << url << path;
    };
    row(u"file:///data/a.raw"_s, u"/data/a.raw"_s);
    row(u"FILE:///data/a.raw"_s, u"/data/a.raw"_s);
    row(u"file:/data/a.raw"_s, u"/data/a.raw"_s);
    row(u"file://localhost/data/a.raw"_s, u"/data/a.raw"_s);
    row(u"file:///C:/data/a.raw"_s, u"C:/data/a.raw"_s);
    row(u"file://store/runs/a.raw"_s, u"//store/runs/a.raw"_s);
    row(u"file:///a%20b%23c%3Fd%25e%C3%A4.raw"_s, u"/a b#c?d%e\u00e4.raw"_s);
    row(u"file:///a b#c?d.raw"_s, u"/a b#c?d.raw"_s);
    row(u"file:///100%.raw"_s, u"/100%.raw"_s);
    row(u"file:///100%2"_s, u"/100%2"_s);
    row(u"file:///%zz"_s, u"/%zz"_s);
    row(u"file:///\u4e2d.raw"_s, u"/\u4e2d.raw"_s);
    row(u"file:a.raw"_s, u"a.raw"_s);
    row(u"file:"_s, QString());
    row(u"file:unifi:/h/n"_s, u"./unifi:/h/n"_s);
    row(u"file:file:///a"_s, u"./file:///a"_s);
    row(u"file:http%3A//h/n"_s, u"./http://h/n"_s);
}

void TestLocalReferences::fileUrlsBecomePaths()
{
    QFETCH(QString, url);
    const ResourceReferenceSPtr reference = referenceOf(url);
    QVERIFY(reference);
    QVERIFY(reference->isScheme(ResourceReference::Scheme::LocalFile));
    QTEST(reference->text(), "path");
}

void TestLocalReferences::thePathOfAFileUrlIsReadBackAsThatPath()
{
    for (const QString &url :
         {u"file:unifi:/h/n"_s, u"file:file:a"_s, u"file:///a%2520b"_s, u"file:TALVANE:x"_s}) {
        const ResourceReferenceSPtr reference = referenceOf(url);
        QVERIFY2(reference, qPrintable(url));
        const ResourceReferenceSPtr again = referenceOf(reference->text());
        QVERIFY(again);
        QCOMPARE(again->text(), reference->text());
        QVERIFY(again->isScheme(ResourceReference::Scheme::LocalFile));
    }
}

void TestLocalReferences::theLastNameIsFoundInPathsOfBothSystems_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");

    const auto row = [](const QString &text, const QString &name) {
        QTest::newRow(qPrintable(text)) << text << name;
    };
    row(u"/data/a.raw"_s, u"a.raw"_s);
    row(u"/data/a.d/"_s, u"a.d"_s);
    row(u"/data/a.d//"_s, u"a.d"_s);
    row(u"/data/a\\b.raw"_s, u"a\\b.raw"_s);
    row(u"C:\\data\\a.raw"_s, u"a.raw"_s);
    row(u"C:\\data\\a.d\\"_s, u"a.d"_s);
    row(u"C:/data\\a.raw"_s, u"a.raw"_s);
    row(u"..\\data\\a.raw"_s, u"a.raw"_s);
    row(u"\\\\store\\runs\\a.raw"_s, u"a.raw"_s);
    row(u"//store/runs\\a.raw"_s, u"a.raw"_s);
    row(u"\\\\?\\C:\\a.raw"_s, u"a.raw"_s);
    row(u"a b#1?%20.raw"_s, u"a b#1?%20.raw"_s);
    row(u"\u4e2d\U0001f9ea.raw"_s, u"\u4e2d\U0001f9ea.raw"_s);
    row(u"/"_s, QString());
    row(QString(), QString());
}

void TestLocalReferences::theLastNameIsFoundInPathsOfBothSystems()
{
    QFETCH(QString, text);
    QTEST(ResourceReferenceUtils::localName(referenceOf(text)), "name");
}

void TestLocalReferences::pathsOfOneFileAreAlike_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");

    QTest::newRow("same text") << u"/data/a.raw"_s << u"/data/a.raw"_s;
    QTest::newRow("URL and path") << u"file:///data/a%20b.raw"_s << u"/data/a b.raw"_s;
    QTest::newRow("trailing separator") << u"/data/a.d/"_s << u"/data/a.d"_s;
    QTest::newRow("dots") << u"/data/./x/../a.raw"_s << u"/data/a.raw"_s;
    QTest::newRow("double separator") << u"/data//a.raw"_s << u"/data/a.raw"_s;
    QTest::newRow("relative dots") << u"./a.raw"_s << u"a.raw"_s;
    QTest::newRow("relative separators") << u"..\\data\\a.raw"_s << u"../data/a.raw"_s;
    QTest::newRow("Windows separators") << u"C:\\data\\a.raw"_s << u"C:/data/a.raw"_s;
    QTest::newRow("Windows case") << u"c:\\Data\\A.raw"_s << u"C:\\data\\a.RAW"_s;
    QTest::newRow("Windows trailing separator") << u"C:\\data\\a.d\\"_s << u"C:\\data\\a.d"_s;
    QTest::newRow("long path") << u"\\\\?\\C:\\data\\a.raw"_s << u"C:\\data\\a.raw"_s;
    QTest::newRow("share") << u"\\\\Store\\runs\\a.raw"_s << u"//store/runs/a.raw"_s;
    QTest::newRow("share of a URL") << u"file://store/runs/a.raw"_s << u"\\\\store\\runs\\a.raw"_s;
    QTest::newRow("long path to a share")
        << u"\\\\?\\UNC\\store\\runs\\a.raw"_s << u"\\\\store\\runs\\a.raw"_s;
    QTest::newRow("server path") << u"talvane:/a/../b/c"_s << u"TALVANE:/b/c/"_s;
    QTest::newRow("source path") << u"eds:/s/b//c"_s << u"eds:/s/b/c"_s;
    QTest::newRow("UNIFI server in another case") << u"unifi:/HOST/{1}/f/n"_s << u"unifi:/host/{1}/f/n"_s;
    QTest::newRow("managed codes") << u"managed:/1/a%25"_s << u"managed:/1/a%"_s;
}

void TestLocalReferences::pathsOfOneFileAreAlike()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QCOMPARE(referenceOf(a)->key(), referenceOf(b)->key());
    QVERIFY(ResourceReferenceUtils::compare(referenceOf(a), referenceOf(b)));
    QVERIFY(ResourceReferenceUtils::compare(referenceOf(b), referenceOf(a)));
}

void TestLocalReferences::pathsOfTwoFilesDiffer_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");

    QTest::newRow("name") << u"/data/a.raw"_s << u"/data/b.raw"_s;
    QTest::newRow("case") << u"/data/a.raw"_s << u"/data/A.raw"_s;
    QTest::newRow("case of a relative path") << u"a.raw"_s << u"A.raw"_s;
    QTest::newRow("backslash in a name") << u"/data/a\\b"_s << u"/data/a/b"_s;
    QTest::newRow("absolute and relative") << u"/a.raw"_s << u"a.raw"_s;
    QTest::newRow("share and path") << u"//store/a.raw"_s << u"/store/a.raw"_s;
    QTest::newRow("forms of one letter") << u"/\u00e9.raw"_s << u"/e\u0301.raw"_s;
    QTest::newRow("blank at the end") << u"/a"_s << u"/a "_s;
    QTest::newRow("UNIFI names in another case") << u"unifi:/h/f/n"_s << u"unifi:/h/f/N"_s;
    QTest::newRow("UNIFI identifier") << u"unifi:/h/{1}/f/n"_s << u"unifi:/h/{2}/f/n"_s;
    QTest::newRow("UNIFI folder") << u"unifi:/h/{1}/f/n"_s << u"unifi:/h/{1}/g/n"_s;
    QTest::newRow("schemes") << u"talvane:/s/a"_s << u"eds:/s/a"_s;
    QTest::newRow("path that looks like another scheme") << u"./unifi:/h/f/n"_s << u"unifi:/h/f/n"_s;
    QTest::newRow("empty") << QString() << u"."_s;
}

void TestLocalReferences::pathsOfTwoFilesDiffer()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QVERIFY(referenceOf(a) && referenceOf(b));
    QVERIFY(!ResourceReferenceUtils::compare(referenceOf(a), referenceOf(b)));
}

void TestLocalReferences::localReferencesAreToldFromOthers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isLocal");

    const auto row = [](const QString &text, bool isLocal) {
        QTest::newRow(qPrintable(text)) << text << isLocal;
    };
    row(u"/data/a.raw"_s, true);
    row(u"C:\\data\\a.raw"_s, true);
    row(u"\\\\store\\a.raw"_s, true);
    row(u"a.raw"_s, true);
    row(u"file:///a.raw"_s, true);
    row(u"talvane:/a.raw"_s, false);
    row(u"unifi:/h/n"_s, false);
    row(u"https://example.org/a.raw"_s, false);
    row(QString(), false);
}

void TestLocalReferences::localReferencesAreToldFromOthers()
{
    const LogCapture log;
    QFETCH(QString, text);
    QTEST(LocalResourceReference::isLocalReference(text), "isLocal");
}

void TestLocalReferences::fullPathsHaveSlashes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("path");

    const auto row = [](const QString &text, const QString &path) {
        QTest::newRow(qPrintable(text)) << text << path;
    };
    row(u"C:\\data\\a.raw"_s, u"C:/data/a.raw"_s);
    row(u"\\\\?\\C:\\data\\a.raw"_s, u"C:/data/a.raw"_s);
    row(u"\\\\store\\runs\\a.raw"_s, u"//store/runs/a.raw"_s);
    row(u"/data/a\\b"_s, u"/data/a\\b"_s);
    row(u"../a b#.raw"_s, u"../a b#.raw"_s);
    row(u"talvane:/a"_s, QString());
}

void TestLocalReferences::fullPathsHaveSlashes()
{
    QFETCH(QString, text);
    QTEST(ResourceHandlerUtils::fullPath(referenceOf(text)), "path");
    QVERIFY(ResourceHandlerUtils::fullPath({}).isEmpty());
}

void TestLocalReferences::relativePathsAreTakenFromTheBase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QUrl>("base");
    QTest::addColumn<QString>("resolved");

    const auto row = [](const char *label, const QString &text, const QUrl &base, const QString &resolved) {
        QTest::newRow(label) << text << base << resolved;
    };
    const QUrl folder = QUrl::fromLocalFile(u"/lab/my flows/"_s);
    row("name", u"a.raw"_s, folder, u"/lab/my flows/a.raw"_s);
    row("above", u"../data/a.raw"_s, folder, u"/lab/data/a.raw"_s);
    row("marks in a name", u"a#b?c%20d e.raw"_s, folder, u"/lab/my flows/a#b?c%20d e.raw"_s);
    row("backslashes", u"..\\data\\a b.raw"_s, folder, u"/lab/data/a b.raw"_s);
    row("the base is the document", u"a.raw"_s, QUrl::fromLocalFile(u"/lab/flow.wflw"_s), u"/lab/a.raw"_s);
    row("marks in the base", u"a.raw"_s, QUrl::fromLocalFile(u"/lab/#1?%20/"_s), u"/lab/#1?%20/a.raw"_s);
    row("absolute", u"/data/./a.raw"_s, folder, u"/data/./a.raw"_s);
    row("drive", u"C:\\a.raw"_s, folder, u"C:\\a.raw"_s);
    row("share", u"\\\\store\\a.raw"_s, folder, u"\\\\store\\a.raw"_s);
    row("server", u"talvane:/a"_s, folder, u"talvane:/a"_s);
    row("no base", u"a.raw"_s, QUrl(), u"a.raw"_s);
    row("base on a server", u"a.raw"_s, QUrl(u"https://example.org/x/"_s), u"a.raw"_s);
    row("empty", QString(), folder, QString());
}

void TestLocalReferences::relativePathsAreTakenFromTheBase()
{
    QFETCH(QString, text);
    QFETCH(QUrl, base);
    QTEST(ResourceReferenceUtils::toString(ResourceReferenceUtils::resolved(referenceOf(text), base)),
          "resolved");
    QVERIFY(!ResourceReferenceUtils::resolved({}, base));
}

ORV_REGISTER_TEST(TestLocalReferences)

#include "TestLocalReferences.moc"
