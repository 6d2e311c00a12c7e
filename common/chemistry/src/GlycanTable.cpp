#include "orv/chemistry/GlycanTable.h"

#include "internal/GlycanColumns.h"
#include "internal/TableRows.h"

#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/GlycanComposition.h>

#include <QCoreApplication>

namespace orv {

namespace {

namespace GlycanColumns = Internal::GlycanColumns;

struct GlycanTableTr
{
    Q_DECLARE_TR_FUNCTIONS(GlycanTable)
};

Error badGlycan(int row, const QString &reason)
{
    return Error(ErrorCode::InvalidContent, GlycanTableTr::tr("The table of glycans can't be read."))
        .addDetail(GlycanTableTr::tr("Row %1: %2").arg(row + 1).arg(reason));
}

Error readNumber(const Internal::TableReader &rows, int row, QLatin1String column,
                 std::optional<double> *number)
{
    const QVariant cell = rows.cell(row, column);
    *number = Internal::numberOf(cell);
    if (!*number && !Internal::isEmptyCell(cell))
        return badGlycan(
            row, GlycanTableTr::tr("\"%1\" in the column \"%2\" is no number.").arg(cell.toString(), column));
    return Error::NoError;
}

} // namespace

Result<GlycanTable> GlycanTable::fromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(table,
                                     {GlycanColumns::kName, GlycanColumns::kComposition, GlycanColumns::kMass,
                                      GlycanColumns::kLabel, GlycanColumns::kRetentionTime});
    QList<Glycan> glycans;
    for (int i = 0; i < rows.rowCount(); ++i) {
        Glycan glycan;
        glycan.name = rows.text(i, GlycanColumns::kName);
        glycan.composition = rows.text(i, GlycanColumns::kComposition).trimmed();
        glycan.label = rows.text(i, GlycanColumns::kLabel);
        glycan.otherCells = rows.otherCells(i);
        ORV_RETURN_IF_ERROR(readNumber(rows, i, GlycanColumns::kMass, &glycan.massDa));
        ORV_RETURN_IF_ERROR(readNumber(rows, i, GlycanColumns::kRetentionTime, &glycan.retentionTimeMinutes));
        if (!glycan.composition.isEmpty()) {
            Result<GlycanComposition> composition = GlycanComposition::parse(glycan.composition);
            if (composition.hasError())
                return composition.ecatch().addDetail(
                    GlycanTableTr::tr("It stands in row %1 of the glycans.").arg(i + 1));
        }
        glycans.append(glycan);
    }
    return GlycanTable(std::move(glycans));
}

RowNode GlycanTable::toRowNode() const
{
    RowNode table = DetachedGlycanUtils::defaultTableRowNode();
    Internal::TableWriter rows(&table);
    for (const Glycan &glycan : m_glycans) {
        rows.addRow({glycan.name, glycan.composition, Internal::cellOf(glycan.massDa), glycan.label,
                     Internal::cellOf(glycan.retentionTimeMinutes)},
                    glycan.otherCells);
    }
    return table;
}

} // namespace orv
