#pragma once

#include <orv/core/Export.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace orv {

/// A protein (or a duplex) built from chains. A plain value.
struct ORV_WORKFLOW_EXPORT ProteinComplex
{
    QString name;
    QString sequence;        ///< those of its chains, one behind the other; follows from the chains
    QList<int> chainNumbers; ///< one that occurs twice stands twice
    int disulfides = 0;      ///< bonds, each of which costs two hydrogens
    QList<int> samplesIds;   ///< in which it is expected, empty for all
    std::optional<double> monoisotopicMassDa; ///< follows from the chains, unset when one has no mass
    std::optional<double> averageMassDa;      ///< as above
    QMap<QString, QVariant> otherCells;       ///< of columns that this version doesn't know, written back

    bool operator==(const ProteinComplex &) const = default;
};

} // namespace orv
