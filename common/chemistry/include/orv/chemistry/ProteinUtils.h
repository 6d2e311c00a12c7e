#pragma once

#include <orv/chemistry/Chain.h>
#include <orv/chemistry/ProteinComplex.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QStringList>

/// Tables of proteins; docs/formats.md lists the columns. Stateless, any thread.
namespace orv::ProteinUtils {

/// The table of proteins, without rows.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

/// The tables of chains, of the proteins built from them and of their building blocks, all without rows.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultInputRowNode();

/// The protein that is this one chain and nothing else: its name, sequence and masses, for all samples.
[[nodiscard]] ORV_WORKFLOW_EXPORT ProteinComplex mirrorChain(const Chain &chain);

/// Whether proteins can be expected in the samples with these ids. Errors: a building block that can't be
/// used, a chain without sequence or with one that has no formula, a protein without chains, one with more
/// disulfide bonds than pairs of cysteines, and one whose samples have all gone. Warnings: an id or name that
/// two chains have, a protein without name, a chain that no protein uses, and a protein for some sample that
/// has gone. A protein whose name stands for combinations (see ProteinAutoPopulateOptions) needs no chains
/// but must find those that it names. The lists may be null, and are appended to.
ORV_WORKFLOW_EXPORT bool validate(const ProteinGenerator::InputOptions &options, const QList<int> &samplesIds,
                                  QStringList *errors, QStringList *warnings);

} // namespace orv::ProteinUtils
