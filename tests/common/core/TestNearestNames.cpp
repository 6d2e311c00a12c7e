#include "OrvTest.h"

#include <orv/core/NearestNames.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestNearestNames : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesOfFewOtherLettersAreFound_data();
    void namesOfFewOtherLettersAreFound();
    void theNearestComesFirst();
    void threeAreEnough();
    void endlessTextsAreNotCompared();
    void aQuestionNamesAll();
    void noQuestionIsAskedInVain();
};

namespace {

const QStringList kCommands = {u"info"_s, u"convert"_s, u"upgrade"_s, u"check"_s, u"get"_s, u"set"_s};

} // namespace

void TestNearestNames::namesOfFewOtherLettersAreFound_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("meant");

    QTest::newRow("swapped") << u"inof"_s << QStringList{u"info"_s};
    QTest::newRow("left out") << u"upgade"_s << QStringList{u"upgrade"_s};
    QTest::newRow("inserted") << u"cheeck"_s << QStringList{u"check"_s};
    QTest::newRow("replaced") << u"convart"_s << QStringList{u"convert"_s};
    QTest::newRow("other case") << u"CHECK"_s << QStringList{u"check"_s};
    QTest::newRow("two equally near") << u"wet"_s << QStringList{u"get"_s, u"set"_s};
    QTest::newRow("nothing near") << u"frobnicate"_s << QStringList{};
    QTest::newRow("too short to be near") << u"x"_s << QStringList{};
    QTest::newRow("empty") << QString() << QStringList{};
}

void TestNearestNames::namesOfFewOtherLettersAreFound()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, meant);
    QCOMPARE(NearestNames::find(typed, kCommands), meant);
}

void TestNearestNames::theNearestComesFirst()
{
    QCOMPARE(NearestNames::find(u"centroid"_s, {u"centroXYd"_s, u"centroids"_s}),
             (QStringList{u"centroids"_s, u"centroXYd"_s}));
}

void TestNearestNames::threeAreEnough()
{
    QCOMPARE(NearestNames::find(u"lot"_s, {u"lot1"_s, u"lot2"_s, u"lot3"_s, u"lot4"_s}),
             (QStringList{u"lot1"_s, u"lot2"_s, u"lot3"_s}));
}

void TestNearestNames::endlessTextsAreNotCompared()
{
    const QString endless(1 << 20, u'a');
    QCOMPARE(NearestNames::find(endless, {endless}), QStringList{});
    QCOMPARE(NearestNames::find(u"aaa"_s, {endless}), QStringList{});
}

void TestNearestNames::aQuestionNamesAll()
{
    QCOMPARE(NearestNames::question(u"wet"_s, kCommands), u" Did you mean \"get\" or \"set\"?"_s);
}

void TestNearestNames::noQuestionIsAskedInVain()
{
    QCOMPARE(NearestNames::question(u"frobnicate"_s, kCommands), QString());
}

ORV_REGISTER_TEST(TestNearestNames)

#include "TestNearestNames.moc"
