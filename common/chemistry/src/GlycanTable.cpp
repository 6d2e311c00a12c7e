#include "orv/chemistry/GlycanTable.h"

#include "internal/GlycanColumns.h"
#include "internal/TableRows.h"

#include <orv/chemistry/DetachedGlycanUtils.h>

#include <array>

namespace orv {

namespace {

namespace GlycanColumns = Internal::GlycanColumns;

using GlycanCell = Internal::ValueCell<Glycan>;

// In the order of the columns.
constexpr std::array kGlycanCells = {
    GlycanCell{GlycanColumns::kName,
               [](Glycan *glycan, const QVariant &cell) { glycan->name = cell.toString(); },
               [](const Glycan &glycan) { return QVariant(glycan.name); }},
    GlycanCell{GlycanColumns::kComposition,
               [](Glycan *glycan, const QVariant &cell) { glycan->composition = cell.toString().trimmed(); },
               [](const Glycan &glycan) { return QVariant(glycan.composition); }},
    GlycanCell{GlycanColumns::kMass,
               [](Glycan *glycan, const QVariant &cell) { glycan->massDa = Internal::numberOf(cell); },
               [](const Glycan &glycan) { return Internal::cellOf(glycan.massDa); }},
    GlycanCell{GlycanColumns::kLabel,
               [](Glycan *glycan, const QVariant &cell) { glycan->label = cell.toString(); },
               [](const Glycan &glycan) { return QVariant(glycan.label); }},
    GlycanCell{
        GlycanColumns::kRetentionTime,
        [](Glycan *glycan, const QVariant &cell) { glycan->retentionTimeMinutes = Internal::numberOf(cell); },
        [](const Glycan &glycan) { return Internal::cellOf(glycan.retentionTimeMinutes); }},
};

} // namespace

Result<GlycanTable> GlycanTable::fromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(table,
                                     {GlycanColumns::kName, GlycanColumns::kComposition, GlycanColumns::kMass,
                                      GlycanColumns::kLabel, GlycanColumns::kRetentionTime});
    QList<Glycan> glycans;
    glycans.reserve(rows.rowCount());
    for (int i = 0; i < rows.rowCount(); ++i) {
        Glycan glycan;
        Internal::readCells(rows, i, kGlycanCells, &glycan);
        glycan.otherCells = rows.otherCells(i);
        glycans.append(glycan);
    }
    return GlycanTable(std::move(glycans));
}

RowNode GlycanTable::toRowNode() const
{
    RowNode table = DetachedGlycanUtils::defaultTableRowNode();
    Internal::TableWriter rows(&table);
    for (const Glycan &glycan : m_glycans)
        rows.addRow(Internal::writtenCells(glycan, kGlycanCells), glycan.otherCells);
    return table;
}

} // namespace orv
