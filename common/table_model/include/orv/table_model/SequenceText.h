#pragma once

#include <orv/core/Export.h>

#include <QList>
#include <QString>
#include <QStringView>

/// Sequences of amino acids and nucleotides as people read them: in blocks of ten with positions. What stands
/// in brackets belongs to the residue before it and has no position of its own. Any thread.
namespace orv::SequenceText {

inline constexpr int kBlock = 10;

/// A stretch of a sequence with ten residues, the last one with fewer.
struct Block
{
    QStringView text;
    qsizetype lastPosition = 0; ///< of its last residue, counted from 1
};

/// Views into \a sequence; \a atMost so many of them, all for -1.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<Block> blocks(QStringView sequence, qsizetype atMost = -1);

[[nodiscard]] ORV_WORKFLOW_EXPORT qsizetype residueCount(QStringView sequence);

/// "PEPTIDEKPE PTIDEK".
[[nodiscard]] ORV_WORKFLOW_EXPORT QString blocked(QStringView sequence);

/// Lines of \a blocksPerLine blocks with the position of their first residue in front; what is longer than
/// \a atMostLines ends with "...".
[[nodiscard]] ORV_WORKFLOW_EXPORT QString lines(QStringView sequence, int blocksPerLine = 6,
                                                int atMostLines = 1000);

enum class LetterCase
{
    Capital,
    Kept, ///< of nucleotides, whose small letters name other blocks
};

/// What a person typed or pasted, without blanks and without the positions between blocks, in upper case
/// unless modifications stand in it, whose case tells.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString plain(QStringView typed,
                                                LetterCase letterCase = LetterCase::Capital);

} // namespace orv::SequenceText
