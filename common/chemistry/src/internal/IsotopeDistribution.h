#pragma once

#include "Elements.h"

#include <orv/chemistry/IsotopeUtils.h>

#include <QList>

#include <vector>

namespace orv::Internal {

/// How the molecules of a formula share out by their number of nucleons, with the mean mass of each share.
/// Convolution keeps shares and means exact; what is cut off at the far ends to keep a protein's distribution
/// short is far below every cutoff of an envelope.
class IsotopeDistribution
{
public:
    /// Of no atoms.
    IsotopeDistribution() = default;
    /// Of one atom as nature has it.
    explicit IsotopeDistribution(const Element &element);

    /// Of the atoms of both together.
    [[nodiscard]] IsotopeDistribution with(const IsotopeDistribution &other) const;
    /// Of so many times the atoms, by doubling.
    [[nodiscard]] IsotopeDistribution times(qint64 count) const;

    /// Shares of \a cutoff and above, lightest first.
    [[nodiscard]] QList<IsotopePeak> peaks(double cutoff) const;

private:
    struct Share
    {
        double abundance = 0.0;
        double weightedMassDa = 0.0; ///< mass beyond the base, times the abundance
    };

    void cutEnds();

    double m_baseDa = 0.0;                   ///< added to the mass of every share
    std::vector<Share> m_shares{{1.0, 0.0}}; ///< by nucleons beyond those of the first
};

} // namespace orv::Internal
