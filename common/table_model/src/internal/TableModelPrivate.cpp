#include "TableModelPrivate.h"

#include <orv/core/PlainTip.h>
#include <orv/table_model/SequenceText.h>

#include <algorithm>

namespace orv {

namespace {

/// Up to here rows come and go one run at a time, so that views keep what they know; more are quicker anew.
constexpr qsizetype kMaxRuns = 64;

constexpr int kToolTipLines = 20;
constexpr qsizetype kToolTipUnits = 2000;

QList<int> places(const RowRun &run)
{
    QList<int> rows;
    for (int row = run.first; row <= run.last; ++row)
        rows.append(row);
    return rows;
}

} // namespace

void TableModel::Private::follow()
{
    QObject::connect(sheet, &QObject::destroyed, q,
                     [this, columns = sheet->columns()] { goOnWithoutSheet(columns); });
    QObject::connect(sheet, &TableSheet::loaded, q, [this] { reload(); });
    QObject::connect(sheet, &TableSheet::rowsInserted, q, [this](const QList<int> &rows) { insert(rows); });
    QObject::connect(sheet, &TableSheet::rowsRemoved, q, [this](const QList<quint32> &ids) { remove(ids); });
    QObject::connect(sheet, &TableSheet::rowsReordered, q, [this] { reorder(); });
    QObject::connect(
        sheet, &TableSheet::cellsChanged, q,
        [this](const QList<quint32> &ids, int first, int last) { tellChanged(ids, first, last, {}); });
    QObject::connect(sheet, &TableSheet::derivedAnew, q,
                     [this] { tellChanged(sheet->rowIds(), 0, sheet->columnCount() - 1, {}); });
    QObject::connect(sheet, &TableSheet::problemsChanged, q, [this](const QList<quint32> &ids) {
        tellChanged(ids, 0, sheet->columnCount() - 1,
                    {ProblemRole, Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
    });
}

/// Views ask on until they go themselves.
void TableModel::Private::goOnWithoutSheet(const QList<TableColumn> &columns)
{
    sheet = new TableSheet(columns, q);
    reload();
}

void TableModel::Private::reload()
{
    q->beginResetModel();
    sortColumn = -1;
    sorted.clear();
    isNarrowingAllowed = false;
    shown.assign(filtered(sheet->rowIds()));
    q->endResetModel();
}

void TableModel::Private::insert(const QList<int> &rowsOfSheet)
{
    isNarrowingAllowed = false;
    QList<quint32> next = shown.ids();
    if (sortColumn < 0) {
        next.clear();
        auto inserted = rowsOfSheet.cbegin();
        for (int row = 0; row < sheet->rowCount(); ++row) {
            const bool isNew = inserted != rowsOfSheet.cend() && *inserted == row;
            if (isNew)
                ++inserted;
            if (isNew || shown.placeOf(sheet->rowId(row)) >= 0)
                next.append(sheet->rowId(row));
        }
    } else {
        for (const int row : rowsOfSheet) {
            sorted.append(sheet->rowId(row));
            next.append(sheet->rowId(row));
        }
    }
    show(std::move(next));
}

void TableModel::Private::remove(const QList<quint32> &ids)
{
    const auto isGone = [this](quint32 id) { return sheet->rowOf(id) < 0; };
    sorted.removeIf(isGone);
    QList<quint32> next = shown.ids();
    if (!ids.isEmpty())
        next.removeIf(isGone);
    show(std::move(next));
}

void TableModel::Private::tellChanged(const QList<quint32> &ids, int firstColumn, int lastColumn,
                                      const QList<int> &roles)
{
    isNarrowingAllowed = false;
    int first = shown.size();
    int last = -1;
    for (const quint32 id : ids) {
        if (const int row = shown.placeOf(id); row >= 0) {
            first = std::min(first, row);
            last = std::max(last, row);
        }
    }
    if (last >= 0)
        Q_EMIT q->dataChanged(q->index(first, firstColumn), q->index(last, lastColumn), roles);
}

void TableModel::Private::reorder()
{
    if (sortColumn < 0) {
        QList<quint32> next;
        std::copy_if(sheet->rowIds().cbegin(), sheet->rowIds().cend(), std::back_inserter(next),
                     [this](quint32 id) { return shown.placeOf(id) >= 0; });
        show(std::move(next));
    }
    if (shown.size() > 0)
        Q_EMIT q->headerDataChanged(Qt::Vertical, 0, shown.size() - 1);
}

QString TableModel::Private::toolTip(const QModelIndex &index) const
{
    const quint32 id = shown.at(index.row());
    const TableColumn &column = sheet->columns()[index.column()];
    const QStringView kept = sheet->textOf(id, index.column());
    const QString problem = sheet->problemOf(id, index.column());
    if (column.kind == TableColumnKind::Sequence && !kept.isEmpty()) {
        const QStringView beginning = kept.first(std::min(kept.size(), kToolTipUnits));
        QString lines = SequenceText::lines(beginning, 3, kToolTipLines);
        if (beginning.size() < kept.size() && !lines.endsWith(QStringLiteral("...")))
            lines += QStringLiteral("...");
        return QStringLiteral("<p>%1</p><pre>%2</pre>").arg(problem.toHtmlEscaped(), lines.toHtmlEscaped());
    }
    const QString text = column.shown(kept.first(std::min(kept.size(), kToolTipUnits)), sign);
    const QString note = noteOf(index);
    return PlainTip::of(!problem.isEmpty() ? problem : note.isEmpty() ? text : text + u'\n' + note);
}

QVariant TableModel::Private::rowHeader(int row, int role) const
{
    if (role == Qt::DisplayRole)
        return q->sheetRow(row) + 1;
    const bool isRemark =
        role == RemarkRole || role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole;
    if (!isRemark && role != IsErrorRole)
        return {};
    const auto remark = remarks.constFind(shown.at(row));
    if (remark == remarks.cend() || remark->text.isEmpty())
        return {};
    if (role == Qt::ToolTipRole)
        return PlainTip::of(remark->text);
    return isRemark ? QVariant(remark->text) : QVariant(remark->isError);
}

QList<quint32> TableModel::Private::filtered(const QList<quint32> &ids) const
{
    if (filter.isEmpty())
        return ids;
    QList<int> columns;
    for (int column = 0; column < sheet->columnCount(); ++column) {
        if (!hiddenColumns.contains(column))
            columns.append(column);
    }
    const TableRowMatcher matcher(*sheet, filter, columns, sign);
    // What a check found about a row is a problem of it, too.
    const TableRowMatcher words(*sheet, {filter.text, false}, columns, sign);
    QList<quint32> result;
    std::copy_if(ids.cbegin(), ids.cend(), std::back_inserter(result), [&](quint32 id) {
        return matcher.matches(id) || (filter.isOnlyProblems && remarks.contains(id) && words.matches(id));
    });
    return result;
}

void TableModel::Private::show(QList<quint32> ids)
{
    const bool isNothing = ids.isEmpty() && shown.size() == 0;
    if (isNothing || ids == shown.ids())
        return;
    TableOrder next;
    next.assign(std::move(ids));
    const QList<RowRun> going = runsMissingIn(next, shown);
    const QList<RowRun> coming = runsMissingIn(shown, next);
    if (going.isEmpty() && coming.isEmpty()) {
        permute(std::move(next));
    } else if (going.size() + coming.size() > kMaxRuns || !hasCommonRowsInOneOrder(shown, next)) {
        q->beginResetModel();
        shown = std::move(next);
        q->endResetModel();
    } else {
        std::for_each(going.crbegin(), going.crend(), [this](const RowRun &run) { removeRun(run); });
        for (const RowRun &run : coming)
            insertRun(run, next);
    }
}

void TableModel::Private::permute(TableOrder next)
{
    Q_EMIT q->layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = q->persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &index : before)
        after.append(q->index(next.placeOf(shown.at(index.row())), index.column()));
    shown = std::move(next);
    q->changePersistentIndexList(before, after);
    Q_EMIT q->layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void TableModel::Private::removeRun(const RowRun &run)
{
    q->beginRemoveRows({}, run.first, run.last);
    shown.remove(places(run));
    q->endRemoveRows();
}

void TableModel::Private::insertRun(const RowRun &run, const TableOrder &next)
{
    q->beginInsertRows({}, run.first, run.last);
    shown.insert(places(run), next.ids().sliced(run.first, run.last - run.first + 1));
    q->endInsertRows();
}

} // namespace orv
