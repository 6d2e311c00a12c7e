#include "internal/MassColumns.h"
#include "internal/Tables.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/MassUtils.h>

namespace orv::MassUtils {

using namespace Internal::MassColumns;

RowNode defaultRowNode(int rows)
{
    RowNode table = Internal::tableOf({kName, kMass, kProtein, kSamplesIds});
    for (int i = 0; i < rows; ++i)
        table.addNewChildMatchRootDataSize();
    return table;
}

RowNode defaultMatchToleranceRowNode()
{
    RowNode table = Internal::tableOf({kMassToleranceValue, kMassToleranceUnit});
    table.addNewChild({0.0, possibleMassToleranceUnits().constFirst()});
    return table;
}

QStringList possibleMassToleranceUnits()
{
    return {kDalton, kppm};
}

} // namespace orv::MassUtils
