#include "LogCapture.h"
#include "OrvTest.h"
#include "References.h"

#include <orv/resources/ResourceReferenceKey.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QThread>

using namespace orv;
using namespace Qt::StringLiterals;

using Scheme = ResourceReference::Scheme;

class TestResourceReferenceUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void noReferenceHasNoTextNameAndType();
    void nobodySeesCredentials_data();
    void nobodySeesCredentials();
    void errorsHoldNoCredentials();
    void anEmptyTextGivesNoReference();
    void aTextThatIsNoReferenceIsLogged();
    void listsLeaveOutWhatIsNoReference();
    void nullReferencesAreAlike();
    void containsGoesByWhatIsNamed();
    void unsupportedReferencesAreThoseOfOtherSchemes_data();
    void unsupportedReferencesAreThoseOfOtherSchemes();
    void nullAndEmptyReferencesNeedNoSupport();
    void aHashFindsAReferenceByWhatItNames();
    void threadsShareAReference();
};

void TestResourceReferenceUtils::noReferenceHasNoTextNameAndType()
{
    QCOMPARE(ResourceReferenceUtils::toString({}), QString());
    QCOMPARE(ResourceReferenceUtils::toString({}, true), QString());
    QCOMPARE(ResourceReferenceUtils::localName({}), QString());
    QCOMPARE(ResourceReferenceUtils::type({}), FileTypes::Invalid);
}

void TestResourceReferenceUtils::nobodySeesCredentials_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("old item") << u"unifi:/ann:pw@lab/Runs/inj"_s << u"unifi:/lab/Runs/inj"_s;
    QTest::newRow("item") << u"unifi:/ann:pw@lab/{0b61}/Runs/inj"_s << u"unifi:/lab/{0b61}/Runs/inj"_s;
    QTest::newRow("odd password") << u"UNIFI:/ann:p@ w:@lab/Runs/inj"_s << u"UNIFI:/lab/Runs/inj"_s;
    QTest::newRow("encoded") << u"unifi:/ann%3Apw%40lab/Runs/inj"_s << u"unifi:/lab/Runs/inj"_s;
    QTest::newRow("address") << u"see https://ann:pw@lab.example:50034/x."_s
                             << u"see https://lab.example:50034/x."_s;
    QTest::newRow("several") << u"unifi:/a:b@x/n and unifi:/c:d@y/n"_s << u"unifi:/x/n and unifi:/y/n"_s;
    QTest::newRow("none") << u"unifi:/lab/Runs/a@b"_s << u"unifi:/lab/Runs/a@b"_s;
    QTest::newRow("folders") << u"talvane:/ann@home/a.tolq"_s << u"talvane:/ann@home/a.tolq"_s;
    QTest::newRow("path") << u"/home/ann@lab/a.raw"_s << u"/home/ann@lab/a.raw"_s;
    QTest::newRow("file") << u"file:///home/ann@lab/a.raw"_s << u"file:///home/ann@lab/a.raw"_s;
}

void TestResourceReferenceUtils::nobodySeesCredentials()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(ResourceReferenceUtils::withoutCredentials(text), shown);
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    if (!reference.hasError() && (*reference)->isScheme(Scheme::UNIFI))
        QVERIFY2(!(*reference)->readableText().contains(u"pw"_s), qPrintable((*reference)->readableText()));
}

void TestResourceReferenceUtils::errorsHoldNoCredentials()
{
    for (const QString &text : {u"unifi:/ann:pw@lab/{0b61"_s, u"service://ann:pw@lab/x"_s}) {
        const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
        QVERIFY(reference.hasError());
        const QStringList texts = reference.error().errorMessages() + reference.error().details();
        QVERIFY2(!texts.join(u'|').contains(u"pw"_s), qPrintable(texts.join(u'|')));
    }
}

void TestResourceReferenceUtils::anEmptyTextGivesNoReference()
{
    QVERIFY(!ResourceReferenceUtils::fromString(QString()));
    QCOMPARE(ResourceReferenceUtils::toString(ResourceReferenceUtils::fromString(u"a.raw"_s)), u"a.raw"_s);
}

void TestResourceReferenceUtils::aTextThatIsNoReferenceIsLogged()
{
    const LogCapture log;
    QVERIFY(!ResourceReferenceUtils::fromString(u"https://example.org"_s));
    QCOMPARE(log.warnings(), QStringList(u"\"https://example.org\" is not a reference to a file."_s));
}

void TestResourceReferenceUtils::listsLeaveOutWhatIsNoReference()
{
    const LogCapture log;
    const QList<ResourceReferenceSPtr> references =
        ResourceReferenceUtils::fromStringList({u"b"_s, QString(), u"xy://z"_s, u"a"_s});
    QCOMPARE(ResourceReferenceUtils::toStringList(references), QStringList({u"b"_s, u"a"_s}));
    QCOMPARE(ResourceReferenceUtils::fromStringList({u"xy://z"_s}).size(), 0);
    QCOMPARE(ResourceReferenceUtils::toStringList({referenceOf(u"a"_s), {}, referenceOf(QString())}),
             QStringList({u"a"_s, QString()}));
    QCOMPARE(ResourceReferenceUtils::toStringList({referenceOf(u"unifi:/h/{1}/f/n"_s)}, true),
             QStringList(u"unifi:/h/f/n"_s));
}

void TestResourceReferenceUtils::nullReferencesAreAlike()
{
    QVERIFY(ResourceReferenceUtils::compare({}, {}));
    QVERIFY(!ResourceReferenceUtils::compare({}, referenceOf(u"a"_s)));
    QVERIFY(!ResourceReferenceUtils::compare(referenceOf(u"a"_s), {}));
    QVERIFY(!ResourceReferenceUtils::compare(referenceOf(QString()), {}));
    QVERIFY(ResourceReferenceUtils::compare(referenceOf(QString()), referenceOf(QString())));
}

void TestResourceReferenceUtils::containsGoesByWhatIsNamed()
{
    const QList<ResourceReferenceSPtr> references = {
        referenceOf(u"/a.raw"_s), {}, referenceOf(u"C:\\b.raw"_s)};
    QVERIFY(ResourceReferenceUtils::contains(references, referenceOf(u"file:///a.raw"_s)));
    QVERIFY(ResourceReferenceUtils::contains(references, referenceOf(u"c:/B.raw"_s)));
    QVERIFY(ResourceReferenceUtils::contains(references, {}));
    QVERIFY(!ResourceReferenceUtils::contains(references, referenceOf(u"/A.raw"_s)));
    QVERIFY(!ResourceReferenceUtils::contains({}, referenceOf(u"/a.raw"_s)));
    QVERIFY(!ResourceReferenceUtils::contains({}, {}));
}

void TestResourceReferenceUtils::unsupportedReferencesAreThoseOfOtherSchemes_data()
{
    QTest::addColumn<QList<Scheme>>("supported");
    QTest::addColumn<QStringList>("unsupported");

    const QStringList all = {u"talvane:/t"_s, u"eds:/s/e"_s, u"/l"_s, u"managed:/m"_s, u"unifi:/h/u"_s};
    QTest::newRow("none") << QList<Scheme>() << all;
    QTest::newRow("desktop") << QList<Scheme>{Scheme::LocalFile, Scheme::UNIFI}
                             << QStringList{all[0], all[1], all[3]};
    QTest::newRow("server") << QList<Scheme>{Scheme::ManagedResource, Scheme::ExternalDataSource,
                                             Scheme::ServerFile, Scheme::LocalFile}
                            << QStringList{all[4]};
    QTest::newRow("all") << QList<Scheme>{Scheme(1), Scheme(2), Scheme(3), Scheme(4), Scheme(5)}
                         << QStringList();
}

void TestResourceReferenceUtils::unsupportedReferencesAreThoseOfOtherSchemes()
{
    QFETCH(QList<Scheme>, supported);
    const QList<ResourceReferenceSPtr> all = ResourceReferenceUtils::fromStringList(
        {u"talvane:/t"_s, u"eds:/s/e"_s, u"/l"_s, u"managed:/m"_s, u"unifi:/h/u"_s});
    QCOMPARE(all.size(), 5);
    QTEST(ResourceReferenceUtils::toStringList(ResourceReferenceUtils::unsupportedReferences(all, supported)),
          "unsupported");
}

void TestResourceReferenceUtils::nullAndEmptyReferencesNeedNoSupport()
{
    QVERIFY(ResourceReferenceUtils::unsupportedReferences({{}, referenceOf(QString())}, {}).isEmpty());
}

void TestResourceReferenceUtils::aHashFindsAReferenceByWhatItNames()
{
    QHash<ResourceReferenceKey, int> hash;
    hash.insert(referenceOf(u"C:\\data\\a.raw"_s), 1);
    hash.insert(referenceOf(u"/data/a.raw"_s), 2);
    hash.insert(ResourceReferenceKey(), 3);
    QCOMPARE(hash.value(referenceOf(u"c:/DATA/a.raw"_s)), 1);
    QCOMPARE(hash.value(referenceOf(u"file:///data/a.raw"_s)), 2);
    QCOMPARE(hash.value(ResourceReferenceSPtr()), 3);
    QVERIFY(!hash.contains(referenceOf(u"/DATA/a.raw"_s)));
    hash.insert(referenceOf(u"/data//a.raw"_s), 4);
    QCOMPARE(hash.size(), 3);
    QCOMPARE(hash.value(referenceOf(u"/data/a.raw"_s)), 4);
}

void TestResourceReferenceUtils::threadsShareAReference()
{
    const ResourceReferenceSPtr reference = referenceOf(u"unifi:/h/{1}/f/n"_s);
    std::vector<std::unique_ptr<QThread>> threads;
    std::atomic<int> good = 0;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back(QThread::create([&good, reference] {
            for (int n = 0; n < 500; ++n) {
                const bool isAlike =
                    ResourceReferenceUtils::compare(reference, referenceOf(reference->text()));
                good += isAlike && ResourceReferenceUtils::localName(reference) == u"n"_s ? 1 : 0;
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        QVERIFY(thread->wait());
    QCOMPARE(good.load(), 2000);
}

ORV_REGISTER_TEST(TestResourceReferenceUtils)

#include "TestResourceReferenceUtils.moc"
