#include "ChemistryOracle.h"
#include "OrvTest.h"

#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/IsotopeUtils.h>
#include <orv/chemistry/ProteinDigestionItem.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

/// Masses, digests and envelopes against what follows from their definitions.
class TestAgainstFirstPrinciples : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void inventedProteinsHaveTheirMasses();
    void aspNKeepsItsMissedCleavages();
    void inventedProteinsAreDigestedByTheDefinition_data();
    void inventedProteinsAreDigestedByTheDefinition();
    void raggedEndsAreWhatTheirNamesSay();
    void prolineShieldsItsBondWhereAsked();
    void peaksOfEveryOnePercentAgree_data();
    void peaksOfEveryOnePercentAgree();
    void noMoleculesVanish_data();
    void noMoleculesVanish();
};

namespace {

constexpr QLatin1String kAminoAcids("ARNDCEQGHILKMFPSTWYV");

QString inventedProtein(std::mt19937 &random, int length)
{
    QString protein;
    for (int i = 0; i < length; ++i)
        protein += kAminoAcids.at(qsizetype(random() % 20));
    return protein;
}

QStringList inWords(const QList<DigestedPeptide> &peptides)
{
    QStringList words;
    for (const DigestedPeptide &peptide : peptides)
        words.append(u"%1/%2"_s.arg(peptide.sequence).arg(peptide.missedCleavages));
    return words;
}

QList<DigestedPeptide> digested(const QString &rule, const QString &protein, const DigestionLimits &limits)
{
    const Result<ProteinDigestionItem> item = ProteinDigestionItem::parse(rule);
    if (item.hasError())
        return {};
    const Result<QList<DigestedPeptide>> peptides = item->digest(protein, limits);
    return peptides.hasError() ? QList<DigestedPeptide>() : *peptides;
}

} // namespace

void TestAgainstFirstPrinciples::inventedProteinsHaveTheirMasses()
{
    constexpr unsigned kSeed = 20261122;
    std::mt19937 random(kSeed);
    for (int length = 1; length < 2000; length = length * 3 / 2 + 1) {
        const QString protein = inventedProtein(random, length);
        const Result<ChemicalFormula> formula =
            ChemicalFactory::defaultFactory().formula(protein, ChainType::Protein);
        ORV_VERIFY_OK(formula);
        const ChemistryOracle::Composition composition = ChemistryOracle::compositionOf(protein);
        const double monoisotopicDa = ChemistryOracle::monoisotopicMassDa(composition);
        const double averageDa = ChemistryOracle::averageMassDa(composition);
        QVERIFY2(std::abs(formula->monoisotopicMass() - monoisotopicDa) < 1e-7 * monoisotopicDa,
                 qPrintable(u"seed %1: %2"_s.arg(kSeed).arg(protein)));
        QVERIFY2(std::abs(formula->averageMass() - averageDa) < 1e-5 * averageDa, qPrintable(protein));
    }
}

void TestAgainstFirstPrinciples::aspNKeepsItsMissedCleavages()
{
    DigestionLimits limits;
    limits.missedCleavages = 1;
    QCOMPARE(inWords(digested(u"Asp-N @ D | N-term"_s, u"MKDAADGG"_s, limits)),
             (QStringList{u"MK/0"_s, u"MKDAA/1"_s, u"DAA/0"_s, u"DAADGG/1"_s, u"DGG/0"_s}));
}

void TestAgainstFirstPrinciples::inventedProteinsAreDigestedByTheDefinition_data()
{
    QTest::addColumn<QString>("residues");
    QTest::addColumn<bool>("behind");
    QTest::addColumn<int>("specificity");
    for (int specificity = 0; specificity <= 4; ++specificity) {
        QTest::addRow("trypsin, %d", specificity) << u"KR"_s << true << specificity;
        QTest::addRow("asp-n, %d", specificity) << u"D"_s << false << specificity;
        QTest::addRow("asp-n and glu-n, %d", specificity) << u"DE"_s << false << specificity;
        QTest::addRow("all, %d", specificity) << u"ARNDCEQGHILKMFPSTWYV"_s << true << specificity;
    }
}

void TestAgainstFirstPrinciples::inventedProteinsAreDigestedByTheDefinition()
{
    QFETCH(QString, residues);
    QFETCH(bool, behind);
    QFETCH(int, specificity);
    const auto side = behind ? ProteinDigestionItem::Side::CTerm : ProteinDigestionItem::Side::NTerm;
    const QString rule = u"Enzyme @ %1 | %2"_s.arg(residues.split(QString(), Qt::SkipEmptyParts).join(u','),
                                                   behind ? u"C-term"_s : u"N-term"_s);
    constexpr unsigned kSeed = 20261122;
    std::mt19937 random(kSeed);
    for (int round = 0; round < 60; ++round) {
        const QString protein = inventedProtein(random, 1 + int(random() % 40));
        DigestionLimits limits;
        limits.missedCleavages = int(random() % 4);
        limits.minimumLength = 1 + int(random() % 4);
        limits.maximumLength = limits.minimumLength + int(random() % 40);
        limits.specificity = DigestionSpecificity(specificity);
        limits.cutsBeforeProline = random() % 2 == 0;
        QCOMPARE(inWords(digested(rule, protein, limits)),
                 inWords(ChemistryOracle::digest(protein, residues, side, limits)));
    }
}

void TestAgainstFirstPrinciples::raggedEndsAreWhatTheirNamesSay()
{
    DigestionLimits limits;
    limits.minimumLength = 2;
    limits.specificity = DigestionSpecificity::RaggedNTerminus;
    QCOMPARE(inWords(digested(u"Trypsin @ K | C-term"_s, u"AAKGG"_s, limits)),
             (QStringList{u"AAK/0"_s, u"AK/0"_s, u"GG/0"_s}));
    limits.specificity = DigestionSpecificity::RaggedCTerminus;
    QCOMPARE(inWords(digested(u"Trypsin @ K | C-term"_s, u"AAKGG"_s, limits)),
             (QStringList{u"AA/0"_s, u"AAK/0"_s, u"GG/0"_s}));
}

void TestAgainstFirstPrinciples::prolineShieldsItsBondWhereAsked()
{
    DigestionLimits limits;
    QCOMPARE(inWords(digested(u"Trypsin @ K | C-term"_s, u"AKPGKA"_s, limits)),
             (QStringList{u"AK/0"_s, u"PGK/0"_s, u"A/0"_s}));
    limits.cutsBeforeProline = false;
    QCOMPARE(inWords(digested(u"Trypsin @ K | C-term"_s, u"AKPGKA"_s, limits)),
             (QStringList{u"AKPGK/0"_s, u"A/0"_s}));
}

void TestAgainstFirstPrinciples::peaksOfEveryOnePercentAgree_data()
{
    QTest::addColumn<int>("residues");
    for (int residues : {1, 5, 10, 20, 50, 100, 170, 270, 430})
        QTest::addRow("%d residues", residues) << residues;
}

void TestAgainstFirstPrinciples::peaksOfEveryOnePercentAgree()
{
    QFETCH(int, residues);
    std::mt19937 random(unsigned(20261122 + residues));
    const QString protein = inventedProtein(random, residues);
    const ChemistryOracle::Composition composition = ChemistryOracle::compositionOf(protein);
    const double lightestDa = ChemistryOracle::monoisotopicMassDa(composition);
    const QList<double> shares = ChemistryOracle::envelope(composition, 60);
    const Result<ChemicalFormula> formula =
        ChemicalFactory::defaultFactory().formula(protein, ChainType::Protein);
    ORV_VERIFY_OK(formula);
    const Result<QList<IsotopePeak>> peaks = IsotopeUtils::envelope(*formula);
    ORV_VERIFY_OK(peaks);
    for (qsizetype extra = 0; extra < shares.size(); ++extra) {
        if (shares.at(extra) < 0.01)
            continue;
        const auto isHere = [&](const IsotopePeak &peak) {
            return std::lround((peak.massDa - lightestDa) / 1.0025) == extra;
        };
        const auto peak = std::find_if(peaks->begin(), peaks->end(), isHere);
        QVERIFY2(peak != peaks->end(), qPrintable(u"%1 has no peak %2"_s.arg(protein).arg(extra)));
        QVERIFY2(std::abs(peak->abundance / shares.at(extra) - 1.0) < 0.001,
                 qPrintable(u"%1, peak %2: %3 for %4"_s.arg(protein)
                                .arg(extra)
                                .arg(peak->abundance)
                                .arg(shares.at(extra))));
    }
}

void TestAgainstFirstPrinciples::noMoleculesVanish_data()
{
    QTest::addColumn<int>("residues");
    QTest::newRow("1 kDa") << 9;
    QTest::newRow("19 kDa") << 170;
    QTest::newRow("30 kDa") << 270;
    QTest::newRow("47 kDa") << 430;
    QTest::newRow("150 kDa") << 1360;
    QTest::newRow("1 MDa") << 9000;
}

void TestAgainstFirstPrinciples::noMoleculesVanish()
{
    QFETCH(int, residues);
    std::mt19937 random{unsigned(residues)};
    const QString protein = inventedProtein(random, residues);
    const Result<ChemicalFormula> formula =
        ChemicalFactory::defaultFactory().formula(protein, ChainType::Protein);
    ORV_VERIFY_OK(formula);
    const Result<QList<IsotopePeak>> peaks = IsotopeUtils::envelope(*formula);
    ORV_VERIFY_OK(peaks);
    double sum = 0.0;
    double meanDa = 0.0;
    for (const IsotopePeak &peak : *peaks) {
        sum += peak.abundance;
        meanDa += peak.abundance * peak.massDa;
    }
    QVERIFY2(std::abs(sum - 1.0) < 1e-5, qPrintable(QString::number(sum, 'g', 12)));
    const double averageDa = ChemistryOracle::averageMassDa(ChemistryOracle::compositionOf(protein));
    QVERIFY2(std::abs(meanDa / sum - averageDa) < 2e-5 * averageDa, qPrintable(QString::number(meanDa)));
}

ORV_REGISTER_TEST(TestAgainstFirstPrinciples)

#include "TestAgainstFirstPrinciples.moc"
