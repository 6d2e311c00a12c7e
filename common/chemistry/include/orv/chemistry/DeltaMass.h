#pragma once

#include <orv/core/Export.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace orv {

/// One row of a mass table: a mass that is expected, or a difference by which masses are. A plain value.
struct ORV_WORKFLOW_EXPORT DeltaMass
{
    int id = 0; ///< of the row while it is edited, 0 for none
    QString name;
    std::optional<double> massDa;       ///< may be negative
    QString unreadableMass;             ///< what stands where the mass should, when it is no number
    QString protein;                    ///< to which it belongs, empty for all
    QList<int> samplesIds;              ///< to which it belongs, empty for all
    QMap<QString, QVariant> otherCells; ///< of columns that this version doesn't know, written back
    QMap<QString, QVariant> cellsAsRead =
        {}; ///< cells that mean less than they hold, by column; written back

    /// Nothing is filled in, but perhaps an id.
    [[nodiscard]] bool isEmpty() const;

    bool operator==(const DeltaMass &) const = default;
};

} // namespace orv
