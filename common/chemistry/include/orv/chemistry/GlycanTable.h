#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include <optional>

namespace orv {

/// A released glycan that is expected in the samples. A plain value.
struct ORV_WORKFLOW_EXPORT Glycan
{
    QString name;
    QString composition;          ///< for GlycanComposition, which may refuse it; or empty
    std::optional<double> massDa; ///< of the neutral, unlabelled glycan; unset: follows from the composition
    QString label;                ///< name of the label at its reducing end, empty for none
    std::optional<double> retentionTimeMinutes;
    QMap<QString, QVariant> otherCells; ///< of columns that this version doesn't know, written back
    QMap<QString, QVariant> cellsAsRead =
        {}; ///< cells that mean less than they hold, by column; written back

    bool operator==(const Glycan &) const = default;
};

/// The table of released glycans. A plain value.
class ORV_WORKFLOW_EXPORT GlycanTable
{
public:
    GlycanTable() = default;
    explicit GlycanTable(QList<Glycan> glycans)
        : m_glycans(std::move(glycans))
    {}

    /// No cell is refused: what is no number or no composition stays in its row, and is written back.
    [[nodiscard]] static Result<GlycanTable> fromRowNode(const RowNode &table);
    [[nodiscard]] RowNode toRowNode() const;

    [[nodiscard]] const QList<Glycan> &glycans() const { return m_glycans; }

    bool operator==(const GlycanTable &) const = default;

private:
    QList<Glycan> m_glycans;
};

} // namespace orv
