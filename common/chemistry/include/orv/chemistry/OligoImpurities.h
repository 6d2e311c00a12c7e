#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>

namespace orv {

/// Impurities that are expected beside the full length product of an oligonucleotide synthesis. A plain
/// value.
struct ORV_WORKFLOW_EXPORT OligoImpurities
{
    /// No count may be larger: longer molecules than this aren't synthesised.
    static constexpr int kMaximumCount = 1000;

    int fivePrimeTruncations = 3;  ///< nucleotides, at most, that are missing at the 5' end
    int threePrimeTruncations = 3; ///< nucleotides, at most, that are missing at the 3' end
    int additions = 1;             ///< nucleotides, at most, that stand twice
    int baseLosses = 1;            ///< bases, at most, in whose place water was added
    bool sulfurLoss = true;        ///< phosphodiester where a phosphorothioate should be
    QJsonObject unknownMembers;    ///< read from a file of a newer version, written back as they stand

    /// Absent members keep their defaults, so that an empty object reads as a default one. InvalidContent for
    /// members of another type or out of range.
    [[nodiscard]] static Result<OligoImpurities> fromJson(const QJsonObject &object);
    [[nodiscard]] QJsonObject toJson() const;

    bool operator==(const OligoImpurities &) const = default;
};

} // namespace orv
