#include "OrvTest.h"
#include "ParsedTable.h"

#include <orv/chemistry/IsotopeUtils.h>
#include <orv/table/rn.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestIsotopes : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theDefaultIsCarbon13AtItsNaturalAbundance();
    void inventedLabelsReadBackEqual();
    void badRowsAreRefused_data();
    void badRowsAreRefused();
    void naturalAbundancesAreKnown_data();
    void naturalAbundancesAreKnown();
    void carbonDisulfideShowsItsSulfur();
    void theEnvelopeOfInsulinIsComplete();
    void elementsOfOneIsotopeShiftTheEnvelope();
    void chloroformShowsItsChlorine();
    void formulasWithoutEnvelopeAreRefused_data();
    void formulasWithoutEnvelopeAreRefused();
};

void TestIsotopes::theDefaultIsCarbon13AtItsNaturalAbundance()
{
    const Result<QList<IsotopeLabel>> isotopes =
        IsotopeUtils::isotopesFromRowNode(IsotopeUtils::defaultRowNode());
    ORV_VERIFY_OK(isotopes);
    QCOMPARE(isotopes->size(), 1);
    QCOMPARE(isotopes->constFirst().element, u"C"_s);
    QCOMPARE(isotopes->constFirst().massNumber, 13);
    QVERIFY(!isotopes->constFirst().enrichmentPercent);
}

void TestIsotopes::inventedLabelsReadBackEqual()
{
    constexpr unsigned kSeed = 20240307;
    std::mt19937 random(kSeed);
    const QList<std::pair<QString, int>> known{
        {u"C"_s, 13}, {u"N"_s, 15}, {u"H"_s, 2}, {u"O"_s, 18}, {u"S"_s, 34}};
    for (int round = 0; round < 100; ++round) {
        QList<IsotopeLabel> isotopes;
        for (int i = int(random() % 5); i > 0; --i) {
            const auto &[element, massNumber] = known.at(int(random() % 5));
            IsotopeLabel isotope{QString::number(random(), 36), element, massNumber, std::nullopt, {}};
            if (random() % 2)
                isotope.enrichmentPercent = double(random() % 1001) / 10.0;
            if (random() % 2)
                isotope.otherCells.insert(u"Supplier"_s, u"lot"_s);
            isotopes.append(isotope);
        }
        const RowNode table = IsotopeUtils::isotopesToRowNode(isotopes);
        RowNode read;
        QVERIFY(rn::parse(rn::serialize(&table), &read));
        const Result<QList<IsotopeLabel>> back = IsotopeUtils::isotopesFromRowNode(read);
        ORV_VERIFY_OK(back);
        QVERIFY2(*back == isotopes, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestIsotopes::badRowsAreRefused_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::newRow("no element") << QByteArray(R"("Xx",13,50)");
    QTest::newRow("no isotope of it") << QByteArray(R"("C",15,50)");
    QTest::newRow("no mass number") << QByteArray(R"("C",null,50)");
    QTest::newRow("mass number 0 of an element without mass") << QByteArray(R"("Uun",0,50)");
    QTest::newRow("single isotope of the library") << QByteArray(R"("_13C",13,50)");
    QTest::newRow("below 0") << QByteArray(R"("C",13,-1)");
    QTest::newRow("above 100") << QByteArray(R"("C",13,100.5)");
    QTest::newRow("in words") << QByteArray(R"("C",13,"half")");
}

void TestIsotopes::badRowsAreRefused()
{
    QFETCH(QByteArray, row);
    const Result<QList<IsotopeLabel>> isotopes = IsotopeUtils::isotopesFromRowNode(
        tableOf(R"({"data":["Element","MassNumber","Enrichment"],"children":[{"data":[)" + row + "]}]}"));
    QVERIFY(isotopes.hasError());
    QCOMPARE(isotopes.error().code(), ErrorCode::InvalidContent);
    QVERIFY(isotopes.error().details().join(u' ').contains(u"Row 1"_s));
}

void TestIsotopes::naturalAbundancesAreKnown_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<int>("massNumber");
    QTest::addColumn<double>("percent");
    // Representative isotopic compositions, IUPAC 1997.
    QTest::newRow("carbon 12") << u"C"_s << 12 << 98.93;
    QTest::newRow("carbon 13") << u"C"_s << 13 << 1.07;
    QTest::newRow("chlorine 37") << u"Cl"_s << 37 << 24.22;
    QTest::newRow("sulfur 34") << u"S"_s << 34 << 4.29;
}

void TestIsotopes::naturalAbundancesAreKnown()
{
    QFETCH(QString, element);
    QFETCH(int, massNumber);
    QFETCH(double, percent);
    const std::optional<double> got = IsotopeUtils::naturalAbundancePercent(element, massNumber);
    QVERIFY(got);
    QVERIFY2(std::abs(*got - percent) < 0.01, qPrintable(QString::number(*got)));
}

void TestIsotopes::carbonDisulfideShowsItsSulfur()
{
    const Result<QList<IsotopePeak>> peaks =
        IsotopeUtils::envelope(ChemicalFormula::parse(u"CS2"_s).value(), 1e-6);
    ORV_VERIFY_OK(peaks);
    const auto abundanceAt = [&](double massDa) {
        double sum = 0.0;
        for (const IsotopePeak &peak : *peaks)
            sum += std::abs(peak.massDa - massDa) < 0.1 ? peak.abundance : 0.0;
        return sum;
    };
    // By hand from the compositions of IUPAC 1997.
    const double carbon13 = 1.07 / 98.93;
    const double sulfur33 = 0.76 / 94.93;
    const double sulfur34 = 4.29 / 94.93;
    QVERIFY(std::abs(abundanceAt(76.944) / abundanceAt(75.944) - (carbon13 + 2 * sulfur33)) < 1e-3);
    QVERIFY(std::abs(abundanceAt(77.94) / abundanceAt(75.944) -
                     (2 * sulfur34 + sulfur33 * sulfur33 + 2 * carbon13 * sulfur33)) < 1e-3);
    QVERIFY(std::is_sorted(peaks->begin(), peaks->end(),
                           [](const IsotopePeak &a, const IsotopePeak &b) { return a.massDa < b.massDa; }));
}

void TestIsotopes::theEnvelopeOfInsulinIsComplete()
{
    const ChemicalFormula insulin = ChemicalFormula::parse(u"C257H383N65O77S6"_s).value();
    const Result<QList<IsotopePeak>> peaks = IsotopeUtils::envelope(insulin);
    ORV_VERIFY_OK(peaks);
    double sum = 0.0;
    double mean = 0.0;
    for (const IsotopePeak &peak : *peaks) {
        sum += peak.abundance;
        mean += peak.abundance * peak.massDa;
    }
    QVERIFY2(sum > 0.99999 && sum < 1.00001, qPrintable(QString::number(sum)));
    QVERIFY(std::abs(peaks->constFirst().massDa - insulin.monoisotopicMass()) < 0.01);
    QVERIFY(std::abs(mean / sum - insulin.averageMass()) < 0.2);
}

void TestIsotopes::elementsOfOneIsotopeShiftTheEnvelope()
{
    const ChemicalFormula phosphate = ChemicalFormula::parse(u"H3PO4"_s).value();
    const Result<QList<IsotopePeak>> peaks = IsotopeUtils::envelope(phosphate);
    const Result<QList<IsotopePeak>> rest = IsotopeUtils::envelope(ChemicalFormula::parse(u"H3O4"_s).value());
    ORV_VERIFY_OK(peaks);
    ORV_VERIFY_OK(rest);
    QCOMPARE(peaks->size(), rest->size());
    QVERIFY(std::abs(peaks->constFirst().massDa - phosphate.monoisotopicMass()) < 1e-6);
    QCOMPARE(peaks->constFirst().abundance, rest->constFirst().abundance);

    const Result<QList<IsotopePeak>> pure = IsotopeUtils::envelope(ChemicalFormula::parse(u"P4"_s).value());
    ORV_VERIFY_OK(pure);
    QCOMPARE(pure->size(), 1);
    QCOMPARE(pure->constFirst().abundance, 1.0);
}

void TestIsotopes::formulasWithoutEnvelopeAreRefused_data()
{
    QTest::addColumn<QString>("formula");
    QTest::addColumn<double>("cutoff");
    QTest::newRow("empty") << QString() << 1e-4;
    QTest::newRow("negative count") << u"C6H-1"_s << 1e-4;
    QTest::newRow("a cutoff that leaves nothing") << u"C6464H9950N1706O2014S44"_s << 0.5;
    QTest::newRow("a cutoff that leaves out one in a hundred") << u"C6464H9950N1706O2014S44"_s << 1e-2;
    QTest::newRow("cutoff 0") << u"CH4"_s << 0.0;
    QTest::newRow("cutoff 1") << u"CH4"_s << 1.0;
    QTest::newRow("cutoff that is no number") << u"CH4"_s << qQNaN();
}

void TestIsotopes::formulasWithoutEnvelopeAreRefused()
{
    QFETCH(QString, formula);
    QFETCH(double, cutoff);
    const Result<QList<IsotopePeak>> peaks =
        IsotopeUtils::envelope(ChemicalFormula::parse(formula).value(), cutoff);
    QVERIFY(peaks.hasError());
    QCOMPARE(peaks.error().code(), ErrorCode::InvalidContent);
}

void TestIsotopes::chloroformShowsItsChlorine()
{
    const Result<QList<IsotopePeak>> peaks =
        IsotopeUtils::envelope(ChemicalFormula::parse(u"CCl3"_s).value());
    ORV_VERIFY_OK(peaks);
    // By hand from the compositions of IUPAC 1997: carbon 98.93 and 1.07 %, chlorine 75.78 and 24.22 %.
    const double light = 0.9893 * 0.7578 * 0.7578 * 0.7578;
    const double carbon13 = 0.0107 * 0.7578 * 0.7578 * 0.7578;
    const double oneHeavy = 0.9893 * 3 * 0.2422 * 0.7578 * 0.7578;
    QCOMPARE(peaks->size(), 8);
    QVERIFY(std::abs(peaks->at(0).abundance - light) < 1e-6);
    QVERIFY(std::abs(peaks->at(1).abundance - carbon13) < 1e-6);
    QVERIFY(std::abs(peaks->at(2).abundance - oneHeavy) < 1e-6);
    QVERIFY(std::abs(peaks->at(0).massDa - (12.0 + 3 * 34.968853)) < 1e-4);
    QVERIFY(std::abs(peaks->at(2).massDa - (12.0 + 2 * 34.968853 + 36.965903)) < 1e-4);
}

ORV_REGISTER_TEST(TestIsotopes)
#include "TestIsotopes.moc"
