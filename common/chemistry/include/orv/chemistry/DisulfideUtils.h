#pragma once

#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

/// The table of disulfide bonds; docs/formats.md lists the columns. Stateless, any thread.
namespace orv::Disulfide::DisulfideUtils {

/// A table without bonds: the columns alone.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

} // namespace orv::Disulfide::DisulfideUtils
