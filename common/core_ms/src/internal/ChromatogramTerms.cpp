#include "ChromatogramTerms.h"

#include <algorithm>

namespace orv::msreader::internal {

namespace {

struct TermRow
{
    const char *accession;
    ChromatogramType type;
};

constexpr TermRow kTerms[] = {
#include "ChromatogramTerms.inc"
};

} // namespace

ChromatogramType chromatogramTypeOf(const QStringList &terms)
{
    for (const QString &term : terms) {
        const auto *const row = std::ranges::find_if(
            kTerms, [&term](const TermRow &r) { return term == QLatin1String(r.accession); });
        if (row != std::end(kTerms))
            return row->type;
    }
    return ChromatogramType::Other;
}

} // namespace orv::msreader::internal
