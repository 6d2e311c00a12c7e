#pragma once

#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/ChemicalFormula.h>
#include <orv/chemistry/ProteinDigestionItem.h>
#include <orv/core/Export.h>

#include <QList>
#include <QString>

#include <optional>

namespace orv {

/// What follows from a sequence while somebody types it. A plain value; any thread.
///
///     const SequenceFigures figures = SequenceFigures::of(QStringLiteral("PEPTIDE"), ChainType::Protein);
///     double massDa = figures.monoisotopicMassDa.value(); // 799.36
struct ORV_WORKFLOW_EXPORT SequenceFigures
{
    int length = 0;           ///< residues or nucleotides; a piece in brackets counts as one
    QList<int> unknownPlaces; ///< of letters that stand for no amino acid, counted from 0
    std::optional<ChemicalFormula> formula;
    std::optional<double> monoisotopicMassDa;
    std::optional<double> averageMassDa;
    QString problem; ///< why there is no formula; empty for an empty sequence, too

    /// Blanks in \a sequence don't count. Of proteins, the case of letters doesn't either.
    [[nodiscard]] static SequenceFigures
    of(const QString &sequence, ChainType type,
       const ChemicalFactory &factory = ChemicalFactory::defaultFactory());
};

/// What a digestion makes of a sequence. A plain value; any thread.
struct ORV_WORKFLOW_EXPORT DigestFigures
{
    int cleavageSites = 0;
    int peptides = 0;             ///< within the limits
    double coveragePercent = 0.0; ///< residues that lie in such a peptide
    QList<int> places;            ///< of the residues behind which the chain is cut, counted from 0
    QString problem;              ///< why nothing can be told

    /// \a limits tell which peptides can be seen: their lengths and missed cleavages.
    [[nodiscard]] static DigestFigures of(const QString &sequence, const ProteinDigestionItem &rule,
                                          const DigestionLimits &limits);
};

} // namespace orv
