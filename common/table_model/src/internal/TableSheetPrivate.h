#pragma once

#include "TableChecks.h"
#include "TableEdit.h"
#include "TableOrder.h"
#include "TableStore.h"

#include <orv/table_model/TableSheet.h>

#include <vector>

namespace orv {

/// What a sheet holds, and how the steps of its history are taken.
class TableSheet::Private
{
public:
    Private(TableSheet *sheet, QList<TableColumn> columnsOfSheet);

    void push(QList<TableStep> steps, const QString &name);
    /// Everything is changed before anybody hears of it, so that listeners may edit or delete the sheet.
    void take(const QList<TableStep> &steps);
    void change(const TableStep &step);
    void tell(const TableStep &step) const;

    quint32 addRow(const QStringList &texts);
    quint32 addDefaultRow();
    [[nodiscard]] std::vector<TableSlot> keepAll(const QList<TableCellText> &cells);
    void tellCells(const QList<TableCellChange> &cells) const;

    TableSheet *q;
    QList<TableColumn> columns;
    TableStore store;
    TableOrder order;
    TableChecks checks = {columns, store, order};
    TableHistory *history;
    int lookedUpTo = 0;
};

} // namespace orv
