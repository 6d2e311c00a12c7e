#include "OrvTest.h"

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/chemistry/MassCalculator.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestChemicalFormula : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreRead_data();
    void textsAreRead();
    void otherTextsAreRefusedWithTheirPlace_data();
    void otherTextsAreRefusedWithTheirPlace();
    void inventedFormulasReadBackEqual();
    void massesAgreeWithPublishedOnes_data();
    void massesAgreeWithPublishedOnes();
    void protonsMakeIons();
    void formulasAreAddedAndMultiplied();
    void nothingIsLeftOfAFormulaWithoutItself();
};

namespace {

ChemicalFormula formula(const QString &text)
{
    return ChemicalFormula::parse(text).valueOr({});
}

} // namespace

void TestChemicalFormula::textsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    const auto row = [](const char *text, const char *written) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(written);
    };
    row("", "");
    row("  ", "");
    row("H2O", "H2O");
    row("C6 H12 O6", "C6H12O6");
    row("H(2) C(2) O", "C2H2O");
    row("HCl", "HCl");
    row("O2S-1C", "CO2S-1");
    row("CH3CH2OH", "C2H6O");
    row("C0H2", "H2");
    row("CC-1", "");
    row("_13C6", "_13C6");
    row("D2O", "O_2H2");
    row(" Na Cl ", "ClNa");
}

void TestChemicalFormula::textsAreRead()
{
    QFETCH(QString, text);
    const Result<ChemicalFormula> read = ChemicalFormula::parse(text);
    ORV_VERIFY_OK(read);
    QTEST(read->toString(), "written");
    QCOMPARE(formula(read->toString()), *read);
}

void TestChemicalFormula::otherTextsAreRefusedWithTheirPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("place");
    QTest::newRow("unknown element") << u"H2Xx"_s << u"character 3"_s;
    QTest::newRow("lower case") << u"h2o"_s << u"character 1"_s;
    QTest::newRow("count first") << u"2H"_s << u"character 1"_s;
    QTest::newRow("group") << u"(CH3)2"_s << u"character 1"_s;
    QTest::newRow("charge") << u"Na+"_s << u"character 3"_s;
    QTest::newRow("unknown isotope") << u"_14C"_s << u"character 1"_s;
    QTest::newRow("element without known mass") << u"Uun"_s << u"character 1"_s;
    QTest::newRow("count too large") << u"C1000001"_s << u"1000001"_s;
    QTest::newRow("count beyond all numbers") << u"C99999999999999999999"_s << u"too large"_s;
    QTest::newRow("not ASCII") << u"C\u0662"_s << u"character 2"_s;
    QTest::newRow("endless") << QString(1001, u'C') << u"1001"_s;
}

void TestChemicalFormula::otherTextsAreRefusedWithTheirPlace()
{
    QFETCH(QString, text);
    QFETCH(QString, place);
    const Result<ChemicalFormula> read = ChemicalFormula::parse(text);
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(read.error().errorMessage(), u"The chemical formula is malformed."_s);
    QVERIFY2(read.error().details().constFirst().contains(place),
             qPrintable(read.error().details().constFirst()));
}

void TestChemicalFormula::inventedFormulasReadBackEqual()
{
    constexpr unsigned kSeed = 20240301;
    std::mt19937 random(kSeed);
    const QStringList symbols{u"C"_s,  u"H"_s,  u"N"_s,  u"O"_s,    u"S"_s,   u"P"_s,
                              u"Se"_s, u"Na"_s, u"Cl"_s, u"_13C"_s, u"_2H"_s, u"_15N"_s};
    std::uniform_int_distribution<int> count(-2000, 2000);
    for (int i = 0; i < 300; ++i) {
        QString text;
        for (int pieces = int(random() % 8); pieces > 0; --pieces)
            text += symbols.at(int(random() % unsigned(symbols.size()))) + QString::number(count(random));
        const Result<ChemicalFormula> read = ChemicalFormula::parse(text);
        ORV_VERIFY_OK(read);
        QVERIFY2(formula(read->toString()) == *read,
                 qPrintable(u"seed %1, round %2: %3"_s.arg(kSeed).arg(i).arg(text)));
    }
}

void TestChemicalFormula::massesAgreeWithPublishedOnes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("monoisotopic");
    QTest::addColumn<double>("average");
    // Unimod records 1, 4, 21 and 35, monoisotopic and average.
    QTest::newRow("acetylation, Unimod 1") << u"H(2) C(2) O"_s << 42.010565 << 42.0367;
    QTest::newRow("carbamidomethyl, Unimod 4") << u"H(3) C(2) N O"_s << 57.021464 << 57.0513;
    QTest::newRow("phosphorylation, Unimod 21") << u"H O(3) P"_s << 79.966331 << 79.9799;
    QTest::newRow("oxidation, Unimod 35") << u"O"_s << 15.994915 << 15.9994;
    // NIST Chemistry WebBook: water and caffeine.
    QTest::newRow("water, NIST") << u"H2O"_s << 18.010565 << 18.0153;
    QTest::newRow("caffeine, NIST") << u"C8H10N4O2"_s << 194.080376 << 194.1906;
}

void TestChemicalFormula::massesAgreeWithPublishedOnes()
{
    QFETCH(QString, text);
    QFETCH(double, monoisotopic);
    QFETCH(double, average);
    const double got = MassCalculator(MassType::Monoisotopic).mass(formula(text));
    QVERIFY2(std::abs(got - monoisotopic) < 2e-6, qPrintable(QString::number(got, 'f', 8)));
    const double gotAverage = MassCalculator(MassType::Average).mass(formula(text));
    QVERIFY2(std::abs(gotAverage - average) < 2e-3, qPrintable(QString::number(gotAverage, 'f', 8)));
}

void TestChemicalFormula::protonsMakeIons()
{
    // The protonated caffeine of the MassBank records.
    const MassCalculator calculator(MassType::Monoisotopic);
    QVERIFY(std::abs(calculator.mz(formula(u"C8H10N4O2"_s), 1) - 195.0877) < 1e-4);
    QVERIFY(std::abs(calculator.mz(formula(u"C8H10N4O2"_s), 2) - 98.0475) < 1e-4);
    QVERIFY(std::abs(calculator.mz(formula(u"C8H10N4O2"_s), -1) - 193.0731) < 1e-4);
}

void TestChemicalFormula::formulasAreAddedAndMultiplied()
{
    ChemicalFormula ethanol = formula(u"CH3"_s) + formula(u"CH3O"_s);
    QCOMPARE(ethanol.toString(), u"C2H6O"_s);
    QCOMPARE((ethanol * 3).toString(), u"C6H18O3"_s);
    QCOMPARE((ethanol - formula(u"H2O"_s)).toString(), u"C2H4"_s);
    ethanol += ethanol;
    QCOMPARE(ethanol.toString(), u"C4H12O2"_s);
    QCOMPARE(ethanol.count(u"H"_s), 12);
    QCOMPARE(ethanol.count(u"N"_s), 0);
}

void TestChemicalFormula::nothingIsLeftOfAFormulaWithoutItself()
{
    ChemicalFormula water = formula(u"H2O"_s);
    water -= water;
    QVERIFY(water.isEmpty());
    QCOMPARE(water.monoisotopicMass(), 0.0);
    QVERIFY((formula(u"H2O"_s) * 0).isEmpty());
}

ORV_REGISTER_TEST(TestChemicalFormula)
#include "TestChemicalFormula.moc"
