#pragma once

#include <orv/core/Result.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QString>

/// Tables as text. Cells that are texts and would read as a number have an apostrophe in front, as in
/// spreadsheets, so that numbers and texts keep apart. Rows below rows aren't written. Any thread.
namespace orv::TableSerializer {

/// For people: the columns' names and then a line for each row, with tabulators between the cells.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString toUserFriendlyString(const RowNode &table);

/// For programs: the same as CSV (RFC 4180).
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString toString(const RowNode &table);
/// The same of what toUserFriendlyString() gave, or somebody typed like it.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString toString(const QString &userFriendlyText);

/// Reads what toString() gave; an empty text is an empty table. InvalidContent with "Row %1 contains invalid
/// data" for a row that hasn't as many cells as there are columns, counted from 1 without the header, and for
/// what is no CSV.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT Result<RowNode> toTable(const QString &text);

} // namespace orv::TableSerializer
