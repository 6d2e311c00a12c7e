#include "orv/chemistry/ProteinComplexList.h"

namespace orv {

const Chain *ChainList::find(int number) const
{
    const auto chain = std::find_if(m_chains.cbegin(), m_chains.cend(),
                                    [&](const Chain &candidate) { return candidate.number == number; });
    return chain == m_chains.cend() ? nullptr : &*chain;
}

} // namespace orv
