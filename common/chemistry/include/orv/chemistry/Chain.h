#pragma once

#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/MassCalculator.h>
#include <orv/core/Error.h>
#include <orv/core/Export.h>

#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace orv {

/// One chain of amino acids or nucleotides, of which proteins are built. A plain value.
struct ORV_WORKFLOW_EXPORT Chain
{
    int number = 0; ///< from 1; proteins name their chains by it
    QString id;     ///< text that tells chains apart for people, see ChainId
    QString name;
    QString sequence; ///< as ChemicalFactory reads it
    ChainType type = ChainType::Protein;
    std::optional<double> monoisotopicMassDa;
    std::optional<double> averageMassDa;
    bool isCustom = true;               ///< entered by the user, not taken from a server's metadata
    QMap<QString, QVariant> otherCells; ///< of columns that this version doesn't know, written back

    /// Sets both masses to those of the sequence. When it has no formula, the masses are unset and the reason
    /// is returned.
    Error updateMasses(const MassCalculator &monoisotopic, const MassCalculator &average,
                       const ChemicalFactory &factory = ChemicalFactory::defaultFactory());

    bool operator==(const Chain &) const = default;
};

} // namespace orv
