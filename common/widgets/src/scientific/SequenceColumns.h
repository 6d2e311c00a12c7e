#pragma once

#include <orv/chemistry/SequenceFigures.h>
#include <orv/table_model/TableColumn.h>

#include <functional>
#include <memory>

namespace orv {

/// What the columns that follow from a sequence go by. Shared by the columns of a sheet.
class SequenceSource
{
public:
    ChemicalFactory factory = ChemicalFactory::defaultFactory();
    std::optional<ProteinDigestionItem> rule;
    DigestionLimits limits;
    bool isMassNeeded = true; ///< letters that stand for several amino acids aren't allowed then

    /// Several columns of one row ask one after another, and pay once.
    [[nodiscard]] const SequenceFigures &figuresOf(const QString &sequence, ChainType type);
    [[nodiscard]] const DigestFigures &digestOf(const QString &sequence);
    /// After a change of what stands above.
    void forget();

    /// Why a sequence may not stand, or nothing.
    [[nodiscard]] QString problemOf(const QString &sequence, ChainType type);

private:
    QString m_sequence;
    ChainType m_type = ChainType::Protein;
    std::optional<SequenceFigures> m_figures;
    QString m_digested;
    std::optional<DigestFigures> m_digest;
};

enum class SequenceFigure
{
    Length,
    MonoisotopicMass,
    AverageMass,
    Formula,
    CleavageSites,
    Coverage,
};

/// The type of the chain in a row.
using ChainTypeOfRow = std::function<ChainType(const QStringList &texts)>;

/// A column named "length", "monoisotopic", "average", "formula", "sites" or "coverage".
[[nodiscard]] TableColumn sequenceFigureColumn(SequenceFigure figure,
                                               const std::shared_ptr<SequenceSource> &source, int sequenceAt,
                                               const ChainTypeOfRow &typeOf);

/// Masses as tables show them: as many digits as formulas give.
[[nodiscard]] QString textOfMonoisotopicMass(std::optional<double> massDa);
[[nodiscard]] QString textOfAverageMass(std::optional<double> massDa);

} // namespace orv
