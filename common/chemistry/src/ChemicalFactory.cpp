#include "orv/chemistry/ChemicalFactory.h"

#include "internal/OligoBlocks.h"
#include "internal/OligoSequence.h"
#include "internal/Residues.h"

#include <QCoreApplication>

#include <array>

namespace orv {

namespace {

struct TypeRow
{
    BuildingBlockType type;
    QLatin1String name;
    QLatin1String costOfBonds; ///< what the free compound has more than the block in its chain
};

constexpr std::array kTypes = {
    TypeRow{BuildingBlockType::Base, QLatin1String("Base"), QLatin1String("H")},
    TypeRow{BuildingBlockType::Sugar, QLatin1String("Sugar"), QLatin1String("H3O")},
    TypeRow{BuildingBlockType::Linker, QLatin1String("Linker"), QLatin1String("H2O2")},
    TypeRow{BuildingBlockType::FivePrimeEnd, QLatin1String("FivePrimeEnd"), QLatin1String("HO")},
    TypeRow{BuildingBlockType::ThreePrimeEnd, QLatin1String("ThreePrimeEnd"), QLatin1String("HO")},
};

const TypeRow &rowOf(BuildingBlockType type)
{
    return *std::find_if(kTypes.begin(), kTypes.end(), [&](const TypeRow &row) { return row.type == type; });
}

struct ChemicalFactoryTr
{
    Q_DECLARE_TR_FUNCTIONS(ChemicalFactory)
};

Error badBlock(const BuildingBlock &block, const QString &reason)
{
    return Error(ErrorCode::InvalidContent,
                 ChemicalFactoryTr::tr("A building block of oligonucleotides can't be used."))
        .addDetail(ChemicalFactoryTr::tr("It is \"%1\" of the type \"%2\". %3")
                       .arg(block.symbol, block.type, reason));
}

} // namespace

struct ChemicalFactory::Data : QSharedData
{
    QList<BuildingBlock> list;
    Internal::OligoBlocks blocks;
};

ChemicalFactory::ChemicalFactory(QSharedDataPointer<Data> data)
    : d(std::move(data))
{}
ChemicalFactory::ChemicalFactory(const ChemicalFactory &other) = default;
ChemicalFactory &ChemicalFactory::operator=(const ChemicalFactory &other) = default;
ChemicalFactory::~ChemicalFactory() = default;

const ChemicalFactory &ChemicalFactory::defaultFactory()
{
    static const ChemicalFactory factory = [] {
        const ChemicalFactory empty{QSharedDataPointer<Data>(new Data)};
        return empty.withBuildingBlocks(Internal::defaultOligoBlocks()).value();
    }();
    return factory;
}

Result<ChemicalFactory> ChemicalFactory::withBuildingBlocks(const QList<BuildingBlock> &blocks) const
{
    ChemicalFactory factory = *this;
    for (const BuildingBlock &block : blocks) {
        const std::optional<BuildingBlockType> type = buildingBlockType(block.type);
        if (!type)
            return badBlock(block, ChemicalFactoryTr::tr("There is no such type."));
        if (block.symbol.isEmpty())
            return badBlock(block, ChemicalFactoryTr::tr("It has no symbol."));
        Result<ChemicalFormula> formula = ChemicalFormula::parse(block.formula);
        if (formula.hasError()) {
            return formula.ecatch().addDetail(
                ChemicalFactoryTr::tr("It belongs to the building block \"%1\".").arg(block.symbol));
        }
        factory.d->list.removeIf([&](const BuildingBlock &other) {
            return other.symbol == block.symbol && buildingBlockType(other.type) == type;
        });
        factory.d->list.append(block);
        factory.d->blocks.insert(*type, block.symbol, *formula);
    }
    return factory;
}

QList<BuildingBlock> ChemicalFactory::buildingBlocks() const
{
    return d->list;
}

Result<ChemicalFormula> ChemicalFactory::formula(const QString &sequence, ChainType type) const
{
    if (sequence.isEmpty() || sequence.size() > 8LL * kMaximumLength) {
        return Error(ErrorCode::InvalidContent, ChemicalFactoryTr::tr("A sequence has no formula."))
            .addDetail(sequence.isEmpty() ? ChemicalFactoryTr::tr("It is empty.")
                                          : ChemicalFactoryTr::tr("It is too long."));
    }
    Result<ChemicalFormula> formula = type == ChainType::Protein
                                          ? Internal::proteinFormula(sequence)
                                          : Internal::oligoFormula(sequence, type, d->blocks);
    if (formula.hasError())
        return formula.ecatch();
    return formula;
}

std::optional<BuildingBlockType> ChemicalFactory::buildingBlockType(const QString &text)
{
    for (const TypeRow &row : kTypes) {
        if (text.trimmed().compare(row.name, Qt::CaseInsensitive) == 0)
            return row.type;
    }
    return std::nullopt;
}

QString ChemicalFactory::buildingBlockTypeToString(BuildingBlockType type)
{
    return rowOf(type).name;
}

Result<QString> ChemicalFactory::convertOldOligoBuildingBlockFormula(const QString &formula,
                                                                     BuildingBlockType type)
{
    Result<ChemicalFormula> free = ChemicalFormula::parse(formula);
    if (free.hasError())
        return free.ecatch();
    const Result<ChemicalFormula> cost = ChemicalFormula::parse(rowOf(type).costOfBonds);
    return (*free - *cost).toString();
}

} // namespace orv
