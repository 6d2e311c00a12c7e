#pragma once

#include <orv/chemistry/BuildingBlock.h>
#include <orv/chemistry/Chain.h>
#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/MassCalculator.h>
#include <orv/chemistry/ProteinComplex.h>
#include <orv/chemistry/ProteinComplexList.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QString>

namespace orv {

class CustomSettings;

/// Makes proteins with their sequences and masses from the tables that users fill in:
/// \code
///     ProteinGenerator generator(true, nullptr);
///     ORV_RETURN_IF_ERROR(generator.init(table, CustomSettings()));
///     for (const ProteinComplex &protein : generator.proteinComplexList().proteinList())
///         use(protein.name, protein.averageMassDa);
/// \endcode
/// docs/formats.md lists the tables' columns. Not thread-safe, but different generators may run on different
/// threads.
class ORV_WORKFLOW_EXPORT ProteinGenerator
{
public:
    /// What the tables of intact proteins and oligonucleotides hold. A plain value.
    struct ORV_WORKFLOW_EXPORT InputOptions
    {
        /// A table beside those known here.
        struct OtherTable
        {
            QString name;
            RowNode table;

            bool operator==(const OtherTable &) const = default;
        };

        QList<Chain> chains;
        QList<ProteinComplex> proteins; ///< without sequences and masses
        QList<BuildingBlock> buildingBlocks;
        QList<OtherTable> otherTables; ///< written back as they stand

        /// The tables, which parseInputOptions reads back as equal options.
        [[nodiscard]] RowNode toRowNode() const;

        bool operator==(const InputOptions &) const = default;
    };

    /// Reads the tables below \a root, absent ones as empty. A chain without number gets that of its row. A
    /// plain table of sequences (see init) reads as custom chains and a protein for each. InvalidContent with
    /// table and row as details: a number that two chains have, a protein of a chain that isn't there, an
    /// unknown type of chain, a count of disulfides that is none.
    [[nodiscard]] static Result<InputOptions> parseInputOptions(const RowNode &root);

    [[nodiscard]] static MassCalculator createMassCalculator(MassType type) { return MassCalculator(type); }

    /// A sequence as it comes from text fields and files, without line breaks and blanks. Proteins get
    /// capital letters; oligonucleotides name building blocks by letters whose case counts.
    [[nodiscard]] static QString cleanSequence(const QString &text, ChainType type);

    /// With \a keepUnknownMasses a chain without formula stays, and its proteins have no masses; without, it
    /// makes init fail. \a factory is copied; null stands for the default one.
    explicit ProteinGenerator(bool keepUnknownMasses, const ChemicalFactory *factory = nullptr);

    /// Reads the tables of intact proteins and oligonucleotides, or a plain table of sequences, which has the
    /// columns ProteinSequence and ProteinAccessionName or ProteinAliasName, or Sequence and Name. There each
    /// row is a chain and a protein. Blanks in sequences don't count, nor does the case of letters in those
    /// of proteins; plain rows without sequence make no protein. No setting has a say in proteins so far. On
    /// a failure the lists are empty.
    Error init(const RowNode &root, const CustomSettings &settings);
    Error init(const RowNode &root);

    [[nodiscard]] const ProteinComplexList &proteinComplexList() const { return m_proteins; }

private:
    Error build(InputOptions options);

    bool m_keepUnknownMasses;
    ChemicalFactory m_factory;
    ProteinComplexList m_proteins;
};

} // namespace orv
