#include "OrvTest.h"

#include <orv/table_model/SequenceText.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestSequenceText : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void blocksHoldTenResidues_data();
    void blocksHoldTenResidues();
    void blocksKnowTheirLastPosition();
    void linesBeginWithAPosition();
    void longSequencesAreCutInLines();
    void whatIsTypedBecomesPlain_data();
    void whatIsTypedBecomesPlain();
    void linesReadBackAsTheSequence();
    void bracketsOfAnyDepthEnd();
};

void TestSequenceText::blocksHoldTenResidues_data()
{
    QTest::addColumn<QString>("sequence");
    QTest::addColumn<QString>("blocked");
    QTest::addColumn<int>("residues");
    QTest::newRow("empty") << QString() << QString() << 0;
    QTest::newRow("short") << u"PEPTIDE"_s << u"PEPTIDE"_s << 7;
    QTest::newRow("ten") << u"PEPTIDEKLV"_s << u"PEPTIDEKLV"_s << 10;
    QTest::newRow("eleven") << u"PEPTIDEKLVN"_s << u"PEPTIDEKLV N"_s << 11;
    QTest::newRow("modified") << u"PEPT(Phospho)IDEKLVNEL"_s << u"PEPT(Phospho)IDEKLV NEL"_s << 13;
    QTest::newRow("modified at the end of a block")
        << u"PEPTIDEKLV[+79.966]NEL"_s << u"PEPTIDEKLV[+79.966] NEL"_s << 13;
    QTest::newRow("in front") << u"(Acetyl)PEPTIDEKLVNEL"_s << u"(Acetyl)PEPTIDEKLV NEL"_s << 13;
    QTest::newRow("nested") << u"PE(a(b)c)PTIDEKLVN"_s << u"PE(a(b)c)PTIDEKLV N"_s << 11;
    QTest::newRow("not closed") << u"PEP(TIDEKLVNELTEF"_s << u"PEP(TIDEKLVNELTEF"_s << 3;
}

void TestSequenceText::blocksHoldTenResidues()
{
    QFETCH(QString, sequence);
    QTEST(SequenceText::blocked(sequence), "blocked");
    QTEST(int(SequenceText::residueCount(sequence)), "residues");
}

void TestSequenceText::blocksKnowTheirLastPosition()
{
    const QString sequence = u"PEPTIDEKLVNELTEFAKT(Oxidation)YLYE"_s;
    const QList<SequenceText::Block> blocks = SequenceText::blocks(sequence);
    QCOMPARE(blocks.size(), 3);
    QCOMPARE(blocks[0].lastPosition, 10);
    QCOMPARE(blocks[1].lastPosition, 20);
    QCOMPARE(blocks[2].lastPosition, 23);
    QCOMPARE(blocks[2].text, u"LYE");
    QCOMPARE(SequenceText::blocks(sequence, 1).size(), 1);
}

void TestSequenceText::linesBeginWithAPosition()
{
    QCOMPARE(SequenceText::lines(QString(25, u'A'), 1), u" 1 AAAAAAAAAA\n11 AAAAAAAAAA\n21 AAAAA"_s);
    QCOMPARE(SequenceText::lines(u"PEP"_s), u"1 PEP"_s);
    QCOMPARE(SequenceText::lines(QString()), QString());
}

void TestSequenceText::longSequencesAreCutInLines()
{
    QCOMPARE(SequenceText::lines(QString(41, u'A'), 2, 2),
             u" 1 AAAAAAAAAA AAAAAAAAAA\n21 AAAAAAAAAA AAAAAAAAAA\n..."_s);
    QCOMPARE(SequenceText::lines(QString(40, u'A'), 2, 2),
             u" 1 AAAAAAAAAA AAAAAAAAAA\n21 AAAAAAAAAA AAAAAAAAAA"_s);
}

void TestSequenceText::whatIsTypedBecomesPlain_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("plain");
    QTest::newRow("lower case") << u"peptide"_s << u"PEPTIDE"_s;
    QTest::newRow("blocks") << u"PEPTIDEKLV NELTEF"_s << u"PEPTIDEKLVNELTEF"_s;
    QTest::newRow("numbered lines") << u"  1 peptideklv nel\n 14 tef\t17"_s << u"PEPTIDEKLVNELTEF"_s;
    QTest::newRow("modification") << u"pEP(Phospho)T IDE"_s << u"pEP(Phospho)TIDE"_s;
    QTest::newRow("a number alone") << u" 12 "_s << u"12"_s;
    QTest::newRow("empty") << QString() << QString();
}

void TestSequenceText::whatIsTypedBecomesPlain()
{
    QFETCH(QString, typed);
    QTEST(SequenceText::plain(typed), "plain");
}

void TestSequenceText::linesReadBackAsTheSequence()
{
    QString sequence;
    for (int i = 0; i < 1234; ++i)
        sequence += QChar(u'A' + i % 26);
    QCOMPARE(SequenceText::plain(SequenceText::lines(sequence)), sequence);
    QCOMPARE(SequenceText::plain(SequenceText::blocked(sequence)), sequence);
}

void TestSequenceText::bracketsOfAnyDepthEnd()
{
    const QString deep = QString(100000, u'(') + u'A' + QString(100000, u')') + u"PEPTIDE"_s;
    QCOMPARE(SequenceText::residueCount(deep), 7);
    QCOMPARE(SequenceText::residueCount(QString(100000, u')')), 100000);
}

ORV_REGISTER_TEST(TestSequenceText)

#include "TestSequenceText.moc"
