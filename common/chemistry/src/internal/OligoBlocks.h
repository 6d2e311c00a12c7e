#pragma once

#include <orv/chemistry/BuildingBlock.h>
#include <orv/chemistry/ChemicalFormula.h>

#include <QHash>
#include <QList>

namespace orv::Internal {

/// Formulas of building blocks, by type and symbol.
class OligoBlocks
{
public:
    void insert(BuildingBlockType type, const QString &symbol, const ChemicalFormula &formula)
    {
        m_formulas[type].insert(symbol, formula);
    }
    /// Null where there is none.
    [[nodiscard]] const ChemicalFormula *find(BuildingBlockType type, const QString &symbol) const
    {
        const auto ofType = m_formulas.constFind(type);
        if (ofType == m_formulas.cend())
            return nullptr;
        const auto formula = ofType->constFind(symbol);
        return formula == ofType->cend() ? nullptr : &*formula;
    }

private:
    QHash<BuildingBlockType, QHash<QString, ChemicalFormula>> m_formulas;
};

/// What every factory knows.
[[nodiscard]] QList<BuildingBlock> defaultOligoBlocks();

} // namespace orv::Internal
