#include "LogCapture.h"
#include "OrvTest.h"
#include "References.h"

#include <orv/resources/ResourceReference.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QRandomGenerator>

using namespace orv;
using namespace Qt::StringLiterals;

using Scheme = ResourceReference::Scheme;
using Parts = ResourceReference::Parts;

Q_DECLARE_METATYPE(orv::ResourceReference::Parts)

class TestResourceReference : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void schemesHaveTheirNumbers();
    void theTextTellsTheScheme_data();
    void theTextTellsTheScheme();
    void theTextTellsTheParts_data();
    void theTextTellsTheParts();
    void textsOfServersAreKeptAsTheyAre_data();
    void textsOfServersAreKeptAsTheyAre();
    void badTextsAreRefused_data();
    void badTextsAreRefused();
    void anEmptyTextIsAnEmptyReference();
    void partsMakeTheText_data();
    void partsMakeTheText();
    void missingPartsAreNamed_data();
    void missingPartsAreNamed();
    void partsThatATextCannotHoldAreRefused();
    void partsSurviveTheirText();
    void peopleReadTheFormWithoutIdentifiers_data();
    void peopleReadTheFormWithoutIdentifiers();
    void aVariantCarriesAReference();
    void twoObjectsOfOneReferenceAreDifferentPointers();
};

void TestResourceReference::schemesHaveTheirNumbers()
{
    QCOMPARE(int(Scheme::ServerFile), 1);
    QCOMPARE(int(Scheme::ExternalDataSource), 2);
    QCOMPARE(int(Scheme::LocalFile), 3);
    QCOMPARE(int(Scheme::ManagedResource), 4);
    QCOMPARE(int(Scheme::UNIFI), 5);
}

void TestResourceReference::theTextTellsTheScheme_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Scheme>("scheme");

    QTest::newRow("server file") << u"talvane:/projects/17/qc.tolq"_s << Scheme::ServerFile;
    QTest::newRow("server file, upper case") << u"TALVANE:/projects/17/qc.tolq"_s << Scheme::ServerFile;
    QTest::newRow("external data source") << u"eds:/archive/2024/a.raw"_s << Scheme::ExternalDataSource;
    QTest::newRow("managed") << u"managed:/4711"_s << Scheme::ManagedResource;
    QTest::newRow("UNIFI") << u"unifi:/host:50034/{1}/folder/name"_s << Scheme::UNIFI;
    QTest::newRow("UNIFI of old documents") << u"unifi:/host:50034/folder/name"_s << Scheme::UNIFI;
    QTest::newRow("path") << u"/data/a.raw"_s << Scheme::LocalFile;
    QTest::newRow("path with a drive") << u"C:\\data\\a.raw"_s << Scheme::LocalFile;
    QTest::newRow("drive before two slashes") << u"C://data/a.raw"_s << Scheme::LocalFile;
    QTest::newRow("file URL") << u"file:///data/a.raw"_s << Scheme::LocalFile;
    QTest::newRow("name") << u"a.raw"_s << Scheme::LocalFile;
    QTest::newRow("no word before the slashes") << u"a b://c"_s << Scheme::LocalFile;
    QTest::newRow("nothing before the slashes") << u"://c"_s << Scheme::LocalFile;
    QTest::newRow("digit before the slashes") << u"1a://c"_s << Scheme::LocalFile;
    QTest::newRow("slashes further on") << u"a/b://c"_s << Scheme::LocalFile;
    QTest::newRow("name with a colon") << u"run 1: blank.raw"_s << Scheme::LocalFile;
    QTest::newRow("a word that only begins like a scheme") << u"talvane2:/a"_s << Scheme::LocalFile;
    QTest::newRow("a scheme in a folder") << u"./talvane:/a"_s << Scheme::LocalFile;
}

void TestResourceReference::theTextTellsTheScheme()
{
    QFETCH(QString, text);
    QFETCH(Scheme, scheme);
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    ORV_VERIFY_OK(reference);
    QVERIFY(ResourceReference::isReference(text));
    QCOMPARE((*reference)->scheme(), scheme);
    for (Scheme other : {Scheme::ServerFile, Scheme::ExternalDataSource, Scheme::LocalFile,
                         Scheme::ManagedResource, Scheme::UNIFI})
        QCOMPARE((*reference)->isScheme(other), other == scheme);
}

void TestResourceReference::theTextTellsTheParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Parts>("parts");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *label, const QString &text, const Parts &parts,
                        const QString &name = {}) {
        QTest::newRow(label) << text << parts << (name.isEmpty() ? parts.name : name);
    };
    row("server file", u"talvane:/projects/17/qc.tolq"_s, {{}, {}, u"/projects/17"_s, u"qc.tolq"_s});
    row("server file at the top", u"talvane:/qc.tolq"_s, {{}, {}, u"/"_s, u"qc.tolq"_s});
    row("server folder", u"talvane:/projects/qc.d/"_s, {{}, {}, u"/projects"_s, u"qc.d"_s});
    row("marks in a name", u"talvane:/a b/100% #1?.tolq"_s, {{}, {}, u"/a b"_s, u"100% #1?.tolq"_s});
    row("source", u"eds:/archive/2024/a.raw"_s, {u"archive"_s, {}, u"/2024"_s, u"a.raw"_s});
    row("managed with a name", u"managed:/47/run%2F1 100%25"_s, {{}, u"47"_s, {}, u"run/1 100%"_s});
    row("managed without", u"managed:/4711"_s, {{}, u"4711"_s, {}, {}}, u"4711"_s);
    row("UNIFI", u"unifi:/host:50034/{0b-1}/Company/Runs/inj%2F1"_s,
        {u"host:50034"_s, u"0b-1"_s, u"Company/Runs"_s, u"inj/1"_s});
    row("UNIFI without a folder", u"unifi:/host/{1}//name"_s, {u"host"_s, u"1"_s, {}, u"name"_s});
    row("UNIFI with an absolute folder", u"unifi:/host/{1}//top/name"_s,
        {u"host"_s, u"1"_s, u"/top"_s, u"name"_s});
    row("old UNIFI", u"unifi:/host:50034/Company/Runs/inj%2F1"_s,
        {u"host:50034"_s, {}, u"Company/Runs"_s, u"inj%2F1"_s});
    row("a local path has none", u"/data/a.raw"_s, {}, u"a.raw"_s);
}

void TestResourceReference::theTextTellsTheParts()
{
    QFETCH(QString, text);
    QFETCH(Parts, parts);
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    ORV_VERIFY_OK(reference);
    QCOMPARE((*reference)->parts().server, parts.server);
    QCOMPARE((*reference)->parts().id, parts.id);
    QCOMPARE((*reference)->parts().folder, parts.folder);
    QCOMPARE((*reference)->parts().name, parts.name);
    QTEST((*reference)->name(), "name");
}

void TestResourceReference::textsOfServersAreKeptAsTheyAre_data()
{
    QTest::addColumn<QString>("text");

    for (const QString &text :
         {u"talvane:/a/../b//c.tolq/"_s, u"eds:/s//x/"_s, u"managed:/1/100%"_s, u"unifi:/h//n"_s,
          u"unifi:/h//abs/n"_s, u"unifi:/h/{1}//n"_s, u"unifi:/\u4e2d/\u00e9/\U0001f9ea"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void TestResourceReference::textsOfServersAreKeptAsTheyAre()
{
    QFETCH(QString, text);
    const ResourceReferenceSPtr reference = referenceOf(text);
    QVERIFY(reference);
    QCOMPARE(reference->text(), text);
    QCOMPARE(ResourceReferenceUtils::toString(reference), text);
}

void TestResourceReference::badTextsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");

    QTest::newRow("another scheme") << u"https://example.org/a.raw"_s << u"address of a service"_s;
    QTest::newRow("another scheme with a plus") << u"svn+ssh://example.org/a"_s << u"address of a service"_s;
    QTest::newRow("zero character") << (u"/a"_s + QChar::Null + u"b"_s) << u"zero character"_s;
    QTest::newRow("encoded zero") << u"file:///a%00b"_s << u"no UTF-8"_s;
    QTest::newRow("codes that are no UTF-8") << u"file:///a%FFb"_s << u"no UTF-8"_s;
    QTest::newRow("no slash") << u"talvane:a"_s << u"Put a slash behind the colon"_s;
    QTest::newRow("no name on the server") << u"talvane:/"_s << u"no name"_s;
    QTest::newRow("no source") << u"eds://a"_s << u"no source"_s;
    QTest::newRow("source alone") << u"eds:/archive"_s << u"no name"_s;
    QTest::newRow("no identifier") << u"managed:/"_s << u"no identifier"_s;
    QTest::newRow("no UNIFI server") << u"unifi:///name"_s << u"no server"_s;
    QTest::newRow("no UNIFI name") << u"unifi:/host/folder/"_s << u"no name"_s;
    QTest::newRow("UNIFI server alone") << u"unifi:/host"_s << u"no name"_s;
    QTest::newRow("open brace") << u"unifi:/host/{1/name"_s << u"in braces"_s;
}

void TestResourceReference::badTextsAreRefused()
{
    const LogCapture log;
    QFETCH(QString, text);
    QFETCH(QString, reason);
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    QVERIFY(reference.hasError());
    QVERIFY(!ResourceReference::isReference(text));
    QCOMPARE(reference.error().code(), ErrorCode::InvalidContent);
    QVERIFY(!reference.error().errorMessage().isEmpty());
    const QString details = reference.error().details().join(u' ');
    QVERIFY2(details.contains(reason), qPrintable(details));
}

void TestResourceReference::anEmptyTextIsAnEmptyReference()
{
    const ResourceReferenceSPtr reference = referenceOf(QString());
    QVERIFY(reference);
    QVERIFY(reference->isEmpty());
    QVERIFY(reference->isScheme(Scheme::LocalFile));
    QCOMPARE(reference->text(), QString());
    QCOMPARE(reference->name(), QString());
    QVERIFY(!referenceOf(u"a"_s)->isEmpty());
}

void TestResourceReference::partsMakeTheText_data()
{
    QTest::addColumn<Scheme>("scheme");
    QTest::addColumn<Parts>("parts");
    QTest::addColumn<QString>("text");

    QTest::newRow("server file") << Scheme::ServerFile << Parts{{}, {}, u"/p"_s, u"qc.tolq"_s}
                                 << u"talvane:/p/qc.tolq"_s;
    QTest::newRow("server file at the top")
        << Scheme::ServerFile << Parts{{}, {}, u"/"_s, u"qc.tolq"_s} << u"talvane:/qc.tolq"_s;
    QTest::newRow("source") << Scheme::ExternalDataSource << Parts{u"s"_s, {}, u"/p"_s, u"a.raw"_s}
                            << u"eds:/s/p/a.raw"_s;
    QTest::newRow("managed") << Scheme::ManagedResource << Parts{{}, u"4/7"_s, {}, u"a/b"_s}
                             << u"managed:/4%2F7/a%2Fb"_s;
    QTest::newRow("UNIFI") << Scheme::UNIFI << Parts{u"h"_s, u"g}"_s, u"p/q"_s, u"a/b %"_s}
                           << u"unifi:/h/{g%7D}/p/q/a%2Fb %25"_s;
    QTest::newRow("UNIFI without an identifier")
        << Scheme::UNIFI << Parts{u"h"_s, {}, u"p"_s, u"n"_s} << u"unifi:/h/p/n"_s;
}

void TestResourceReference::partsMakeTheText()
{
    QFETCH(Scheme, scheme);
    QFETCH(Parts, parts);
    const Result<ResourceReferenceSPtr> reference = ResourceReference::create(scheme, parts);
    ORV_VERIFY_OK(reference);
    QTEST((*reference)->text(), "text");
    QVERIFY((*reference)->parts() == parts);
    QCOMPARE((*reference)->scheme(), scheme);
}

void TestResourceReference::missingPartsAreNamed_data()
{
    QTest::addColumn<Scheme>("scheme");
    QTest::addColumn<Parts>("parts");
    QTest::addColumn<QString>("message");

    QTest::newRow("folder") << Scheme::ServerFile << Parts{{}, {}, {}, u"n"_s} << u"its folder"_s;
    QTest::newRow("name") << Scheme::ServerFile << Parts{{}, {}, u"/"_s, {}} << u"its name"_s;
    QTest::newRow("source") << Scheme::ExternalDataSource << Parts{{}, {}, u"/"_s, u"n"_s} << u"its source"_s;
    QTest::newRow("identifier") << Scheme::ManagedResource << Parts{{}, {}, {}, u"n"_s}
                                << u"its identifier"_s;
    QTest::newRow("server") << Scheme::UNIFI << Parts{{}, u"g"_s, {}, u"n"_s} << u"its server"_s;
    QTest::newRow("UNIFI name") << Scheme::UNIFI << Parts{u"h"_s, u"g"_s, u"p"_s, {}} << u"its name"_s;
    QTest::newRow("local") << Scheme::LocalFile << Parts{{}, {}, u"/"_s, u"n"_s}
                           << u"scheme 3 has no parts"_s;
    QTest::newRow("unknown scheme") << Scheme(9) << Parts{{}, {}, u"/"_s, u"n"_s} << u"scheme 9"_s;
}

void TestResourceReference::missingPartsAreNamed()
{
    QFETCH(Scheme, scheme);
    QFETCH(Parts, parts);
    QFETCH(QString, message);
    const Result<ResourceReferenceSPtr> reference = ResourceReference::create(scheme, parts);
    QVERIFY(reference.hasError());
    QCOMPARE(reference.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(reference.error().errorMessage().contains(message),
             qPrintable(reference.error().errorMessage()));
}

void TestResourceReference::partsThatATextCannotHoldAreRefused()
{
    const LogCapture log;
    QVERIFY(ResourceReference::create(Scheme::ServerFile, {{}, {}, u"/a/"_s, u"n"_s}).hasError());
    QVERIFY(ResourceReference::create(Scheme::ServerFile, {{}, {}, u"/a"_s, u"n/m"_s}).hasError());
    QVERIFY(ResourceReference::create(Scheme::ServerFile, {{}, u"id"_s, u"/a"_s, u"n"_s}).hasError());
    QVERIFY(ResourceReference::create(Scheme::UNIFI, {u"h"_s, {}, u"{f}"_s, u"n"_s}).hasError());
    QVERIFY(ResourceReference::create(Scheme::UNIFI, {u"h"_s, u"g"_s, {}, QString(QChar::Null)}).hasError());
}

void TestResourceReference::partsSurviveTheirText()
{
    constexpr quint32 kSeed = 20240131;
    QRandomGenerator random(kSeed);
    const QString alphabet = u"ab/%{}:#? \\2F\u00e9\u4e2d"_s;
    const auto text = [&random, &alphabet](const QString &without) {
        QString result(u'x');
        for (int i = random.bounded(8); i > 0; --i) {
            const QChar c = alphabet[random.bounded(alphabet.size())];
            if (!without.contains(c))
                result.append(c);
        }
        return result;
    };
    for (int i = 0; i < 2000; ++i) {
        const Parts unifi{text(u"/"_s), text({}), text({}), text({})};
        const Parts managed{{}, text({}), {}, text({})};
        for (const auto &[scheme, parts] :
             {std::pair{Scheme::UNIFI, unifi}, {Scheme::ManagedResource, managed}}) {
            const Result<ResourceReferenceSPtr> reference = ResourceReference::create(scheme, parts);
            ORV_VERIFY_OK(reference);
            const ResourceReferenceSPtr again = referenceOf((*reference)->text());
            QVERIFY2(again && again->parts() == parts, qPrintable((*reference)->text()));
            QVERIFY(ResourceReferenceUtils::compare(again, *reference));
        }
    }
}

void TestResourceReference::peopleReadTheFormWithoutIdentifiers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("readable");

    const auto row = [](const QString &text, const QString &readable) {
        QTest::newRow(qPrintable(text)) << text << readable;
    };
    row(u"unifi:/h/{0b-1}/p/a%2Fb"_s, u"unifi:/h/p/a/b"_s);
    row(u"unifi:/h/p/a"_s, u"unifi:/h/p/a"_s);
    row(u"managed:/47/run%2F1"_s, u"managed:/run/1"_s);
    row(u"managed:/47"_s, u"managed:/47"_s);
    row(u"talvane:/p/a b.tolq"_s, u"talvane:/p/a b.tolq"_s);
    row(u"eds:/s/p/a.raw"_s, u"eds:/s/p/a.raw"_s);
    row(u"../a b#1.raw"_s, QDir::toNativeSeparators(u"../a b#1.raw"_s));
    row(u"file:///data/a%20b"_s, QDir::toNativeSeparators(u"/data/a b"_s));
}

void TestResourceReference::peopleReadTheFormWithoutIdentifiers()
{
    QFETCH(QString, text);
    QFETCH(QString, readable);
    QCOMPARE(referenceOf(text)->readableText(), readable);
    QCOMPARE(ResourceReferenceUtils::toString(referenceOf(text), true), readable);
}

void TestResourceReference::aVariantCarriesAReference()
{
    const ResourceReferenceSPtr reference = referenceOf(u"/data/a.raw"_s);
    const QVariant variant = QVariant::fromValue(reference);
    QVERIFY(variant.canConvert<ResourceReferenceSPtr>());
    QCOMPARE(variant.value<ResourceReferenceSPtr>(), reference);
    QVERIFY(!QVariant(u"/data/a.raw"_s).value<ResourceReferenceSPtr>());
    QVERIFY(!QVariant().value<ResourceReferenceSPtr>());
    const QVariant none = QVariant::fromValue(ResourceReferenceSPtr());
    QVERIFY(none.isValid());
    QVERIFY(!none.value<ResourceReferenceSPtr>());
}

void TestResourceReference::twoObjectsOfOneReferenceAreDifferentPointers()
{
    const ResourceReferenceSPtr first = referenceOf(u"/data/a.raw"_s);
    const ResourceReferenceSPtr second = referenceOf(u"/data/a.raw"_s);
    QVERIFY(first != second);
    QVERIFY(QVariant::fromValue(first) != QVariant::fromValue(second));
    QVERIFY(ResourceReferenceUtils::compare(first, second));
}

ORV_REGISTER_TEST(TestResourceReference)

#include "TestResourceReference.moc"
