#include "orv/chemistry/MassUtils.h"

#include "internal/MassColumns.h"
#include "internal/TableRows.h"
#include "internal/Tables.h"

#include <orv/chemistry/ChemistryConstants.h>

#include <QCoreApplication>

namespace orv::MassUtils {

namespace MassColumns = Internal::MassColumns;

namespace {

struct MassUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(MassUtils)
};

} // namespace

RowNode defaultRowNode(int rows)
{
    RowNode table = Internal::tableOf(
        {MassColumns::kName, MassColumns::kMass, MassColumns::kProtein, MassColumns::kSamplesIds});
    for (int i = 0; i < rows; ++i)
        table.addNewChildMatchRootDataSize();
    return table;
}

RowNode defaultMatchToleranceRowNode()
{
    return matchToleranceToRowNode({});
}

QStringList possibleMassToleranceUnits()
{
    return {kDalton, kppm};
}

QList<DeltaMass> deltaMassesFromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(table, {kId, MassColumns::kName, MassColumns::kMass,
                                             MassColumns::kProtein, MassColumns::kSamplesIds});
    QList<DeltaMass> masses;
    masses.reserve(rows.rowCount());
    for (int i = 0; i < rows.rowCount(); ++i) {
        DeltaMass mass;
        const QVariant massCell = rows.cell(i, MassColumns::kMass);
        mass.id = Internal::intOf(rows.cell(i, kId)).value_or(0);
        mass.name = rows.text(i, MassColumns::kName);
        mass.massDa = Internal::numberOf(massCell);
        if (!mass.massDa && !Internal::isEmptyCell(massCell))
            mass.unreadableMass = massCell.toString();
        mass.protein = rows.text(i, MassColumns::kProtein);
        mass.samplesIds = Internal::intsOf(rows.cell(i, MassColumns::kSamplesIds));
        mass.otherCells = rows.otherCells(i);
        masses.append(mass);
    }
    return masses;
}

RowNode deltaMassesToRowNode(const QList<DeltaMass> &masses)
{
    RowNode table = Internal::tableOf(
        {kId, MassColumns::kName, MassColumns::kMass, MassColumns::kProtein, MassColumns::kSamplesIds});
    Internal::TableWriter rows(&table);
    for (const DeltaMass &mass : masses) {
        const QVariant massCell = mass.massDa || mass.unreadableMass.isEmpty()
                                      ? Internal::cellOf(mass.massDa)
                                      : QVariant(mass.unreadableMass);
        // A list without samples is a list.
        const QVariantList samples(mass.samplesIds.begin(), mass.samplesIds.end());
        rows.addRow({mass.id, mass.name, massCell, mass.protein, samples}, mass.otherCells);
    }
    return table;
}

Result<MassTolerance> matchToleranceFromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(table, {kMassToleranceValue, kMassToleranceUnit});
    const std::optional<double> value = Internal::numberOf(rows.cell(0, kMassToleranceValue));
    const QString unit = rows.text(0, kMassToleranceUnit);
    if (rows.rowCount() < 1 || !value || *value < 0.0 || !possibleMassToleranceUnits().contains(unit)) {
        return Error(ErrorCode::InvalidContent,
                     MassUtilsTr::tr("The match tolerance of the masses can't be read."))
            .addDetail(MassUtilsTr::tr("The value is \"%1\" and must be a number that is not negative.")
                           .arg(rows.text(0, kMassToleranceValue)))
            .addDetail(MassUtilsTr::tr("The unit is \"%1\"; there are %2.")
                           .arg(unit, possibleMassToleranceUnits().join(QLatin1String(", "))));
    }
    return MassTolerance{*value, unit, {}};
}

RowNode matchToleranceToRowNode(const MassTolerance &tolerance)
{
    RowNode table = Internal::tableOf({kMassToleranceValue, kMassToleranceUnit});
    table.addNewChild({tolerance.value, tolerance.unit});
    return table;
}

} // namespace orv::MassUtils
