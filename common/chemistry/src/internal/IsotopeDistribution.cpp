#include "IsotopeDistribution.h"

#include <algorithm>
#include <cmath>

namespace orv::Internal {

namespace {

/// Together with the number of convolutions of a formula this stays far below one in a billion.
constexpr double kNegligible = 1e-13;

} // namespace

IsotopeDistribution::IsotopeDistribution(const Element &element)
{
    const auto byMass = [](const Element::Isotope &a, const Element::Isotope &b) {
        return a.massDa < b.massDa;
    };
    const auto [lightest, heaviest] =
        std::minmax_element(element.isotopes.begin(), element.isotopes.end(), byMass);
    m_baseDa = lightest->massDa;
    m_shares.assign(size_t(std::lround(heaviest->massDa) - std::lround(lightest->massDa)) + 1, {});
    double sum = 0.0;
    for (const Element::Isotope &isotope : element.isotopes)
        sum += isotope.abundance;
    for (const Element::Isotope &isotope : element.isotopes) {
        Share &share = m_shares[size_t(std::lround(isotope.massDa) - std::lround(lightest->massDa))];
        share.abundance += isotope.abundance / sum;
        share.weightedMassDa += isotope.abundance / sum * (isotope.massDa - m_baseDa);
    }
}

IsotopeDistribution IsotopeDistribution::with(const IsotopeDistribution &other) const
{
    IsotopeDistribution both;
    both.m_baseDa = m_baseDa + other.m_baseDa;
    both.m_shares.assign(m_shares.size() + other.m_shares.size() - 1, {});
    for (size_t i = 0; i < m_shares.size(); ++i) {
        const Share &a = m_shares[i];
        for (size_t j = 0; j < other.m_shares.size(); ++j) {
            const Share &b = other.m_shares[j];
            Share &share = both.m_shares[i + j];
            share.abundance += a.abundance * b.abundance;
            share.weightedMassDa += a.weightedMassDa * b.abundance + a.abundance * b.weightedMassDa;
        }
    }
    both.cutEnds();
    return both;
}

IsotopeDistribution IsotopeDistribution::times(qint64 count) const
{
    IsotopeDistribution result;
    IsotopeDistribution power = *this;
    for (; count > 0; count /= 2) {
        if (count % 2 == 1)
            result = result.with(power);
        if (count > 1)
            power = power.with(power);
    }
    return result;
}

QList<IsotopePeak> IsotopeDistribution::peaks(double cutoff) const
{
    QList<IsotopePeak> peaks;
    for (const Share &share : m_shares) {
        if (share.abundance >= cutoff)
            peaks.append({m_baseDa + share.weightedMassDa / share.abundance, share.abundance});
    }
    return peaks;
}

void IsotopeDistribution::cutEnds()
{
    double cut = 0.0;
    while (m_shares.size() > 1 && cut + m_shares.back().abundance < kNegligible) {
        cut += m_shares.back().abundance;
        m_shares.pop_back();
    }
    // The base stays that of the lightest molecules, so that no mass moves.
    size_t first = 0;
    for (; first + 1 < m_shares.size() && cut + m_shares[first].abundance < 2 * kNegligible; ++first)
        cut += m_shares[first].abundance;
    m_shares.erase(m_shares.begin(), m_shares.begin() + std::ptrdiff_t(first));
}

} // namespace orv::Internal
