#include "orv/chemistry/MassCalculator.h"

#include <pwiz/utility/chemistry/Chemistry.hpp>

namespace orv {

double MassCalculator::mass(const ChemicalFormula &formula) const
{
    return m_type == MassType::Average ? formula.averageMass() : formula.monoisotopicMass();
}

double MassCalculator::mz(const ChemicalFormula &formula, int charge) const
{
    Q_ASSERT(charge != 0);
    return (mass(formula) + charge * pwiz::chemistry::Proton) / std::abs(charge);
}

} // namespace orv
