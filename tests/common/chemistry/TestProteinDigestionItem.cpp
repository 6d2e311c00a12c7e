#include "OrvTest.h"

#include <orv/chemistry/ProteinDigestionItem.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestProteinDigestionItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void rulesAreRead_data();
    void rulesAreRead();
    void textsReadBack_data() { rulesAreRead_data(); }
    void textsReadBack();
    void otherTextsAreRefusedWithTheirPlace_data();
    void otherTextsAreRefusedWithTheirPlace();
    void proteinsAreCutAtTheSideOfTheResidues_data();
    void proteinsAreCutAtTheSideOfTheResidues();
    void missedCleavagesJoinNeighbours();
    void lengthsLimitThePeptides();
    void theCutPeptidesMakeUpTheProtein_data();
    void theCutPeptidesMakeUpTheProtein();
    void whatIsNoSequenceIsRefused_data();
    void whatIsNoSequenceIsRefused();
    void tooManyPeptidesAreRefused();
    void limitsOutOfOrderAreRefused_data();
    void limitsOutOfOrderAreRefused();
};

namespace {

QStringList sequences(const Result<QList<DigestedPeptide>> &peptides)
{
    QStringList texts;
    for (const DigestedPeptide &peptide : *peptides)
        texts.append(peptide.sequence);
    return texts;
}

ProteinDigestionItem rule(const QString &text)
{
    const Result<ProteinDigestionItem> item = ProteinDigestionItem::parse(text);
    return item.valueOr({});
}

} // namespace

void TestProteinDigestionItem::rulesAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("residues");
    QTest::addColumn<bool>("cTerm");
    QTest::addColumn<QString>("written");
    const auto row = [](const char *text, const char *name, const char *residues, bool cTerm,
                        const char *written) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(name)
                            << QString::fromLatin1(residues) << cTerm << QString::fromLatin1(written);
    };
    row("Trypsin @ R,K | C-term", "Trypsin", "RK", true, "Trypsin @ R,K | C-term");
    row("Lys-N @ K | N-term", "Lys-N", "K", false, "Lys-N @ K | N-term");
    row("Glu-C phosphate @ D,E | C-term", "Glu-C phosphate", "DE", true, "Glu-C phosphate @ D,E | C-term");
    row("Chymotrypsin @ F,L,W,Y | C-term", "Chymotrypsin", "FLWY", true, "Chymotrypsin @ F,L,W,Y | C-term");
    row("Trypsin@R,K|C-term", "Trypsin", "RK", true, "Trypsin @ R,K | C-term");
    row("  My enzyme  @  R , K,R  |  N-term  ", "My enzyme", "RK", false, "My enzyme @ R,K | N-term");
}

void TestProteinDigestionItem::rulesAreRead()
{
    QFETCH(QString, text);
    const Result<ProteinDigestionItem> item = ProteinDigestionItem::parse(text);
    ORV_VERIFY_OK(item);
    QTEST(item->name(), "name");
    QTEST(item->residues(), "residues");
    QTEST(item->side() == ProteinDigestionItem::Side::CTerm, "cTerm");
    QVERIFY(ProteinDigestionItem::validate(text));
}

void TestProteinDigestionItem::textsReadBack()
{
    QFETCH(QString, text);
    const ProteinDigestionItem item = rule(text);
    QTEST(item.toString(), "written");
    QCOMPARE(rule(item.toString()), item);
}

void TestProteinDigestionItem::otherTextsAreRefusedWithTheirPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("place");
    QTest::newRow("empty") << QString() << u"@"_s;
    QTest::newRow("name alone") << u"Trypsin"_s << u"@"_s;
    QTest::newRow("no residues") << u"Trypsin @ | C-term"_s << u"residue"_s;
    QTest::newRow("residue missing") << u"Trypsin @ R, | C-term"_s << u"residue"_s;
    QTest::newRow("residues run together") << u"Trypsin @ RK | C-term"_s << u"\"RK\""_s;
    QTest::newRow("lower case") << u"Trypsin @ r,k | C-term"_s << u"\"r\""_s;
    QTest::newRow("not a letter") << u"Trypsin @ ],K | C-term"_s << u"\"]\""_s;
    QTest::newRow("no side") << u"Trypsin @ R,K"_s << u"\"|\""_s;
    QTest::newRow("unknown side") << u"Trypsin @ R,K | c-term"_s << u"\"c-term\""_s;
    QTest::newRow("two sides") << u"Trypsin @ R,K | C-term | N-term"_s << u"\"|\""_s;
    QTest::newRow("no name") << u" @ R,K | C-term"_s << u"name"_s;
    QTest::newRow("bar in the name") << u"A|B @ R,K | C-term"_s << u"\"|\""_s;
    QTest::newRow("two rules") << u"Trypsin @ R,K | C-term\nAsp-N @ D | N-term"_s << u"@"_s;
    QTest::newRow("endless") << QString(2000, u'A') << u"2000"_s;
}

void TestProteinDigestionItem::otherTextsAreRefusedWithTheirPlace()
{
    QFETCH(QString, text);
    QFETCH(QString, place);
    QVERIFY(!ProteinDigestionItem::validate(text));
    const Result<ProteinDigestionItem> item = ProteinDigestionItem::parse(text);
    QVERIFY(item.hasError());
    QCOMPARE(item.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(item.error().errorMessage(), u"The digestion text is malformed."_s);
    QVERIFY2(item.error().details().constFirst().contains(place),
             qPrintable(item.error().details().join(u" / "_s)));
}

void TestProteinDigestionItem::proteinsAreCutAtTheSideOfTheResidues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("peptides");
    QTest::newRow("behind") << u"Trypsin @ R,K | C-term"_s << QStringList{u"MK"_s, u"PEDR"_s, u"DLK"_s};
    QTest::newRow("before") << u"Asp-N @ D | N-term"_s << QStringList{u"MKPE"_s, u"DR"_s, u"DLK"_s};
    QTest::newRow("nowhere") << u"CNBr @ W | C-term"_s << QStringList{u"MKPEDRDLK"_s};
    QTest::newRow("letters beyond the twenty") << u"Odd @ J,O | N-term"_s << QStringList{u"MKPEDRDLK"_s};
}

void TestProteinDigestionItem::proteinsAreCutAtTheSideOfTheResidues()
{
    QFETCH(QString, text);
    const Result<QList<DigestedPeptide>> peptides = rule(text).digest(u"MKPEDRDLK"_s);
    ORV_VERIFY_OK(peptides);
    QTEST(sequences(peptides), "peptides");
}

void TestProteinDigestionItem::missedCleavagesJoinNeighbours()
{
    DigestionLimits limits;
    limits.missedCleavages = 1;
    const Result<QList<DigestedPeptide>> peptides =
        rule(u"Trypsin @ R,K | C-term"_s).digest(u"MKPEDRDLK"_s, limits);
    ORV_VERIFY_OK(peptides);
    const QList<DigestedPeptide> expected{
        {u"MK"_s, 0, 0}, {u"MKPEDR"_s, 0, 1}, {u"PEDR"_s, 2, 0}, {u"PEDRDLK"_s, 2, 1}, {u"DLK"_s, 6, 0}};
    QCOMPARE(*peptides, expected);
}

void TestProteinDigestionItem::lengthsLimitThePeptides()
{
    DigestionLimits limits;
    limits.minimumLength = 3;
    limits.maximumLength = 3;
    const Result<QList<DigestedPeptide>> peptides =
        rule(u"Trypsin @ R,K | C-term"_s).digest(u"MKPEDRDLK"_s, limits);
    ORV_VERIFY_OK(peptides);
    QCOMPARE(sequences(peptides), QStringList{u"DLK"_s});
}

void TestProteinDigestionItem::theCutPeptidesMakeUpTheProtein_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"Trypsin @ R,K | C-term", "Lys-N @ K | N-term", "Pepsin @ F,L | C-term"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TestProteinDigestionItem::theCutPeptidesMakeUpTheProtein()
{
    QFETCH(QString, text);
    const QString protein = u"MKWVTFISLLLLFSSAYSRGVFRRDTHKSEIAHRFKDLGEEHFKGLVLIAFSQYLQQCPFDEHVKLVNELTEFAK"_s;
    const Result<QList<DigestedPeptide>> peptides = rule(text).digest(protein);
    ORV_VERIFY_OK(peptides);
    QVERIFY(peptides->size() > 3);
    QCOMPARE(sequences(peptides).join(QString()), protein);
}

void TestProteinDigestionItem::whatIsNoSequenceIsRefused_data()
{
    QTest::addColumn<QString>("sequence");
    QTest::newRow("empty") << QString();
    QTest::newRow("lower case") << u"MKr"_s;
    QTest::newRow("stop") << u"MK*"_s;
    QTest::newRow("not ASCII") << u"MKÄ"_s;
    QTest::newRow("endless") << QString(100001, u'A');
}

void TestProteinDigestionItem::whatIsNoSequenceIsRefused()
{
    QFETCH(QString, sequence);
    const Result<QList<DigestedPeptide>> peptides = rule(u"Trypsin @ R,K | C-term"_s).digest(sequence);
    QVERIFY(peptides.hasError());
    QCOMPARE(peptides.error().code(), ErrorCode::InvalidContent);
    QVERIFY(!peptides.error().details().isEmpty());
}

void TestProteinDigestionItem::tooManyPeptidesAreRefused()
{
    DigestionLimits limits;
    limits.missedCleavages = 100000;
    const Result<QList<DigestedPeptide>> peptides =
        rule(u"Lys-C @ K | C-term"_s).digest(QString(20000, u'K'), limits);
    QVERIFY(peptides.hasError());
    QCOMPARE(peptides.error().code(), ErrorCode::InvalidContent);
    QVERIFY(peptides.error().details().constFirst().contains(u"missed cleavages"_s));
}

void TestProteinDigestionItem::limitsOutOfOrderAreRefused_data()
{
    QTest::addColumn<int>("missedCleavages");
    QTest::addColumn<int>("minimumLength");
    QTest::addColumn<int>("maximumLength");
    QTest::newRow("negative missed cleavages") << -1 << 1 << 10;
    QTest::newRow("no length") << 0 << 0 << 10;
    QTest::newRow("longest below shortest") << 0 << 5 << 4;
}

void TestProteinDigestionItem::limitsOutOfOrderAreRefused()
{
    QFETCH(int, missedCleavages);
    QFETCH(int, minimumLength);
    QFETCH(int, maximumLength);
    const Result<QList<DigestedPeptide>> peptides =
        rule(u"Trypsin @ R,K | C-term"_s).digest(u"MK"_s, {missedCleavages, minimumLength, maximumLength});
    QVERIFY(peptides.hasError());
}

ORV_REGISTER_TEST(TestProteinDigestionItem)
#include "TestProteinDigestionItem.moc"
