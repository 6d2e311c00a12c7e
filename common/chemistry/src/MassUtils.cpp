#include "orv/chemistry/MassUtils.h"

#include "internal/MassColumns.h"
#include "internal/TableRows.h"
#include "internal/Tables.h"

#include <orv/chemistry/ChemistryConstants.h>

#include <QCoreApplication>

#include <array>

namespace orv::MassUtils {

namespace MassColumns = Internal::MassColumns;

namespace {

struct MassUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(MassUtils)
};

using MassCell = Internal::ValueCell<DeltaMass>;

void readMass(DeltaMass *mass, const QVariant &cell)
{
    mass->massDa = Internal::numberOf(cell);
    mass->unreadableMass = mass->massDa || Internal::isEmptyCell(cell) ? QString() : cell.toString();
}

QVariant massCellOf(const DeltaMass &mass)
{
    return mass.massDa || mass.unreadableMass.isEmpty() ? Internal::cellOf(mass.massDa)
                                                        : QVariant(mass.unreadableMass);
}

// In the order of the columns.
constexpr std::array kMassCells = {
    MassCell{kId, [](DeltaMass *mass, const QVariant &cell) { mass->id = Internal::intOf(cell).value_or(0); },
             [](const DeltaMass &mass) { return QVariant(mass.id); }},
    MassCell{MassColumns::kName, [](DeltaMass *mass, const QVariant &cell) { mass->name = cell.toString(); },
             [](const DeltaMass &mass) { return QVariant(mass.name); }},
    MassCell{MassColumns::kMass, readMass, massCellOf},
    MassCell{MassColumns::kProtein,
             [](DeltaMass *mass, const QVariant &cell) { mass->protein = cell.toString(); },
             [](const DeltaMass &mass) { return QVariant(mass.protein); }},
    MassCell{MassColumns::kSamplesIds,
             [](DeltaMass *mass, const QVariant &cell) { mass->samplesIds = Internal::intsOf(cell); },
             // A list without samples is a list.
             [](const DeltaMass &mass) {
                 return QVariant(QVariantList(mass.samplesIds.begin(), mass.samplesIds.end()));
             }},
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
        Internal::readCells(rows, i, kMassCells, &mass);
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
    for (const DeltaMass &mass : masses)
        rows.addRow(Internal::writtenCells(mass, kMassCells), mass.otherCells);
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
