#pragma once

#include <orv/chemistry/Chain.h>
#include <orv/chemistry/ProteinComplex.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QString>

namespace orv {

/// A protein that stands for all combinations of chains, such as the half antibodies and mispaired forms of a
/// bispecific one. Its name says which:
///
///     Auto(HC1:0-2,HC2:0-2,LC:0-2)
///
/// A plain value.
class ORV_WORKFLOW_EXPORT ProteinAutoPopulateOptions
{
public:
    static constexpr int kMaximumCopies = 100;
    static constexpr int kMaximumProteins = 10'000;

    /// How often a chain may occur.
    struct Part
    {
        QString chain; ///< its name
        int minimum = 0;
        int maximum = 1;

        bool operator==(const Part &) const = default;
    };

    /// Whether a protein of this name stands for combinations, as fromString reads it.
    [[nodiscard]] static bool mayConvert(const QString &name);

    /// "HC:2" is short for "HC:2-2", "HC" for "HC:0-1". Blanks around parts don't count. InvalidContent with
    /// the place as detail for any other text, a chain that stands twice, and counts out of order or above
    /// 100.
    [[nodiscard]] static Result<ProteinAutoPopulateOptions> fromString(const QString &name);
    [[nodiscard]] QString toString() const;

    [[nodiscard]] const QList<Part> &parts() const { return m_parts; }

    /// A protein for each combination of at least one chain, named as "HC1-HC1-LC". InvalidContent for a
    /// chain that \a chains doesn't have, and for more than 10,000 combinations.
    [[nodiscard]] Result<QList<ProteinComplex>> proteins(const QList<Chain> &chains) const;

    bool operator==(const ProteinAutoPopulateOptions &) const = default;

private:
    QList<Part> m_parts;
};

} // namespace orv
