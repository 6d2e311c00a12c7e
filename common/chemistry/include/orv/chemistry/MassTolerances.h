#pragma once

#include <orv/chemistry/MassTolerance.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>

namespace orv {

/// Within which differences deconvolved masses are assigned to an oligonucleotide and to its impurities. A
/// plain value.
struct ORV_WORKFLOW_EXPORT MassTolerances
{
    MassTolerance fullLengthProduct{10.0, kppm, {}};
    MassTolerance impurities{20.0, kppm, {}};
    QJsonObject unknownMembers; ///< read from a file of a newer version, written back as they stand

    /// Absent members keep their defaults, so that an empty object reads as a default one. InvalidContent for
    /// members of another type or out of range.
    [[nodiscard]] static Result<MassTolerances> fromJson(const QJsonObject &object);
    [[nodiscard]] QJsonObject toJson() const;

    bool operator==(const MassTolerances &) const = default;
};

} // namespace orv
