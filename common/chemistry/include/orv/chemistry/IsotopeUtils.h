#pragma once

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace orv {

/// An isotope with which samples are enriched. A plain value.
struct ORV_WORKFLOW_EXPORT IsotopeLabel
{
    QString name;
    QString element; ///< symbol
    int massNumber = 0;
    std::optional<double> enrichmentPercent; ///< unset: the natural abundance
    QMap<QString, QVariant> otherCells;      ///< of columns that this version doesn't know, written back

    bool operator==(const IsotopeLabel &) const = default;
};

/// One peak of an isotope envelope.
struct IsotopePeak
{
    double massDa = 0.0;
    double abundance = 0.0; ///< of all molecules, from 0 to 1
};

/// The table of isotope labels, and what nature has of isotopes; docs/formats.md lists the columns.
/// Stateless, any thread.
namespace IsotopeUtils {

/// One row that labels nothing: carbon 13 at its natural abundance. A table without any row breaks the rule
/// of its property.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

/// InvalidContent with the row as detail for an isotope that nature doesn't have, and for an enrichment that
/// is no number from 0 to 100.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<IsotopeLabel>> isotopesFromRowNode(const RowNode &table);
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode isotopesToRowNode(const QList<IsotopeLabel> &isotopes);

/// In percent of the element's atoms, by ProteoWizard; nothing for an isotope that nature doesn't have.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<double> naturalAbundancePercent(const QString &element,
                                                                                int massNumber);

/// The masses of neutral molecules of natural isotopes, lightest first; molecules with the same number of
/// nucleons are one peak at their mean mass, as no instrument parts them at these sizes. Abundances are right
/// within one in a billion for every element and size. Peaks rarer than \a cutoff (above 0, below 1) are left
/// out. InvalidContent for another cutoff, for an empty formula, for negative counts, for an element that
/// nature doesn't have, and where what is left out would be more than 0.1 % of all molecules.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<IsotopePeak>> envelope(const ChemicalFormula &formula,
                                                                      double cutoff = 1e-8);

} // namespace IsotopeUtils

} // namespace orv
