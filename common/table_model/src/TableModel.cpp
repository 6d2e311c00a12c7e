#include "orv/table_model/TableModel.h"

#include "internal/TableOrder.h"
#include "internal/TableSort.h"

#include <QCoreApplication>

#include <algorithm>

namespace orv {

namespace {

struct TableModelTr
{
    Q_DECLARE_TR_FUNCTIONS(TableModel)
};

/// Numbers stand at the right from right to left too, as their digits run the same way.
QVariant alignmentOf(const TableColumn &column)
{
    const Qt::Alignment ofNumbers = Qt::AlignRight | Qt::AlignAbsolute;
    return QVariant::fromValue((column.isNumeric() ? ofNumbers : Qt::AlignLeft) | Qt::AlignVCenter);
}

/// Up to here rows come and go one run at a time, so that views keep what they know; more are quicker anew.
constexpr qsizetype kMaxRuns = 64;

QList<int> places(const RowRun &run)
{
    QList<int> rows;
    for (int row = run.first; row <= run.last; ++row)
        rows.append(row);
    return rows;
}

} // namespace

class TableModel::Private
{
public:
    Private(TableModel *model, TableSheet *ofModel)
        : q(model)
        , sheet(ofModel)
    {}

    void follow();
    void reload();
    void insert(const QList<int> &rowsOfSheet);
    void remove(const QList<quint32> &ids);
    void tellChanged(const QList<quint32> &ids, int firstColumn, int lastColumn);
    void reorder();

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
    bool isNarrowingAllowed = false; ///< what isn't shown can't match a longer text
};

void TableModel::Private::follow()
{
    QObject::connect(sheet, &TableSheet::loaded, q, [this] { reload(); });
    QObject::connect(sheet, &TableSheet::rowsInserted, q, [this](const QList<int> &rows) { insert(rows); });
    QObject::connect(sheet, &TableSheet::rowsRemoved, q, [this](const QList<quint32> &ids) { remove(ids); });
    QObject::connect(sheet, &TableSheet::rowsReordered, q, [this] { reorder(); });
    QObject::connect(
        sheet, &TableSheet::cellsChanged, q,
        [this](const QList<quint32> &ids, int first, int last) { tellChanged(ids, first, last); });
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

void TableModel::Private::tellChanged(const QList<quint32> &ids, int firstColumn, int lastColumn)
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
        Q_EMIT q->dataChanged(q->index(first, firstColumn), q->index(last, lastColumn));
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
    QList<quint32> result;
    std::copy_if(ids.cbegin(), ids.cend(), std::back_inserter(result),
                 [&](quint32 id) { return matcher.matches(id); });
    return result;
}

void TableModel::Private::show(QList<quint32> ids)
{
    if (ids == shown.ids())
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

TableModel::TableModel(TableSheet *sheet, QObject *parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<Private>(this, sheet))
{
    d->shown.assign(sheet->rowIds());
    d->follow();
}

TableModel::~TableModel() = default;

TableSheet *TableModel::sheet() const
{
    return d->sheet;
}

QLocale TableModel::locale() const
{
    return d->locale;
}

void TableModel::setLocale(const QLocale &locale)
{
    d->locale = locale;
    d->sign = NumberText::signOf(locale);
    if (d->shown.size() > 0)
        Q_EMIT dataChanged(index(0, 0), index(d->shown.size() - 1, columnCount() - 1));
}

NumberText::DecimalSign TableModel::decimalSign() const
{
    return d->sign;
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->shown.size();
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->sheet->columnCount();
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const TableColumn &column = d->sheet->columns()[index.column()];
    const QStringView kept = d->sheet->textOf(d->shown.at(index.row()), index.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return column.shown(kept, d->sign);
    case KeptRole:
        return kept.toString();
    case KindRole:
        return int(column.kind);
    case ProblemRole:
    case Qt::AccessibleDescriptionRole:
        return column.problem(kept);
    case Qt::ToolTipRole: {
        const QString problem = column.problem(kept);
        return problem.isEmpty() ? column.shown(kept, d->sign) : problem;
    }
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    default:
        return {};
    }
}

bool TableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    // An editor that was only looked into gives back what it showed.
    if (value.toString() == data(index, Qt::EditRole).toString())
        return true;
    const QString kept = d->sheet->columns()[index.column()].kept(value.toString(), d->sign);
    return !d->sheet->setText(sheetRow(index.row()), index.column(), kept).ecatch().hasError();
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        const bool isRow = section >= 0 && section < d->shown.size();
        return isRow && role == Qt::DisplayRole ? QVariant(sheetRow(section) + 1) : QVariant();
    }
    if (section < 0 || section >= columnCount())
        return {};
    const TableColumn &column = d->sheet->columns()[section];
    switch (role) {
    case Qt::DisplayRole:
        return column.header();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return column.explanation.isEmpty() ? column.header() : column.explanation;
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    default:
        return {};
    }
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool isEditable = !d->sheet->columns()[index.column()].isReadOnly;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

void TableModel::sort(int column, Qt::SortOrder order)
{
    d->sortColumn = column >= 0 && column < columnCount() ? column : -1;
    d->sorted = d->sortColumn < 0 ? QList<quint32>() : TableSort::sortedIds(*d->sheet, column, order);
    d->show(d->filtered(d->sortColumn < 0 ? d->sheet->rowIds() : d->sorted));
}

int TableModel::sortColumn() const
{
    return d->sortColumn;
}

void TableModel::keepOrder()
{
    if (d->sortColumn < 0)
        return;
    const QList<quint32> ids = std::exchange(d->sorted, {});
    d->sortColumn = -1;
    d->sheet->setOrder(ids);
}

QModelIndex TableModel::nextProblem(const QModelIndex &from, const QList<int> &columns, int step) const
{
    const qint64 width = columns.size();
    const qint64 cells = width * rowCount();
    const qint64 start = from.isValid()
                             ? from.row() * width + std::max<qint64>(columns.indexOf(from.column()), 0)
                             : (step > 0 ? -1 : 0);
    for (qint64 i = 1; i <= cells; ++i) {
        const qint64 at = (start + (step > 0 ? i : cells - i) + cells) % cells;
        const QModelIndex cell = index(int(at / width), columns[at % width]);
        if (!cell.data(ProblemRole).toString().isEmpty())
            return cell;
    }
    return {};
}

TableFilter TableModel::filter() const
{
    return d->filter;
}

void TableModel::setFilter(const TableFilter &filter)
{
    const bool isNarrower = d->isNarrowingAllowed && !d->filter.isEmpty() &&
                            filter.text.startsWith(d->filter.text) &&
                            (filter.isOnlyProblems || !d->filter.isOnlyProblems);
    d->filter = filter;
    const QList<quint32> &all = d->sortColumn < 0 ? d->sheet->rowIds() : d->sorted;
    d->show(d->filtered(isNarrower ? d->shown.ids() : all));
    d->isNarrowingAllowed = true;
}

void TableModel::setHiddenColumns(const QList<int> &columns)
{
    d->hiddenColumns = columns;
    d->isNarrowingAllowed = false;
}

bool TableModel::isInSheetOrder() const
{
    return d->sortColumn < 0 && d->shown.size() == d->sheet->rowCount();
}

int TableModel::sheetRow(int row) const
{
    return d->sheet->rowOf(d->shown.at(row));
}

int TableModel::rowOfSheetRow(int sheetRow) const
{
    return d->shown.placeOf(d->sheet->rowId(sheetRow));
}

quint32 TableModel::rowId(int row) const
{
    return d->shown.at(row);
}

int TableModel::rowOfId(quint32 id) const
{
    return d->shown.placeOf(id);
}

} // namespace orv
