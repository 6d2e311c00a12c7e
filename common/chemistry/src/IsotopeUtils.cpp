#include "internal/IsotopeColumns.h"
#include "internal/Tables.h"

#include <orv/chemistry/IsotopeUtils.h>

namespace orv::IsotopeUtils {

using namespace Internal::IsotopeColumns;
using namespace Qt::StringLiterals;

RowNode defaultRowNode()
{
    RowNode table = Internal::tableOf({kName, kElement, kMassNumber, kEnrichment});
    // No enrichment stands for the natural abundance, which is nobody's to type in.
    table.addNewChild({u"Natural abundance"_s, u"C"_s, 13, QVariant()});
    return table;
}

} // namespace orv::IsotopeUtils
