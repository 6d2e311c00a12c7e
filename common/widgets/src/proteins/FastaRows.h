#pragma once

#include <orv/core/Result.h>

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

namespace orv {

/// Where the parts of a FASTA entry go in the rows of a sheet; -1 for nowhere.
struct FastaColumns
{
    int width = 0; ///< columns of the sheet
    int name = -1;
    int description = -1;
    int sequence = -1;
};

/// The rows of a FASTA text; nothing for another text. Of a text with a fault nothing is taken; the error
/// tells the line.
[[nodiscard]] std::optional<Result<QList<QStringList>>> readFastaRows(const QByteArray &text,
                                                                      const FastaColumns &columns);

} // namespace orv
