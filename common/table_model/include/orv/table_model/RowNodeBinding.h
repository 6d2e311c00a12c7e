#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>
#include <orv/table_model/TableSheet.h>

#include <QHash>
#include <QStringList>

namespace orv {

/// Shows the table of a RowNode in a sheet and gives it back with what was edited there. Whatever nobody
/// edited comes back as it was: types of cells, columns that the sheet doesn't have, rows below rows, cells
/// beyond the header.
///
///     TableSheet sheet(columns);
///     RowNodeBinding rows(&sheet);
///     ORV_RETURN_IF_ERROR(rows.load(table));
///     ...
///     const RowNode edited = rows.table();
///
/// Columns are found by their names, the first one of the sheet with the first one of the table, and so on.
/// GUI thread, or the one of the sheet.
class ORV_WORKFLOW_EXPORT RowNodeBinding
{
public:
    /// The sheet outlives this. \a lists are the columns whose cells hold lists of whole numbers, shown with
    /// commas between. An edited cell is a number where the column is numeric or it held one before and the
    /// text is one, else a text.
    explicit RowNodeBinding(TableSheet *sheet, QStringList lists = {});

    /// Replaces all rows and forgets the history.
    [[nodiscard]] Error load(const RowNode &table);

    [[nodiscard]] RowNode table() const;

    /// Whether something was done since the load that hasn't been undone.
    [[nodiscard]] bool isEdited() const { return m_sheet->history()->index() > 0; }

    /// The columns that hold something and that the sheet doesn't have.
    [[nodiscard]] QStringList columnsNotShown() const;
    /// How many rows lie below rows, where the sheet shows none.
    [[nodiscard]] int rowsNotShown() const;
    /// How many cells hold something beyond the header.
    [[nodiscard]] int cellsBeyondHeader() const;
    /// All three in words for people, but for the columns of these names; empty for nothing.
    [[nodiscard]] QString noteOnUnshown(const QStringList &expected = {}) const;

    /// What a cell shows of a value: numbers with all their digits and a point, lists with commas.
    [[nodiscard]] static QString textOf(const QVariant &value);

private:
    [[nodiscard]] QVariant valueOf(int column, QStringView text, const QVariant &before) const;
    /// The place in \a table of each column of the sheet; missing ones that were filled in are added.
    [[nodiscard]] QList<int> placesIn(RowNode *table) const;
    [[nodiscard]] bool isFilledIn(int column) const;

    TableSheet *m_sheet;
    QStringList m_lists;
    RowNode m_original;
    QList<int> m_places; ///< in the original of each column of the sheet, -1 for none
};

} // namespace orv
