#pragma once

#include <orv/chemistry/DeltaMass.h>
#include <orv/chemistry/MassTolerance.h>
#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

#include <QList>
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

/// The rows in their order, empty ones too. A mass that stands as text is read if it is a number.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<DeltaMass> deltaMassesFromRowNode(const RowNode &table);

/// The table with the column `Id` in front, which is for the widget alone: RowNode::removeColumn takes it
/// away.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode deltaMassesToRowNode(const QList<DeltaMass> &masses);

/// InvalidContent for a table without row, and for a value or unit that is none.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<MassTolerance> matchToleranceFromRowNode(const RowNode &table);
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode matchToleranceToRowNode(const MassTolerance &tolerance);

/// Whether masses can be matched in the samples with these ids. Errors: a row with a mass that is no number
/// or without mass, and one whose samples have all gone. Warnings: a row without name, one that names some
/// sample that has gone, and one that repeats another's name, mass, protein and samples. Empty rows are fine.
/// The lists may be null, and are appended to.
ORV_WORKFLOW_EXPORT bool validate(const QList<DeltaMass> &masses, const QList<int> &samplesIds,
                                  QStringList *errors, QStringList *warnings);

} // namespace orv::MassUtils
