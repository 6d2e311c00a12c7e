#include "orv/chemistry/ProteinUtils.h"

#include "internal/Tables.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>

namespace orv::ProteinUtils {

RowNode defaultRowNode()
{
    return Internal::tableOf({kProteinAccessionName, kProteinAliasName, kProteinSequence});
}

RowNode defaultInputRowNode()
{
    return ProteinGenerator::InputOptions().toRowNode();
}

ProteinComplex mirrorChain(const Chain &chain)
{
    ProteinComplex protein;
    protein.name = chain.name;
    protein.sequence = chain.sequence;
    protein.chainNumbers = {chain.number};
    protein.monoisotopicMassDa = chain.monoisotopicMassDa;
    protein.averageMassDa = chain.averageMassDa;
    return protein;
}

} // namespace orv::ProteinUtils
