#pragma once

#include <orv/widgets/TableView.h>

#include <QAction>
#include <QHash>
#include <QObject>

QT_FORWARD_DECLARE_CLASS(QMenu)

namespace orv {

/// The commands of a table view, one action each.
class TableCommands : public QObject
{
    Q_OBJECT

public:
    explicit TableCommands(TableView *view);

    [[nodiscard]] QAction *action(TableView::Command command) const { return m_actions.value(int(command)); }
    void fillMenu(QMenu *menu) const;
    /// After the selection, the order or the history has changed.
    void update();

    /// Tells what a failed edit says.
    void tell(const Error &error);

    using Handler = void (TableCommands::*)();

private:
    void undo();
    void redo();
    void cut();
    void copy() { copyCells(false); }
    void copyWithHeaders() { copyCells(true); }
    void paste();
    /// Rows that a reader of texts has made, before a shown row.
    void insertRead(const Result<QList<QStringList>> &read, int row);
    void clear();
    void fillDown();
    void addRow();
    void duplicateRows();
    void removeRows();
    void moveUp() { moveRows(-1); }
    void moveDown() { moveRows(1); }
    void sortAscending() { sort(Qt::AscendingOrder); }
    void sortDescending() { sort(Qt::DescendingOrder); }
    void ownOrder();
    void keepOrder();
    void find();
    void replace();
    void nextProblem() { goToProblem(1); }
    void previousProblem() { goToProblem(-1); }
    void hideColumns();
    void showAllColumns();
    void importFile();
    void exportFile();

    friend struct TableCommandTable;

    void addActions();
    static void setTip(QAction *action);
    void edit(const QList<TableCellText> &cells, const QString &step);
    void copyCells(bool withHeaders);
    void sort(Qt::SortOrder order);
    void moveRows(int by);
    void goToProblem(int step);
    void travel(bool isUndo);
    [[nodiscard]] QList<int> selectedRows() const;
    [[nodiscard]] QList<int> selectedSheetRows() const;
    [[nodiscard]] QList<int> selectedColumns() const;
    [[nodiscard]] QList<TableCellText> editableCells(QStringView text) const;

    TableView *m_view; ///< owns this
    QHash<int, QAction *> m_actions;
};

} // namespace orv
