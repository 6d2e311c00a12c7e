#pragma once

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/chemistry/GlycanTable.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

namespace orv {

/// What a piece of a glycan is.
enum class GlycanOptionKind : int
{
    Moiety,         ///< a monosaccharide
    Label,          ///< at the reducing end
    Adduct,         ///< carries a charge
    Derivatization, ///< on the functional groups
};

/// One chosen piece. A plain value.
struct ORV_WORKFLOW_EXPORT GlycanOption
{
    GlycanOptionKind kind = GlycanOptionKind::Moiety;
    QString name;
    ChemicalFormula formula;            ///< of a moiety the sugar without water, of the others what they add
    bool complete = true;               ///< on all molecules
    QMap<QString, QVariant> otherCells; ///< of columns that this version doesn't know, written back

    bool operator==(const GlycanOption &) const = default;
};

/// The chosen pieces from which masses of released glycans follow. A plain value.
class ORV_WORKFLOW_EXPORT GlycanOptions
{
public:
    GlycanOptions() = default;
    explicit GlycanOptions(QList<GlycanOption> options)
        : m_options(std::move(options))
    {}

    /// InvalidContent with the row as detail for an unknown kind, a missing name, a name that a kind has
    /// twice, and a formula that can't be read.
    [[nodiscard]] static Result<GlycanOptions> fromRowNode(const RowNode &table);
    [[nodiscard]] RowNode toRowNode() const;

    [[nodiscard]] const QList<GlycanOption> &options() const { return m_options; }
    /// Those of one kind, in their order.
    [[nodiscard]] QList<GlycanOption> ofKind(GlycanOptionKind kind) const;

    /// The neutral glycan with its label, not derivatised. InvalidContent for a composition that can't be
    /// read or is empty, and for a moiety or label that isn't among the options.
    [[nodiscard]] Result<ChemicalFormula> formula(const Glycan &glycan) const;

    bool operator==(const GlycanOptions &) const = default;

private:
    [[nodiscard]] const GlycanOption *find(GlycanOptionKind kind, const QString &name) const;

    QList<GlycanOption> m_options;
};

} // namespace orv
