#pragma once

#include <orv/core/Export.h>
#include <orv/table/RowNode.h>
#include <orv/table_model/RecordSheet.h>

#include <memory>

namespace orv {

/// A table of JSON, whatever it holds, as a table that people edit. Columns that a program knows look as it
/// says; all others, cells of any type and what rows have beyond their header come back as they were. GUI
/// thread.
class ORV_WORKFLOW_EXPORT RowNodeSheet
{
public:
    /// A table without rows has the \a known columns, which go by their names.
    explicit RowNodeSheet(QList<TableColumn> known = {});

    /// Another one takes its place with each load() that succeeds. Who shows it holds it.
    [[nodiscard]] std::shared_ptr<TableSheet> sheet() const;

    /// Shows the columns of \a table and behind them the known ones that it lacks. As TableSheet::load(); the
    /// old table stays on a failure.
    [[nodiscard]] Error load(const RowNode &table);
    /// The table as it was loaded while nothing is edited; a known column that it lacked is added with the
    /// first text in it.
    [[nodiscard]] RowNode table() const;

    [[nodiscard]] bool isEdited() const { return m_rows->isEdited(); }

private:
    using Rows = RecordSheet<RowNode>;
    [[nodiscard]] Rows::Columns columnsFor(const VariantItems &header) const;

    QList<TableColumn> m_known;
    RowNode m_loaded;
    std::shared_ptr<Rows> m_rows;
};

} // namespace orv
