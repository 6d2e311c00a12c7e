#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QString>

#include <vector>

namespace orv {

/// How many ends of a peptide must lie where the enzyme cuts or the protein ends. Stored in files, never
/// renumber.
enum class DigestionSpecificity : int
{
    NonSpecific = 0,
    SemiSpecific = 1,    ///< one of them
    FullySpecific = 2,   ///< both
    RaggedNTerminus = 3, ///< the last residue's
    RaggedCTerminus = 4, ///< the first residue's
};

/// Which peptides of a digestion are wanted.
struct ORV_WORKFLOW_EXPORT DigestionLimits
{
    int missedCleavages = 0; ///< at most
    int minimumLength = 1;   ///< residues
    int maximumLength = 100000;
    DigestionSpecificity specificity = DigestionSpecificity::FullySpecific;
    bool cutsBeforeProline = true; ///< false for enzymes that leave the bond to a proline behind it alone
};

/// A piece of a digested protein.
struct ORV_WORKFLOW_EXPORT DigestedPeptide
{
    QString sequence;
    int offset = 0; ///< of the first residue in the protein, counted from 0
    int missedCleavages = 0;

    bool operator==(const DigestedPeptide &) const = default;
};

/// The rule by which an enzyme cuts proteins, as settings hold it:
///
///     Trypsin @ R,K | C-term
///
/// A name, the residues (one capital letter each), and the side of the residue on which the chain is cut:
/// "C-term" behind it, "N-term" before it. The text says nothing of what stands on the other side of the cut,
/// so that this trypsin cuts before proline too unless the limits of a digestion forbid it. Blanks around the
/// parts don't count. A plain value.
class ORV_WORKFLOW_EXPORT ProteinDigestionItem
{
public:
    /// Stored in files as texts.
    enum class Side : int
    {
        CTerm,
        NTerm,
    };

    /// InvalidContent with the place as detail for any other text.
    [[nodiscard]] static Result<ProteinDigestionItem> parse(const QString &text);
    /// Whether parse reads \a text.
    [[nodiscard]] static bool validate(const QString &text);

    [[nodiscard]] const QString &name() const { return m_name; }
    /// Each letter once, in the order of the text.
    [[nodiscard]] const QString &residues() const { return m_residues; }
    [[nodiscard]] Side side() const { return m_side; }
    /// The text in the form above, which parse reads back as an equal item.
    [[nodiscard]] QString toString() const;

    /// The peptides in the order of their place, shorter before longer, of a protein in one-letter code; any
    /// capital letter may be a residue. InvalidContent for other letters, for an empty or too long sequence
    /// (100,000 residues), for limits out of order, and for peptides with more than 50 million letters
    /// together. Any thread.
    [[nodiscard]] Result<QList<DigestedPeptide>> digest(const QString &sequence,
                                                        const DigestionLimits &limits = {}) const;

    bool operator==(const ProteinDigestionItem &) const = default;

private:
    [[nodiscard]] std::vector<qsizetype> cutPlaces(const QString &sequence, bool cutsBeforeProline) const;

    QString m_name;
    QString m_residues;
    Side m_side = Side::CTerm;
};

} // namespace orv
