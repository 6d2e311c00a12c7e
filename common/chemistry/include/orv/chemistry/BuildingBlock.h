#pragma once

#include <orv/core/Export.h>

#include <QMap>
#include <QString>
#include <QVariant>

namespace orv {

/// The place of a building block in an oligonucleotide.
enum class BuildingBlockType : int
{
    Base,
    Sugar,
    Linker,
    FivePrimeEnd,
    ThreePrimeEnd,
};

/// A piece of an oligonucleotide. A plain value.
struct ORV_WORKFLOW_EXPORT BuildingBlock
{
    QString symbol; ///< by which sequences name it; letters' case counts
    QString name;
    QString type;    ///< see ChemicalFactory::buildingBlockType
    QString formula; ///< what it adds to the chain, that is without what its bonds have cost it
    QMap<QString, QVariant> otherCells; ///< of columns that this version doesn't know, written back

    bool operator==(const BuildingBlock &) const = default;
};

} // namespace orv
