#include "ProteinDigest.h"

#include <orv/chemistry/ProteinGenerator.h>

namespace orv {

QList<DigestedPeptide> digestOfProtein(const QString &sequence,
                                       const std::optional<ProteinDigestionItem> &rule,
                                       const DigestionLimits &limits, int most)
{
    if (!rule)
        return {};
    const Result<QList<DigestedPeptide>> peptides =
        rule->digest(ProteinGenerator::cleanSequence(sequence, ChainType::Protein), limits);
    return peptides.hasError() ? QList<DigestedPeptide>() : peptides->mid(0, most);
}

} // namespace orv
