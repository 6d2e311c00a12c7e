#pragma once

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/core/Export.h>

namespace orv {

/// Which mass of an element counts.
enum class MassType : int
{
    Monoisotopic = 0, ///< of its most abundant isotope
    Average = 1,      ///< the mean over its natural isotopes
};

/// Masses of one type, in Da. A plain value; any thread.
class ORV_WORKFLOW_EXPORT MassCalculator
{
public:
    explicit MassCalculator(MassType type)
        : m_type(type)
    {}

    [[nodiscard]] MassType type() const { return m_type; }
    [[nodiscard]] double mass(const ChemicalFormula &formula) const;
    /// Mass over charge of a molecule with \a charge protons more, or fewer when it is negative. \a charge
    /// isn't 0. The proton's mass is ProteoWizard's.
    [[nodiscard]] double mz(const ChemicalFormula &formula, int charge) const;

private:
    MassType m_type;
};

} // namespace orv
