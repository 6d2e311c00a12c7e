#pragma once

#include <orv/chemistry/Chain.h>
#include <orv/chemistry/ProteinComplex.h>
#include <orv/core/Export.h>

#include <QList>

namespace orv {

/// Chains in the order of their table. A plain value.
class ORV_WORKFLOW_EXPORT ChainList
{
public:
    ChainList() = default;
    explicit ChainList(QList<Chain> chains)
        : m_chains(std::move(chains))
    {}

    [[nodiscard]] const QList<Chain> &toVector() const { return m_chains; }
    /// Null where there is none of that number; good while the list isn't changed.
    [[nodiscard]] const Chain *find(int number) const;

private:
    QList<Chain> m_chains;
};

/// Proteins and the chains that they are built from. A plain value.
class ORV_WORKFLOW_EXPORT ProteinComplexList
{
public:
    ProteinComplexList() = default;
    ProteinComplexList(QList<Chain> chains, QList<ProteinComplex> proteins)
        : m_chains(std::move(chains))
        , m_proteins(std::move(proteins))
    {}

    [[nodiscard]] const ChainList &chainList() const { return m_chains; }
    [[nodiscard]] const QList<ProteinComplex> &proteinList() const { return m_proteins; }

private:
    ChainList m_chains;
    QList<ProteinComplex> m_proteins;
};

} // namespace orv
