#pragma once

#include <orv/table/RowNode.h>
#include <orv/table/rn.h>

namespace orv::Internal {

/// What the writers leave to the entries of the rows of a table, which open an object and an array each.
inline constexpr int kLevelsOfRowEntries = rn::kMaxNesting - 4;

/// Whether the writers would write it, without writing it, into as many levels.
[[nodiscard]] bool isWritable(const QVariant &cell, int levels);
[[nodiscard]] bool isWritable(const RowNode &node, int levels);

} // namespace orv::Internal
