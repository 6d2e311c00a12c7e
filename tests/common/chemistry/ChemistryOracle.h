#pragma once

#include <orv/chemistry/ProteinDigestionItem.h>

#include <QList>
#include <QMap>
#include <QString>

/// Masses, digests and envelopes from first principles: literal values of the literature and definitions that
/// are followed word by word, so that tests don't ask the library about itself. Slow, and meant to be.
namespace ChemistryOracle {

using Composition = QMap<QChar, int>; ///< of C, H, N, O, P and S

/// Of a protein of the twenty amino acids, with the water at its ends.
[[nodiscard]] Composition compositionOf(const QString &protein);

[[nodiscard]] double monoisotopicMassDa(const Composition &composition);
[[nodiscard]] double averageMassDa(const Composition &composition);

/// The part of all molecules that has so many nucleons more than the lightest, from 0 on.
[[nodiscard]] QList<double> envelope(const Composition &composition, int peaks);

/// All pieces of \a protein that the definition of a digestion allows, by looking at every piece there is.
[[nodiscard]] QList<orv::DigestedPeptide> digest(const QString &protein, const QString &residues,
                                                 orv::ProteinDigestionItem::Side side,
                                                 const orv::DigestionLimits &limits);

} // namespace ChemistryOracle
