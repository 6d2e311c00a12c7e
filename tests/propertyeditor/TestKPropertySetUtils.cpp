#include "OrvTest.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/propertyeditor/KPropertySetUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

void add(KPropertySet *set, const char *name, const QString &group, int position = -1)
{
    KPropertySetUtils::insertInKPropertySet(group, new KProperty(name, 1), set, position);
}

/// "name@group" in the order of the set.
QStringList order(const KPropertySet &set)
{
    QStringList entries;
    for (KPropertySetIterator it(set); it.current(); ++it)
        entries.append(
            QString::fromUtf8(it.current()->name() + '@' + set.groupNameForProperty(*it.current())));
    return entries;
}

} // namespace

class TestKPropertySetUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aGroupIsNamedByItsCaptionInLowerCase();
    void anExistingGroupKeepsItsCaption();
    void anEmptyGroupIsTheCommonOne();
    void positionsCountWithinTheGroup();
    void propertiesGoToTheirPosition_data();
    void propertiesGoToTheirPosition();
    void propertiesBehindKeepWhatTheyHave();
    void theFrontOfAGroupKeepsItsCaption();
    void nothingElseIsTouched();
    void propertiesGoBehindAKey_data();
    void propertiesGoBehindAKey();
};

void TestKPropertySetUtils::aGroupIsNamedByItsCaptionInLowerCase()
{
    KPropertySet set;
    add(&set, "a", u"Instrument Parameters"_s);
    QCOMPARE(set.groupNames(), QList<QByteArray>(1, "instrument parameters"));
    QCOMPARE(set.groupCaption("instrument parameters"), u"Instrument Parameters"_s);
    QCOMPARE(KPropertySetUtils::groupName(u"Größe ÄÖ"_s), u"größe äö"_s.toUtf8());
}

void TestKPropertySetUtils::anExistingGroupKeepsItsCaption()
{
    KPropertySet set;
    add(&set, "a", u"Instrument Parameters"_s);
    add(&set, "b", u"instrument parameters"_s);
    QCOMPARE(set.groupCaption("instrument parameters"), u"Instrument Parameters"_s);
    QCOMPARE(order(set), QStringList({u"a@instrument parameters"_s, u"b@instrument parameters"_s}));
}

void TestKPropertySetUtils::anEmptyGroupIsTheCommonOne()
{
    KPropertySet set;
    const QString caption = set.groupCaption("common");
    add(&set, "a", {});
    add(&set, "b", u"Common"_s);
    QCOMPARE(order(set), QStringList({u"a@common"_s, u"b@common"_s}));
    QCOMPARE(set.groupCaption("common"), caption);
}

void TestKPropertySetUtils::positionsCountWithinTheGroup()
{
    KPropertySet set;
    add(&set, "a", u"One"_s);
    add(&set, "b", u"Two"_s);
    add(&set, "c", u"One"_s);
    QCOMPARE(KPropertySetUtils::propertyIndex(u"a"_s, u"One"_s, set), 0);
    QCOMPARE(KPropertySetUtils::propertyIndex(u"c"_s, u"one"_s, set), 1);
    QCOMPARE(KPropertySetUtils::propertyIndex(u"b"_s, u"One"_s, set), -1);
    QCOMPARE(KPropertySetUtils::propertyIndex(u"a"_s, u"Three"_s, set), -1);
}

void TestKPropertySetUtils::propertiesGoToTheirPosition_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("expected");
    QTest::newRow("end") << u"One"_s << -1 << u"a@one b@two c@one d@two x@one"_s;
    QTest::newRow("front of the set") << u"One"_s << 0 << u"x@one a@one b@two c@one d@two"_s;
    QTest::newRow("front of the second group") << u"Two"_s << 0 << u"a@one x@two b@two c@one d@two"_s;
    QTest::newRow("behind the first") << u"One"_s << 1 << u"a@one x@one b@two c@one d@two"_s;
    QTest::newRow("behind the last") << u"One"_s << 2 << u"a@one b@two c@one x@one d@two"_s;
    QTest::newRow("beyond the end") << u"One"_s << 9 << u"a@one b@two c@one d@two x@one"_s;
    QTest::newRow("new group") << u"Three"_s << 0 << u"a@one b@two c@one d@two x@three"_s;
}

void TestKPropertySetUtils::propertiesGoToTheirPosition()
{
    QFETCH(QString, group);
    QFETCH(int, position);
    QFETCH(QString, expected);
    KPropertySet set;
    add(&set, "a", u"One"_s);
    add(&set, "b", u"Two"_s);
    add(&set, "c", u"One"_s);
    add(&set, "d", u"Two"_s);
    add(&set, "x", group, position);
    QCOMPARE(order(set).join(u' '), expected);
    QCOMPARE(set.groupNames().mid(0, 2), QList<QByteArray>({QByteArray("one"), QByteArray("two")}));
}

void TestKPropertySetUtils::propertiesBehindKeepWhatTheyHave()
{
    KPropertySet set;
    add(&set, "a", u"One"_s);
    auto *moved = new KProperty("b", u"value"_s, u"Caption"_s, u"Description"_s);
    moved->setOption("min", 3);
    moved->setVisible(false);
    KPropertySetUtils::insertInKPropertySet(u"Two"_s, moved, &set, -1);
    add(&set, "x", u"One"_s, 1);
    const KProperty &property = set.property("b");
    QCOMPARE(property.value(), QVariant(u"value"_s));
    QCOMPARE(property.caption(), u"Caption"_s);
    QCOMPARE(property.description(), u"Description"_s);
    QCOMPARE(property.option("min"), QVariant(3));
    QVERIFY(!property.isVisible());
    QCOMPARE(set.groupCaption("two"), u"Two"_s);
}

void TestKPropertySetUtils::theFrontOfAGroupKeepsItsCaption()
{
    KPropertySet set;
    add(&set, "a", u"Instrument Parameters"_s);
    add(&set, "x", u"instrument parameters"_s, 0);
    QCOMPARE(order(set), QStringList({u"x@instrument parameters"_s, u"a@instrument parameters"_s}));
    QCOMPARE(set.groupCaption("instrument parameters"), u"Instrument Parameters"_s);
}

void TestKPropertySetUtils::nothingElseIsTouched()
{
    KPropertySet set;
    for (const char *name : {"a", "b", "c", "d"})
        add(&set, name, u"One"_s);
    const KProperty *const last = &set.property("d");
    int removals = 0;
    connect(&set, &KPropertySet::aboutToDeleteProperty, &set, [&removals] { ++removals; });
    add(&set, "x", u"One"_s, 1);
    add(&set, "y", u"One"_s, 0);
    QCOMPARE(removals, 0);
    QCOMPARE(&set.property("d"), last);
    QCOMPARE(order(set),
             QStringList({u"y@one"_s, u"a@one"_s, u"x@one"_s, u"b@one"_s, u"c@one"_s, u"d@one"_s}));
}

void TestKPropertySetUtils::propertiesGoBehindAKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first") << u"a"_s << u"One"_s << u"a@one x@one b@two c@one d@two"_s;
    QTest::newRow("last of its group") << u"c"_s << u"one"_s << u"a@one b@two c@one x@one d@two"_s;
    QTest::newRow("key of another group") << u"b"_s << u"One"_s << u"x@one a@one b@two c@one d@two"_s;
    QTest::newRow("key in other letters") << u"C"_s << u"One"_s << u"x@one a@one b@two c@one d@two"_s;
    QTest::newRow("no such key") << u"z"_s << u"Two"_s << u"a@one x@two b@two c@one d@two"_s;
    QTest::newRow("new group") << u"a"_s << u"Three"_s << u"a@one b@two c@one d@two x@three"_s;
}

void TestKPropertySetUtils::propertiesGoBehindAKey()
{
    QFETCH(QString, key);
    QFETCH(QString, group);
    KPropertySet set;
    add(&set, "a", u"One"_s);
    add(&set, "b", u"Two"_s);
    add(&set, "c", u"One"_s);
    add(&set, "d", u"Two"_s);
    KPropertySetUtils::insertBehind(key, group, new KProperty("x", 1), &set);
    QTEST(order(set).join(u' '), "expected");
}

ORV_REGISTER_TEST(TestKPropertySetUtils)
#include "TestKPropertySetUtils.moc"
