#pragma once

#include "TableStore.h"

#include <QList>
#include <QString>

#include <functional>
#include <variant>

namespace orv {

struct TableCellChange
{
    quint32 row = 0; ///< its id
    int column = 0;
    TableSlot before;
    TableSlot after;
};

/// Rows that come or go. What they hold lies in the store all the time.
struct TableRowsChange
{
    QList<int> places; ///< ascending, with these rows in their places
    QList<quint32> rows;
    bool isInsertion = true;
};

/// From the first to the last place where rows stand otherwise.
struct TableOrderChange
{
    int first = 0;
    QList<quint32> before;
    QList<quint32> after;
};

/// From one order of the same rows to another.
[[nodiscard]] TableOrderChange orderChange(const QList<quint32> &before, const QList<quint32> &after);
[[nodiscard]] QList<quint32> withChange(QList<quint32> order, const TableOrderChange &change);

using TableStep = std::variant<QList<TableCellChange>, TableRowsChange, TableOrderChange>;

/// The same step the other way.
[[nodiscard]] TableStep inverse(const TableStep &step);

/// One entry of a table's history.
class TableEdit
{
public:
    /// Does steps one after the other; whoever owns the history outlives this.
    using Take = std::function<void(const QList<TableStep> &)>;

    TableEdit(Take take, QList<TableStep> steps, const QString &text);

    [[nodiscard]] const QString &text() const { return m_text; }
    void undo() const;
    void redo() const;

    [[nodiscard]] qsizetype heldBytes() const;

private:
    Take m_take;
    QList<TableStep> m_steps;
    QString m_text;
};

} // namespace orv
