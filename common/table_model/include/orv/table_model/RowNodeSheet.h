#pragma once

#include <orv/core/Export.h>
#include <orv/table_model/RowNodeBinding.h>

#include <memory>

namespace orv {

/// A table of JSON, whatever it holds, in a sheet of its own that has the columns of the table. Columns that
/// a program knows look as it says. What nobody edited comes back as RowNodeBinding tells. GUI thread.
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
    /// As RowNodeBinding::table().
    [[nodiscard]] RowNode table() const;

    /// As RowNodeBinding::noteOnUnshown().
    [[nodiscard]] QString noteOnUnshown() const;

private:
    struct Rows;
    [[nodiscard]] std::shared_ptr<Rows> rowsFor(const VariantItems &header) const;

    QList<TableColumn> m_known;
    std::shared_ptr<Rows> m_rows;
};

} // namespace orv
