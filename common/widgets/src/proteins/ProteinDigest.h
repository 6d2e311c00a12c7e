#pragma once

#include <orv/chemistry/ProteinDigestionItem.h>

#include <optional>

namespace orv {

/// The first \a most peptides of a sequence as it was typed; none without rule, and of what can't be
/// digested.
[[nodiscard]] QList<DigestedPeptide> digestOfProtein(const QString &sequence,
                                                     const std::optional<ProteinDigestionItem> &rule,
                                                     const DigestionLimits &limits, int most);

} // namespace orv
