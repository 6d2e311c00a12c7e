#pragma once

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QString>

namespace orv {

/// A largest difference between two masses. A plain value.
struct ORV_WORKFLOW_EXPORT MassTolerance
{
    double value = 0.0;
    QString unit = kDalton;     ///< one of MassUtils::possibleMassToleranceUnits()
    QJsonObject unknownMembers; ///< read from a file of a newer version, written back as they stand

    /// The difference in Da that is allowed at \a massDa.
    [[nodiscard]] double inDaltonAt(double massDa) const;

    /// InvalidContent for a value that is negative or no number, and for an unknown unit. Absent members keep
    /// the values of \a defaults.
    [[nodiscard]] static Result<MassTolerance> fromJson(const QJsonObject &object,
                                                        const MassTolerance &defaults);
    [[nodiscard]] QJsonObject toJson() const;

    bool operator==(const MassTolerance &) const = default;
};

} // namespace orv
