#include "internal/ProteinColumns.h"
#include "internal/TableRows.h"
#include "internal/Tables.h"

#include <orv/chemistry/ChainId.h>
#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/chemistry/ProteinUtils.h>

#include <QCoreApplication>
#include <QSet>

#include <array>

namespace orv {

namespace {

namespace ProteinColumns = Internal::ProteinColumns;
using Internal::TableReader;
using InputOptions = ProteinGenerator::InputOptions;

struct ProteinInputOptionsTr
{
    Q_DECLARE_TR_FUNCTIONS(ProteinGenerator)
};

struct ChainTypeName
{
    QLatin1String text;
    ChainType type;
};

constexpr std::array kChainTypes = {
    ChainTypeName{QLatin1String("Protein"), ChainType::Protein},
    ChainTypeName{QLatin1String("DNA"), ChainType::Dna},
    ChainTypeName{QLatin1String("RNA"), ChainType::Rna},
};

QString textOf(ChainType type)
{
    return std::find_if(kChainTypes.begin(), kChainTypes.end(),
                        [&](const ChainTypeName &row) { return row.type == type; })
        ->text;
}

Error badRow(QLatin1String table, int row, const QString &reason)
{
    return Error(ErrorCode::InvalidContent,
                 ProteinInputOptionsTr::tr("The tables of proteins can't be read."))
        .addDetail(
            ProteinInputOptionsTr::tr("Row %1 of the table \"%2\": %3").arg(row + 1).arg(table, reason));
}

/// No type is that of a protein.
Error readType(const TableReader &rows, int row, ChainType *type)
{
    const QString text = rows.text(row, ProteinColumns::kType).trimmed();
    if (text.isEmpty())
        return Error::NoError;
    const auto found = std::find_if(kChainTypes.begin(), kChainTypes.end(),
                                    [&](const ChainTypeName &candidate) { return candidate.text == text; });
    if (found == kChainTypes.end())
        return badRow(kChains, row,
                      ProteinInputOptionsTr::tr("There is no type \"%1\" of chains.").arg(text));
    *type = found->type;
    return Error::NoError;
}

Error readChains(const RowNode &table, QList<Chain> *chains)
{
    const TableReader rows(table,
                           {ProteinColumns::kNumber, ProteinColumns::kChainId, ProteinColumns::kName,
                            ProteinColumns::kSequence, ProteinColumns::kType,
                            ProteinColumns::kMonoisotopicMass, ProteinColumns::kAverageMass, kisCustom});
    QSet<int> numbers;
    for (int i = 0; i < rows.rowCount(); ++i) {
        Chain chain;
        chain.number = Internal::intOf(rows.cell(i, ProteinColumns::kNumber)).value_or(i + 1);
        if (chain.number < 1 || numbers.contains(chain.number)) {
            return badRow(
                kChains, i,
                ProteinInputOptionsTr::tr("The number %1 is below 1 or another chain's.").arg(chain.number));
        }
        numbers.insert(chain.number);
        chain.id = rows.text(i, ProteinColumns::kChainId);
        chain.name = rows.text(i, ProteinColumns::kName);
        chain.sequence = rows.text(i, ProteinColumns::kSequence);
        ORV_RETURN_IF_ERROR(readType(rows, i, &chain.type));
        chain.monoisotopicMassDa = Internal::numberOf(rows.cell(i, ProteinColumns::kMonoisotopicMass));
        chain.averageMassDa = Internal::numberOf(rows.cell(i, ProteinColumns::kAverageMass));
        chain.isCustom = rows.cell(i, kisCustom).toInt() != 0;
        chain.otherCells = rows.otherCells(i);
        chains->append(chain);
    }
    return Error::NoError;
}

Error readProteins(const RowNode &table, const QList<Chain> &chains, QList<ProteinComplex> *proteins)
{
    QSet<int> numbers;
    for (const Chain &chain : chains)
        numbers.insert(chain.number);
    const TableReader rows(table, {ProteinColumns::kName, ProteinColumns::kChainNumbers,
                                   ProteinColumns::kDisulfides, ProteinColumns::kSamplesIds});
    for (int i = 0; i < rows.rowCount(); ++i) {
        ProteinComplex protein;
        protein.name = rows.text(i, ProteinColumns::kName);
        protein.chainNumbers = Internal::intsOf(rows.cell(i, ProteinColumns::kChainNumbers));
        for (int number : std::as_const(protein.chainNumbers)) {
            if (!numbers.contains(number))
                return badRow(kProteins, i, ProteinInputOptionsTr::tr("There is no chain %1.").arg(number));
        }
        const QVariant disulfides = rows.cell(i, ProteinColumns::kDisulfides);
        protein.disulfides = Internal::isEmptyCell(disulfides) ? 0 : Internal::intOf(disulfides).value_or(-1);
        if (protein.disulfides < 0) {
            return badRow(kProteins, i,
                          ProteinInputOptionsTr::tr("\"%1\" is no count of disulfide bonds.")
                              .arg(disulfides.toString()));
        }
        protein.samplesIds = Internal::intsOf(rows.cell(i, ProteinColumns::kSamplesIds));
        protein.otherCells = rows.otherCells(i);
        proteins->append(protein);
    }
    return Error::NoError;
}

QList<BuildingBlock> readBuildingBlocks(const RowNode &table)
{
    const TableReader rows(table, {ProteinColumns::kSymbol, ProteinColumns::kName, ProteinColumns::kType,
                                   ProteinColumns::kFormula});
    QList<BuildingBlock> blocks;
    for (int i = 0; i < rows.rowCount(); ++i) {
        blocks.append({rows.text(i, ProteinColumns::kSymbol), rows.text(i, ProteinColumns::kName),
                       rows.text(i, ProteinColumns::kType), rows.text(i, ProteinColumns::kFormula),
                       rows.otherCells(i)});
    }
    return blocks;
}

RowNode writeChains(const QList<Chain> &chains)
{
    RowNode table = Internal::tableOf(
        {ProteinColumns::kNumber, ProteinColumns::kChainId, ProteinColumns::kName, ProteinColumns::kSequence,
         ProteinColumns::kType, ProteinColumns::kMonoisotopicMass, ProteinColumns::kAverageMass, kisCustom});
    Internal::TableWriter rows(&table);
    for (const Chain &chain : chains) {
        rows.addRow({chain.number, chain.id, chain.name, chain.sequence, textOf(chain.type),
                     Internal::cellOf(chain.monoisotopicMassDa), Internal::cellOf(chain.averageMassDa),
                     chain.isCustom ? 1 : 0},
                    chain.otherCells);
    }
    return table;
}

RowNode writeProteins(const QList<ProteinComplex> &proteins)
{
    RowNode table = Internal::tableOf({ProteinColumns::kName, ProteinColumns::kChainNumbers,
                                       ProteinColumns::kDisulfides, ProteinColumns::kSamplesIds});
    Internal::TableWriter rows(&table);
    for (const ProteinComplex &protein : proteins) {
        rows.addRow({protein.name, Internal::cellOf(protein.chainNumbers), protein.disulfides,
                     Internal::cellOf(protein.samplesIds)},
                    protein.otherCells);
    }
    return table;
}

RowNode writeBuildingBlocks(const QList<BuildingBlock> &blocks)
{
    RowNode table = Internal::tableOf(
        {ProteinColumns::kSymbol, ProteinColumns::kName, ProteinColumns::kType, ProteinColumns::kFormula});
    Internal::TableWriter rows(&table);
    for (const BuildingBlock &block : blocks)
        rows.addRow({block.symbol, block.name, block.type, block.formula}, block.otherCells);
    return table;
}

void append(RowNode *root, const QString &name, const RowNode &table)
{
    root->data.append(name);
    *root->addNewChild(VariantItems()) = table;
}

/// A table of sequences that isn't divided into chains and proteins.
InputOptions readPlainTable(const RowNode &table)
{
    const TableReader rows(table, {kProteinAccessionName, kProteinAliasName, kProteinSequence,
                                   ProteinColumns::kName, ProteinColumns::kSequence, kisCustom});
    InputOptions options;
    for (int i = 0; i < rows.rowCount(); ++i) {
        Chain chain;
        chain.otherCells = rows.otherCells(i);
        for (QLatin1String column : {kProteinAccessionName, kProteinAliasName, ProteinColumns::kName}) {
            const QString text = rows.text(i, column).trimmed();
            if (chain.name.isEmpty())
                chain.name = text;
            else if (!text.isEmpty())
                chain.otherCells.insert(column, text);
        }
        chain.sequence =
            rows.text(i, rows.hasColumn(kProteinSequence) ? kProteinSequence : ProteinColumns::kSequence);
        chain.isCustom = rows.cell(i, kisCustom).isNull() || rows.cell(i, kisCustom).toInt() != 0;
        chain.number = i + 1;
        chain.id = ChainId::createDefaultIdText(chain.number, {});
        options.chains.append(chain);
        ProteinComplex protein = ProteinUtils::mirrorChain(chain);
        protein.sequence.clear();
        options.proteins.append(protein);
    }
    return options;
}

} // namespace

RowNode ProteinGenerator::InputOptions::toRowNode() const
{
    RowNode root;
    append(&root, kChains, writeChains(chains));
    append(&root, kProteins, writeProteins(proteins));
    append(&root, kBuildingBlocks, writeBuildingBlocks(buildingBlocks));
    for (const OtherTable &other : otherTables)
        append(&root, other.name, other.table);
    return root;
}

Result<InputOptions> ProteinGenerator::parseInputOptions(const RowNode &root)
{
    if (!root.data.contains(kChains))
        return readPlainTable(root);
    const RowNode none;
    const auto table = [&](QLatin1String name) -> const RowNode & {
        const RowNode *child = root.getChild(static_cast<int>(root.data.indexOf(name)));
        return child ? *child : none;
    };
    InputOptions options;
    ORV_RETURN_IF_ERROR(readChains(table(kChains), &options.chains));
    ORV_RETURN_IF_ERROR(readProteins(table(kProteins), options.chains, &options.proteins));
    options.buildingBlocks = readBuildingBlocks(table(kBuildingBlocks));
    for (int i = 0; i < root.getChildListSize(); ++i) {
        const QString name = root.data.value(i).toString();
        if (name != kChains && name != kProteins && name != kBuildingBlocks)
            options.otherTables.append({name, *root.getChild(i)});
    }
    return options;
}

} // namespace orv
