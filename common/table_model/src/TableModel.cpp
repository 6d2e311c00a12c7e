#include "orv/table_model/TableModel.h"

#include "internal/TableModelPrivate.h"
#include "internal/TableSort.h"

#include <orv/core/PlainTip.h>
#include <orv/table_model/SequenceText.h>

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

/// With its unit, which some explanations leave to the header.
QString explanationOf(const TableColumn &column)
{
    if (column.explanation.isEmpty())
        return column.header();
    return column.explanation.contains(column.unit) ? column.explanation
                                                    : column.header() + u'\n' + column.explanation;
}

} // namespace

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
        return d->sheet->problemOf(d->shown.at(index.row()), index.column());
    case NoteRole:
        return d->noteOf(index);
    case Qt::AccessibleDescriptionRole: {
        const QString problem = d->sheet->problemOf(d->shown.at(index.row()), index.column());
        return problem.isEmpty() ? d->noteOf(index) : problem;
    }
    case Qt::ToolTipRole:
        return d->toolTip(index);
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
        return isRow ? d->rowHeader(section, role) : QVariant();
    }
    if (section < 0 || section >= columnCount())
        return {};
    const TableColumn &column = d->sheet->columns()[section];
    switch (role) {
    case Qt::DisplayRole:
        return column.header();
    case Qt::WhatsThisRole:
        return column.help();
    case Qt::ToolTipRole:
        return PlainTip::of(explanationOf(column));
    case Qt::AccessibleDescriptionRole:
        return explanationOf(column);
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
    const bool isEditable = d->sheet->columns()[index.column()].isEditable();
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
    for (qint64 i = 1; i <= cells;) {
        const qint64 at = (start + (step > 0 ? i : cells - i) + cells) % cells;
        const auto row = int(at / width);
        const QModelIndex cell = index(row, columns[at % width]);
        if (!d->sheet->problemOf(rowId(row), cell.column()).isEmpty())
            return cell;
        // Most rows are in order, and rules look at a row as a whole.
        const bool isRowDone = i == 1 || (step > 0 ? at % width == 0 : at % width == width - 1);
        i += isRowDone && !d->sheet->hasProblem(rowId(row), columns)
                 ? (step > 0 ? width - at % width : at % width + 1)
                 : 1;
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

void TableModel::setNotes(Notes notes)
{
    d->notes = std::move(notes);
    tellNotesChanged();
}

void TableModel::tellNotesChanged()
{
    if (d->shown.size() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(d->shown.size() - 1, columnCount() - 1),
                           {NoteRole, Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
}

void TableModel::setRowRemarks(const QHash<quint32, TableRowRemark> &remarks)
{
    if (remarks == d->remarks)
        return;
    d->remarks = remarks;
    d->isNarrowingAllowed = false;
    if (d->shown.size() > 0)
        Q_EMIT headerDataChanged(Qt::Vertical, 0, d->shown.size() - 1);
    tellNotesChanged();
}

const QHash<quint32, TableRowRemark> &TableModel::rowRemarks() const
{
    return d->remarks;
}

int TableModel::remarkedRowCount() const
{
    return int(std::count_if(d->remarks.keyBegin(), d->remarks.keyEnd(),
                             [this](quint32 row) { return d->sheet->rowOf(row) >= 0; }));
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
