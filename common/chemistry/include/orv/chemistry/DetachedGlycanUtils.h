#pragma once

#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

/// Tables of released glycans and of the options by which their masses are calculated; docs/formats.md lists
/// the columns. Stateless, any thread.
namespace orv::DetachedGlycanUtils {

/// A table without glycans: the columns alone.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultTableRowNode();

/// The common mammalian monosaccharides, protonated, neither labelled nor derivatised.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultOptionsRowNode();

} // namespace orv::DetachedGlycanUtils
