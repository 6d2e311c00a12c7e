// Which samples settings choose. QRegExp, for which old documents were written, is the judge.
#include "OrvTest.h"

#include <orv/propertyeditor/SampleNames.h>

#include <QRandomGenerator>
#include <QRegExp>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 kSeed = 20260714;

QString randomText(QRandomGenerator &random, const QString &letters, int longest)
{
    QString text;
    for (int length = random.bounded(longest + 1); length > 0; --length)
        text.append(letters.at(random.bounded(letters.size())));
    return text;
}

bool isMatchForQt(const QString &pattern, const QString &name)
{
    return QRegExp(pattern, Qt::CaseSensitive, QRegExp::Wildcard).exactMatch(name);
}

} // namespace

class TestSampleNames : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anyPatternMeansWhatItMeansToQt_data();
    void anyPatternMeansWhatItMeansToQt();
    void namesComeInTheOrderOfThePatterns();
    void repeatedNamesAndPatternsCountOnce();
    void withoutPatternsNothingMatches();
    void longPatternsAreJudgedAtOnce_data();
    void longPatternsAreJudgedAtOnce();
};

void TestSampleNames::anyPatternMeansWhatItMeansToQt_data()
{
    QTest::addColumn<QString>("letters");
    QTest::newRow("plain") << u"aAb$^.+(){}| "_s;
    QTest::newRow("wildcards") << u"ab*?"_s;
    QTest::newRow("wildcards among signs") << u"ab*?$^.+(){}|/-!"_s;
    QTest::newRow("sets") << u"ab*?[]"_s;
    QTest::newRow("odd sets") << u"abcd*?[]^-!"_s;
    QTest::newRow("backslashes") << u"ab*?[]^-\\x0d"_s;
}

void TestSampleNames::anyPatternMeansWhatItMeansToQt()
{
    QFETCH(QString, letters);
    QRandomGenerator random(kSeed);
    for (int i = 0; i < 20000; ++i) {
        const QString pattern = randomText(random, letters, 9);
        const QString name = i % 4 == 0 ? pattern : randomText(random, letters, 6);
        const SampleNames names({name});
        const QStringList expected = isMatchForQt(pattern, name) ? QStringList{name} : QStringList();
        const QByteArray what =
            u"pattern \"%1\", name \"%2\", seed %3"_s.arg(pattern, name).arg(kSeed).toUtf8();
        QVERIFY2(names.matching({pattern}) == expected, what.constData());
        QVERIFY2(names.hasMatch({pattern}) == !expected.isEmpty(), what.constData());
    }
}

void TestSampleNames::namesComeInTheOrderOfThePatterns()
{
    const SampleNames names({u"b2"_s, u"a1"_s, u"b1"_s});
    QCOMPARE(names.matching({u"a*"_s, u"b?"_s}), (QStringList{u"a1"_s, u"b2"_s, u"b1"_s}));
    QCOMPARE(names.matching({u"b1"_s, u"*"_s}), (QStringList{u"b1"_s, u"b2"_s, u"a1"_s}));
    QVERIFY(names.hasMatch({u"c"_s, u"?1"_s}));
    QVERIFY(!names.hasMatch({u"c"_s, u"B1"_s, u"?3"_s}));
}

void TestSampleNames::repeatedNamesAndPatternsCountOnce()
{
    const SampleNames names({u"a"_s, u"a"_s, u"b"_s});
    QCOMPARE(names.matching({u"?"_s, u"a"_s, u"?"_s, u"[ab]"_s}), (QStringList{u"a"_s, u"b"_s}));
}

void TestSampleNames::withoutPatternsNothingMatches()
{
    QCOMPARE(SampleNames({u"a"_s}).matching({}), QStringList());
    QVERIFY(!SampleNames({u"a"_s}).hasMatch({}));
    QVERIFY(!SampleNames({}).hasMatch({u"*"_s}));
}

void TestSampleNames::longPatternsAreJudgedAtOnce_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("isMatch");
    constexpr int kLength = 4'000'000;
    QTest::newRow("letters") << QString(kLength, u'l') << false;
    QTest::newRow("any characters") << QString(kLength, u'?') << false;
    QTest::newRow("any texts") << QString(kLength, u'*') << true;
    QTest::newRow("any texts and letters") << u"*l"_s.repeated(kLength / 2) << false;
    QTest::newRow("sets") << u"[lo]"_s.repeated(kLength / 4) << false;
}

// With QRegExp alone, each row takes longer than the test may.
void TestSampleNames::longPatternsAreJudgedAtOnce()
{
    QFETCH(QString, pattern);
    QFETCH(bool, isMatch);
    QCOMPARE(SampleNames({u"lot 1"_s, u"lot 2"_s}).hasMatch({pattern}), isMatch);
}

ORV_REGISTER_TEST(TestSampleNames)
#include "TestSampleNames.moc"
