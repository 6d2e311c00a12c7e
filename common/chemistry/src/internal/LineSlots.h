#pragma once

#include <QString>
#include <QStringList>

/// Texts some of whose lines are rows of a table, while the others stand as they are.
namespace orv::Internal {

using IsRow = bool (*)(const QString &line);

/// \a text with \a rows in the places of its rows. Missing rows take their lines away, further ones stand
/// behind the last row, or else in front of the first line that is \a marker, or else at the end.
[[nodiscard]] QString withRows(const QString &text, const QStringList &rows, IsRow isRow,
                               const QString &marker);

} // namespace orv::Internal
