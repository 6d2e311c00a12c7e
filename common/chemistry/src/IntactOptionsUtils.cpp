#include "internal/IntactOptionsColumns.h"
#include "internal/Tables.h"

#include <orv/chemistry/IntactOptionsUtils.h>

namespace orv::IntactOptionsUtils {

using namespace Internal::IntactOptionsColumns;
using namespace Qt::StringLiterals;

RowNode defaultRowNode()
{
    RowNode table = Internal::tableOf(
        {kName, kMinimumMz, kMaximumMz, kMinimumMass, kMaximumMass, kMinimumCharge, kMaximumCharge, kAdduct});
    table.addNewChild({u"Denatured"_s, 600.0, 9000.0, 500.0, 200000.0, 5, 100, u"H"_s});
    return table;
}

} // namespace orv::IntactOptionsUtils
