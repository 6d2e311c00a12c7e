#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QModelIndex>
#include <QString>

namespace orv {

class TableModel;

/// What is looked for in the cells that are shown. A plain value.
struct TableSearch
{
    QString text;
    bool isCaseSensitive = false;
    bool isWholeCell = false;
    QList<int> columns; ///< in the order in which they are shown
};

/// Find and replace over the rows that a model shows, in what people see of them. GUI thread.
namespace TableFind {

enum class Direction
{
    Forward,
    Backward,
};

/// The nearest cell behind (or before) \a from, row by row, and from the other end on where there is none; an
/// invalid index where nothing is found or looked for. \a from itself comes last.
[[nodiscard]] ORV_WORKFLOW_EXPORT QModelIndex next(const TableModel &model, const TableSearch &search,
                                                   const QModelIndex &from, Direction direction);

/// How many cells hold it, up to \a atMost.
[[nodiscard]] ORV_WORKFLOW_EXPORT int count(const TableModel &model, const TableSearch &search, int atMost);

/// Replaces it in every cell that holds it and may be edited, in one step of the history; how many cells.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<int> replaceAll(const TableModel &model, const TableSearch &search,
                                                         const QString &replacement);

/// The same in one cell; 0 where it doesn't hold it.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<int> replace(const TableModel &model, const TableSearch &search,
                                                      const QModelIndex &cell, const QString &replacement);

} // namespace TableFind

} // namespace orv
