#include "TableCommands.h"

#include "TableCommandTable.h"

#include <orv/table_model/TableClipboard.h>
#include <orv/widgets/Icons.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QPointer>
#include <QSet>

#include <algorithm>

namespace orv {

using Command = TableView::Command;

TableCommands::TableCommands(TableView *view)
    : QObject(view)
    , m_view(view)
{
    addActions();
    TableHistory *const history = view->sheet()->history();
    connect(history, &TableHistory::indexChanged, this, &TableCommands::update);
    connect(view->tableModel(), &QAbstractItemModel::layoutChanged, this, &TableCommands::update);
    connect(view->tableModel(), &QAbstractItemModel::modelReset, this, &TableCommands::update);
    update();
}

void TableCommands::addActions()
{
    for (const TableCommandTable::Row &row : TableCommandTable::rows()) {
        auto *const action = new QAction(Icons::icon(row.icon), tr(row.text), this);
        action->setObjectName(QLatin1String(row.name));
        if (row.standard != QKeySequence::UnknownKey)
            action->setShortcuts(row.standard);
        else if (row.keys.key() != Qt::Key_unknown)
            action->setShortcut(QKeySequence(row.keys));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, this, row.handler);
        m_view->addAction(action);
        m_actions.insert(int(row.command), action);
        action->setStatusTip(*row.tip == '\0' ? QString() : tr(row.tip));
        setTip(action);
    }
}

/// What it is called, how it is reached by keys, and what it does.
void TableCommands::setTip(QAction *action)
{
    QString tip = action->text().remove(u'&').remove(QStringLiteral("..."));
    if (!action->shortcut().isEmpty())
        tip = tr("%1 (%2)").arg(tip, action->shortcut().toString(QKeySequence::NativeText));
    if (!action->statusTip().isEmpty())
        tip += u'\n' + action->statusTip();
    action->setToolTip(tip);
}

void TableCommands::fillMenu(QMenu *menu) const
{
    for (const TableCommandTable::Row &row : TableCommandTable::rows()) {
        if (row.beginsGroup)
            menu->addSeparator();
        menu->addAction(action(row.command));
    }
}

void TableCommands::update()
{
    const TableHistory *const history = m_view->sheet()->history();
    const bool hasSelection = m_view->selectionModel() && m_view->selectionModel()->hasSelection();
    const auto setText = [](QAction *action, const QString &verb, const QString &what) {
        action->setText(what.isEmpty() ? verb : tr("%1: %2").arg(verb, what));
        setTip(action);
    };
    action(Command::Undo)->setEnabled(history->canUndo());
    setText(action(Command::Undo), tr("&Undo"), history->undoText());
    action(Command::Redo)->setEnabled(history->canRedo());
    setText(action(Command::Redo), tr("Re&do"), history->redoText());
    for (const Command command : {Command::Cut, Command::Copy, Command::CopyWithHeaders, Command::Clear,
                                  Command::FillDown, Command::DuplicateRows, Command::RemoveRows,
                                  Command::MoveUp, Command::MoveDown, Command::HideColumns})
        action(command)->setEnabled(hasSelection);
    const bool isSorted = m_view->tableModel()->sortColumn() >= 0;
    action(Command::OwnOrder)->setEnabled(isSorted);
    action(Command::KeepOrder)->setEnabled(isSorted);
    action(Command::ShowAllColumns)
        ->setEnabled(m_view->shownColumns().size() < m_view->sheet()->columnCount());
}

void TableCommands::tell(const Error &error)
{
    if (error.hasError())
        Q_EMIT m_view->said((error.errorMessages() + error.details()).join(u' '));
}

void TableCommands::edit(const QList<TableCellText> &cells, const QString &step)
{
    const QPointer<TableCommands> guard(this);
    const Error error = m_view->sheet()->setCells(cells, step);
    if (guard)
        tell(error);
}

QList<int> TableCommands::selectedRows() const
{
    QSet<int> rows;
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(row);
    }
    QList<int> sorted(rows.cbegin(), rows.cend());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

QList<int> TableCommands::selectedSheetRows() const
{
    QList<int> rows = selectedRows();
    for (int &row : rows)
        row = m_view->tableModel()->sheetRow(row);
    return rows;
}

QList<int> TableCommands::selectedColumns() const
{
    QList<int> columns = m_view->shownColumns();
    const QItemSelection selection = m_view->selectionModel()->selection();
    columns.removeIf([&](int column) {
        return std::none_of(selection.cbegin(), selection.cend(), [column](const QItemSelectionRange &range) {
            return range.left() <= column && column <= range.right();
        });
    });
    return columns;
}

QList<TableCellText> TableCommands::editableCells(QStringView text) const
{
    QList<TableCellText> cells;
    const QList<int> shown = m_view->shownColumns();
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int column = range.left(); column <= range.right(); ++column) {
            if (!shown.contains(column) || !m_view->sheet()->columns()[column].isEditable())
                continue;
            for (int row = range.top(); row <= range.bottom(); ++row)
                cells.append({m_view->tableModel()->sheetRow(row), column, text});
        }
    }
    return cells;
}

/// Undo and redo show what they did.
void TableCommands::travel(bool isUndo)
{
    const TableModel *const model = m_view->tableModel();
    QPersistentModelIndex touched;
    const auto remember = [&](int row, int column) { touched = model->index(row, column); };
    QObject context;
    connect(model, &QAbstractItemModel::dataChanged, &context,
            [&](const QModelIndex &topLeft, const QModelIndex &, const QList<int> &roles) {
                // Where only a problem came or went, nothing was edited.
                if (roles.isEmpty())
                    remember(topLeft.row(), topLeft.column());
            });
    connect(model, &QAbstractItemModel::rowsInserted, &context, [&](const QModelIndex &, int first) {
        remember(first, std::max(0, m_view->currentIndex().column()));
    });
    TableHistory *const history = m_view->sheet()->history();
    const QString what = isUndo ? history->undoText() : history->redoText();
    const QPointer<TableCommands> guard(this);
    isUndo ? history->undo() : history->redo();
    if (!guard)
        return;
    if (touched.isValid())
        m_view->goTo(touched);
    Q_EMIT m_view->said(isUndo ? tr("Undone: %1").arg(what) : tr("Redone: %1").arg(what));
}

void TableCommands::undo()
{
    travel(true);
}

void TableCommands::redo()
{
    travel(false);
}

void TableCommands::copyCells(bool withHeaders)
{
    const QList<int> columns = selectedColumns();
    QList<QStringList> rows;
    if (withHeaders) {
        QStringList header;
        for (const int column : columns)
            header.append(m_view->sheet()->columns()[column].header());
        rows.append(header);
    }
    const QItemSelection selection = m_view->selectionModel()->selection();
    const int width = m_view->tableModel()->columnCount();
    QSet<qint64> selected; // sorting may leave a range for each row
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= range.right(); ++column)
                selected.insert(qint64(row) * width + column);
        }
    }
    for (const int row : selectedRows()) {
        QStringList texts;
        for (const int column : columns)
            texts.append(selected.contains(qint64(row) * width + column)
                             ? m_view->tableModel()->index(row, column).data().toString()
                             : QString());
        rows.append(texts);
    }
    QGuiApplication::clipboard()->setText(TableClipboard::format(rows));
    Q_EMIT m_view->said(tr("Rows copied: %1").arg(rows.size() - (withHeaders ? 1 : 0)));
}

void TableCommands::cut()
{
    const QPointer<TableCommands> guard(this);
    copyCells(false);
    if (guard)
        edit(editableCells({}), tr("cut cells"));
}

void TableCommands::clear()
{
    edit(editableCells({}), tr("clear cells"));
}

void TableCommands::paste()
{
    const QList<int> shown = m_view->shownColumns();
    const QList<int> rows = selectedRows();
    const QList<int> columns = selectedColumns();
    const qsizetype from = columns.isEmpty() ? 0 : shown.indexOf(columns.constFirst());
    const int row = rows.isEmpty() ? m_view->tableModel()->rowCount() : rows.constFirst();
    TableClipboard::Target target{row, shown.mid(from), {int(columns.size()), int(rows.size())}};
    const QPointer<TableCommands> guard(this);
    const QString text = QGuiApplication::clipboard()->text();
    if (const auto read = m_view->readText(text.toUtf8())) {
        insertRead(*read, row);
        return;
    }
    const Result<TableClipboard::Outcome> pasted = TableClipboard::paste(*m_view->tableModel(), target, text);
    if (!guard)
        return;
    if (pasted.hasError()) {
        tell(pasted.error());
        return;
    }
    if (pasted->rows > 0 && from < shown.size() && row < m_view->tableModel()->rowCount())
        m_view->goTo(m_view->tableModel()->index(row, shown[from]));
    QStringList told = {pasted->rows > 0 ? tr("Rows pasted: %1.").arg(pasted->rows)
                                         : tr("There are no cells to paste.")};
    if (pasted->columnsLeftOut > 0)
        told.append(tr("Columns left out, as there is no room: %1.").arg(pasted->columnsLeftOut));
    if (pasted->readOnlyCells > 0)
        told.append(tr("Cells left, as they can't be changed: %1.").arg(pasted->readOnlyCells));
    Q_EMIT m_view->said(told.join(u' '));
}

void TableCommands::insertRead(const Result<QList<QStringList>> &read, int row)
{
    if (read.hasError()) {
        Q_EMIT m_view->said((read.error().errorMessages() + read.error().details()).join(u' '));
        return;
    }
    TableSheet *const sheet = m_view->sheet();
    const int at =
        row < m_view->tableModel()->rowCount() ? m_view->tableModel()->sheetRow(row) : sheet->rowCount();
    if (const Error error = sheet->insertRows(at, *read, tr("paste")); error.hasError()) {
        tell(error);
        return;
    }
    Q_EMIT m_view->said(tr("Rows pasted: %1.").arg(read->size()));
}

void TableCommands::fillDown()
{
    QList<TableCellText> cells;
    const TableModel *const model = m_view->tableModel();
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        const int source = range.height() > 1 ? range.top() : std::max(0, range.top() - 1);
        for (int column = range.left(); column <= range.right(); ++column) {
            if (m_view->isColumnHidden(column) || !m_view->sheet()->columns()[column].isEditable())
                continue;
            const QStringView text = m_view->sheet()->textOf(model->rowId(source), column);
            for (int row = source + 1; row <= range.bottom(); ++row)
                cells.append({model->sheetRow(row), column, text});
        }
    }
    edit(cells, tr("fill down"));
}

void TableCommands::addRow()
{
    const QModelIndex current = m_view->currentIndex();
    const int at =
        current.isValid() ? m_view->tableModel()->sheetRow(current.row()) + 1 : m_view->sheet()->rowCount();
    const QPointer<TableCommands> guard(this);
    m_view->sheet()->insertRows(at, 1);
    if (!guard)
        return;
    const int row = m_view->tableModel()->rowOfSheetRow(at);
    const QList<int> shown = m_view->shownColumns();
    if (row >= 0 && !shown.isEmpty())
        m_view->goTo(m_view->tableModel()->index(row, shown.constFirst()));
    m_view->setFocus();
}

void TableCommands::duplicateRows()
{
    m_view->sheet()->duplicateRows(selectedSheetRows());
}

void TableCommands::removeRows()
{
    const QList<int> rows = selectedRows();
    const int column = m_view->currentIndex().column();
    const QPointer<TableCommands> guard(this);
    m_view->sheet()->removeRows(selectedSheetRows());
    if (!guard)
        return;
    const int left = m_view->tableModel()->rowCount();
    if (left > 0 && !rows.isEmpty())
        m_view->goTo(m_view->tableModel()->index(std::min(rows.constFirst(), left - 1), std::max(0, column)));
    Q_EMIT m_view->said(tr("Rows removed: %1. Undo brings them back.").arg(rows.size()));
}

void TableCommands::moveRows(int by)
{
    if (!m_view->tableModel()->isInSheetOrder()) {
        Q_EMIT m_view->said(tr("Rows can be moved when all are shown in their own order: "
                               "clear the filter and the sorting first."));
        return;
    }
    const QList<int> rows = selectedSheetRows();
    const QPointer<TableCommands> guard(this);
    const bool hasRoom = !rows.isEmpty() && (by < 0 ? rows.constFirst() > 0
                                                    : rows.constLast() + 1 < m_view->sheet()->rowCount());
    if (hasRoom)
        m_view->sheet()->moveRows(rows, by < 0 ? rows.constFirst() - 1 : rows.constLast() + 2);
    if (guard)
        m_view->scrollTo(m_view->currentIndex());
}

void TableCommands::sort(Qt::SortOrder order)
{
    const int column = m_view->currentIndex().column();
    if (column < 0)
        return;
    m_view->sortByColumn(column, order);
    m_view->scrollTo(m_view->currentIndex());
    const QString title = m_view->sheet()->columns()[column].title;
    Q_EMIT m_view->said(order == Qt::AscendingOrder ? tr("Sorted by \"%1\", ascending.").arg(title)
                                                    : tr("Sorted by \"%1\", descending.").arg(title));
}

void TableCommands::ownOrder()
{
    m_view->sortByColumn(-1, Qt::AscendingOrder);
    m_view->scrollTo(m_view->currentIndex());
}

void TableCommands::keepOrder()
{
    const QPointer<TableCommands> guard(this);
    m_view->tableModel()->keepOrder();
    if (guard)
        m_view->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

void TableCommands::find()
{
    Q_EMIT m_view->findWanted(false);
}

void TableCommands::replace()
{
    Q_EMIT m_view->findWanted(true);
}

void TableCommands::goToProblem(int step)
{
    const QModelIndex found =
        m_view->tableModel()->nextProblem(m_view->currentIndex(), m_view->shownColumns(), step);
    if (!found.isValid()) {
        Q_EMIT m_view->said(tr("All shown cells are in order."));
        return;
    }
    m_view->goTo(found);
    m_view->setFocus();
    Q_EMIT m_view->said(tr("%1, row %2: %3")
                            .arg(m_view->sheet()->columns()[found.column()].title)
                            .arg(m_view->tableModel()->sheetRow(found.row()) + 1)
                            .arg(found.data(TableModel::ProblemRole).toString()));
}

void TableCommands::hideColumns()
{
    const QList<int> columns = selectedColumns();
    if (columns.size() == m_view->shownColumns().size()) {
        Q_EMIT m_view->said(tr("One column has to stay."));
        return;
    }
    for (const int column : columns)
        m_view->setColumnShown(column, false, TableView::ChosenBy::Person);
}

void TableCommands::showAllColumns()
{
    for (int column = 0; column < m_view->sheet()->columnCount(); ++column)
        m_view->setColumnShown(column, true, TableView::ChosenBy::Person);
}

void TableCommands::importFile()
{
    Q_EMIT m_view->importWanted({});
}

void TableCommands::exportFile()
{
    Q_EMIT m_view->exportWanted();
}

} // namespace orv
