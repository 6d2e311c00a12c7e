#pragma once

#include <orv/chemistry/Chain.h>
#include <orv/chemistry/ProteinComplex.h>
#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

/// Tables of proteins; docs/formats.md lists the columns. Stateless, any thread.
namespace orv::ProteinUtils {

/// The table of proteins, without rows.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

/// The tables of chains, of the proteins built from them and of their building blocks, all without rows.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultInputRowNode();

/// The protein that is this one chain and nothing else: its name, sequence and masses, for all samples.
[[nodiscard]] ORV_WORKFLOW_EXPORT ProteinComplex mirrorChain(const Chain &chain);

} // namespace orv::ProteinUtils
