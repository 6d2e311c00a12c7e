#include "orv/table_model/TableSheet.h"

#include "internal/TableSheetPrivate.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <numeric>

namespace orv {

namespace {

struct TableSheetTr
{
    Q_DECLARE_TR_FUNCTIONS(TableSheet)
};

QList<int> ascendingRows(QList<int> rows, int rowCount)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    rows.removeIf([rowCount](int row) { return row < 0 || row >= rowCount; });
    return rows;
}

QList<int> rowsFrom(int first, qsizetype count)
{
    QList<int> rows(count);
    std::iota(rows.begin(), rows.end(), first);
    return rows;
}

qsizetype unitsOf(const QStringList &texts)
{
    qsizetype units = 0;
    for (const QString &text : texts)
        units += text.size();
    return units;
}

qsizetype unitsOf(const QList<QStringList> &rows)
{
    qsizetype units = 0;
    for (const QStringList &row : rows)
        units += unitsOf(row);
    return units;
}

Error tooMuchText()
{
    Error error(ErrorCode::InvalidContent, TableSheetTr::tr("The table can't hold that much text."));
    return error.addDetail(TableSheetTr::tr("Split it into several tables."));
}

} // namespace

TableSheet::TableSheet(QList<TableColumn> columns, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, std::move(columns)))
{}

TableSheet::~TableSheet() = default;

const QList<TableColumn> &TableSheet::columns() const
{
    return d->columns;
}

int TableSheet::columnCount() const
{
    return int(d->columns.size());
}

int TableSheet::columnOf(const QString &name) const
{
    const auto found = std::find_if(d->columns.cbegin(), d->columns.cend(),
                                    [&](const TableColumn &column) { return column.name == name; });
    return found == d->columns.cend() ? -1 : int(found - d->columns.cbegin());
}

const QList<TableRowRule> &TableSheet::rowRules() const
{
    return d->checks.rules();
}

void TableSheet::setRowRules(QList<TableRowRule> rules)
{
    d->checks.setRules(std::move(rules));
    Q_EMIT problemsChanged(rowIds());
}

void TableSheet::checkAnew()
{
    d->checks.forgetCounts();
    Q_EMIT problemsChanged(rowIds());
}

int TableSheet::rowCount() const
{
    return d->order.size();
}

QStringView TableSheet::text(int row, int column) const
{
    return d->store.text(d->order.at(row), column);
}

QStringList TableSheet::texts(int row) const
{
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column)
        texts.append(text(row, column).toString());
    return texts;
}

QList<QStringList> TableSheet::allTexts() const
{
    QList<QStringList> rows;
    rows.reserve(rowCount());
    for (int row = 0; row < rowCount(); ++row)
        rows.append(texts(row));
    return rows;
}

QString TableSheet::problem(int row, int column) const
{
    return problemOf(rowId(row), column);
}

QString TableSheet::problemOf(quint32 id, int column) const
{
    return d->checks.problem(id, column, d->store.text(id, column));
}

QString TableSheet::problemOf(quint32 id, int column, QStringView kept) const
{
    return d->checks.problem(id, column, kept);
}

bool TableSheet::hasProblem(quint32 id, const QList<int> &columns) const
{
    return d->checks.hasProblem(id, columns);
}

quint32 TableSheet::rowId(int row) const
{
    return d->order.at(row);
}

const QList<quint32> &TableSheet::rowIds() const
{
    return d->order.ids();
}

int TableSheet::rowOf(quint32 id) const
{
    return d->order.placeOf(id);
}

QStringView TableSheet::textOf(quint32 id, int column) const
{
    return d->store.text(id, column);
}

TableHistory *TableSheet::history() const
{
    return d->history;
}

Error TableSheet::load(const QList<QStringList> &rows)
{
    return load(int(rows.size()), [&](int row, QStringList *texts) { *texts = rows[row]; });
}

Error TableSheet::load(int rowCount, const RowSource &source)
{
    TableStore next(d->columns);
    next.reserveRows(rowCount);
    const QStringList none(columnCount());
    for (int row = 0; row < rowCount; ++row) {
        QStringList texts = none;
        source(row, &texts);
        if (!next.hasRoom(unitsOf(texts)))
            return tooMuchText();
        next.addRow(texts);
    }
    const QPointer<TableSheet> guard(this);
    d->history->clear();
    if (!guard)
        return Error::NoError;
    d->store = std::move(next);
    d->checks.clear();
    d->checks.addedToStore();
    d->lookedUpTo = 0;
    const QList<int> places = rowsFrom(0, rowCount);
    const QList<quint32> ids(places.begin(), places.end());
    d->order.assign({});
    for (const quint32 id : ids)
        d->checks.enter(id);
    d->order.assign(ids);
    Q_EMIT loaded();
    return Error::NoError;
}

Error TableSheet::checkRoom(qsizetype units) const
{
    return d->store.hasRoom(units) ? Error::NoError : tooMuchText();
}

Error TableSheet::setCells(const QList<TableCellText> &cells, const QString &step)
{
    qsizetype units = 0;
    int lastRow = -1;
    for (const TableCellText &cell : cells) {
        units += cell.text.size();
        lastRow = std::max(lastRow, cell.row);
    }
    if (!d->store.hasRoom(units))
        return tooMuchText();
    const std::vector<TableSlot> kept = d->keepAll(cells);
    const int oldCount = rowCount();
    QList<quint32> newRows;
    while (oldCount + newRows.size() <= lastRow)
        newRows.append(d->addDefaultRow());
    QList<TableCellChange> changes;
    changes.reserve(cells.size());
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const auto &[row, column, text] = cells[i];
        if (row >= oldCount) {
            d->store.setSlot(newRows[row - oldCount], column, kept[size_t(i)]);
        } else if (const TableSlot before = d->store.slot(rowId(row), column);
                   d->store.text(before) != d->store.text(kept[size_t(i)])) {
            changes.append({rowId(row), column, before, kept[size_t(i)]});
        }
    }
    QList<TableStep> steps;
    if (!changes.isEmpty())
        steps.append(std::move(changes));
    if (!newRows.isEmpty())
        steps.append(TableRowsChange{rowsFrom(oldCount, newRows.size()), std::move(newRows), true});
    if (!steps.isEmpty())
        d->push(std::move(steps), step);
    return Error::NoError;
}

Error TableSheet::setText(int row, int column, QStringView kept)
{
    return setCells({{row, column, kept}}, tr("change %1").arg(d->columns[column].title));
}

void TableSheet::insertRows(int at, int count)
{
    if (count <= 0)
        return;
    QList<quint32> ids;
    for (int i = 0; i < count; ++i)
        ids.append(d->addDefaultRow());
    const int place = std::clamp(at, 0, rowCount());
    d->push({TableRowsChange{rowsFrom(place, count), ids, true}}, tr("add rows"));
}

Error TableSheet::insertRows(int at, const QList<QStringList> &rows, const QString &step)
{
    if (!d->store.hasRoom(unitsOf(rows)))
        return tooMuchText();
    if (rows.isEmpty())
        return Error::NoError;
    QList<quint32> ids;
    ids.reserve(rows.size());
    for (const QStringList &row : rows)
        ids.append(d->addRow(row));
    d->push({TableRowsChange{rowsFrom(std::clamp(at, 0, rowCount()), rows.size()), ids, true}}, step);
    return Error::NoError;
}

void TableSheet::duplicateRows(const QList<int> &rows)
{
    const QList<int> originals = ascendingRows(rows, rowCount());
    if (originals.isEmpty())
        return;
    QList<quint32> copies;
    for (const int row : originals) {
        copies.append(d->store.addRow());
        for (int column = 0; column < columnCount(); ++column)
            d->store.setSlot(copies.constLast(), column, d->store.slot(rowId(row), column));
    }
    d->checks.addedToStore();
    d->push({TableRowsChange{rowsFrom(originals.constLast() + 1, copies.size()), copies, true}},
            tr("duplicate rows"));
}

void TableSheet::removeRows(const QList<int> &rows)
{
    const QList<int> places = ascendingRows(rows, rowCount());
    if (places.isEmpty())
        return;
    QList<quint32> ids;
    for (const int row : places)
        ids.append(rowId(row));
    d->push({TableRowsChange{places, ids, false}}, tr("remove rows"));
}

void TableSheet::moveRows(const QList<int> &rows, int before)
{
    const QList<int> moved = ascendingRows(rows, rowCount());
    if (moved.isEmpty())
        return;
    const QList<quint32> &old = d->order.ids();
    QList<quint32> head;
    QList<quint32> tail;
    QList<quint32> middle;
    auto next = moved.cbegin();
    for (int row = 0; row < old.size(); ++row) {
        const bool isMoved = next != moved.cend() && *next == row;
        if (isMoved)
            ++next;
        (isMoved ? middle : row < before ? head : tail).append(old[row]);
    }
    const QList<quint32> after = head + middle + tail;
    if (after != old)
        d->push({orderChange(old, after)}, tr("move rows"));
}

void TableSheet::setOrder(const QList<quint32> &ids)
{
    Q_ASSERT(ids.size() == rowCount());
    // Empty lists can't be compared: one of them may have no memory at all.
    if (!ids.isEmpty() && ids != d->order.ids())
        d->push({orderChange(d->order.ids(), ids)}, tr("order the rows"));
}

qsizetype TableSheet::heldBytes() const
{
    return d->store.heldBytes() + rowCount() * qsizetype(sizeof(quint32)) + d->history->heldBytes();
}

int TableSheet::problemCount() const
{
    return d->checks.counts().count();
}

bool TableSheet::areProblemsCounted() const
{
    return d->checks.counts().unknownRows() == 0;
}

void TableSheet::deriveAnew()
{
    d->store.deriveAnew();
    d->checks.clearUniques();
    d->checks.forgetCounts();
    Q_EMIT derivedAnew();
}

void TableSheet::countProblems(int rows)
{
    if (areProblemsCounted())
        return;
    for (int i = 0; i < std::min(rows, rowCount()) && !areProblemsCounted(); ++i) {
        d->lookedUpTo = d->lookedUpTo + 1 < rowCount() ? d->lookedUpTo + 1 : 0;
        const quint32 id = rowId(d->lookedUpTo);
        if (!d->checks.counts().isKnown(id))
            d->checks.count(id);
    }
    if (areProblemsCounted())
        Q_EMIT problemsCounted();
}

} // namespace orv
