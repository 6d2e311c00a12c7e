#include "OrvTest.h"
#include "TestData.h"

#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/Fasta.h>
#include <orv/chemistry/InsilicoPeptidesCsvReader.h>
#include <orv/chemistry/IsotopeUtils.h>
#include <orv/chemistry/ProteinDigestionItem.h>

#include <pwiz/data/proteome/Digestion.hpp>

#include <thread>

using namespace orv;
using namespace Qt::StringLiterals;

/// Serum albumin, cut by this library, by ProteoWizard's own enzymes, and by another program.
class TestDigestionOfProteins : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theRuleCutsAsTheEnzymeOfProteoWizard_data();
    void theRuleCutsAsTheEnzymeOfProteoWizard();
    void allPeptidesOfAnotherProgramAreFound();
    void albuminHasItsPublishedMass();
    void threadsDontDisturbEachOther();
};

namespace {

QString albumin()
{
    const Result<QList<FastaEntry>> entries = Fasta::readFile(TestData::path(u"chemistry/bsa.fasta"_s));
    return entries.hasError() ? QString() : entries->constFirst().sequence;
}

} // namespace

void TestDigestionOfProteins::theRuleCutsAsTheEnzymeOfProteoWizard_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QByteArray>("enzyme");
    QTest::addColumn<int>("missedCleavages");
    for (int missed : {0, 2}) {
        QTest::addRow("trypsin, %d missed", missed)
            << u"Trypsin @ R,K | C-term"_s << QByteArray("Trypsin/P") << missed;
        QTest::addRow("lys-c, %d missed", missed)
            << u"Lys-C @ K | C-term"_s << QByteArray("Lys-C/P") << missed;
        QTest::addRow("cnbr, %d missed", missed) << u"CNBr @ M | C-term"_s << QByteArray("CNBr") << missed;
        QTest::addRow("pepsin, %d missed", missed)
            << u"Pepsin @ F,L | C-term"_s << QByteArray("PepsinA") << missed;
    }
}

void TestDigestionOfProteins::theRuleCutsAsTheEnzymeOfProteoWizard()
{
    QFETCH(QString, rule);
    QFETCH(QByteArray, enzyme);
    QFETCH(int, missedCleavages);
    namespace proteome = pwiz::proteome;
    const std::string regex = enzyme.startsWith('(')
                                  ? enzyme.toStdString()
                                  : proteome::Digestion::getCleavageAgentRegex(
                                        proteome::Digestion::getCleavageAgentByName(enzyme.toStdString()));
    const proteome::Digestion digestion(
        proteome::Peptide(albumin().toStdString()), regex,
        proteome::Digestion::Config(missedCleavages, 1, 100000, proteome::Digestion::FullySpecific, false));
    QList<DigestedPeptide> expected;
    for (const proteome::DigestedPeptide &peptide : digestion) {
        expected.append({QString::fromStdString(peptide.sequence()), int(peptide.offset()),
                         int(peptide.missedCleavages())});
    }
    QVERIFY(expected.size() > 5);

    const Result<ProteinDigestionItem> item = ProteinDigestionItem::parse(rule);
    ORV_VERIFY_OK(item);
    DigestionLimits limits;
    limits.missedCleavages = missedCleavages;
    const Result<QList<DigestedPeptide>> peptides = item->digest(albumin(), limits);
    ORV_VERIFY_OK(peptides);
    QCOMPARE(*peptides, expected);
}

void TestDigestionOfProteins::allPeptidesOfAnotherProgramAreFound()
{
    QList<InsilicoPeptide> expected;
    QString warnings;
    ORV_VERIFY_OK(InsilicoPeptidesCsvReader(TestData::path(u"chemistry/bsa_trypsin_digest.csv"_s))
                      .readAll(&expected, &warnings, nullptr));
    QCOMPARE(warnings, QString());
    QCOMPARE(expected.size(), 130);

    // That program never cuts before proline, where the rule has a cut that may be missed.
    DigestionLimits limits;
    limits.missedCleavages = 5;
    const Result<QList<DigestedPeptide>> peptides =
        ProteinDigestionItem::parse(u"Trypsin @ R,K | C-term"_s)->digest(albumin(), limits);
    ORV_VERIFY_OK(peptides);
    QSet<std::pair<QString, int>> found;
    for (const DigestedPeptide &peptide : *peptides)
        found.insert({peptide.sequence, peptide.offset});

    const ChemicalFormula carbamidomethyl = ChemicalFormula::parse(u"C2H3NO"_s).value();
    for (const InsilicoPeptide &peptide : std::as_const(expected)) {
        const int start = peptide.otherFields.value(u"start"_s).toInt();
        QVERIFY2(found.contains({peptide.sequence, start - 1}), qPrintable(peptide.sequence));
        const Result<ChemicalFormula> formula =
            ChemicalFactory::defaultFactory().formula(peptide.sequence, ChainType::Protein);
        ORV_VERIFY_OK(formula);
        const double massDa = (*formula + carbamidomethyl * peptide.sequence.count(u'C')).monoisotopicMass();
        QVERIFY2(std::abs(massDa - *peptide.massDa) < 1e-4, qPrintable(peptide.sequence));
    }
}

void TestDigestionOfProteins::albuminHasItsPublishedMass()
{
    const Result<ChemicalFormula> formula =
        ChemicalFactory::defaultFactory().formula(albumin(), ChainType::Protein);
    ORV_VERIFY_OK(formula);
    // UniProt P02769 with its signal and propeptide: 69,293 Da. 20 ppm are a revision of the atomic weights.
    QVERIFY2(std::abs(formula->averageMass() - 69293.0) < 69293.0 * 20e-6 + 0.5,
             qPrintable(QString::number(formula->averageMass(), 'f', 2)));
}

void TestDigestionOfProteins::threadsDontDisturbEachOther()
{
    struct Outcome
    {
        double massDa = 0.0;
        qsizetype peptides = 0;
        qsizetype peaks = 0;

        bool operator==(const Outcome &) const = default;
    };
    const QString sequence = albumin();
    const auto work = [&sequence](Outcome *outcome) {
        const ChemicalFactory &factory = ChemicalFactory::defaultFactory();
        outcome->massDa = factory.formula(sequence, ChainType::Protein)->monoisotopicMass();
        outcome->peptides =
            ProteinDigestionItem::parse(u"Trypsin @ R,K | C-term"_s)->digest(sequence)->size();
        outcome->peaks =
            IsotopeUtils::envelope(*factory.formula(sequence.left(30), ChainType::Protein))->size();
    };
    constexpr int kThreads = 8;
    std::vector<Outcome> outcomes(kThreads);
    std::vector<std::thread> threads;
    for (Outcome &outcome : outcomes)
        threads.emplace_back(work, &outcome);
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(outcomes.front().massDa > 69000.0 && outcomes.front().peptides > 70 &&
            outcomes.front().peaks > 5);
    QVERIFY(std::all_of(outcomes.begin(), outcomes.end(),
                        [&](const Outcome &outcome) { return outcome == outcomes.front(); }));
}

ORV_REGISTER_TEST(TestDigestionOfProteins)
#include "TestDigestionOfProteins.moc"
