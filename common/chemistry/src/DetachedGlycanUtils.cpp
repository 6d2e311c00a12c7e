#include "orv/chemistry/DetachedGlycanUtils.h"

#include "internal/GlycanColumns.h"
#include "internal/Tables.h"

#include <array>

namespace orv::DetachedGlycanUtils {

namespace {

namespace GlycanColumns = Internal::GlycanColumns;

struct OptionRow
{
    QLatin1String kind;
    QLatin1String name;
    QLatin1String formula;
};

constexpr std::array kDefaultOptions = {
    OptionRow{GlycanColumns::kMoiety, QLatin1String("Hex"), QLatin1String("C6H10O5")},
    OptionRow{GlycanColumns::kMoiety, QLatin1String("HexNAc"), QLatin1String("C8H13NO5")},
    OptionRow{GlycanColumns::kMoiety, QLatin1String("Fuc"), QLatin1String("C6H10O4")},
    OptionRow{GlycanColumns::kMoiety, QLatin1String("NeuAc"), QLatin1String("C11H17NO8")},
    OptionRow{GlycanColumns::kMoiety, QLatin1String("NeuGc"), QLatin1String("C11H17NO9")},
    OptionRow{GlycanColumns::kAdduct, QLatin1String("H"), QLatin1String("H")},
};

} // namespace

RowNode defaultTableRowNode()
{
    return Internal::tableOf({GlycanColumns::kName, GlycanColumns::kComposition, GlycanColumns::kMass,
                              GlycanColumns::kLabel, GlycanColumns::kRetentionTime});
}

RowNode defaultOptionsRowNode()
{
    RowNode table = Internal::tableOf(
        {GlycanColumns::kKind, GlycanColumns::kName, GlycanColumns::kFormula, GlycanColumns::kComplete});
    for (const OptionRow &row : kDefaultOptions)
        table.addNewChild({QString(row.kind), QString(row.name), QString(row.formula), true});
    return table;
}

} // namespace orv::DetachedGlycanUtils
