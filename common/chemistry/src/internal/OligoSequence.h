#pragma once

#include "OligoBlocks.h"

#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/ChemicalFormula.h>
#include <orv/core/Result.h>

#include <QString>

namespace orv::Internal {

/// An oligonucleotide of these blocks; see ChemicalFactory for how it is written. \a type isn't Protein.
[[nodiscard]] Result<ChemicalFormula> oligoFormula(const QString &sequence, ChainType type,
                                                   const OligoBlocks &blocks);

} // namespace orv::Internal
