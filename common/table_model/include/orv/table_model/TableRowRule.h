#pragma once

#include <orv/core/Export.h>
#include <orv/table_model/TableColumn.h>

#include <QList>
#include <QString>
#include <QStringView>

#include <functional>

namespace orv {

/// What is wrong with a row, told at one of its cells.
struct TableRowProblem
{
    int column = 0;
    QString reason;
};

/// A rule across the cells of a row: what isn't allowed about it, one problem per cell that is to be marked.
/// It gets the kept texts of all columns, which are valid during the call; some may not be allowed by the
/// rules of their own columns. Called often. For what stands only once in a column see TableColumn::isUnique.
using TableRowRule = std::function<QList<TableRowProblem>(const QList<QStringView> &texts)>;

/// Rules that many tables have.
namespace TableRules {

enum class Bounds
{
    MayBeEqual,
    MustDiffer,
};

/// The number in the column named \a lower doesn't lie above that in \a upper; both cells are marked. Cells
/// without a number are passed over.
///
/// \code
///     sheet.setRowRules({TableRules::inOrder(sheet.columns(), "from", "to")});
/// \endcode
[[nodiscard]] ORV_WORKFLOW_EXPORT TableRowRule inOrder(const QList<TableColumn> &columns,
                                                       const QString &lower, const QString &upper,
                                                       Bounds bounds = Bounds::MayBeEqual);

/// One of these columns isn't empty; the first of them is marked.
[[nodiscard]] ORV_WORKFLOW_EXPORT TableRowRule anyGiven(const QList<TableColumn> &columns,
                                                        const QStringList &names);

} // namespace TableRules

} // namespace orv
