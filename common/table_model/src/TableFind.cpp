#include "orv/table_model/TableFind.h"

#include <orv/table_model/TableModel.h>

#include <QCoreApplication>

#include <deque>

namespace orv::TableFind {

namespace {

struct TableFindTr
{
    Q_DECLARE_TR_FUNCTIONS(TableFind)
};

bool holds(const TableModel &model, const TableSearch &search, int row, int column)
{
    const QString shown = model.index(row, column).data().toString();
    const auto sensitivity = search.isCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    return search.isWholeCell ? shown.compare(search.text, sensitivity) == 0
                              : shown.contains(search.text, sensitivity);
}

QString replaced(const TableModel &model, const TableSearch &search, const QModelIndex &cell,
                 const QString &replacement)
{
    QString shown = cell.data().toString();
    if (search.isWholeCell)
        shown = replacement;
    else
        shown.replace(search.text, replacement,
                      search.isCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
    return model.sheet()->columns()[cell.column()].kept(shown, model.decimalSign());
}

/// A long text in many cells would fill the memory before the sheet refuses it.
Error checkRoom(const TableModel &model, const TableSearch &search, const QModelIndexList &cells,
                const QString &replacement)
{
    qsizetype units = 0;
    for (const QModelIndex &cell : cells) {
        const QString shown = cell.data().toString();
        const auto sensitivity = search.isCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
        units += shown.size() + shown.count(search.text, sensitivity) * replacement.size();
    }
    return model.sheet()->checkRoom(units);
}

Result<int> replaceIn(const TableModel &model, const TableSearch &search, const QModelIndexList &cells,
                      const QString &replacement)
{
    std::deque<QString> texts;
    QList<TableCellText> changes;
    if (Error error = checkRoom(model, search, cells, replacement); error.hasError())
        return error.ecatch();
    for (const QModelIndex &cell : cells) {
        if (!cell.flags().testFlag(Qt::ItemIsEditable))
            continue;
        const QString &text = texts.emplace_back(replaced(model, search, cell, replacement));
        changes.append({model.sheetRow(cell.row()), cell.column(), text});
    }
    Error error = model.sheet()->setCells(changes, TableFindTr::tr("replace"));
    if (error.hasError())
        return error.ecatch();
    return int(changes.size());
}

QModelIndexList found(const TableModel &model, const TableSearch &search, int atMost)
{
    QModelIndexList cells;
    for (int row = 0; row < model.rowCount() && !search.text.isEmpty(); ++row) {
        for (const int column : search.columns) {
            if (!holds(model, search, row, column))
                continue;
            cells.append(model.index(row, column));
            if (cells.size() == atMost)
                return cells;
        }
    }
    return cells;
}

} // namespace

QModelIndex next(const TableModel &model, const TableSearch &search, const QModelIndex &from,
                 Direction direction)
{
    const qint64 width = search.columns.size();
    const qint64 cells = width * model.rowCount();
    if (search.text.isEmpty() || cells == 0)
        return {};
    const qint64 column = std::max<qint64>(search.columns.indexOf(from.column()), 0);
    const bool isForward = direction == Direction::Forward;
    const qint64 start = from.isValid() ? from.row() * width + column : isForward ? cells - 1 : 0;
    for (qint64 step = 1; step <= cells; ++step) {
        const qint64 at = (start + (isForward ? step : cells - step)) % cells;
        const auto row = int(at / width);
        const int inColumn = search.columns[at % width];
        if (holds(model, search, row, inColumn))
            return model.index(row, inColumn);
    }
    return {};
}

int count(const TableModel &model, const TableSearch &search, int atMost)
{
    return int(found(model, search, atMost).size());
}

Result<int> replaceAll(const TableModel &model, const TableSearch &search, const QString &replacement)
{
    return replaceIn(model, search, found(model, search, -1), replacement);
}

Result<int> replace(const TableModel &model, const TableSearch &search, const QModelIndex &cell,
                    const QString &replacement)
{
    if (!cell.isValid() || search.text.isEmpty() || !holds(model, search, cell.row(), cell.column()))
        return 0;
    return replaceIn(model, search, {cell}, replacement);
}

} // namespace orv::TableFind
