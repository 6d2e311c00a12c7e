#pragma once

#include <orv/chemistry/BuildingBlock.h>
#include <orv/chemistry/ChemicalFormula.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QSharedDataPointer>
#include <QString>

#include <optional>

namespace orv {

/// What a sequence is made of.
enum class ChainType : int
{
    Protein, ///< amino acids in one-letter code
    Dna,     ///< nucleotides on 2'-deoxyribose
    Rna,     ///< nucleotides on ribose
};

/// Makes formulas of sequences. A plain value that shares its data; any thread.
///
/// An oligonucleotide is read from its 5' end. A letter is a base on the chain's sugar; "[Um]" names base and
/// sugar, "[I]" a base alone; a "*" behind it makes the bond to the next one a phosphorothioate; a "p" in
/// front or at the end is a phosphate there. A single sequence may so be written `[Te]*[5mCe]*A*G`.
/// docs/formats.md lists the default building blocks.
class ORV_WORKFLOW_EXPORT ChemicalFactory
{
public:
    /// Longest sequence, in residues or nucleotides.
    static constexpr int kMaximumLength = 100'000;

    /// The twenty common amino acids with selenocysteine, and the default building blocks. Made on first use.
    [[nodiscard]] static const ChemicalFactory &defaultFactory();

    ~ChemicalFactory();
    ChemicalFactory(const ChemicalFactory &other);
    ChemicalFactory &operator=(const ChemicalFactory &other);

    /// This factory with further building blocks; one of the same type and symbol as an earlier one takes its
    /// place. InvalidContent for a block without symbol, of an unknown type, or with a formula that can't be
    /// read.
    [[nodiscard]] Result<ChemicalFactory> withBuildingBlocks(const QList<BuildingBlock> &blocks) const;
    [[nodiscard]] QList<BuildingBlock> buildingBlocks() const;

    /// The whole neutral molecule of an unmodified chain with free ends. InvalidContent with the place as
    /// detail for a letter that stands for no single residue (as B, J, O, X and Z for amino acids), and for
    /// an empty or too long sequence.
    [[nodiscard]] Result<ChemicalFormula> formula(const QString &sequence, ChainType type) const;

    /// The type that a table names, in any case of letters; nothing for another text.
    [[nodiscard]] static std::optional<BuildingBlockType> buildingBlockType(const QString &text);
    [[nodiscard]] static QString buildingBlockTypeToString(BuildingBlockType type);

    /// Before format version 5.31.0 the formula of a building block was that of the free compound; today it
    /// is what the block adds. Takes away what the bonds of \a type cost: a base H, a sugar OH and two H, a
    /// linker two OH, an end OH. InvalidContent for a formula that can't be read.
    [[nodiscard]] static Result<QString> convertOldOligoBuildingBlockFormula(const QString &formula,
                                                                             BuildingBlockType type);

private:
    struct Data;
    explicit ChemicalFactory(QSharedDataPointer<Data> data);

    QSharedDataPointer<Data> d;
};

} // namespace orv
