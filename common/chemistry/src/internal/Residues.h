#pragma once

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/core/Result.h>

#include <QString>

namespace orv::Internal {

/// A chain of amino acids with water for its ends; see ChemicalFactory::formula.
[[nodiscard]] Result<ChemicalFormula> proteinFormula(const QString &sequence);

/// Text as it stands in an error, with the place of a letter counted from 1.
[[nodiscard]] Error badSequence(const QString &reason, qsizetype index);

} // namespace orv::Internal
