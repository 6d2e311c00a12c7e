#include "OrvTest.h"

#include <orv/core/LossObserver.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestLossObserver : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCollectorKeepsWhatItIsToldInOrder();
    void pointerTokensAreEscaped_data();
    void pointerTokensAreEscaped();
};

void TestLossObserver::aCollectorKeepsWhatItIsToldInOrder()
{
    LossCollector collector;
    QVERIFY(collector.losses().isEmpty());
    const Loss first{u"/tabs/0"_s, u"what"_s, u"why"_s};
    const Loss second{u"/a"_s, u"what"_s, u"why"_s};
    LossObserver &observer = collector;
    observer.lost(first);
    observer.lost(second);
    observer.lost(first);
    QCOMPARE(collector.losses(), QList<Loss>({first, second, first}));
}

void TestLossObserver::pointerTokensAreEscaped_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("token");

    QTest::newRow("plain") << u"tabs"_s << u"tabs"_s;
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("slash") << u"a/b"_s << u"a~1b"_s;
    QTest::newRow("tilde") << u"m~n"_s << u"m~0n"_s;
    QTest::newRow("what looks escaped") << u"~1"_s << u"~01"_s;
    QTest::newRow("both") << u"~/"_s << u"~0~1"_s;
    QTest::newRow("others stay") << u"a b\"%\u00e4"_s << u"a b\"%\u00e4"_s;
}

void TestLossObserver::pointerTokensAreEscaped()
{
    QFETCH(QString, key);
    QTEST(jsonPointerToken(key), "token");
}

ORV_REGISTER_TEST(TestLossObserver)

#include "TestLossObserver.moc"
