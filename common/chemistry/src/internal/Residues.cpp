#include "Residues.h"

#include <orv/chemistry/ChemicalFactory.h>

#include <QCoreApplication>

#include <array>

namespace orv::Internal {

namespace {

struct ResiduesTr
{
    Q_DECLARE_TR_FUNCTIONS(ChemicalFactory)
};

constexpr int kLetters = 26;

struct Residue
{
    bool known = false;
    ChemicalFormula formula;
};

struct ResidueRow
{
    char letter;
    const char *formula;
};

constexpr ResidueRow kResidues[] = {
#include "Residues.inc"
};

/// By letter.
const std::array<Residue, kLetters> &residues()
{
    static const std::array<Residue, kLetters> table = [] {
        std::array<Residue, kLetters> residues;
        for (const ResidueRow &row : kResidues) {
            Residue &residue = residues.at(static_cast<size_t>(row.letter - 'A'));
            residue.known = true;
            residue.formula = ChemicalFormula::parse(QString::fromLatin1(row.formula)).value();
        }
        return residues;
    }();
    return table;
}

} // namespace

Error badSequence(const QString &reason, qsizetype index)
{
    return Error(ErrorCode::InvalidContent, ResiduesTr::tr("A sequence has no formula."))
        .addDetail(ResiduesTr::tr("%1, at character %2.").arg(reason).arg(index + 1));
}

Result<ChemicalFormula> proteinFormula(const QString &sequence)
{
    std::array<qint64, kLetters> counts{};
    for (qsizetype i = 0; i < sequence.size(); ++i) {
        const int letter = sequence.at(i).unicode() - 'A';
        if (letter < 0 || letter >= kLetters || !residues().at(static_cast<size_t>(letter)).known)
            return badSequence(ResiduesTr::tr("\"%1\" is no amino acid").arg(sequence.at(i)), i);
        if (i >= ChemicalFactory::kMaximumLength)
            return badSequence(ResiduesTr::tr("The sequence is too long"), i);
        ++counts.at(static_cast<size_t>(letter));
    }
    ChemicalFormula formula = ChemicalFormula::parse(QStringLiteral("H2O")).value();
    for (size_t letter = 0; letter < kLetters; ++letter)
        formula += residues().at(letter).formula * counts.at(letter);
    return formula;
}

} // namespace orv::Internal
