#pragma once

#include "TableOrder.h"

#include <orv/table_model/TableModel.h>

namespace orv {

/// Which rows a model shows in which order, kept up with the edits of its sheet.
class TableModel::Private
{
public:
    Private(TableModel *model, TableSheet *ofModel)
        : q(model)
        , sheet(ofModel)
    {}

    void follow();
    void goOnWithoutSheet(const QList<TableColumn> &columns);
    void reload();
    void insert(const QList<int> &rowsOfSheet);
    void remove(const QList<quint32> &ids);
    void tellChanged(const QList<quint32> &ids, int firstColumn, int lastColumn, const QList<int> &roles);
    void reorder();
    [[nodiscard]] QString noteOf(const QModelIndex &index) const
    {
        return notes ? notes(shown.at(index.row()), index.column()) : QString();
    }
    [[nodiscard]] QString toolTip(const QModelIndex &index) const;
    [[nodiscard]] QVariant rowHeader(int row, int role) const;

    [[nodiscard]] QList<quint32> filtered(const QList<quint32> &ids) const;
    void show(QList<quint32> ids);
    void permute(TableOrder next);
    void removeRun(const RowRun &run);
    void insertRun(const RowRun &run, const TableOrder &next);

    TableModel *q;
    TableSheet *sheet;
    QLocale locale;
    NumberText::DecimalSign sign = NumberText::signOf(QLocale());
    TableOrder shown;
    QList<quint32> sorted; ///< all rows, while sortColumn isn't -1
    int sortColumn = -1;
    TableFilter filter;
    QList<int> hiddenColumns;
    Notes notes;
    QHash<quint32, TableRowRemark> remarks;
    bool isNarrowingAllowed = false; ///< what isn't shown can't match a longer text
};

} // namespace orv
