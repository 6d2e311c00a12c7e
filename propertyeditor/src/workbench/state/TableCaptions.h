#pragma once

#include <QString>

/// What people call the parts of a table that files name in their own way. Any thread, once a window was
/// made.
namespace orv::TableCaptions {

/// The title that tables show above the column of this name; the words of a name that no table of ours shows.
[[nodiscard]] QString ofColumn(const QString &name);

/// The last part of a difference's path, such as "row 2": counted from 1, as the rows of tables are.
[[nodiscard]] QString ofStep(const QString &step);

} // namespace orv::TableCaptions
