#include "OligoBlocks.h"

#include <orv/chemistry/ChemicalFactory.h>

#include <array>

namespace orv::Internal {

namespace {

struct Row
{
    BuildingBlockType type;
    QLatin1String symbol;
    QLatin1String name;
    QLatin1String formula; ///< bases without the hydrogen of their bond, sugars without one OH and two H
};

using Type = BuildingBlockType;
using Text = QLatin1String;

constexpr std::array kRows = {
    Row{Type::Base, Text("A"), Text("adenine"), Text("C5H4N5")},
    Row{Type::Base, Text("C"), Text("cytosine"), Text("C4H4N3O")},
    Row{Type::Base, Text("G"), Text("guanine"), Text("C5H4N5O")},
    Row{Type::Base, Text("T"), Text("thymine"), Text("C5H5N2O2")},
    Row{Type::Base, Text("U"), Text("uracil"), Text("C4H3N2O2")},
    Row{Type::Base, Text("I"), Text("hypoxanthine"), Text("C5H3N4O")},
    Row{Type::Base, Text("5mC"), Text("5-methylcytosine"), Text("C5H6N3O")},
    Row{Type::Sugar, Text("d"), Text("2'-deoxyribose"), Text("C5H7O3")},
    Row{Type::Sugar, Text("r"), Text("ribose"), Text("C5H7O4")},
    Row{Type::Sugar, Text("m"), Text("2'-O-methylribose"), Text("C6H9O4")},
    Row{Type::Sugar, Text("e"), Text("2'-O-methoxyethylribose"), Text("C8H13O5")},
    Row{Type::Sugar, Text("f"), Text("2'-fluoro-2'-deoxyribose"), Text("C5H6FO3")},
    Row{Type::Sugar, Text("l"), Text("2'-O,4'-C-methyleneribose"), Text("C6H7O4")},
    Row{Type::Linker, Text("p"), Text("phosphodiester"), Text("HO2P")},
    Row{Type::Linker, Text("*"), Text("phosphorothioate"), Text("HOPS")},
    Row{Type::FivePrimeEnd, Text("OH"), Text("hydroxyl"), Text("H")},
    Row{Type::FivePrimeEnd, Text("p"), Text("phosphate"), Text("H2O3P")},
    Row{Type::ThreePrimeEnd, Text("OH"), Text("hydroxyl"), Text("H")},
    Row{Type::ThreePrimeEnd, Text("p"), Text("phosphate"), Text("H2O3P")},
};

} // namespace

QList<BuildingBlock> defaultOligoBlocks()
{
    QList<BuildingBlock> blocks;
    for (const Row &row : kRows)
        blocks.append(
            {row.symbol, row.name, ChemicalFactory::buildingBlockTypeToString(row.type), row.formula, {}});
    return blocks;
}

} // namespace orv::Internal
