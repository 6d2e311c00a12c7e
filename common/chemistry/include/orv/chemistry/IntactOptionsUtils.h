#pragma once

#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

/// The table of deconvolution options, for intact proteins and for oligonucleotides; docs/formats.md lists
/// the columns. Stateless, any thread.
namespace orv::IntactOptionsUtils {

/// One row for denatured, protonated samples.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

} // namespace orv::IntactOptionsUtils
