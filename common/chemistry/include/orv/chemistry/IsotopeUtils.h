#pragma once

#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

/// The table of isotope labels; docs/formats.md lists the columns. Stateless, any thread.
namespace orv::IsotopeUtils {

/// One row that labels nothing: carbon 13 at its natural abundance. A table without any row breaks the rule
/// of its property.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

} // namespace orv::IsotopeUtils
