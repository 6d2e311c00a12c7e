#include "orv/widgets/TableView.h"

#include "../FocusSigns.h"
#include "RowNumbers.h"
#include "TableCommands.h"
#include "TableDelegate.h"
#include "TableDrop.h"

#include <orv/widgets/ControlHelp.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/SelectionLook.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace orv {

class TableView::Private
{
public:
    TableModel *model = nullptr;
    TableCommands *commands = nullptr;
    QString emptyText;
    TextReader reader;
    QModelIndex dropCell;    ///< only while something is dragged over
    QList<int> wantedWidths; ///< for what the first rows hold
    QList<int> leastWidths;
    QList<int> fittedWidths;
    bool areColumnsChosen = false; ///< by a person
};

TableView::TableView(TableSheet *sheet, QWidget *parent)
    : QTableView(parent)
    , d(std::make_unique<Private>())
{
    d->model = new TableModel(sheet, this);
    d->model->setLocale(locale());
    d->emptyText =
        tr("There are no rows yet.\nPaste cells from a spreadsheet (Ctrl+V), drop or import a file, "
           "or add a row (Insert).");
    setModel(d->model);
    setItemDelegate(new TableDelegate(this));
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ExtendedSelection);
    setAcceptDrops(true);
    setWordWrap(false);
    setUpHeaders();
    d->commands = new TableCommands(this);
    ControlHelp::install();
    FocusSigns::install();
    fitColumns();
}

TableView::~TableView()
{
    delete std::exchange(d->commands, nullptr);
}

void TableView::setUpHeaders()
{
    QHeaderView *const header = horizontalHeader();
    header->setSectionsMovable(true);
    header->setHighlightSections(false);
    header->setResizeContentsPrecision(100);
    header->setSortIndicatorClearable(true);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &TableView::showHeaderMenu);
    connect(d->model, &QAbstractItemModel::modelReset, this, [this] {
        if (d->model->sortColumn() < 0)
            horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    });
    setVerticalHeader(new RowNumbers(this));
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

TableSheet *TableView::sheet() const
{
    return d->model->sheet();
}

TableModel *TableView::tableModel() const
{
    return d->model;
}

QAction *TableView::action(Command command) const
{
    return d->commands->action(command);
}

void TableView::setTextReader(TextReader reader)
{
    d->reader = std::move(reader);
}

std::optional<Result<QList<QStringList>>> TableView::readText(const QByteArray &text) const
{
    return d->reader ? d->reader(text) : std::nullopt;
}

QString TableView::emptyText() const
{
    return d->emptyText;
}

void TableView::setEmptyText(const QString &text)
{
    d->emptyText = text;
    viewport()->update();
}

QList<int> TableView::shownColumns() const
{
    QList<int> columns;
    const QHeaderView *const header = horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        if (const int column = header->logicalIndex(visual); !header->isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

void TableView::setColumnShown(int column, bool isShown, ChosenBy by)
{
    d->areColumnsChosen = d->areColumnsChosen || by == ChosenBy::Person;
    setColumnHidden(column, !isShown);
    QList<int> hidden;
    for (int i = 0; i < d->model->sheet()->columnCount(); ++i) {
        if (isColumnHidden(i))
            hidden.append(i);
    }
    d->model->setHiddenColumns(hidden);
    d->commands->update();
}

void TableView::fitColumns()
{
    resizeColumnsToContents();
    // Room for the sign of a problem and for the sort indicator; nothing so wide that it hides the others.
    const int sign = fontMetrics().height();
    const int widest = fontMetrics().averageCharWidth() * 40;
    d->wantedWidths.clear();
    d->leastWidths.clear();
    d->fittedWidths.clear();
    for (int column = 0; column < d->model->sheet()->columnCount(); ++column) {
        d->wantedWidths.append(columnWidth(column) + sign);
        d->leastWidths.append(std::min(columnWidth(column) + sign, widest));
        setColumnWidth(column, d->leastWidths[column]);
        d->fittedWidths.append(columnWidth(column));
    }
    shareRoom();
}

void TableView::shareRoom()
{
    if (isArranged())
        return;
    qint64 wanted = 0;
    int room = viewport()->width();
    for (const int column : shownColumns()) {
        if (column >= d->leastWidths.size())
            return;
        room -= d->leastWidths[column];
        wanted += d->wantedWidths[column] - d->leastWidths[column];
    }
    for (const int column : shownColumns()) {
        const qint64 more = d->wantedWidths[column] - d->leastWidths[column];
        const qint64 given = wanted == 0 || room <= 0 ? 0 : more * std::min<qint64>(room, wanted) / wanted;
        setColumnWidth(column, d->leastWidths[column] + int(given));
        d->fittedWidths[column] = columnWidth(column);
    }
}

void TableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    shareRoom();
}

bool TableView::isArranged() const
{
    bool isArranged = d->areColumnsChosen;
    for (int column = 0; column < d->fittedWidths.size() && !isArranged; ++column) {
        // A hidden column has no width.
        const int fitted = d->fittedWidths[column];
        const bool isSized = fitted > 0 && !isColumnHidden(column) && columnWidth(column) != fitted;
        isArranged = isSized || horizontalHeader()->visualIndex(column) != column;
    }
    return isArranged;
}

void TableView::goTo(const QModelIndex &index)
{
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
}

void TableView::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTableView::initViewItemOption(option);
    SelectionLook::apply(*this, option);
}

void TableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    if (d->dropCell.isValid()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(visualRect(d->dropCell).adjusted(1, 1, -2, -2));
    }
    if (d->model->rowCount() > 0)
        return;
    painter.setPen(palette().color(QPalette::Text));
    paintEmptyText(&painter);
}

QString TableView::shownEmptyText() const
{
    return d->model->filter().isEmpty() ? d->emptyText : tr("No row matches the filter.");
}

/// Where there is no room for all of it, its first line stands there, and all in the tool tip.
void TableView::paintEmptyText(QPainter *painter) const
{
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
    const QString text = shownEmptyText();
    const int wide = fontMetrics().height() * 2;
    const int narrow = fontMetrics().averageCharWidth();
    for (const int margin : {wide, narrow}) {
        const QRect room = viewport()->rect().adjusted(margin, margin, -margin, -margin);
        if (!room.contains(fontMetrics().boundingRect(room, kFlags, text)))
            continue;
        painter->drawText(room, kFlags, text);
        return;
    }
    const QRect room = viewport()->rect().adjusted(narrow, 0, -narrow, 0);
    painter->drawText(room, Qt::AlignCenter | Qt::TextSingleLine,
                      fontMetrics().elidedText(text.section(u'\n', 0, 0), Qt::ElideRight, room.width()));
}

bool TableView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || d->model->rowCount() > 0)
        return QTableView::viewportEvent(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), shownEmptyText(), viewport());
    return true;
}

void TableView::stepFrom(const QModelIndex &from, int rows, int columns)
{
    const QList<int> shown = shownColumns();
    const int row = std::clamp(from.row() + rows, 0, d->model->rowCount() - 1);
    const qsizetype column =
        std::clamp<qsizetype>(shown.indexOf(from.column()) + columns, 0, shown.size() - 1);
    if (row >= 0 && !shown.isEmpty())
        goTo(d->model->index(row, shown[column]));
}

void TableView::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (isEnter && currentIndex().isValid() && state() != EditingState) {
        stepFrom(currentIndex(), event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1, 0);
    } else if (isTab && event->modifiers().testFlag(Qt::ControlModifier)) {
        leave(event->key() == Qt::Key_Tab);
    } else {
        QTableView::keyPressEvent(event);
    }
}

/// Dead keys send a letter without composing it first; the base then opens the editor and drops the letter.
void TableView::inputMethodEvent(QInputMethodEvent *event)
{
    const bool wasEditing = state() == EditingState;
    QTableView::inputMethodEvent(event);
    QWidget *const editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (editor && !wasEditing && event->preeditString().isEmpty())
        QApplication::sendEvent(editor, event);
}

bool TableView::focusNextPrevChild(bool next)
{
    const QList<int> shown = shownColumns();
    const QModelIndex current = currentIndex();
    const bool isAtEdge =
        !current.isValid() || shown.isEmpty() ||
        (next ? current.row() == d->model->rowCount() - 1 && current.column() == shown.constLast()
              : current.row() == 0 && current.column() == shown.constFirst());
    return isAtEdge ? leave(next) : QTableView::focusNextPrevChild(next);
}

bool TableView::leave(bool next)
{
    // The item view's own would begin anew at the first cell, and never let go.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): meant
    return QAbstractScrollArea::focusNextPrevChild(next);
}

/// The base goes on with the editor afterwards, which whoever hears of the edit may have taken away.
void TableView::commitData(QWidget *editor)
{
    const QPersistentModelIndex cell = TableDelegate::cellOf(editor);
    if (cell.isValid() && itemDelegate())
        itemDelegate()->setModelData(editor, d->model, cell);
}

void TableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const QPersistentModelIndex edited = currentIndex();
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (!edited.isValid())
        return;
    const QList<int> shown = shownColumns();
    const bool isLast = edited.column() == (shown.isEmpty() ? -1 : shown.constLast());
    const bool isFirst = edited.column() == (shown.isEmpty() ? -1 : shown.constFirst());
    switch (hint) {
    case QAbstractItemDelegate::SubmitModelCache:
        stepFrom(edited, 1, 0);
        break;
    case QAbstractItemDelegate::EditNextItem:
        isLast ? stepFrom(edited, 1, -int(shown.size())) : stepFrom(edited, 0, 1);
        break;
    case QAbstractItemDelegate::EditPreviousItem:
        isFirst ? stepFrom(edited, -1, int(shown.size())) : stepFrom(edited, 0, -1);
        break;
    case QAbstractItemDelegate::NoHint:
    case QAbstractItemDelegate::RevertModelCache:
        break;
    }
}

void TableView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (d->commands)
        d->commands->update();
}

void TableView::contextMenuEvent(QContextMenuEvent *event)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    d->commands->fillMenu(menu);
    menu->popup(event->globalPos());
}

void TableView::showHeaderMenu(QPoint position)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const int clicked = horizontalHeader()->logicalIndexAt(position);
    if (clicked >= 0) {
        menu->addAction(Icons::icon(IconName::SortAscending), tr("Sort &Ascending"), this,
                        [this, clicked] { sortByColumn(clicked, Qt::AscendingOrder); });
        menu->addAction(Icons::icon(IconName::SortDescending), tr("Sort &Descending"), this,
                        [this, clicked] { sortByColumn(clicked, Qt::DescendingOrder); });
        menu->addAction(action(Command::OwnOrder));
        menu->addAction(action(Command::KeepOrder));
        menu->addSeparator();
    }
    for (int column = 0; column < d->model->sheet()->columnCount(); ++column) {
        QAction *const shown = menu->addAction(d->model->sheet()->columns()[column].header());
        shown->setCheckable(true);
        shown->setChecked(!isColumnHidden(column));
        shown->setEnabled(isColumnHidden(column) || shownColumns().size() > 1);
        connect(shown, &QAction::toggled, this,
                [this, column](bool on) { setColumnShown(column, on, ChosenBy::Person); });
    }
    menu->popup(horizontalHeader()->mapToGlobal(position));
}

void TableView::dragEnterEvent(QDragEnterEvent *event)
{
    if (TableDrop::localFiles(event->mimeData()).isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

void TableView::dragMoveEvent(QDragMoveEvent *event)
{
    const TableDrop drop(*d->model->sheet(), indexAt(event->position().toPoint()), event->mimeData());
    d->dropCell = drop.cell();
    viewport()->update();
    if (drop.isPossible())
        event->acceptProposedAction();
    else
        event->ignore();
}

void TableView::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    d->dropCell = {};
    viewport()->update();
}

void TableView::dropEvent(QDropEvent *event)
{
    d->dropCell = {};
    viewport()->update();
    const TableDrop drop(*d->model->sheet(), indexAt(event->position().toPoint()), event->mimeData());
    if (!drop.isPossible()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    if (!drop.importPath().isEmpty())
        Q_EMIT importWanted(drop.importPath());
    else
        d->commands->tell(drop.takeInto(*d->model->sheet(), *d->model));
}

} // namespace orv
