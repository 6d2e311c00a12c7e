#pragma once

#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

#include <QStringList>

/// The table of masses and the match tolerance beside it; docs/formats.md lists the columns. Stateless, any
/// thread.
namespace orv::MassUtils {

/// A table with \a rows empty rows; a negative count gives none.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode(int rows);

/// One row: 0.0 Dalton.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultMatchToleranceRowNode();

/// "Dalton" and "ppm", in this order.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList possibleMassToleranceUnits();

} // namespace orv::MassUtils
