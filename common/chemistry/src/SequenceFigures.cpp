#include "orv/chemistry/SequenceFigures.h"

#include <orv/chemistry/MassCalculator.h>
#include <orv/chemistry/ProteinGenerator.h>

#include <array>

namespace orv {

namespace {

constexpr int kLettersOfFigures = 26;
constexpr double kWhole = 100.0;

/// By letter, asked of the factory once.
const std::array<bool, kLettersOfFigures> &aminoAcids()
{
    static const std::array<bool, kLettersOfFigures> table = [] {
        std::array<bool, kLettersOfFigures> known{};
        const ChemicalFactory &factory = ChemicalFactory::defaultFactory();
        for (int i = 0; i < kLettersOfFigures; ++i) {
            const Result<ChemicalFormula> formula =
                factory.formula(QString(QChar(u'A' + i)), ChainType::Protein);
            known.at(size_t(i)) = !formula.hasError();
        }
        return known;
    }();
    return table;
}

bool isAminoAcid(QChar c)
{
    const int letter = c.unicode() - u'A';
    return letter >= 0 && letter < kLettersOfFigures && aminoAcids().at(size_t(letter));
}

/// Letters of bases, and pieces in brackets, which count as one; marks of linkers and ends don't count.
int unitsOf(const QString &sequence, ChainType type)
{
    int units = 0;
    bool isInBrackets = false;
    for (const QChar c : sequence) {
        if (c == u']')
            isInBrackets = false;
        else if (c == u'[')
            isInBrackets = true;
        else if (isInBrackets)
            continue;
        if (c == u'[' || (c.isLetter() && !isInBrackets && (type == ChainType::Protein || c != u'p')))
            ++units;
    }
    return units;
}

QString reasonOf(const Error &error)
{
    return error.details().isEmpty() ? error.errorMessage() : error.details().join(u' ');
}

} // namespace

SequenceFigures SequenceFigures::of(const QString &sequence, ChainType type, const ChemicalFactory &factory)
{
    const QString clean = ProteinGenerator::cleanSequence(sequence, type);
    SequenceFigures figures;
    figures.length = unitsOf(clean, type);
    if (clean.isEmpty())
        return figures;
    for (int at = 0; type == ChainType::Protein && at < clean.size(); ++at) {
        if (!isAminoAcid(clean[at]))
            figures.unknownPlaces.append(at);
    }
    const Result<ChemicalFormula> formula = factory.formula(clean, type);
    if (formula.hasError()) {
        figures.problem = reasonOf(formula.error());
        return figures;
    }
    figures.formula = *formula;
    figures.monoisotopicMassDa = MassCalculator(MassType::Monoisotopic).mass(*formula);
    figures.averageMassDa = MassCalculator(MassType::Average).mass(*formula);
    return figures;
}

DigestFigures DigestFigures::of(const QString &sequence, const ProteinDigestionItem &rule,
                                const DigestionLimits &limits)
{
    const QString clean = ProteinGenerator::cleanSequence(sequence, ChainType::Protein);
    DigestFigures figures;
    if (clean.isEmpty())
        return figures;
    DigestionLimits whole;
    whole.cutsBeforeProline = limits.cutsBeforeProline;
    const Result<QList<DigestedPeptide>> pieces = rule.digest(clean, whole);
    const Result<QList<DigestedPeptide>> seen = rule.digest(clean, limits);
    if (pieces.hasError() || seen.hasError()) {
        figures.problem = reasonOf(pieces.hasError() ? pieces.error() : seen.error());
        return figures;
    }
    for (const DigestedPeptide &piece : *pieces)
        figures.places.append(piece.offset + int(piece.sequence.size()) - 1);
    if (!figures.places.isEmpty())
        figures.places.removeLast();
    figures.cleavageSites = int(figures.places.size());
    figures.peptides = int(seen->size());
    // Peptides come in the order of their places.
    qsizetype covered = 0;
    qsizetype end = 0;
    for (const DigestedPeptide &peptide : *seen) {
        const qsizetype last = peptide.offset + peptide.sequence.size();
        covered += std::max<qsizetype>(last - std::max<qsizetype>(end, peptide.offset), 0);
        end = std::max(end, last);
    }
    figures.coveragePercent = kWhole * double(covered) / double(clean.size());
    return figures;
}

} // namespace orv
