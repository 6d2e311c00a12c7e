#include "OrvTest.h"

#include <orv/propertyeditor/SearchWords.h>

#include <array>

using namespace orv;
using namespace Qt::StringLiterals;

class TestSearchWords : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void wordsStandInTexts_data();
    void wordsStandInTexts();
    void theFieldIsTheFurthestThatAWordNeeds();
    void moreLettersAndWordsNarrow();
    void marksWithoutEndTakeNoTime();
};

void TestSearchWords::wordsStandInTexts_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("stands");
    QTest::newRow("any case") << u"MASS tol"_s << u"Precursor mass tolerance"_s << true;
    QTest::newRow("any order") << u"tolerance precursor"_s << u"Precursor mass tolerance"_s << true;
    QTest::newRow("all words") << u"mass window"_s << u"Precursor mass tolerance"_s << false;
    QTest::newRow("composed and not") << QString(u"re\u0301solution"_s) << u"Résolution"_s << true;
    QTest::newRow("micro and mu") << QString(u"\u00b5m"_s) << QString(u"5 \u03bcm"_s) << true;
    QTest::newRow("umlaut") << u"GRÖSSE"_s << u"Größe, grösse"_s << true;
    QTest::newRow("pattern is text") << u".*"_s << u"Precursor"_s << false;
    QTest::newRow("pattern that stands") << u"[0-9]"_s << u"matches [0-9]"_s << true;
    QTest::newRow("emoji") << u"🧪"_s << u"Sample 🧪 one"_s << true;
    QTest::newRow("nothing stands anywhere") << u" "_s << u"Sample"_s << true;
}

void TestSearchWords::wordsStandInTexts()
{
    QFETCH(QString, typed);
    QFETCH(QString, text);
    QFETCH(bool, stands);
    QCOMPARE(SearchWords(typed).standIn(SearchWords::folded(text)), stands);
}

void TestSearchWords::theFieldIsTheFurthestThatAWordNeeds()
{
    const std::array<QString, 3> fields{u"enzyme"_s, u"insilicoenzyme"_s, u"cuts after arginine"_s};
    QCOMPARE(SearchWords(u"enzyme"_s).fieldIn(fields), std::optional(0));
    QCOMPARE(SearchWords(u"insilico"_s).fieldIn(fields), std::optional(1));
    QCOMPARE(SearchWords(u"enzyme arginine"_s).fieldIn(fields), std::optional(2));
    QCOMPARE(SearchWords(u"enzyme lysine"_s).fieldIn(fields), std::optional<int>());
}

void TestSearchWords::moreLettersAndWordsNarrow()
{
    QVERIFY(SearchWords(u"mass t"_s).narrow(SearchWords(u"mas"_s)));
    QVERIFY(SearchWords(u"mass"_s).narrow(SearchWords()));
    QVERIFY(!SearchWords(u"mas"_s).narrow(SearchWords(u"mass"_s)));
    QVERIFY(!SearchWords(u"mass"_s).narrow(SearchWords(u"mass t"_s)));
}

void TestSearchWords::marksWithoutEndTakeNoTime()
{
    QString marks = u"a"_s;
    for (int i = 0; i < 1 << 19; ++i)
        marks += i % 2 == 0 ? QChar(0x301) : QChar(0x323);
    QVERIFY(SearchWords(u"a"_s).standIn(SearchWords::folded(marks)));
}

ORV_REGISTER_TEST(TestSearchWords)
#include "TestSearchWords.moc"
