#include "internal/ProteinColumns.h"
#include "internal/Tables.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinUtils.h>

namespace orv::ProteinUtils {

using namespace Internal::ProteinColumns;

RowNode defaultRowNode()
{
    return Internal::tableOf({kProteinAccessionName, kProteinAliasName, kProteinSequence});
}

RowNode defaultInputRowNode()
{
    RowNode root = Internal::tableOf({kChains, kProteins, kBuildingBlocks});
    root.addNewChild(
        Internal::tableOf({kNumber, kChainId, kName, kSequence, kMonoisotopicMass, kAverageMass, kisCustom})
            .data);
    root.addNewChild(Internal::tableOf({kName, kChainNumbers, kDisulfides, kSamplesIds}).data);
    root.addNewChild(Internal::tableOf({kSymbol, kName, kType, kFormula}).data);
    return root;
}

} // namespace orv::ProteinUtils
