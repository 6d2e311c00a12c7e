#include "internal/DisulfideColumns.h"
#include "internal/Tables.h"

#include <orv/chemistry/DisulfideUtils.h>

namespace orv::Disulfide::DisulfideUtils {

using namespace Internal::DisulfideColumns;

RowNode defaultRowNode()
{
    return Internal::tableOf({kFirstChain, kFirstPosition, kSecondChain, kSecondPosition});
}

} // namespace orv::Disulfide::DisulfideUtils
